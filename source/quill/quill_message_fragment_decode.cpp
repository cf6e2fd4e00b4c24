// The wire form of a fragment, read (RFC 3261, 7 and 25.1).
//
// Everything works on spans of the received bytes, which are checked as UTF-8 once; only what is kept is copied.

#define CO_UNIT "source/quill/quill_message_fragment_decode"

#include <co/co_format.hpp>
#include <co/co_string.hpp>
#include <loc/loc_iri.h>
#include <quill/quill_char.hpp>
#include <quill/quill_family.hpp>
#include <quill/quill_field_name.hpp>
#include <quill/quill_message_fragment.h>
#include <quill/quill_message_fragment.hpp>
#include <quill/quill_message_header.h>
#include <quill/quill_message_header.hpp>
#include <quill/quill_version.h>

namespace {

using Bytes = std::string_view;

template <class Char> bool isBlank(Char ch) { return ch == Char{' '} || ch == Char{'\t'}; }

template <class Text> Text trimmed(Text text) {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

coString *toString(Bytes valid) { return co::makeStringFromUtf8(valid); }

// What stands before the separator; the rest stays without both. False, and nothing is taken, where there is none.
template <class Text> bool takeUntil(Text *rest, Text separator, Text *piece) {
    size_t const at = rest->find(separator);
    if (at == Text::npos) return false;
    *piece = rest->substr(0, at);
    rest->remove_prefix(at + separator.size());
    return true;
}

bool isToken(Bytes text) {
    for (char ch : text)
        if (!quill::isToken(static_cast<unsigned char>(ch))) return false;
    return !text.empty();
}

// A whole text as a decimal integer.
bool isInteger(Bytes text, int64_t *value) {
    int64_t end = 0;
    return co::tryDecodeInt(text, 10, value, &end) && end == static_cast<int64_t>(text.size());
}

quillVersion *tryDecodeVersion(Bytes text) {
    if (text == "SIP/2.0") return quillVersionCreateSip20();
    if (text.find('/') == Bytes::npos) // most first words are methods
        return nullptr;
    co::Ref<coString> const chars(toString(text));
    return quill___VersionTryDecode(chars->chars(), chars->length);
}

// The wire text of a phrase without escapes is the phrase.
coString *decodeReasonPhrase(Bytes text) {
    co::Ref<coString> phrase(toString(text));
    if (text.find('%') == Bytes::npos) return phrase.take();
    return quill___ReasonPhraseDecode(phrase->chars(), phrase->length);
}

enum class StartLine { decoded, absent, broken };

// SIP-Version SP Status-Code SP Reason-Phrase, the phrase with its space optional
StartLine decodeStatusLine(quillMessageFragment *frag, quillVersion *version, Bytes rest) {
    Bytes code;
    Bytes phrase;
    if (takeUntil(&rest, Bytes(" "), &code))
        phrase = rest;
    else
        code = rest;
    int64_t sc = 0;
    if (!isInteger(code, &sc) || !quillStatusCodeOk(sc)) return StartLine::broken;
    frag->version.set(version);
    frag->responseStatusCode.set(sc);
    frag->responseReasonPhrase.adopt(decodeReasonPhrase(phrase));
    return StartLine::decoded;
}

// Method SP Request-URI SP SIP-Version
StartLine decodeRequestLine(quillMessageFragment *frag, Bytes method, Bytes uri, Bytes version) {
    co::Ref<coString> const uriText(toString(uri));
    co::Ref<coString> iri(locTryConvertFromUri(uriText.get()));
    if (!iri) return StartLine::broken;
    frag->version.adopt(tryDecodeVersion(version));
    if (!frag->version) return StartLine::broken;
    frag->requestMethod.adopt(toString(method));
    frag->requestIri.adopt(iri.take());
    return StartLine::decoded;
}

// What is neither a status line nor of the shape of a request line is no start line, but the first header line.
StartLine decodeStartLine(quillMessageFragment *frag, Bytes line) {
    Bytes rest = line;
    Bytes first;
    if (!takeUntil(&rest, Bytes(" "), &first)) return StartLine::absent;
    if (co::Ref<quillVersion> const version{tryDecodeVersion(first)})
        return decodeStatusLine(frag, version.get(), rest);
    Bytes second;
    if (!isToken(first) || !takeUntil(&rest, Bytes(" "), &second)) return StartLine::absent;
    return decodeRequestLine(frag, first, second, rest);
}

// The last line of the Content-Length header counts. True with -1 where there is none.
bool readContentLength(quillMessageFragment const *frag, int64_t *contentLength) {
    quill::Lines lines(frag->headers, quill___CosContentLength->view());
    co::Chars line;
    if (!lines.last(&line)) return true;
    int64_t value = 0;
    int64_t end = 0;
    if (!co::tryDecodeInt(line, 10, &value, &end) || end != co::length(line) || value < 0) return false;
    *contentLength = value;
    return true;
}

} // namespace

struct quillMessageFragment *quill::tryDecodeHeaders(Bytes bytes, int64_t *contentLength) {
    if (contentLength) *contentLength = -1;
    co::Utf8Count const text = co::countUtf8(bytes);
    if (!text.valid) return nullptr;
    bool const ascii = text.chars == static_cast<int64_t>(bytes.size());
    co::Ref<quillMessageFragment> frag(quillMessageFragmentCreate());

