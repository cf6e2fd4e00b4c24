/// @file
/// How often a request may be forwarded yet (RFC 3261, 20.22).
#ifndef QUILL_QUILL_MAX_FORWARDS_H
#define QUILL_QUILL_MAX_FORWARDS_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// 0 to 255.
QUILL_API bool quillMaxForwardsOk(int64_t maxForwards);

CO_EXTERN_C_END

#endif
