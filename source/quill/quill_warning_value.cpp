// One value of a Warning header field. Grammar and contract: quill_warning_value.h.

#define CO_UNIT "source/quill/quill_warning_value"

#include <quill/quill_family.hpp>
#include <quill/quill_lifted.hpp>
#include <quill/quill_warn_agent.h>
#include <quill/quill_warn_code.h>
#include <quill/quill_warn_text.h>
#include <quill/quill_warning_value.h>

struct quillWarningValue : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_WARNING_VALUE;

    co::Int warnCode;       // never absent
    co::TextSlot warnAgent; // never null
    co::TextSlot warnText;  // never null, without quotes

    static constexpr auto members() {
        return std::tuple(&quillWarningValue::warnCode, &quillWarningValue::warnAgent, &quillWarningValue::warnText);
    }
    static constexpr auto comparison() { return members(); }
};

QUILL_DEFINE_VALUE(WarningValue, WARNING_VALUE, warningValue)
CO_DEFINE_INT_MEMBER(quillWarningValue, warningValue, WarnCode, warnCode, quillWarnCodeOk, warnCode)
CO_DEFINE_STRING_MEMBER(quillWarningValue, warningValue, WarnAgent, warnAgent, quillWarnAgentOk, warnAgent, co::asGiven)
CO_DEFINE_STRING_MEMBER(quillWarningValue, warningValue, WarnText, warnText, quillWarnTextOk, warnText, co::asGiven)

static quillWarningValue *makeWarningValue(int64_t warnCode, coString *warnAgent, coString *warnText) {
    auto *warningValue = co::make<quillWarningValue>();
    warningValue->warnCode.set(warnCode);
    warningValue->warnAgent.set(warnAgent);
    warningValue->warnText.set(warnText);
    return warningValue;
}

struct quillWarningValue *quillWarningValueCreate(int64_t warnCode, struct coString *warnAgent) {
    CO_ASSERT_OK(quillWarnCodeOk, warnCode);
    CO_ASSERT_OK(quillWarnAgentOk, warnAgent);
    co::Ref<coString> const warnText(quillWarnCodeToString(warnCode));
    return makeWarningValue(warnCode, warnAgent, warnText.get());
}

struct quillWarningValue *quillWarningValueCreateWithWarnText(int64_t warnCode, struct coString *warnAgent,
                                                              struct coString *warnText) {
    CO_ASSERT_OK(quillWarnCodeOk, warnCode);
    CO_ASSERT_OK(quillWarnAgentOk, warnAgent);
    CO_ASSERT_OK(quillWarnTextOk, warnText);
    return makeWarningValue(warnCode, warnAgent, warnText);
}

struct coString *quill___WarningValueEncode(struct quillWarningValue const *warningValue) {
    CO_ASSERT_GIVEN(warningValue);
    co::Ref<coString> const warnText(warningValue->warnText.retained());
    return coStringCreateFromFormatCstr("%~s %~s %~s", -1, quill___WarnCodeEncode(warningValue->warnCode.get()),
                                        warningValue->warnAgent.retained(),
                                        quill___QuotableStringEncode(warnText.get()));
}

// warn-code LWS warn-agent LWS warn-text, and whatever comes then
struct quillWarningValue *quill___WarningValueTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    quill::Reader reader{co::chars(chs, length)};
    co::Chars const code = reader.take(quill___SkipWarnCode);
    reader.take(quill___SkipLws);
    co::Chars const agent = reader.take(quill___SkipWarnAgent);
    reader.take(quill___SkipLws);
    co::Chars const quoted = reader.take(quill___SkipWarnText);
    if (reader.failed) return nullptr;
    co::Ref<coString> const warnAgent(co::makeString(agent));
    co::Ref<coString> const warnText(quill___QuotableStringTryDecode(quoted.data(), co::length(quoted)));
    if (!warnText) return nullptr;
    int64_t const warnCode = quill___WarnCodeDecode(code.data(), co::length(code));
    return makeWarningValue(warnCode, warnAgent.get(), warnText.get());
}
