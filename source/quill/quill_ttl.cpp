// Time to live of multicast packets (RFC 3261, 25.1). Contract: quill_ttl.h.

#define CO_UNIT "source/quill/quill_ttl"

#include <quill/quill_scalar.hpp>
#include <quill/quill_ttl.h>

QUILL_DEFINE_INTEGER_VALUE(Ttl, ttl, 0, 255)
QUILL_DEFINE_INTEGER_CODEC(Ttl, ttl)
