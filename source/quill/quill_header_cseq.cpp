// The Cseq header field. Grammar and contract: quill_header_cseq.h.

#define CO_UNIT "source/quill/quill_header_cseq"

#include <quill/quill_cseq.h>
#include <quill/quill_header_cseq.h>
#include <quill/quill_header_family.hpp>
#include <quill/quill_method.h>
#include <quill/quill_sequence.hpp>

struct quillHeaderCseq : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_HEADER_CSEQ;

    co::Int cseq;        // never absent
    co::TextSlot method; // never null

    static constexpr auto members() { return std::tuple(&quillHeaderCseq::cseq, &quillHeaderCseq::method); }
    static constexpr auto comparison() { return members(); }
};

QUILL_DEFINE_LINE_HEADER(Cseq, CSEQ)
CO_DEFINE_INT_MEMBER(quillHeaderCseq, hdr, Cseq, cseq, quillCseqOk, cseq)
CO_DEFINE_STRING_MEMBER(quillHeaderCseq, hdr, Method, method, quillMethodOk, method, co::asGiven)
CO_DEFINE_TEXT_FORMS_1(void, quillHeaderCseqSetMethod, struct quillHeaderCseq **, hdr, method)

struct quillHeaderCseq *quillHeaderCseqCreate(int64_t cseq, struct coString *method) {
    CO_ASSERT_OK(quillCseqOk, cseq);
    CO_ASSERT_OK(quillMethodOk, method);
    auto *hdr = co::make<quillHeaderCseq>();
    hdr->cseq.set(cseq);
    hdr->method.set(method);
    return hdr;
}

static void appendValue(coString **text, struct quillHeaderCseq const *hdr) {
    quill::appendDecimal(text, hdr->cseq.get());
    co::append(text, U" ");
    co::append(text, hdr->method.view());
}

static bool readValue(quillHeaderCseq *hdr, co::Chars line) {
    hdr->cseq.set(quill::takeNumberAndLws(&line, quillCseqOk));
    if (!hdr->cseq || !quill::isWhole(quill___SkipMethod, line)) return false;
    co::keep(hdr, &quillHeaderCseq::method, line);
    return true;
}
