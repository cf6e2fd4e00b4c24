// The Allow-Events header field. Grammar and contract: quill_header_allow_events.h.

#define CO_UNIT "source/quill/quill_header_allow_events"

#include <quill/quill_event_type.h>
#include <quill/quill_header_allow_events.h>
#include <quill/quill_header_family.hpp>

QUILL_DEFINE_SET_HEADER(AllowEvents, ALLOW_EVENTS, EventType, eventType, quill___SkipEventType, co::sameChar,
                        quill___SkipComma, U",")
QUILL_DEFINE_SET_TEXT_FORMS(AllowEvents, EventType, eventType)
