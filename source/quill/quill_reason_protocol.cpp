// Protocols of Reason (RFC 3326, 2): "SIP", "Q.850". Contract: quill_reason_protocol.h.

#define CO_UNIT "source/quill/quill_reason_protocol"

#include <quill/quill_reason_protocol.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(ReasonProtocol, reasonProtocol, quill___SkipReasonProtocol)
