/// @file
/// How often a call has been diverted (RFC 5806).
#ifndef QUILL_QUILL_DIVERSION_COUNTER_H
#define QUILL_QUILL_DIVERSION_COUNTER_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// 0 to 99: two digits.
QUILL_API bool quillDiversionCounterOk(int64_t diversionCounter);

CO_EXTERN_C_END

#endif
