// One value of a Contact header field. Grammar and contract: quill_contact.h.

#define CO_UNIT "source/quill/quill_contact"

#include <quill/quill_contact.h>
#include <quill/quill_delta_seconds.h>
#include <quill/quill_display_name.h>
#include <quill/quill_family.hpp>
#include <quill/quill_history_info_index.h>
#include <quill/quill_iri.h>
#include <quill/quill_name_addr.hpp>
#include <quill/quill_qvalue.h>
#include <quill/quill_readers.hpp>
#include <quill/quill_sip_instance.h>

struct quillContact : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_CONTACT;

    co::TextSlot iri; // never null
    co::TextSlot displayName;
    quill::ParamsSlot genericParams;
    co::Int qvalue;  // thousandths
    co::Int expires; // seconds
    co::TextSlot rc;
    co::TextSlot mp;
    co::TextSlot np;
    co::TextSlot sipInstance; // in angle brackets, without quotes
    co::Flag sipSrc;
    co::Flag sipSrs;

    static constexpr auto members() {
        return std::tuple(&quillContact::iri, &quillContact::displayName, &quillContact::genericParams,
                          &quillContact::qvalue, &quillContact::expires, &quillContact::rc, &quillContact::mp,
                          &quillContact::np, &quillContact::sipInstance, &quillContact::sipSrc, &quillContact::sipSrs);
    }
    // Without the flags: what a device can do doesn't make it another one.
    static constexpr auto comparison() {
        return std::tuple(&quillContact::iri, &quillContact::displayName, &quillContact::qvalue, &quillContact::expires,
                          &quillContact::rc, &quillContact::mp, &quillContact::np, &quillContact::sipInstance,
                          &quillContact::genericParams);
    }
};

QUILL_DEFINE_VALUE(Contact, CONTACT, contact)
CO_DEFINE_STRING_MEMBER(quillContact, contact, Iri, iri, quillIriOk, iri, co::asGiven)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillContact, contact, DisplayName, displayName, quillDisplayNameOk, displayName,
                                 co::asGiven)
CO_DEFINE_OBJECT_MEMBER(quillContact, contact, GenericParams, genericParams, quillGenericParams, genericParams)
CO_DEFINE_OPTIONAL_INT_MEMBER(quillContact, contact, Qvalue, qvalue, quillQvalueOk, qvalue)
CO_DEFINE_OPTIONAL_INT_MEMBER(quillContact, contact, Expires, expires, quillDeltaSecondsOk, deltaSeconds)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillContact, contact, Rc, rc, quillHistoryInfoIndexOk, rc, co::asGiven)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillContact, contact, Mp, mp, quillHistoryInfoIndexOk, mp, co::asGiven)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillContact, contact, Np, np, quillHistoryInfoIndexOk, np, co::asGiven)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillContact, contact, SipInstance, sipInstance, quillSipInstanceOk, sipInstance,
                                 co::asGiven)

// The flags, whose setters don't copy on write: all holders see the change.

bool quillContactSipSrc(struct quillContact const *contact) {
    CO_ASSERT_GIVEN(contact);
    return contact->sipSrc.get();
}

void quillContactSetSipSrc(struct quillContact **contact, bool sipSrc) {
    CO_ASSERT_REFERENCE(contact);
    (*contact)->sipSrc.set(sipSrc);
}

bool quillContactSipSrs(struct quillContact const *contact) {
    CO_ASSERT_GIVEN(contact);
    return contact->sipSrs.get();
}

void quillContactSetSipSrs(struct quillContact **contact, bool sipSrs) {
    CO_ASSERT_REFERENCE(contact);
    (*contact)->sipSrs.set(sipSrs);
}

struct quillContact *quillContactCreate(struct coString *iri) {
    CO_ASSERT_OK(quillIriOk, iri);
    return quill::makeAddress<quillContact>(iri);
}

static constexpr std::tuple lifted{
    quill::IntParam{U"q", quill___SkipQvalue, quill___QvalueTryDecode, quill___QvalueEncode, &quillContact::qvalue},
    quill::IntParam{U"expires", quill___SkipDeltaSeconds, quill___DeltaSecondsTryDecode, quill___DeltaSecondsEncode,
                    &quillContact::expires},
    quill::TextParam{U"rc", quill___SkipHistoryInfoIndex, &quillContact::rc},
    quill::TextParam{U"mp", quill___SkipHistoryInfoIndex, &quillContact::mp},
    quill::TextParam{U"np", quill___SkipHistoryInfoIndex, &quillContact::np},
    quill::EnclosedParam{U"+sip.instance", quill___SkipSipInstance, &quillContact::sipInstance},
    quill::FlagParam{U"+sip.src", quill::Behind::anything, &quillContact::sipSrc},
    quill::FlagParam{U"+sip.srs", quill::Behind::anything, &quillContact::sipSrs},
};

struct coString *quill___ContactEncode(struct quillContact const *contact) {
    CO_ASSERT_GIVEN(contact);
    return quill::encodeAddress(*contact, lifted);
}

static bool readContact(quillContact *contact, co::Chars *line) {
    return quill::readAddress(contact, line, quill::Bare::allowed, lifted);
}

// A star is a token too, but no contact of a list begins with one, not even as its display name.
static bool readUnlessStar(quillContact *contact, co::Chars *line) {
    return quill::measure(quill___SkipStar, *line) == 0 && readContact(contact, line);
}

constinit quill::ValueKind const quill::contactKind = valueKind<quillContact, readUnlessStar>();

struct quillContact *quill___ContactTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    return quill::tryReadWhole<quillContact>(co::chars(chs, length), readContact);
}
