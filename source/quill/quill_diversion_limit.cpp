// How often a call may be diverted (RFC 5806). Contract: quill_diversion_limit.h.

#define CO_UNIT "source/quill/quill_diversion_limit"

#include <quill/quill_diversion_limit.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_INTEGER_VALUE(DiversionLimit, diversionLimit, 0, 99)
QUILL_DEFINE_INTEGER_CODEC(DiversionLimit, diversionLimit)
