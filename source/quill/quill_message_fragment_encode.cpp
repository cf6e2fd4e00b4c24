// The wire form of a fragment, written: always the one canonical form (RFC 3261, 7 and 25.1).

#define CO_UNIT "source/quill/quill_message_fragment_encode"

#include <algorithm>
#include <charconv>
#include <co/co_buffer.hpp>
#include <co/co_charset.h>
#include <loc/loc_iri.h>
#include <quill/quill_family.hpp>
#include <quill/quill_message_fragment.h>
#include <quill/quill_message_fragment.hpp>
#include <quill/quill_version.h>

uint8_t const quill___BytesCrLf[2] = {'\r', '\n'};
uint8_t const quill___BytesColonSpace[2] = {':', ' '};

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

namespace {

// The line of the content's length, without its end.
class ContentLengthLine {
public:
    explicit ContentLengthLine(int64_t contentLength) {
        char *const digits = std::copy(name.begin(), name.end(), text);
        end = std::to_chars(digits, std::end(text), contentLength).ptr;
    }
    std::string_view view() const { return {text, static_cast<size_t>(end - text)}; }

private:
    static constexpr std::string_view name = "Content-Length: ";
    char text[name.size() + 19]; // an int64_t has as many digits
    char *end;
};

// The three texts of a start line, which blanks stand between: those of the fragment, or some that were made of them. All
// but a phrase are ASCII.
//
//     Request-Line = Method SP Request-URI SP SIP-Version CRLF
//     Status-Line  = SIP-Version SP Status-Code SP Reason-Phrase CRLF
class StartLine {
public:
    explicit StartLine(quillMessageFragment const *frag) {
        if (quillMessageFragmentIsRequest(frag))
            set(frag->requestMethod->view(), uriOf(frag->requestIri.get()), versionOf(frag->version.get()));
        else if (quillMessageFragmentIsResponse(frag))
            set(versionOf(frag->version.get()), codeOf(frag->responseStatusCode.get()),
                phraseOf(frag->responseReasonPhrase.get()));
    }

    int64_t encodedLength() const { return length; }

    uint8_t *encode(uint8_t *to) const {
        if (length == 0) return to;
        to = co::narrowAscii(to, first);
        *to++ = ' ';
        to = co::narrowAscii(to, second);
        *to++ = ' ';
        return co::put(co::narrowToUtf8(to, third), "\r\n");
    }

private:
    void set(co::Chars one, co::Chars two, co::Chars three) {
        first = one;
        second = two;
        third = three;
        length = co::length(first) + 1 + co::length(second) + 1 + co::utf8Length(third) + 2;
    }

    // An IRI of ASCII alone is a URI.
    co::Chars uriOf(coString const *iri) {
        if (co::isAscii(iri->view())) return iri->view();
        madeUri.reset(locTryConvertToUri(iri));
        CO_ASSERT_GIVEN(madeUri);
        return madeUri->view();
    }

    co::Chars versionOf(quillVersion const *version) {
        if (quillVersionIsSip20(version)) return U"SIP/2.0";
        madeVersion.reset(quill___VersionEncode(version));
        return madeVersion->view();
    }

    co::Chars codeOf(int64_t statusCode) {
        for (int i = 2; i >= 0; i--, statusCode /= 10) digits[i] = U'0' + static_cast<coChar>(statusCode % 10);
        return {digits, std::size(digits)};
    }

    co::Chars phraseOf(coString const *phrase) {
        madePhrase.reset(quill___ReasonPhraseEncode(phrase));
        return madePhrase->view();
    }

    co::Chars first;
    co::Chars second;
    co::Chars third;
    int64_t length = 0; // as bytes, with the line's end; of an absent line 0
    coChar digits[3];
    co::Ref<coString> madeUri;
    co::Ref<coString> madeVersion;
    co::Ref<coString> madePhrase;
};

} // namespace

void quill___MessageFragmentEncodeContentLength(struct coBuffer **buf, int64_t contentLength) {
    CO_ASSERT(contentLength >= 0, "contentLength >= 0");
    co::append(buf, ContentLengthLine(contentLength).view());
    coBufferAppendBytes(buf, quill___BytesCrLf, sizeof quill___BytesCrLf);
}

// Everything is measured first, so that it is written straight into a buffer of its length.
struct coBuffer *quillMessageFragmentEncode(struct quillMessageFragment const *frag) {
    CO_ASSERT_GIVEN(frag);
    std::string_view const body = frag->body ? frag->body->view() : std::string_view();
    StartLine const startLine(frag);
    ContentLengthLine const lengthLine(static_cast<int64_t>(body.size()));
    int64_t const most = startLine.encodedLength() + frag->headers.encodedLength() +
                         static_cast<int64_t>(lengthLine.view().size() + 2 + 2 + body.size());
    coBuffer *buf = co::makeBuffer(most);
    uint8_t *end = startLine.encode(buf->bytes);
    end = co::put(frag->headers.encode(end, lengthLine.view()), "\r\n");
    end = co::put(end, body);
    buf->length = end - buf->bytes;
    return buf;
}
