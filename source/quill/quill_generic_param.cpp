// One generic parameter. Grammar and contract: quill_generic_param.h.

#define CO_UNIT "source/quill/quill_generic_param"

#include <algorithm>
#include <co/co_simd.hpp>
#include <quill/quill_family.hpp>
#include <quill/quill_generic_param.hpp>
#include <quill/quill_generic_param_name.h>
#include <quill/quill_generic_param_value.h>
#include <quill/quill_lifted.hpp>
#include <quill/quill_skip.h>

QUILL_DEFINE_SORT(GenericParam, GENERIC_PARAM, quill___GenericParamCompareFunc, quill___GenericParamToStringFunc)
QUILL_DEFINE_CREATE_FROM(GenericParam)
QUILL_DEFINE_TO_STRING(GenericParam)
CO_DEFINE_STRING_MEMBER(quillGenericParam, param, Name, name, quillGenericParamNameOk, name,
                        quillGenericParamNameNormalize)
CO_DEFINE_TEXT_FORMS_1(void, quillGenericParamSetName, struct quillGenericParam **, param, name)

// Names, then kinds of value, then normal forms: a token's letter case does not count.
int quill___GenericParamCompareFunc(struct coObj const *objA, struct coObj const *objB) {
    quillGenericParam const *genericParamA = quillGenericParamFrom(objA);
    CO_ASSERT_GIVEN(genericParamA);
    quillGenericParam const *genericParamB = quillGenericParamFrom(objB);
    CO_ASSERT_GIVEN(genericParamB);
    if (int order = genericParamA->name.compare(genericParamB->name)) return order;
    if (int order = genericParamA->valueType.compare(genericParamB->valueType)) return order;
    if (!genericParamA->value) return 0;
    co::Ref<coString> const valueA(quillGenericParamValueNormalized(genericParamA));
    co::Ref<coString> const valueB(quillGenericParamValueNormalized(genericParamB));
    return co::compare(valueA.get(), valueB.get());
}

static void assertValue(int64_t type, coString const *value) {
    CO_ASSERT(quillGenericParamValueOk(type, value), "quillGenericParamValueOk( type, value )");
}

struct quillGenericParam *quillGenericParamCreate(struct coString *name) {
    CO_ASSERT_OK(quillGenericParamNameOk, name);
    auto *param = co::make<quillGenericParam>();
    param->name.adopt(quillGenericParamNameNormalize(name));
    return param;
}

CO_DEFINE_TEXT_FORMS(struct quillGenericParam *, quillGenericParamCreate, name)

struct quillGenericParam *quillGenericParamCreateWithValue(struct coString *name, int64_t type,
                                                           struct coString *value) {
    quillGenericParam *param = quillGenericParamCreate(name);
    quillGenericParamSetValue(&param, type, value);
    return param;
}

// Of texts that no caller has as strings, so that it need not keep them as such.
static quillGenericParam *createOfTexts(coString *name, int64_t type, coString *value) {
    CO_ASSERT_OK(quillGenericParamNameOk, name);
    assertValue(type, value);
    return quill::makeGenericParam(name->view(), type, value->view());
}

struct quillGenericParam *quillGenericParamCreateWithValueCstr(char const *name, int64_t nameLength, int64_t type,
                                                               char const *value, int64_t valueLength) {
    return createOfTexts(co::Text(name, nameLength), type, co::Text(value, valueLength));
}

struct quillGenericParam *quillGenericParamCreateWithValueWcstr(wchar_t const *name, int64_t nameLength, int64_t type,
                                                                wchar_t const *value, int64_t valueLength) {
    return createOfTexts(co::Text(name, nameLength), type, co::Text(value, valueLength));
}

bool quillGenericParamHasValue(struct quillGenericParam const *param) {
    CO_ASSERT_GIVEN(param);
    return static_cast<bool>(param->value);
}

int64_t quillGenericParamValueType(struct quillGenericParam const *param) {
    CO_ASSERT_GIVEN(param);
    return param->valueType.get();
}

struct coString *quillGenericParamValueNormalized(struct quillGenericParam const *param) {
    CO_ASSERT_GIVEN(param);
    co::Ref<coString> const value(param->value.retained());
    return value ? quillGenericParamValueNormalize(param->valueType.get(), value.get()) : nullptr;
}

struct coString *quillGenericParamValueNonNormalized(struct quillGenericParam const *param) {
    CO_ASSERT_GIVEN(param);
    return param->value.retained();
}

void quillGenericParamSetValue(struct quillGenericParam **param, int64_t type, struct coString *value) {
    CO_ASSERT_REFERENCE(param);
    assertValue(type, value);
    quillGenericParam *own = co::writable(param);
    own->valueType.set(type);
    own->value.set(value);
}

