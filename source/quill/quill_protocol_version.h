/// @file
/// Versions of protocols (RFC 3261, 25.1): "2.0".
///
///     protocol-version = token
#ifndef QUILL_QUILL_PROTOCOL_VERSION_H
#define QUILL_QUILL_PROTOCOL_VERSION_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillProtocolVersionOk(struct coString const *protocolVersion);
/// In lower case.
QUILL_API struct coString *quillProtocolVersionNormalize(struct coString const *protocolVersion);

CO_EXTERN_C_END

#endif
