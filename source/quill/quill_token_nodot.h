/// @file
/// Tokens without a dot (RFC 6665, 8.4).
///
///     token-nodot = 1*( alphanum / "-" / "!" / "%" / "*" / "_" / "+" / "`" / "'" / "~" )
#ifndef QUILL_QUILL_TOKEN_NODOT_H
#define QUILL_QUILL_TOKEN_NODOT_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillTokenNodotOk(struct coString const *tokenNodot);
/// In lower case.
QUILL_API struct coString *quillTokenNodotNormalize(struct coString const *tokenNodot);

CO_EXTERN_C_END

#endif
