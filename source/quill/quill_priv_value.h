/// @file
/// Values of Privacy (RFC 3323, 4.2).
///
///     priv-value = "header" / "session" / "user" / "none" / "critical" / token
#ifndef QUILL_QUILL_PRIV_VALUE_H
#define QUILL_QUILL_PRIV_VALUE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillPrivValueOk(struct coString const *privValue);
/// In lower case.
QUILL_API struct coString *quillPrivValueNormalize(struct coString const *privValue);

CO_EXTERN_C_END

#endif
