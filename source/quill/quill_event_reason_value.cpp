// Why a subscription ended (RFC 6665, 8.4). Contract: quill_event_reason_value.h.

#define CO_UNIT "source/quill/quill_event_reason_value"

#include <quill/quill_event_reason_value.h>
#include <quill/quill_scalar.hpp>
#include <quill/quill_token.h>

QUILL_DEFINE_TEXT_VALUE(EventReasonValue, eventReasonValue, quill___SkipEventReasonValue)

struct coString *quillEventReasonValueNormalize(struct coString const *eventReasonValue) {
    CO_ASSERT_GIVEN(eventReasonValue);
    return quillTokenNormalize(eventReasonValue);
}
