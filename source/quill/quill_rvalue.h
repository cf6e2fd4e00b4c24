/// @file
/// Values of Resource-Priority (RFC 4412, 3.1).
///
///     r-value = namespace "." r-priority
#ifndef QUILL_QUILL_RVALUE_H
#define QUILL_QUILL_RVALUE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillRvalueOk(struct coString const *rvalue);

CO_EXTERN_C_END

#endif
