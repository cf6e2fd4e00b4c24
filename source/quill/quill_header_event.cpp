// The Event header field. Grammar and contract: quill_header_event.h.

#define CO_UNIT "source/quill/quill_header_event"

#include <quill/quill_event_type.h>
#include <quill/quill_header_event.h>
#include <quill/quill_params_header.hpp>
#include <quill/quill_token.h>

struct quillHeaderEvent : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_HEADER_EVENT;

    co::TextSlot eventType; // never null
    co::TextSlot id;
    quill::ParamsSlot genericParams;

    static constexpr auto members() {
        return std::tuple(&quillHeaderEvent::eventType, &quillHeaderEvent::id, &quillHeaderEvent::genericParams);
    }
    static constexpr auto comparison() { return members(); }
};

static constexpr std::tuple lifted{
    quill::TextParam{U"id", quill___SkipToken, &quillHeaderEvent::id},
};

QUILL_DEFINE_TEXT_AND_PARAMS_HEADER(Event, EVENT, EventType, eventType, quillEventTypeOk, quill___SkipEventType,
                                    co::asGiven, lifted)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillHeaderEvent, hdr, Id, id, quillTokenOk, id, co::asGiven)
CO_DEFINE_TEXT_FORMS(struct quillHeaderEvent *, quillHeaderEventCreate, eventType)
CO_DEFINE_TEXT_FORMS_1(void, quillHeaderEventSetEventType, struct quillHeaderEvent **, hdr, eventType)
