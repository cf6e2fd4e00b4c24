/// @file
/// How often a call may be diverted (RFC 5806).
#ifndef QUILL_QUILL_DIVERSION_LIMIT_H
#define QUILL_QUILL_DIVERSION_LIMIT_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// 0 to 99: two digits.
QUILL_API bool quillDiversionLimitOk(int64_t diversionLimit);

CO_EXTERN_C_END

#endif
