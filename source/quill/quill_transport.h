/// @file
/// Transports (RFC 3261, 25.1).
///
///     transport = "UDP" / "TCP" / "TLS" / "SCTP" / other-transport
#ifndef QUILL_QUILL_TRANSPORT_H
#define QUILL_QUILL_TRANSPORT_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillTransportOk(struct coString const *transport);
/// In lower case.
QUILL_API struct coString *quillTransportNormalize(struct coString const *transport);

CO_EXTERN_C_END

#endif
