// The Max-Forwards header field. Grammar and contract: quill_header_max_forwards.h.

#define CO_UNIT "source/quill/quill_header_max_forwards"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_max_forwards.h>
#include <quill/quill_max_forwards.h>

QUILL_DEFINE_INTEGER_HEADER(MaxForwards, MAX_FORWARDS, MaxForwards, maxForwards)
