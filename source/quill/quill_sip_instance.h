/// @file
/// Instance identifiers of a user agent (RFC 5626, 4.1), in their angle brackets.
///
///     "<" instance-val ">"
///     instance-val = 1*uric
#ifndef QUILL_QUILL_SIP_INSTANCE_H
#define QUILL_QUILL_SIP_INSTANCE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillSipInstanceOk(struct coString const *sipInstance);

CO_EXTERN_C_END

#endif
