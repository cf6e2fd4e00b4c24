// The Referred-By header field. Grammar and contract: quill_header_referred_by.h.

#define CO_UNIT "source/quill/quill_header_referred_by"

#include <quill/quill_address_header.hpp>
#include <quill/quill_header_referred_by.h>
#include <quill/quill_sip_clean_msg_id.h>

struct quillHeaderReferredBy : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_HEADER_REFERRED_BY;

    co::TextSlot iri; // never null
    co::TextSlot displayName;
    co::TextSlot cid; // without its quotes
    quill::ParamsSlot genericParams;

    static constexpr auto members() {
        return std::tuple(&quillHeaderReferredBy::iri, &quillHeaderReferredBy::displayName, &quillHeaderReferredBy::cid,
                          &quillHeaderReferredBy::genericParams);
    }
    static constexpr auto comparison() { return members(); }
};

static constexpr std::tuple lifted{
    quill::EnclosedParam{U"cid", quill___SkipSipCleanMsgId, &quillHeaderReferredBy::cid},
};

QUILL_DEFINE_LINE_HEADER(ReferredBy, REFERRED_BY)
QUILL_DEFINE_ADDRESS_MEMBERS(ReferredBy)
QUILL_DEFINE_ADDRESS_CODEC(ReferredBy, lifted)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillHeaderReferredBy, hdr, Cid, cid, quillSipCleanMsgIdOk, cid, co::asGiven)
