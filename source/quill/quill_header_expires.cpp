// The Expires header field. Grammar and contract: quill_header_expires.h.

#define CO_UNIT "source/quill/quill_header_expires"

#include <quill/quill_delta_seconds.h>
#include <quill/quill_header_expires.h>
#include <quill/quill_header_family.hpp>

QUILL_DEFINE_INTEGER_HEADER(Expires, EXPIRES, DeltaSeconds, deltaSeconds)
