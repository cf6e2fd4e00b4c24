/// @file
/// Names of protocols (RFC 3261, 25.1): "SIP".
///
///     protocol-name = "SIP" / token
#ifndef QUILL_QUILL_PROTOCOL_NAME_H
#define QUILL_QUILL_PROTOCOL_NAME_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillProtocolNameOk(struct coString const *protocolName);
/// In upper case, as the only kind of value.
QUILL_API struct coString *quillProtocolNameNormalize(struct coString const *protocolName);

CO_EXTERN_C_END

#endif
