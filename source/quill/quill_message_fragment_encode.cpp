// The wire form of a fragment, written: always the one canonical form (RFC 3261, 7 and 25.1).

#define CO_UNIT "source/quill/quill_message_fragment_encode"

#include <co/co_buffer.hpp>
#include <co/co_charset.h>
#include <co/co_format.h>
#include <loc/loc_iri.h>
#include <quill/quill_family.hpp>
#include <quill/quill_message_fragment.h>
#include <quill/quill_message_fragment.hpp>

using namespace std::string_view_literals;

uint8_t const quill___BytesCrLf[2] = {'\r', '\n'};
uint8_t const quill___BytesColonSpace[2] = {':', ' '};

static void appendCrLf(coBuffer **buf) { coBufferAppendBytes(buf, quill___BytesCrLf, sizeof quill___BytesCrLf); }

void quill___MessageFragmentEncodeAppendUtf8(struct coBuffer **buf, struct coString const *cos) {
    CO_ASSERT_GIVEN(cos);
    coChar const *chs = cos->chars();
    int64_t const chsLength = cos->length;
    if (chsLength == 0) return;
    int64_t const bytesLength = co::utf8Length(cos->view());
    uint8_t *bytes = co::appendSpace(buf, bytesLength);
    CO_ASSERT(bytesLength == coCharsConvertToUtf8(bytes, bytesLength, chs, chsLength, CO_FALSE),
              "bytesLength == coCharsConvertToUtf8( bytes, bytesLength, chs, chsLength, CO_FALSE )");
    (*buf)->length += bytesLength;
}

// The same for a string that was made for this.
static void appendTaken(coBuffer **buf, coString *cos) {
    co::Ref<coString> const taken(cos);
    quill___MessageFragmentEncodeAppendUtf8(buf, taken.get());
}

void quill___MessageFragmentEncodeContentLength(struct coBuffer **buf, int64_t contentLength) {
    CO_ASSERT(contentLength >= 0, "contentLength >= 0");
    co::append(buf, "Content-Length: "sv);
    if (contentLength == 0)
        co::append(buf, "0"sv);
    else
        appendTaken(buf, coFormatEncodeInt(contentLength, 10, 0, 0));
    appendCrLf(buf);
}

static void appendStartLine(coBuffer **buf, quillMessageFragment const *frag) {
    if (quillMessageFragmentIsRequest(frag)) {
        quill___MessageFragmentEncodeAppendUtf8(buf, frag->requestMethod.get());
        coBufferAppendByte(buf, ' ');
        appendTaken(buf, locTryConvertToUri(frag->requestIri.get()));
        coBufferAppendByte(buf, ' ');
        appendTaken(buf, quill___VersionEncode(frag->version.get()));
        appendCrLf(buf);
    } else if (quillMessageFragmentIsResponse(frag)) {
        appendTaken(buf, quill___VersionEncode(frag->version.get()));
        coBufferAppendByte(buf, ' ');
        appendTaken(buf, coFormatEncodeInt(frag->responseStatusCode.get(), 10, 3, 2));
        coBufferAppendByte(buf, ' ');
        appendTaken(buf, quill___ReasonPhraseEncode(frag->responseReasonPhrase.get()));
        appendCrLf(buf);
    }
}

struct coBuffer *quillMessageFragmentEncode(struct quillMessageFragment const *frag) {
    CO_ASSERT_GIVEN(frag);
    int64_t const contentLength = frag->body ? frag->body->length : 0;
    int64_t const startLine = 128 + (frag->requestIri ? frag->requestIri->length : 0);
    coBuffer *buf = co::makeBuffer(startLine + frag->headers.encodedLength() + contentLength);
    appendStartLine(&buf, frag);
    frag->headers.encode(&buf, quill___CosContentLength->view(), contentLength);
    appendCrLf(&buf);
    if (frag->body) co::append(&buf, frag->body->view());
    return buf;
}
