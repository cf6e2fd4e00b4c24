// Names of protocols (RFC 3261, 25.1): "SIP". Contract: quill_protocol_name.h.

#define CO_UNIT "source/quill/quill_protocol_name"

#include <quill/quill_protocol_name.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(ProtocolName, protocolName, quill___SkipProtocolName)

struct coString *quillProtocolNameNormalize(struct coString const *protocolName) {
    CO_ASSERT_OK(quillProtocolNameOk, protocolName);
    return quill::mapEach<co::asciiUpper>(protocolName);
}
