// The Session-Id header field. Grammar and contract: quill_header_session_id.h.

#define CO_UNIT "source/quill/quill_header_session_id"

#include <quill/quill_header_session_id.h>
#include <quill/quill_params_header.hpp>
#include <quill/quill_sess_uuid.h>

struct quillHeaderSessionId : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_HEADER_SESSION_ID;

    co::TextSlot localUuid; // never null
    co::TextSlot remoteUuid;
    quill::ParamsSlot genericParams;

    static constexpr auto members() {
        return std::tuple(&quillHeaderSessionId::localUuid, &quillHeaderSessionId::remoteUuid,
                          &quillHeaderSessionId::genericParams);
    }
    static constexpr auto comparison() { return members(); }
};

static constexpr std::tuple lifted{
    quill::TextParam{U"remote", quill___SkipSessUuid, &quillHeaderSessionId::remoteUuid},
};

QUILL_DEFINE_TEXT_AND_PARAMS_HEADER(SessionId, SESSION_ID, LocalUuid, localUuid, quillSessUuidOk, quill___SkipSessUuid,
                                    co::asGiven, lifted)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillHeaderSessionId, hdr, RemoteUuid, remoteUuid, quillSessUuidOk, remoteUuid,
                                 co::asGiven)
