// One media range of an Accept header field. Grammar and contract: quill_accept.h.

#define CO_UNIT "source/quill/quill_accept"

#include <quill/quill_accept.h>
#include <quill/quill_family.hpp>
#include <quill/quill_generic_params.h>
#include <quill/quill_lifted.hpp>
#include <quill/quill_media_subtype.h>
#include <quill/quill_media_type.h>
#include <quill/quill_qvalue.h>
#include <quill/quill_skip.h>
#include <quill/quill_token.h>

struct quillAccept : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_ACCEPT;

    co::TextSlot mediaType;    // lower case, absent for "*"
    co::TextSlot mediaSubtype; // lower case, absent for "*"
    quill::ParamsSlot genericParams;
    co::Int qvalue; // thousandths

    static constexpr auto members() {
        return std::tuple(&quillAccept::mediaType, &quillAccept::mediaSubtype, &quillAccept::genericParams,
                          &quillAccept::qvalue);
    }
    static constexpr auto comparison() {
        return std::tuple(&quillAccept::mediaType, &quillAccept::mediaSubtype, &quillAccept::qvalue,
                          &quillAccept::genericParams);
    }
};

QUILL_DEFINE_VALUE(Accept, ACCEPT, accept)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillAccept, accept, MediaType, mediaType, quillMediaTypeOk, mediaType,
                                 quillMediaTypeNormalize)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillAccept, accept, MediaSubtype, mediaSubtype, quillMediaSubtypeOk, mediaSubtype,
                                 quillMediaSubtypeNormalize)
CO_DEFINE_OBJECT_MEMBER(quillAccept, accept, GenericParams, genericParams, quillGenericParams, genericParams)
CO_DEFINE_OPTIONAL_INT_MEMBER(quillAccept, accept, Qvalue, qvalue, quillQvalueOk, qvalue)

struct quillAccept *quillAcceptCreate(void) {
    auto *accept = co::make<quillAccept>();
    return accept;
}

// An accept-param of its own: "q" EQUAL qvalue.
static constexpr std::tuple lifted{
    quill::IntParam{U"q", quill___SkipQvalue, quill___QvalueTryDecode, quill___QvalueEncode, &quillAccept::qvalue},
};

struct coString *quill___AcceptEncode(struct quillAccept const *accept) {
    CO_ASSERT_GIVEN(accept);
    coString *text = coStringCreate();
    co::append(&text, accept->mediaType ? accept->mediaType.view() : U"*");
    co::append(&text, U"/");
    co::append(&text, accept->mediaType && accept->mediaSubtype ? accept->mediaSubtype.view() : U"*");
    quill::appendParams(&text, *accept, lifted);
    return text;
}

// A name at the start of the text, kept in lower case, or a star, which leaves the member absent.
static int64_t takeNameOrStar(quillAccept *accept, co::TextSlot quillAccept::*name, quill::Scanner scan,
                              co::Chars text) {
    int64_t const count = quill::measure(scan, text);
    if (count == 0) return quill___SkipChar(text.data(), co::length(text), U'*');
    co::keepLower(accept, name, quill::upTo(text, count));
    return count;
}

static bool readAccept(quillAccept *accept, co::Chars *line) {
    int64_t const type = takeNameOrStar(accept, &quillAccept::mediaType, quill___SkipMediaType, *line);
    *line = quill::from(*line, type);
    int64_t const slash = quill::measure(quill___SkipSlash, *line);
    *line = quill::from(*line, slash);
    int64_t const subtype = takeNameOrStar(accept, &quillAccept::mediaSubtype, quill___SkipMediaSubtype, *line);
    *line = quill::from(*line, subtype);
    if (type == 0 || slash == 0 || subtype == 0) return false;
    *line = quill::readParams(accept, *line, lifted);
    return true;
}

struct quillAccept *quill___AcceptTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    return quill::tryReadWhole<quillAccept>(co::chars(chs, length), readAccept);
}