    size_t const firstLine = bytes.find("\r\n");
    switch (decodeStartLine(frag.get(), bytes.substr(0, firstLine))) {
    case StartLine::broken:
        return nullptr;
    case StartLine::decoded:
        bytes.remove_prefix(firstLine == Bytes::npos ? bytes.size() : firstLine + 2);
        break;
    case StartLine::absent:
        break;
    }
    if (!frag->headers.tryDecode(bytes, ascii)) return nullptr;
    if (contentLength && !readContentLength(frag.get(), contentLength)) return nullptr;
    return frag.take();
}

struct quillMessageFragment *quillMessageFragmentTryDecodeHeaders(struct coBuffer const *buf, int64_t *contentLength) {
    CO_ASSERT_GIVEN(buf);
    return quill::tryDecodeHeaders(buf->view(), contentLength);
}

struct quillMessageFragment *quillMessageFragmentTryDecode(struct coBuffer const *buf) {
    CO_ASSERT_GIVEN(buf);
    Bytes const bytes = buf->view();
    size_t const end = bytes.find("\r\n\r\n");
    Bytes const headers = end == Bytes::npos ? bytes : bytes.substr(0, end + 2); // with the last line's CR LF
    Bytes const body = end == Bytes::npos ? Bytes() : bytes.substr(end + 4);

    int64_t contentLength = -1;
    co::Ref<quillMessageFragment> frag(quill::tryDecodeHeaders(headers, &contentLength));
    if (!frag) return nullptr;
    auto const available = static_cast<int64_t>(body.size());
    if (contentLength > available) return nullptr;
    int64_t const length = contentLength < 0 ? available : contentLength;
    if (length > 0)
        frag->body.adopt(coBufferCreateFromBytesCopy(reinterpret_cast<uint8_t const *>(body.data()), length));
    return frag.take();
}

struct coString *quill___MessageFragmentDecodeTrim(struct coString const *cos) {
    CO_ASSERT_GIVEN(cos);
    co::Chars const inner = trimmed(cos->view());
    return inner.empty() ? nullptr : co::makeString(inner);
}

// field-name HCOLON field-value, unfolded; one more line of the header of that name
bool quill___MessageFragmentDecodeHeader(struct quillMessageFragment **frag, struct coString const *cos) {
    CO_ASSERT_REFERENCE(frag);
    CO_ASSERT_GIVEN(cos);
    co::Chars value = cos->view();
    co::Chars name;
    if (!takeUntil(&value, co::Chars(U":"), &name)) return false;
    co::Ref<coString> const normal(quill::tryNormalizeFieldName(trimmed(name)));
    if (!normal) return false;
    co::Ref<coString> const line(co::makeString(trimmed(value)));
    struct quillMessageHeader *header = (*frag)->headers.header(normal->view());
    if (!header) header = quill::makeMessageHeader(normal.get());
    quillMessageHeaderAppendLine(&header, line.get());
    quillMessageFragmentSetHeader(frag, header);
    co::release(header);
    return true;
}
