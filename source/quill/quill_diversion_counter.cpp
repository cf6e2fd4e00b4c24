// How often a call has been diverted (RFC 5806). Contract: quill_diversion_counter.h.

#define CO_UNIT "source/quill/quill_diversion_counter"

#include <quill/quill_diversion_counter.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_INTEGER_VALUE(DiversionCounter, diversionCounter, 0, 99)
QUILL_DEFINE_INTEGER_CODEC(DiversionCounter, diversionCounter)
