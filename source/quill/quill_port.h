/// @file
/// Ports (RFC 3261, 25.1).
#ifndef QUILL_QUILL_PORT_H
#define QUILL_QUILL_PORT_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// Any value that is not negative: the grammar has no upper bound.
QUILL_API bool quillPortOk(int64_t port);

CO_EXTERN_C_END

#endif
