// Transports (RFC 3261, 25.1). Contract: quill_transport.h.

#define CO_UNIT "source/quill/quill_transport"

#include <quill/quill_scalar.hpp>
#include <quill/quill_transport.h>

QUILL_DEFINE_TEXT_VALUE(Transport, transport, quill___SkipTransport)
QUILL_DEFINE_LOWER_NORMALIZE(Transport, transport)
