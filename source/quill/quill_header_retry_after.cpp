// The Retry-After header field. Grammar and contract: quill_header_retry_after.h.

#define CO_UNIT "source/quill/quill_header_retry_after"

#include <quill/quill_header_retry_after.h>
#include <quill/quill_params_header.hpp>

struct quillHeaderRetryAfter : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_HEADER_RETRY_AFTER;

    co::Int deltaSeconds; // never absent
    co::Int duration;
    quill::ParamsSlot genericParams;

    static constexpr auto members() {
        return std::tuple(&quillHeaderRetryAfter::deltaSeconds, &quillHeaderRetryAfter::duration,
                          &quillHeaderRetryAfter::genericParams);
    }
    static constexpr auto comparison() { return members(); }
};

static constexpr std::tuple lifted{
    quill::secondsParam(U"duration", &quillHeaderRetryAfter::duration),
};

QUILL_DEFINE_SECONDS_AND_PARAMS_MEMBERS(RetryAfter, RETRY_AFTER, lifted)
CO_DEFINE_OPTIONAL_INT_MEMBER(quillHeaderRetryAfter, hdr, Duration, duration, quillDeltaSecondsOk, duration)

// The comment is for people; it is not kept.
static bool readValue(quillHeaderRetryAfter *hdr, co::Chars line) {
    if (!quill::readSeconds(hdr, &line)) return false;
    line = quill::from(line, quill::measure(quill___SkipLws, line));
    line = quill::from(line, quill::measure(quill___SkipComment, line));
    return quill::takeParams(hdr, line, lifted);
}
