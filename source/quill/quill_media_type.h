/// @file
/// Types of media (RFC 3261, 25.1). The wildcard `*`, a token by its form, is none.
///
///     m-type = discrete-type / composite-type
#ifndef QUILL_QUILL_MEDIA_TYPE_H
#define QUILL_QUILL_MEDIA_TYPE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillMediaTypeOk(struct coString const *mediaType);
/// In lower case.
QUILL_API struct coString *quillMediaTypeNormalize(struct coString const *mediaType);

CO_EXTERN_C_END

#endif
