/// @file
/// Subtypes of media (RFC 3261, 25.1). The wildcard `*`, a token by its form, is none.
///
///     m-subtype = extension-token / iana-token
#ifndef QUILL_QUILL_MEDIA_SUBTYPE_H
#define QUILL_QUILL_MEDIA_SUBTYPE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillMediaSubtypeOk(struct coString const *mediaSubtype);
/// In lower case.
QUILL_API struct coString *quillMediaSubtypeNormalize(struct coString const *mediaSubtype);

CO_EXTERN_C_END

#endif
