// The Rack header field. Grammar and contract: quill_header_rack.h.

#define CO_UNIT "source/quill/quill_header_rack"

#include <quill/quill_cseq.h>
#include <quill/quill_header_family.hpp>
#include <quill/quill_header_rack.h>
#include <quill/quill_method.h>
#include <quill/quill_response_num.h>
#include <quill/quill_sequence.hpp>

struct quillHeaderRack : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_HEADER_RACK;

    co::Int responseNum; // never absent
    co::Int cseq;        // never absent
    co::TextSlot method; // never null

    static constexpr auto members() {
        return std::tuple(&quillHeaderRack::responseNum, &quillHeaderRack::cseq, &quillHeaderRack::method);
    }
    static constexpr auto comparison() { return members(); }
};

QUILL_DEFINE_LINE_HEADER(Rack, RACK)
CO_DEFINE_INT_MEMBER(quillHeaderRack, hdr, ResponseNum, responseNum, quillResponseNumOk, responseNum)
CO_DEFINE_INT_MEMBER(quillHeaderRack, hdr, Cseq, cseq, quillCseqOk, cseq)
CO_DEFINE_STRING_MEMBER(quillHeaderRack, hdr, Method, method, quillMethodOk, method, co::asGiven)

struct quillHeaderRack *quillHeaderRackCreate(int64_t responseNum, int64_t cseq, struct coString *method) {
    CO_ASSERT_OK(quillResponseNumOk, responseNum);
    CO_ASSERT_OK(quillCseqOk, cseq);
    CO_ASSERT_OK(quillMethodOk, method);
    auto *hdr = co::make<quillHeaderRack>();
    hdr->responseNum.set(responseNum);
    hdr->cseq.set(cseq);
    hdr->method.set(method);
    return hdr;
}

static void appendValue(coString **text, struct quillHeaderRack const *hdr) {
    quill::appendDecimal(text, hdr->responseNum.get());
    co::append(text, U" ");
    quill::appendDecimal(text, hdr->cseq.get());
    co::append(text, U" ");
    co::append(text, hdr->method.view());
}

static bool readValue(quillHeaderRack *hdr, co::Chars line) {
    hdr->responseNum.set(quill::takeNumberAndLws(&line, quillResponseNumOk));
    if (!hdr->responseNum) return false;
    hdr->cseq.set(quill::takeNumberAndLws(&line, quillCseqOk));
    if (!hdr->cseq || !quill::isWhole(quill___SkipMethod, line)) return false;
    co::keep(hdr, &quillHeaderRack::method, line);
    return true;
}
