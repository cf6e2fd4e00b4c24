// Values that refer to more information, without parameters of their own (RFC 3261, 20.4 and 20.18).
//
//     LAQUOT absoluteURI RAQUOT *( SEMI generic-param )
#pragma once

#include <quill/quill_family.hpp>
#include <quill/quill_iri.h>
#include <quill/quill_name_addr.hpp>

// All functions of such a value; the unit's struct has `iri` and `genericParams`.
#define QUILL_DEFINE_INFO(Type, SORT, self)                                                                            \
    QUILL_DEFINE_VALUE(Type, SORT, self)                                                                               \
    CO_DEFINE_STRING_MEMBER(quill##Type, self, Iri, iri, quillIriOk, iri, co::asGiven)                                 \
    CO_DEFINE_OBJECT_MEMBER(quill##Type, self, GenericParams, genericParams, quillGenericParams, genericParams)        \
    struct quill##Type *quill##Type##Create(struct coString *iri) {                                                    \
        CO_ASSERT_OK(quillIriOk, iri);                                                                                 \
        return quill::makeAddress<struct quill##Type>(iri);                                                            \
    }                                                                                                                  \
    struct coString *quill___##Type##Encode(struct quill##Type const *self) {                                          \
        CO_ASSERT_GIVEN(self);                                                                                         \
        return quill::encodeInfo(*self);                                                                               \
    }                                                                                                                  \
    struct quill##Type *quill___##Type##TryDecode(coChar const *chs, int64_t length) {                                 \
        CO_ASSERT_TEXT(chs, length);                                                                                   \
        quill::Info info;                                                                                              \
        if (!quill::tryReadInfo(co::chars(chs, length), &info)) return nullptr;                                        \
        CO_ASSERT(info.genericParams, "genericParams"); /* what the scanner takes can be read */                       \
        return quill::makeInfo<struct quill##Type>(&info);                                                             \
    }

namespace quill {

struct Info {
    Uri uri;
    co::Ref<quillGenericParams> genericParams;
};

// Whether the whole text has the form of an info value with a valid IRI; its parts.
inline bool tryReadInfo(co::Chars text, Info *info) {
    int64_t const count = takeBracketedUri(text, &info->uri);
    co::Chars const params = from(text, count);
    if (count == 0 || measure(quill___SkipGenericParams, params) != co::length(params)) return false;
    info->genericParams.reset(quill___GenericParamsTryDecode(params.data(), co::length(params)));
    return true;
}

template <class T> T *makeInfo(Info *info) {
    T *value = co::make<T>();
    value->iri.adopt(loc::makeIri(info->uri.text));
    value->genericParams.adopt(info->genericParams.take());
    return value;
}

template <class T> coString *encodeInfo(T const &value) {
    coString *text = coStringCreate();
    appendBracketedIri(&text, value.iri);
    appendGenericParams(&text, co::Ref(value.genericParams.retained()).get());
    return text;
}

} // namespace quill
