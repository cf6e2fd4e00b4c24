// The Subscription-State header field. Grammar and contract: quill_header_subscription_state.h.

#define CO_UNIT "source/quill/quill_header_subscription_state"

#include <quill/quill_event_reason_value.h>
#include <quill/quill_header_subscription_state.h>
#include <quill/quill_params_header.hpp>
#include <quill/quill_substate_value.h>

struct quillHeaderSubscriptionState : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_HEADER_SUBSCRIPTION_STATE;

    co::TextSlot substateValue; // never null, lower case
    co::TextSlot reason;        // lower case
    co::Int expires;
    co::Int retryAfter;
    quill::ParamsSlot genericParams;

    static constexpr auto members() {
        return std::tuple(&quillHeaderSubscriptionState::substateValue, &quillHeaderSubscriptionState::reason,
                          &quillHeaderSubscriptionState::expires, &quillHeaderSubscriptionState::retryAfter,
                          &quillHeaderSubscriptionState::genericParams);
    }
    static constexpr auto comparison() { return members(); }
};

static constexpr std::tuple lifted{
    quill::TextParam{U"reason", quill___SkipEventReasonValue, &quillHeaderSubscriptionState::reason,
                     quillEventReasonValueNormalize},
    quill::secondsParam(U"expires", &quillHeaderSubscriptionState::expires),
    quill::secondsParam(U"retry-after", &quillHeaderSubscriptionState::retryAfter),
};

QUILL_DEFINE_TEXT_AND_PARAMS_HEADER(SubscriptionState, SUBSCRIPTION_STATE, SubstateValue, substateValue,
                                    quillSubstateValueOk, quill___SkipSubstateValue, quillSubstateValueNormalize,
                                    lifted)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillHeaderSubscriptionState, hdr, Reason, reason, quillEventReasonValueOk, reason,
                                 quillEventReasonValueNormalize)
CO_DEFINE_OPTIONAL_INT_MEMBER(quillHeaderSubscriptionState, hdr, Expires, expires, quillDeltaSecondsOk, expires)
CO_DEFINE_OPTIONAL_INT_MEMBER(quillHeaderSubscriptionState, hdr, RetryAfter, retryAfter, quillDeltaSecondsOk,
                              retryAfter)
