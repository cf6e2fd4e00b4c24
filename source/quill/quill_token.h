/// @file
/// Tokens (RFC 3261, 25.1), the most common of values.
///
///     token = 1*(alphanum / "-" / "." / "!" / "%" / "*" / "_" / "+" / "`" / "'" / "~" )
#ifndef QUILL_QUILL_TOKEN_H
#define QUILL_QUILL_TOKEN_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillTokenOk(struct coString const *token);
/// In lower case.
QUILL_API struct coString *quillTokenNormalize(struct coString const *token);

CO_EXTERN_C_END

#endif
