// The Session-Expires header field. Grammar and contract: quill_header_session_expires.h.

#define CO_UNIT "source/quill/quill_header_session_expires"

#include <quill/quill_header_session_expires.h>
#include <quill/quill_params_header.hpp>
#include <quill/quill_refresher.h>

struct quillHeaderSessionExpires : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_HEADER_SESSION_EXPIRES;

    co::Int deltaSeconds;   // never absent
    co::TextSlot refresher; // lower case
    quill::ParamsSlot genericParams;

    static constexpr auto members() {
        return std::tuple(&quillHeaderSessionExpires::deltaSeconds, &quillHeaderSessionExpires::refresher,
                          &quillHeaderSessionExpires::genericParams);
    }
    static constexpr auto comparison() { return members(); }
};

static constexpr std::tuple lifted{
    quill::TextParam{U"refresher", quill___SkipRefresher, &quillHeaderSessionExpires::refresher,
                     quillRefresherNormalize},
};

QUILL_DEFINE_SECONDS_AND_PARAMS_HEADER(SessionExpires, SESSION_EXPIRES, lifted)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillHeaderSessionExpires, hdr, Refresher, refresher, quillRefresherOk, refresher,
                                 quillRefresherNormalize)
