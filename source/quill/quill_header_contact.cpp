// The Contact header field. Grammar and contract: quill_header_contact.h.

#define CO_UNIT "source/quill/quill_header_contact"

#include <quill/quill_contact.h>
#include <quill/quill_header_contact.h>
#include <quill/quill_header_family.hpp>
#include <quill/quill_readers.hpp>

struct quillHeaderContact : quill::ListHeader {
    static constexpr auto &sort = quill___sort_QUILL_HEADER_CONTACT;

    co::Flag starForm; // never with elements

    static constexpr auto members() { return std::tuple(&quillHeaderContact::starForm, &quillHeaderContact::elements); }
    static constexpr auto comparison() { return members(); }
    void onElement() { starForm.set(false); }
};

// A star is a token too, but no contact begins with one here, not even as its display name.
static int64_t measureContact(coChar const *chs, int64_t length) {
    return quill___SkipStar(chs, length) ? 0 : quill___SkipContact(chs, length);
}

// Whether a star is all that the lines hold.
static bool isStar(quill::LineSource source) {
    quill::Lines lines(source);
    int64_t stars = 0;
    for (co::Chars line; lines.next(&line);) {
        if (line.empty()) continue;
        if (stars++ > 0 || !quill::isWhole(quill___SkipStar, line)) return false;
    }
    return stars == 1;
}

QUILL_DEFINE_HEADER(Contact, CONTACT)
QUILL_DEFINE_LIST_CREATE(Contact)
QUILL_DEFINE_VALUE_LIST_ACCESS(Contact, Contact, Contact, contact, quillContactCreateFrom)

void quillHeaderContactClear(struct quillHeaderContact **hdr) {
    CO_ASSERT_REFERENCE(hdr);
    quill::clearList(hdr);
    (*hdr)->starForm.set(false);
}

bool quillHeaderContactIsStarForm(struct quillHeaderContact const *hdr) {
    CO_ASSERT_GIVEN(hdr);
    return hdr->starForm.get();
}

void quillHeaderContactSetStarForm(struct quillHeaderContact **hdr, bool starForm) {
    CO_ASSERT_REFERENCE(hdr);
    quillHeaderContactClear(hdr);
    (*hdr)->starForm.set(starForm);
}

struct quillMessageHeader *quillHeaderContactEncode(struct quillHeaderContact const *hdr) {
    CO_ASSERT_GIVEN(hdr);
    if (hdr->starForm.get()) return quill::makeHeaderOfLine(quill::known::Contact, co::makeString(U"*"));
    return quill::makeHeaderOf(quill::known::Contact, hdr);
}

// A star is no list: what decodes as one need not be looked at for it.
static quillHeaderContact *tryDecodeLines(quill::LineSource source) {
    if (auto *list = quill::tryDecodeList<quillHeaderContact>(source, measureContact, &quill::contactKind)) return list;
    if (!isStar(source)) return nullptr;
    quillHeaderContact *hdr = quillHeaderContactCreate();
    hdr->starForm.set(true);
    return hdr;
}
