// The Timestamp header field. Grammar and contract: quill_header_timestamp.h.

#define CO_UNIT "source/quill/quill_header_timestamp"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_timestamp.h>
#include <quill/quill_timestamp_value.h>

QUILL_DEFINE_TEXT_HEADER(Timestamp, TIMESTAMP, TimestampValue, timestampValue)
