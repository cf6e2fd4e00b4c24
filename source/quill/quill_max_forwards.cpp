// How often a request may be forwarded yet (RFC 3261, 20.22). Contract: quill_max_forwards.h.

#define CO_UNIT "source/quill/quill_max_forwards"

#include <quill/quill_max_forwards.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_INTEGER_VALUE(MaxForwards, maxForwards, 0, 255)
