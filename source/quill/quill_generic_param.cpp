// One generic parameter. Grammar and contract: quill_generic_param.h.

#define CO_UNIT "source/quill/quill_generic_param"

#include <quill/quill_family.hpp>
#include <quill/quill_generic_param.h>
#include <quill/quill_generic_param_name.h>
#include <quill/quill_generic_param_value.h>
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

// Takes the value's text over.
static coString *joined(coString const *name, coString *taken) {
    co::Ref<coString> const value(taken);
    coString *text = co::makeString(name->length + 1 + value->length);
    co::append(&text, {name->view(), U"=", value->view()});
    return text;
}

struct coString *quill___GenericParamEncode(struct quillGenericParam const *genericParam) {
    CO_ASSERT_GIVEN(genericParam);
    coString *name = genericParam->name.get();
    coString *value = genericParam->value.get();
    if (!value) return co::retained(name);
    switch (genericParam->valueType.get()) {
    case QUILL_GENERIC_PARAM_VALUE_TYPE_TOKEN:
        return joined(name, co::retained(value));
    case QUILL_GENERIC_PARAM_VALUE_TYPE_HOST:
        return joined(name, quill___HostEncode(value));
    case QUILL_GENERIC_PARAM_VALUE_TYPE_QUOTED_STRING:
        return joined(name, quill___QuotableStringEncode(value));
    default:
        co___Abort("QUILL_GENERIC_PARAM_VALUE_TYPE not implemented", CO_UNIT, __LINE__, "false");
    }
}

// What stands behind EQUAL: the first of token, host and quoted string that matches at all has to be the whole of it.
static coString *tryDecodeValue(coChar const *chs, int64_t length, int64_t *type) {
    if (int64_t const token = quill___SkipToken(chs, length)) {
        *type = QUILL_GENERIC_PARAM_VALUE_TYPE_TOKEN;
        return token == length ? co::makeString(co::chars(chs, length)) : nullptr;
    }
    if (int64_t const host = quill___SkipHost(chs, length)) {
        *type = QUILL_GENERIC_PARAM_VALUE_TYPE_HOST;
        return host == length ? quill___HostTryDecode(chs, length) : nullptr;
    }
    *type = QUILL_GENERIC_PARAM_VALUE_TYPE_QUOTED_STRING;
    if (quill___SkipQuotedString(chs, length) != length) return nullptr;
    return quill___QuotableStringTryDecode(chs, length);
}

// token [ EQUAL gen-value ]
struct quillGenericParam *quill___GenericParamTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    int64_t const nameLength = quill___SkipToken(chs, length);
    if (nameLength == 0) return nullptr;
    co::Ref<coString> const name(co::makeString(co::chars(chs, nameLength)));
    if (nameLength == length) return quillGenericParamCreate(name.get());

    int64_t const equal = quill___SkipEqual(chs + nameLength, length - nameLength);
    if (equal == 0) return nullptr;
    int64_t const at = nameLength + equal;
    int64_t type = -1;
    co::Ref<coString> const value(tryDecodeValue(chs + at, length - at, &type));
    if (!value) return nullptr;
    return quillGenericParamCreateWithValue(name.get(), type, value.get());
}
