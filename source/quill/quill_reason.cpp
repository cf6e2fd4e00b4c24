// One value of a Reason header field. Grammar and contract: quill_reason.h.

#define CO_UNIT "source/quill/quill_reason"

#include <quill/quill_family.hpp>
#include <quill/quill_lifted.hpp>
#include <quill/quill_reason.h>
#include <quill/quill_reason_cause.h>
#include <quill/quill_reason_protocol.h>
#include <quill/quill_reason_text.h>

struct quillReason : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_REASON;

    co::TextSlot protocol; // never null
    co::TextSlot cause;    // digits
    co::TextSlot text;     // without quotes
    quill::ParamsSlot genericParams;

    static constexpr auto members() {
        return std::tuple(&quillReason::protocol, &quillReason::cause, &quillReason::text, &quillReason::genericParams);
    }
    static constexpr auto comparison() { return members(); }
};

QUILL_DEFINE_VALUE(Reason, REASON, reason)
CO_DEFINE_STRING_MEMBER(quillReason, reason, Protocol, protocol, quillReasonProtocolOk, reasonProtocol, co::asGiven)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillReason, reason, Cause, cause, quillReasonCauseOk, reasonCause, co::asGiven)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillReason, reason, Text, text, quillReasonTextOk, reasonText, co::asGiven)
CO_DEFINE_OBJECT_MEMBER(quillReason, reason, GenericParams, genericParams, quillGenericParams, genericParams)

struct quillReason *quillReasonCreate(struct coString *reasonProtocol) {
    CO_ASSERT_OK(quillReasonProtocolOk, reasonProtocol);
    auto *reason = co::make<quillReason>();
    reason->protocol.set(reasonProtocol);
    return reason;
}

static coString *decodeText(coChar const *chs, int64_t length) {
    coString *text = quill___QuotableStringTryDecode(chs, length);
    CO_ASSERT(text, "(*reason)->text"); // what the scanner takes can be read
    return text;
}

static coString *encodeText(coString *text) { return quill___QuotableStringEncode(text); }

static constexpr std::tuple lifted{
    quill::TextParam{U"cause", quill___SkipDigits, &quillReason::cause},
    quill::CodedParam{U"text", quill___SkipQuotedString, decodeText, encodeText, &quillReason::text},
};

struct coString *quill___ReasonEncode(struct quillReason const *reason) {
    CO_ASSERT_GIVEN(reason);
    coString *text = co::makeString(reason->protocol.view());
    quill::appendParams(&text, *reason, lifted);
    return text;
}

static bool readReason(quillReason *reason, co::Chars *line) {
    int64_t const count = quill::measure(quill___SkipReasonProtocol, *line);
    if (count == 0) return false;
    co::keep(reason, &quillReason::protocol, quill::upTo(*line, count));
    *line = quill::readParams(reason, quill::from(*line, count), lifted);
    return true;
}

struct quillReason *quill___ReasonTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    return quill::tryReadWhole<quillReason>(co::chars(chs, length), readReason);
}
