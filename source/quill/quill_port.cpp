// Ports (RFC 3261, 25.1). Contract: quill_port.h.

#define CO_UNIT "source/quill/quill_port"

#include <quill/quill_port.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_INTEGER_VALUE(Port, port, 0, INT64_MAX)
QUILL_DEFINE_INTEGER_CODEC(Port, port)
