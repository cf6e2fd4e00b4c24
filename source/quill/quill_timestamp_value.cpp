// What the Timestamp header field holds (RFC 3261, 20.38). Contract: quill_timestamp_value.h.

#define CO_UNIT "source/quill/quill_timestamp_value"

#include <quill/quill_scalar.hpp>
#include <quill/quill_timestamp_value.h>

QUILL_DEFINE_TEXT_VALUE(TimestampValue, timestampValue, quill___SkipTimestampValue)