CO_DEFINE_TEXT_FORMS_2(void, quillGenericParamSetValue, struct quillGenericParam **, param, int64_t, type, value)

void quillGenericParamDelValue(struct quillGenericParam **param) {
    CO_ASSERT_REFERENCE(param);
    quillGenericParam *own = co::writable(param);
    own->valueType.clear();
    own->value.clear();
}

void quillGenericParamNormalizeValue(struct quillGenericParam **param) {
    CO_ASSERT_REFERENCE(param);
    if (!(*param)->value) return;
    quillGenericParam *own = co::writable(param);
    own->value.adopt(quillGenericParamValueNormalized(own));
}

static coString *encodeValue(quillGenericParam const *param) {
    co::Ref<coString> const value(param->value.retained());
    switch (param->valueType.get()) {
    case QUILL_GENERIC_PARAM_VALUE_TYPE_HOST:
        return quill___HostEncode(value.get());
    case QUILL_GENERIC_PARAM_VALUE_TYPE_QUOTED_STRING:
        return quill___QuotableStringEncode(value.get());
    default:
        co___Abort("QUILL_GENERIC_PARAM_VALUE_TYPE not implemented", CO_UNIT, __LINE__, "false");
    }
}

void quill::appendGenericParam(coString **text, co::Chars before, quillGenericParam const *param) {
    co::Chars const name = param->name.view();
    if (!param->value) return co::append(text, {before, name});
    if (param->valueType.get() == QUILL_GENERIC_PARAM_VALUE_TYPE_TOKEN)
        return co::append(text, {before, name, U"=", param->value.view()});
    co::append(text, {before, name, U"=", co::Ref<coString>(encodeValue(param))->view()});
}

struct coString *quill___GenericParamEncode(struct quillGenericParam const *genericParam) {
    CO_ASSERT_GIVEN(genericParam);
    if (!genericParam->value) return genericParam->name.retained();
    coString *text = coStringCreate();
    quill::appendGenericParam(&text, U"", genericParam);
    return text;
}

struct quillGenericParam *quill::makeGenericParam(co::Chars name, int64_t valueType, co::Chars value) {
    auto *param = co::make<quillGenericParam>(co::length(name) + co::length(value));
    coChar *line = co::lineOf(param);
    std::transform(name.begin(), name.end(), line, co::asciiLower);
    co::simd::copy(line + name.size(), value);
    co::keep(param, &quillGenericParam::name, co::chars(line, co::length(name)));
    if (valueType < 0) return param;
    param->valueType.set(valueType);
    co::keep(param, &quillGenericParam::value, co::chars(line + name.size(), co::length(value)));
    return param;
}

namespace {

// A value that was read: of a token its text, of others what that was decoded to.
struct ReadValue {
    int64_t type = -1;
    co::Chars token = {};
    co::Ref<coString> decoded = {};
};

} // namespace

// What stands behind EQUAL at the start of the text: the first of token, host and quoted string that matches at all. How
// many code points it is, 0 for none.
static int64_t takeValue(ReadValue *value, co::Chars text) {
    if (int64_t const token = quill::matched(quill::rules::token(text))) {
        value->type = QUILL_GENERIC_PARAM_VALUE_TYPE_TOKEN;
        value->token = quill::upTo(text, token);
        return token;
    }
    if (int64_t const host = quill::matched(quill::hostLength(text))) {
        value->type = QUILL_GENERIC_PARAM_VALUE_TYPE_HOST;
        value->decoded.reset(quill___HostTryDecode(text.data(), host));
        return value->decoded ? host : 0;
    }
    int64_t const quoted = quill___SkipQuotedString(text.data(), co::length(text));
    value->type = QUILL_GENERIC_PARAM_VALUE_TYPE_QUOTED_STRING;
    if (quoted > 0) value->decoded.reset(quill___QuotableStringTryDecode(text.data(), quoted));
    return value->decoded ? quoted : 0;
}

// token [ EQUAL gen-value ]
struct quillGenericParam *quill::readGenericParam(co::Chars *text) {
    int64_t const name = matched(rules::token(*text));
    if (name == 0) return nullptr;
    co::Chars rest = from(*text, name);
    ReadValue value;
    if (int64_t const equal = matched(rules::equal(rest))) {
        rest = from(rest, equal);
        int64_t const count = takeValue(&value, rest);
        if (count == 0) return nullptr;
        rest = from(rest, count);
    }
    quillGenericParam *param = makeGenericParam(upTo(*text, name), value.type, value.token);
    if (value.decoded) param->value.adopt(value.decoded.take());
    *text = rest;
    return param;
}

struct quillGenericParam *quill___GenericParamTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    return quill::tryReadWhole(co::chars(chs, length), quill::readGenericParam);
}
