// Seconds from now (RFC 3261, 25.1). Contract: quill_delta_seconds.h.

#define CO_UNIT "source/quill/quill_delta_seconds"

#include <quill/quill_delta_seconds.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_INTEGER_VALUE(DeltaSeconds, deltaSeconds, 0, INT64_MAX)
QUILL_DEFINE_INTEGER_CODEC(DeltaSeconds, deltaSeconds)
