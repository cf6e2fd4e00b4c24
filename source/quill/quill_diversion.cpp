// One value of a Diversion header field. Grammar and contract: quill_diversion.h.

#define CO_UNIT "source/quill/quill_diversion"

#include <quill/quill_display_name.h>
#include <quill/quill_diversion.h>
#include <quill/quill_diversion_counter.h>
#include <quill/quill_diversion_limit.h>
#include <quill/quill_diversion_privacy.h>
#include <quill/quill_diversion_reason.h>
#include <quill/quill_diversion_screen.h>
#include <quill/quill_family.hpp>
#include <quill/quill_iri.h>
#include <quill/quill_name_addr.hpp>

struct quillDiversion : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_DIVERSION;

    co::TextSlot iri; // never null
    co::TextSlot displayName;
    co::TextSlot reason; // lower case, like privacy and screen
    co::Int counter;
    co::Int limit;
    co::TextSlot privacy;
    co::TextSlot screen;
    quill::ParamsSlot genericParams;

    static constexpr auto members() {
        return std::tuple(&quillDiversion::iri, &quillDiversion::displayName, &quillDiversion::reason,
                          &quillDiversion::counter, &quillDiversion::limit, &quillDiversion::privacy,
                          &quillDiversion::screen, &quillDiversion::genericParams);
    }
    static constexpr auto comparison() { return members(); }
};

QUILL_DEFINE_VALUE(Diversion, DIVERSION, diversion)
CO_DEFINE_STRING_MEMBER(quillDiversion, diversion, Iri, iri, quillIriOk, iri, co::asGiven)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillDiversion, diversion, DisplayName, displayName, quillDisplayNameOk, displayName,
                                 co::asGiven)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillDiversion, diversion, Reason, reason, quillDiversionReasonOk, reason,
                                 quillDiversionReasonNormalize)
CO_DEFINE_OPTIONAL_INT_MEMBER(quillDiversion, diversion, Counter, counter, quillDiversionCounterOk, counter)
CO_DEFINE_OPTIONAL_INT_MEMBER(quillDiversion, diversion, Limit, limit, quillDiversionLimitOk, limit)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillDiversion, diversion, Privacy, privacy, quillDiversionPrivacyOk, privacy,
                                 quillDiversionPrivacyNormalize)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillDiversion, diversion, Screen, screen, quillDiversionScreenOk, screen,
                                 quillDiversionScreenNormalize)
CO_DEFINE_OBJECT_MEMBER(quillDiversion, diversion, GenericParams, genericParams, quillGenericParams, genericParams)

struct quillDiversion *quillDiversionCreate(struct coString *iri) {
    CO_ASSERT_OK(quillIriOk, iri);
    return quill::makeAddress<quillDiversion>(iri);
}

namespace {

// name EQUAL ( token / quoted-string ), kept in lower case. What is read from a quoted string comes without its quotes
// and need not be valid for the setter, which takes a quoted string with them. So that each can be read back, what is a
// token or in quotes already is written as it is, and anything else in quotes.
struct TokenOrQuotedParam {
    co::Chars name;
    quill::Scanner scan;
    coString *(*tryDecode)(coChar const *, int64_t);
    coString *(*encodeValue)(coString *);
    coString *(*normalize)(coString const *);
    co::TextSlot quillDiversion::*field;

    int64_t take(quillDiversion *diversion, co::Chars text) const {
        int64_t const at = quill::takeNameEqual(text, name);
        int64_t const count = at ? quill::measure(scan, quill::from(text, at)) : 0;
        co::Ref<coString> const value(count ? tryDecode(quill::from(text, at).data(), count) : nullptr);
        if (!value) return 0;
        (diversion->*field).adopt(normalize(value.get()));
        return at + count;
    }
    bool isSet(quillDiversion const &diversion) const { return static_cast<bool>(diversion.*field); }
    void encode(coString **text, quillDiversion const &diversion) const {
        co::Ref<coString> const value((diversion.*field).retained());
        bool const isWritten = quill::isWhole(scan, value->view());
        if (isWritten) return quill::appendParam(text, name, value->view());
        quill::appendTakenParam(text, name, encodeValue(value.get()));
    }
};

} // namespace

static constexpr std::tuple lifted{
    TokenOrQuotedParam{U"reason", quill___SkipDiversionReason, quill___DiversionReasonTryDecode,
                       quill___DiversionReasonEncode, quillDiversionReasonNormalize, &quillDiversion::reason},
    quill::IntParam{U"counter", quill___SkipDiversionCounter, quill___DiversionCounterTryDecode,
                    quill___DiversionCounterEncode, &quillDiversion::counter},
    quill::IntParam{U"limit", quill___SkipDiversionLimit, quill___DiversionLimitTryDecode, quill___DiversionLimitEncode,
                    &quillDiversion::limit},
    TokenOrQuotedParam{U"privacy", quill___SkipDiversionPrivacy, quill___DiversionPrivacyTryDecode,
                       quill___DiversionPrivacyEncode, quillDiversionPrivacyNormalize, &quillDiversion::privacy},
    TokenOrQuotedParam{U"screen", quill___SkipDiversionScreen, quill___DiversionScreenTryDecode,
                       quill___DiversionScreenEncode, quillDiversionScreenNormalize, &quillDiversion::screen},
};

struct coString *quill___DiversionEncode(struct quillDiversion const *diversion) {
    CO_ASSERT_GIVEN(diversion);
    return quill::encodeAddress(*diversion, lifted);
}

static bool readDiversion(quillDiversion *diversion, co::Chars *line) {
    return quill::readAddress(diversion, line, quill::Bare::allowed, lifted);
}

struct quillDiversion *quill___DiversionTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    return quill::tryReadWhole<quillDiversion>(co::chars(chs, length), readDiversion);
}
