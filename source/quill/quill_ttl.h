/// @file
/// Time to live of multicast packets (RFC 3261, 25.1).
#ifndef QUILL_QUILL_TTL_H
#define QUILL_QUILL_TTL_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// 0 to 255.
QUILL_API bool quillTtlOk(int64_t ttl);

CO_EXTERN_C_END

#endif
