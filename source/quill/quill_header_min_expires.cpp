// The Min-Expires header field. Grammar and contract: quill_header_min_expires.h.

#define CO_UNIT "source/quill/quill_header_min_expires"

#include <quill/quill_delta_seconds.h>
#include <quill/quill_header_family.hpp>
#include <quill/quill_header_min_expires.h>

QUILL_DEFINE_INTEGER_HEADER(MinExpires, MIN_EXPIRES, DeltaSeconds, deltaSeconds)
