// Versions of protocols (RFC 3261, 25.1): "2.0". Contract: quill_protocol_version.h.

#define CO_UNIT "source/quill/quill_protocol_version"

#include <quill/quill_protocol_version.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(ProtocolVersion, protocolVersion, quill___SkipProtocolVersion)
QUILL_DEFINE_LOWER_NORMALIZE(ProtocolVersion, protocolVersion)
