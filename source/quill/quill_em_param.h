/// @file
/// Values of P-Early-Media (RFC 5009, 8).
///
///     em-param = "sendrecv" / "sendonly" / "recvonly" / "inactive" / "gated" / "supported" / token
#ifndef QUILL_QUILL_EM_PARAM_H
#define QUILL_QUILL_EM_PARAM_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillEmParamOk(struct coString const *emParam);

CO_EXTERN_C_END

#endif
