// One value of a User-to-User header field. Grammar and contract: quill_uui_value.h.

#define CO_UNIT "source/quill/quill_uui_value"

#include <quill/quill_family.hpp>
#include <quill/quill_lifted.hpp>
#include <quill/quill_quotable_string.h>
#include <quill/quill_token.h>
#include <quill/quill_uui_value.h>

struct quillUuiValue : coObj {
    static constexpr auto &sort = quill___sort_QUILL_UUI_VALUE;

    co::Slot<coString> uuiData;  // never null; a token, or a text without quotes
    co::Slot<coString> encoding; // tokens, as given
    co::Slot<coString> purpose;
    co::Slot<coString> content;
    co::Slot<quillGenericParams> genericParams; // never null

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
    uuiValue->genericParams.set(quill::noGenericParams());
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
    if (quillTokenOk(uuiValue->uuiData.get())) co::append(&text, uuiValue->uuiData->view());
    quill::appendParams(&text, *uuiValue, lifted);
    return text;
}

// token / quoted-string
static int64_t takeUuiData(co::Chars text, co::Ref<coString> *data) {
    if (int64_t const token = quill::measure(quill___SkipToken, text)) {
        data->reset(co::makeString(quill::upTo(text, token)));
        return token;
    }
    int64_t const quoted = quill::measure(quill___SkipQuotedString, text);
    if (quoted > 0) data->reset(quill___QuotableStringTryDecode(text.data(), quoted));
    return *data ? quoted : 0;
}

struct quillUuiValue *quill___UuiValueTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    co::Chars const text = co::chars(chs, length);
    co::Ref<coString> data;
    int64_t const count = takeUuiData(text, &data);
    if (count == 0) return nullptr;
    co::Ref<quillUuiValue> uuiValue(quillUuiValueCreate(data.get()));
    return quill::takeParams(uuiValue.get(), quill::from(text, count), lifted) ? uuiValue.take() : nullptr;
}
