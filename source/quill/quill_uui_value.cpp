// One value of a User-to-User header field. Grammar and contract: quill_uui_value.h.

#define CO_UNIT "source/quill/quill_uui_value"

#include <quill/quill_family.hpp>
#include <quill/quill_lifted.hpp>
#include <quill/quill_quotable_string.h>
#include <quill/quill_token.h>
#include <quill/quill_uui_value.h>

struct quillUuiValue : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_UUI_VALUE;

    co::TextSlot uuiData;  // never null; a token, or a text without quotes
    co::TextSlot encoding; // tokens, as given
    co::TextSlot purpose;
    co::TextSlot content;
    quill::ParamsSlot genericParams;

    static constexpr auto members() {
        return std::tuple(&quillUuiValue::uuiData, &quillUuiValue::encoding, &quillUuiValue::purpose,
                          &quillUuiValue::content, &quillUuiValue::genericParams);
    }
    static constexpr auto comparison() { return members(); }
};

static bool isUuiData(coString const *text) { return quillTokenOk(text) || quillQuotableStringOk(text); }

#define ASSERT_UUI_DATA(uuiData)                                                                                       \
    CO_ASSERT(isUuiData(uuiData), "quillTokenOk( uuiData ) || quillQuotableStringOk( uuiData )")

QUILL_DEFINE_VALUE(UuiValue, UUI_VALUE, uuiValue)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillUuiValue, uuiValue, Encoding, encoding, quillTokenOk, encoding, co::asGiven)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillUuiValue, uuiValue, Purpose, purpose, quillTokenOk, purpose, co::asGiven)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillUuiValue, uuiValue, Content, content, quillTokenOk, content, co::asGiven)
CO_DEFINE_OBJECT_MEMBER(quillUuiValue, uuiValue, GenericParams, genericParams, quillGenericParams, genericParams)

struct coString *quillUuiValueUuiData(struct quillUuiValue const *uuiValue) {
    CO_ASSERT_GIVEN(uuiValue);
    return uuiValue->uuiData.retained();
}

void quillUuiValueSetUuiData(struct quillUuiValue **uuiValue, struct coString *uuiData) {
    CO_ASSERT_REFERENCE(uuiValue);
    ASSERT_UUI_DATA(uuiData);
    co::writable(uuiValue)->uuiData.set(uuiData);
}

struct quillUuiValue *quillUuiValueCreate(struct coString *uuiData) {
    ASSERT_UUI_DATA(uuiData);
    auto *uuiValue = co::make<quillUuiValue>();
    uuiValue->uuiData.set(uuiData);
    return uuiValue;
}

// The names of the lifted parameters, which live from start-up to shut-down.

struct coString *quill___UuiValueEncoding;
struct coString *quill___UuiValuePurpose;
struct coString *quill___UuiValueContent;

void quill___UuiValueStartup(void) {
    quill::start(&quill___UuiValueEncoding, co::makeString(U"encoding"));
    quill::start(&quill___UuiValuePurpose, co::makeString(U"purpose"));
    quill::start(&quill___UuiValueContent, co::makeString(U"content"));
}

void quill___UuiValueShutdown(void) {
    quill::stop(&quill___UuiValueEncoding);
    quill::stop(&quill___UuiValuePurpose);
    quill::stop(&quill___UuiValueContent);
}

static constexpr std::tuple lifted{
    quill::TextParam{U"encoding", quill___SkipToken, &quillUuiValue::encoding},
    quill::TextParam{U"purpose", quill___SkipToken, &quillUuiValue::purpose},
    quill::TextParam{U"content", quill___SkipToken, &quillUuiValue::content},
};

// Data that is no token is left out, so that the text begins with its first parameter.
struct coString *quill___UuiValueEncode(struct quillUuiValue const *uuiValue) {
    CO_ASSERT_GIVEN(uuiValue);
    coString *text = coStringCreate();
    co::Chars const data = uuiValue->uuiData.view();
    if (quill::isWhole(quill___SkipToken, data)) co::append(&text, data);
    quill::appendParams(&text, *uuiValue, lifted);
    return text;
}

// token / quoted-string
static int64_t takeUuiData(quillUuiValue *uuiValue, co::Chars text) {
    if (int64_t const token = quill::measure(quill___SkipToken, text)) {
        co::keep(uuiValue, &quillUuiValue::uuiData, quill::upTo(text, token));
        return token;
    }
    int64_t const quoted = quill::measure(quill___SkipQuotedString, text);
    if (quoted > 0) uuiValue->uuiData.adopt(quill___QuotableStringTryDecode(text.data(), quoted));
    return uuiValue->uuiData ? quoted : 0;
}

static bool readUuiValue(quillUuiValue *uuiValue, co::Chars *line) {
    int64_t const count = takeUuiData(uuiValue, *line);
    if (count == 0) return false;
    *line = quill::readParams(uuiValue, quill::from(*line, count), lifted);
    return true;
}

struct quillUuiValue *quill___UuiValueTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    return quill::tryReadWhole<quillUuiValue>(co::chars(chs, length), readUuiValue);
}
