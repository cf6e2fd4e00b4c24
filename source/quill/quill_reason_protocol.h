/// @file
/// Protocols of Reason (RFC 3326, 2): "SIP", "Q.850".
///
///     protocol = "SIP" / "Q.850" / token
#ifndef QUILL_QUILL_REASON_PROTOCOL_H
#define QUILL_QUILL_REASON_PROTOCOL_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillReasonProtocolOk(struct coString const *reasonProtocol);

CO_EXTERN_C_END

#endif
