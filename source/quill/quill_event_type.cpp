// Event packages with their templates (RFC 6665, 8.4), compared as they are. Contract: quill_event_type.h.

#define CO_UNIT "source/quill/quill_event_type"

#include <quill/quill_event_type.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(EventType, eventType, quill___SkipEventType)
