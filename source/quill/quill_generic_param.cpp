// One generic parameter. Grammar and contract: quill_generic_param.h.

#define CO_UNIT "source/quill/quill_generic_param"

#include <quill/quill_family.hpp>
#include <quill/quill_generic_param.h>
#include <quill/quill_generic_param_name.h>
#include <quill/quill_generic_param_value.h>
#include <quill/quill_lifted.hpp>
#include <quill/quill_skip.h>

struct quillGenericParam : coObj {
    static constexpr auto &sort = quill___sort_QUILL_GENERIC_PARAM;

    co::Slot<coString> name;  // never null, lower case
    co::Int valueType;        // -1 exactly when there is no value
    co::Slot<coString> value; // as given

    static constexpr auto members() {
        return std::tuple(&quillGenericParam::name, &quillGenericParam::valueType, &quillGenericParam::value);
    }
};

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

struct quillGenericParam *quillGenericParamCreateWithValueCstr(char const *name, int64_t nameLength, int64_t type,
                                                               char const *value, int64_t valueLength) {
    return quillGenericParamCreateWithValue(co::Text(name, nameLength), type, co::Text(value, valueLength));
}

struct quillGenericParam *quillGenericParamCreateWithValueWcstr(wchar_t const *name, int64_t nameLength, int64_t type,
                                                                wchar_t const *value, int64_t valueLength) {
    return quillGenericParamCreateWithValue(co::Text(name, nameLength), type, co::Text(value, valueLength));
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
    return param->value ? quillGenericParamValueNormalize(param->valueType.get(), param->value.get()) : nullptr;
}

struct coString *quillGenericParamValueNonNormalized(struct quillGenericParam const *param) {
    CO_ASSERT_GIVEN(param);
    return param->value.retained();
}

void quillGenericParamSetValue(struct quillGenericParam **param, int64_t type, struct coString *value) {
    CO_ASSERT_REFERENCE(param);
    CO_ASSERT(quillGenericParamValueOk(type, value), "quillGenericParamValueOk( type, value )");
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

void quill::appendGenericParam(coString **text, quillGenericParam const *param) {
    co::append(text, param->name->view());
    coString *const value = param->value.get();
    if (!value) return;
    co::append(text, U"=");
    switch (param->valueType.get()) {
    case QUILL_GENERIC_PARAM_VALUE_TYPE_TOKEN:
        return co::append(text, value->view());
    case QUILL_GENERIC_PARAM_VALUE_TYPE_HOST:
        return co::append(text, co::Ref<coString>(quill___HostEncode(value))->view());
    case QUILL_GENERIC_PARAM_VALUE_TYPE_QUOTED_STRING:
        return co::append(text, co::Ref<coString>(quill___QuotableStringEncode(value))->view());
    default:
        co___Abort("QUILL_GENERIC_PARAM_VALUE_TYPE not implemented", CO_UNIT, __LINE__, "false");
    }
}

struct coString *quill___GenericParamEncode(struct quillGenericParam const *genericParam) {
    CO_ASSERT_GIVEN(genericParam);
    if (!genericParam->value) return genericParam->name.retained();
    coString *text = co::makeString(genericParam->name->length + 1 + genericParam->value->length);
    quill::appendGenericParam(&text, genericParam);
    return text;
}

// What stands behind EQUAL at the start of the text: the first of token, host and quoted string that matches at all. How
// many code points it is, 0 for none.
static int64_t takeValue(quillGenericParam *param, co::Chars text) {
    if (int64_t const token = quill::matched(quill::rules::token(text))) {
        param->valueType.set(QUILL_GENERIC_PARAM_VALUE_TYPE_TOKEN);
        param->value.adopt(co::makeString(quill::upTo(text, token)));
        return token;
    }
    if (int64_t const host = quill::matched(quill::hostLength(text))) {
        param->valueType.set(QUILL_GENERIC_PARAM_VALUE_TYPE_HOST);
        param->value.adopt(quill___HostTryDecode(text.data(), host));
        return param->value ? host : 0;
    }
    int64_t const quoted = quill___SkipQuotedString(text.data(), co::length(text));
    param->valueType.set(QUILL_GENERIC_PARAM_VALUE_TYPE_QUOTED_STRING);
    if (quoted > 0) param->value.adopt(quill___QuotableStringTryDecode(text.data(), quoted));
    return param->value ? quoted : 0;
}

// token [ EQUAL gen-value ]
struct quillGenericParam *quill::readGenericParam(co::Chars *text) {
    int64_t const name = matched(rules::token(*text));
    if (name == 0) return nullptr;
    co::Ref<quillGenericParam> param(co::make<quillGenericParam>());
    param->name.adopt(co::makeString(upTo(*text, name)));
    co::makeAsciiLower(param->name->chars(), static_cast<size_t>(name));
    co::Chars rest = from(*text, name);
    if (int64_t const equal = matched(rules::equal(rest))) {
        rest = from(rest, equal);
        int64_t const value = takeValue(param.get(), rest);
        if (value == 0) return nullptr;
        rest = from(rest, value);
    }
    *text = rest;
    return param.take();
}

struct quillGenericParam *quill___GenericParamTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    return quill::tryReadWhole(co::chars(chs, length), quill::readGenericParam);
}
