// One value of an Accept-Encoding header field. Grammar and contract: quill_accept_encoding.h.

#define CO_UNIT "source/quill/quill_accept_encoding"

#include <quill/quill_accept_encoding.h>
#include <quill/quill_content_coding.h>
#include <quill/quill_family.hpp>
#include <quill/quill_lifted.hpp>
#include <quill/quill_qvalue.h>

struct quillAcceptEncoding : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_ACCEPT_ENCODING;

    co::TextSlot contentCoding; // lower case, absent for "*"
    quill::ParamsSlot genericParams;
    co::Int qvalue; // thousandths

    static constexpr auto members() {
        return std::tuple(&quillAcceptEncoding::contentCoding, &quillAcceptEncoding::genericParams,
                          &quillAcceptEncoding::qvalue);
    }
    static constexpr auto comparison() {
        return std::tuple(&quillAcceptEncoding::contentCoding, &quillAcceptEncoding::qvalue,
                          &quillAcceptEncoding::genericParams);
    }
};

QUILL_DEFINE_VALUE(AcceptEncoding, ACCEPT_ENCODING, acceptEncoding)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillAcceptEncoding, acceptEncoding, ContentCoding, contentCoding,
                                 quillContentCodingOk, contentCoding, quillContentCodingNormalize)
CO_DEFINE_OBJECT_MEMBER(quillAcceptEncoding, acceptEncoding, GenericParams, genericParams, quillGenericParams,
                        genericParams)
CO_DEFINE_OPTIONAL_INT_MEMBER(quillAcceptEncoding, acceptEncoding, Qvalue, qvalue, quillQvalueOk, qvalue)

struct quillAcceptEncoding *quillAcceptEncodingCreate(void) {
    auto *acceptEncoding = co::make<quillAcceptEncoding>();
    return acceptEncoding;
}

// The normaliser insists on a valid coding.
struct quillAcceptEncoding *quillAcceptEncodingCreateWithContentCoding(struct coString *contentCoding) {
    coString *normal = quillContentCodingNormalize(contentCoding);
    quillAcceptEncoding *acceptEncoding = quillAcceptEncodingCreate();
    acceptEncoding->contentCoding.adopt(normal);
    return acceptEncoding;
}

static constexpr std::tuple lifted{
    quill::IntParam{U"q", quill___SkipQvalue, quill___QvalueTryDecode, quill___QvalueEncode,
                    &quillAcceptEncoding::qvalue},
};

struct coString *quill___AcceptEncodingEncode(struct quillAcceptEncoding const *acceptEncoding) {
    CO_ASSERT_GIVEN(acceptEncoding);
    coString *text = co::makeString(acceptEncoding->contentCoding ? acceptEncoding->contentCoding.view() : U"*");
    quill::appendParams(&text, *acceptEncoding, lifted);
    return text;
}

// content-coding / "*". A star is a token, too: it is the wildcard where it stands alone.
static bool readAcceptEncoding(quillAcceptEncoding *acceptEncoding, co::Chars *line) {
    int64_t const count = quill::measure(quill___SkipContentCoding, *line);
    if (count == 0) return false;
    co::Chars const coding = quill::upTo(*line, count);
    if (coding != U"*") co::keepLower(acceptEncoding, &quillAcceptEncoding::contentCoding, coding);
    *line = quill::readParams(acceptEncoding, quill::from(*line, count), lifted);
    return true;
}

struct quillAcceptEncoding *quill___AcceptEncodingTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    return quill::tryReadWhole<quillAcceptEncoding>(co::chars(chs, length), readAcceptEncoding);
}
