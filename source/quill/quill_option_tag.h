/// @file
/// Option tags (RFC 3261, 19.2).
///
///     option-tag = token
#ifndef QUILL_QUILL_OPTION_TAG_H
#define QUILL_QUILL_OPTION_TAG_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillOptionTagOk(struct coString const *optionTag);
/// In lower case.
QUILL_API struct coString *quillOptionTagNormalize(struct coString const *optionTag);

CO_EXTERN_C_END

#endif
