/// @file
/// Seconds from now (RFC 3261, 25.1).
#ifndef QUILL_QUILL_DELTA_SECONDS_H
#define QUILL_QUILL_DELTA_SECONDS_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// Any value that is not negative.
QUILL_API bool quillDeltaSecondsOk(int64_t deltaSeconds);

CO_EXTERN_C_END

#endif
