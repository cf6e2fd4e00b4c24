// One value of a P-Asserted-Identity or P-Preferred-Identity header field. Grammar and contract: quill_identity_value.h.

#define CO_UNIT "source/quill/quill_identity_value"

#include <quill/quill_display_name.h>
#include <quill/quill_family.hpp>
#include <quill/quill_identity_value.h>
#include <quill/quill_iri.h>
#include <quill/quill_name_addr.hpp>

struct quillIdentityValue : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_IDENTITY_VALUE;

    co::TextSlot iri; // never null
    co::TextSlot displayName;

    static constexpr auto members() { return std::tuple(&quillIdentityValue::iri, &quillIdentityValue::displayName); }
    static constexpr auto comparison() { return members(); }
};

QUILL_DEFINE_VALUE(IdentityValue, IDENTITY_VALUE, identityValue)
CO_DEFINE_STRING_MEMBER(quillIdentityValue, identityValue, Iri, iri, quillIriOk, iri, co::asGiven)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillIdentityValue, identityValue, DisplayName, displayName, quillDisplayNameOk,
                                 displayName, co::asGiven)

struct quillIdentityValue *quillIdentityValueCreate(struct coString *iri) {
    CO_ASSERT_OK(quillIriOk, iri);
    auto *identityValue = co::make<quillIdentityValue>();
    identityValue->iri.set(iri);
    return identityValue;
}

struct coString *quill___IdentityValueEncode(struct quillIdentityValue const *identityValue) {
    CO_ASSERT_GIVEN(identityValue);
    coString *text = coStringCreate();
    quill::appendNameAddr(&text, identityValue->displayName, identityValue->iri);
    return text;
}

static bool readIdentityValue(quillIdentityValue *identityValue, co::Chars *line) {
    int64_t const count = quill::takeNameAddr(identityValue, *line, quill::Bare::allowed);
    *line = quill::from(*line, count);
    return count > 0;
}

struct quillIdentityValue *quill___IdentityValueTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    return quill::tryReadWhole<quillIdentityValue>(co::chars(chs, length), readIdentityValue);
}
