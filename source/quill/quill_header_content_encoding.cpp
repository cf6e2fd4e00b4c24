// The Content-Encoding header field. Grammar and contract: quill_header_content_encoding.h.

#define CO_UNIT "source/quill/quill_header_content_encoding"

#include <quill/quill_content_coding.h>
#include <quill/quill_header_content_encoding.h>
#include <quill/quill_header_family.hpp>

QUILL_DEFINE_LIST_OBJECT(ContentEncoding, CONTENT_ENCODING)
QUILL_DEFINE_LIST_CLEAR(ContentEncoding, ClearContentCodings)
QUILL_DEFINE_SCALAR_LIST_ACCESS(ContentEncoding, ContentCoding, contentCoding, quillContentCodingNormalize)

// On one line, like a set.
struct quillMessageHeader *quillHeaderContentEncodingEncode(struct quillHeaderContentEncoding const *hdr) {
    CO_ASSERT_GIVEN(hdr);
    co::Ref<coVector> const codings(hdr->elements.vector());
    return quill::makeHeaderOfJoined(quill::known::ContentEncoding, codings.get(), U",");
}

static quillHeaderContentEncoding *tryDecodeLines(quill::LineSource source) {
    return quill::tryDecodeList<quillHeaderContentEncoding>(source, quill___SkipContentCoding,
                                                            quillContentCodingNormalize);
}

struct coVector *quillHeaderContentEncodingContentCodingsVector(struct quillHeaderContentEncoding const *hdr) {
    CO_ASSERT_GIVEN(hdr);
    return hdr->elements.vector();
}

void quillHeaderContentEncodingSetContentCodingsVector(struct quillHeaderContentEncoding **hdr,
                                                       struct coVector const *vec) {
    CO_ASSERT_REFERENCE(hdr);
    CO_ASSERT_GIVEN(vec);
    quillHeaderContentEncodingClearContentCodings(hdr);
    quill::setEach(hdr, vec, quillHeaderContentEncodingAppendContentCoding);
}
