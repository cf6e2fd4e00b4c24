// The Replaces header field. Grammar and contract: quill_header_replaces.h.

#define CO_UNIT "source/quill/quill_header_replaces"

#include <quill/quill_call_id.h>
#include <quill/quill_header_replaces.h>
#include <quill/quill_params_header.hpp>
#include <quill/quill_tag.h>

struct quillHeaderReplaces : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_HEADER_REPLACES;

    co::TextSlot callId; // never null
    co::TextSlot fromTag;
    co::TextSlot toTag;
    co::Flag earlyOnly;
    quill::ParamsSlot genericParams;

    static constexpr auto members() {
        return std::tuple(&quillHeaderReplaces::callId, &quillHeaderReplaces::fromTag, &quillHeaderReplaces::toTag,
                          &quillHeaderReplaces::earlyOnly, &quillHeaderReplaces::genericParams);
    }
    static constexpr auto comparison() { return members(); }
};

static constexpr std::tuple lifted{
    quill::TextParam{U"from-tag", quill___SkipTag, &quillHeaderReplaces::fromTag},
    quill::TextParam{U"to-tag", quill___SkipTag, &quillHeaderReplaces::toTag},
    quill::FlagParam{U"early-only", quill::Behind::noEqual, &quillHeaderReplaces::earlyOnly},
};

QUILL_DEFINE_TEXT_AND_PARAMS_HEADER(Replaces, REPLACES, CallId, callId, quillCallIdOk, quill___SkipCallId, co::asGiven,
                                    lifted)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillHeaderReplaces, hdr, FromTag, fromTag, quillTagOk, fromTag, co::asGiven)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillHeaderReplaces, hdr, ToTag, toTag, quillTagOk, toTag, co::asGiven)
CO_DEFINE_FLAG_MEMBER(quillHeaderReplaces, hdr, EarlyOnly, earlyOnly, earlyOnly)
