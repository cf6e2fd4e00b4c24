// One value of a Call-Info header field. Grammar and contract: quill_call_info.h.

#define CO_UNIT "source/quill/quill_call_info"

#include <quill/quill_call_info.h>
#include <quill/quill_family.hpp>
#include <quill/quill_iri.h>
#include <quill/quill_name_addr.hpp>
#include <quill/quill_purpose.h>

struct quillCallInfo : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_CALL_INFO;

    co::TextSlot iri;     // never null
    co::TextSlot purpose; // lower case
    quill::ParamsSlot genericParams;

    static constexpr auto members() {
        return std::tuple(&quillCallInfo::iri, &quillCallInfo::purpose, &quillCallInfo::genericParams);
    }
    static constexpr auto comparison() { return members(); }
};

QUILL_DEFINE_VALUE(CallInfo, CALL_INFO, callInfo)
CO_DEFINE_STRING_MEMBER(quillCallInfo, callInfo, Iri, iri, quillIriOk, iri, co::asGiven)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillCallInfo, callInfo, Purpose, purpose, quillPurposeOk, purpose,
                                 quillPurposeNormalize)
CO_DEFINE_OBJECT_MEMBER(quillCallInfo, callInfo, GenericParams, genericParams, quillGenericParams, genericParams)

struct quillCallInfo *quillCallInfoCreate(struct coString *iri) {
    CO_ASSERT_OK(quillIriOk, iri);
    return quill::makeAddress<quillCallInfo>(iri);
}

static constexpr std::tuple lifted{
    quill::TextParam{U"purpose", quill___SkipPurpose, &quillCallInfo::purpose, quillPurposeNormalize},
};

struct coString *quill___CallInfoEncode(struct quillCallInfo const *callInfo) {
    CO_ASSERT_GIVEN(callInfo);
    coString *text = coStringCreate();
    quill::appendBracketedIri(&text, callInfo->iri);
    quill::appendParams(&text, *callInfo, lifted);
    return text;
}

static bool readCallInfo(quillCallInfo *callInfo, co::Chars *line) {
    quill::Uri uri;
    int64_t const count = quill::takeBracketedUri(*line, &uri);
    if (count == 0) return false;
    quill::keepIri(callInfo, uri);
    *line = quill::readParams(callInfo, quill::from(*line, count), lifted);
    return true;
}

struct quillCallInfo *quill___CallInfoTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    return quill::tryReadWhole<quillCallInfo>(co::chars(chs, length), readCallInfo);
}
