// The wire form of a fragment, read (RFC 3261, 7 and 25.1).
//
// Everything works on spans of the received bytes, which are checked as UTF-8 once; only what is kept is copied.

#define CO_UNIT "source/quill/quill_message_fragment_decode"

#include <algorithm>
#include <co/co_format.hpp>
#include <co/co_simd.hpp>
#include <co/co_string.hpp>
#include <loc/loc_iri.hpp>
#include <loc/loc_skip.hpp>
#include <quill/quill_char.hpp>
#include <quill/quill_family.hpp>
#include <quill/quill_field_name.hpp>
#include <quill/quill_message_fragment.h>
#include <quill/quill_message_fragment.hpp>
#include <quill/quill_message_header.h>
#include <quill/quill_message_header.hpp>
#include <quill/quill_method.hpp>
#include <quill/quill_version.h>

namespace {

using Bytes = std::string_view;

coString *toString(Bytes valid) { return co::makeStringFromUtf8(valid); }

// What stands before the separator; the rest stays without both. False, and nothing is taken, where there is none.
bool takeUntil(Bytes *rest, char separator, Bytes *piece) {
    size_t const at = co::simd::find(*rest, separator);
    if (at == rest->size()) return false;
    *piece = Bytes(rest->data(), at);
    rest->remove_prefix(at + 1);
    return true;
}

bool isToken(Bytes text) {
    for (char ch : text)
        if (!quill::isToken(static_cast<unsigned char>(ch))) return false;
    return !text.empty();
}

// A whole text as a decimal integer.
template <class Text> bool isInteger(Text text, int64_t *value) {
    int64_t end = 0;
    return co::tryDecodeInt(text, 10, value, &end) && end == static_cast<int64_t>(text.size());
}

quillVersion *tryDecodeVersion(Bytes text) {
    if (text == "SIP/2.0") return quillVersionCreateSip20();
    if (co::simd::find(text, '/') == text.size()) return nullptr;
    co::Ref<coString> const chars(toString(text));
    return quill___VersionTryDecode(chars->chars(), chars->length);
}

// The IRI that a whole URI stands for.
coString *tryDecodeIri(Bytes text) {
    co::Ref<coString> uri(toString(text));
    if (text.empty() || loc::iriLength(uri->view()) != uri->length) return nullptr;
    bool const escaped = co::simd::find(text, '%') < text.size();
    return escaped ? loc::makeIri(uri->view()) : uri.take();
}

// The wire text of a phrase without escapes is the phrase.
coString *decodeReasonPhrase(Bytes text) {
    co::Ref<coString> phrase(toString(text));
    if (co::simd::find(text, '%') == text.size()) return phrase.take();
    return quill___ReasonPhraseDecode(phrase->chars(), phrase->length);
}

enum class StartLine { decoded, absent, broken };

// SIP-Version SP Status-Code SP Reason-Phrase, the phrase with its space optional
StartLine decodeStatusLine(quillMessageFragment *frag, quillVersion *version, Bytes rest) {
    Bytes code;
    Bytes phrase;
    if (takeUntil(&rest, ' ', &code))
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
    co::Ref<coString> iri(tryDecodeIri(uri));
    if (!iri) return StartLine::broken;
    frag->version.adopt(tryDecodeVersion(version));
    if (!frag->version) return StartLine::broken;
    coString *const known = quill::knownMethod(method);
    frag->requestMethod.adopt(known ? co::retained(known) : toString(method));
    frag->requestIri.adopt(iri.take());
    return StartLine::decoded;
}

// What is neither a status line nor of the shape of a request line is no start line, but the first header line.
StartLine decodeStartLine(quillMessageFragment *frag, Bytes line) {
    Bytes rest = line;
    Bytes first;
    if (!takeUntil(&rest, ' ', &first)) return StartLine::absent;
    if (isToken(first)) { // a version has a slash, and is none
        Bytes second;
        if (!takeUntil(&rest, ' ', &second)) return StartLine::absent;
        return decodeRequestLine(frag, first, second, rest);
    }
    co::Ref<quillVersion> const version(tryDecodeVersion(first));
    return version ? decodeStatusLine(frag, version.get(), rest) : StartLine::absent;
}

// Leaves `length` as it is where the text is none.
template <class Text> bool isLength(Text text, int64_t *length) {
    int64_t value = 0;
    if (!isInteger(text, &value) || value < 0) return false;
    *length = value;
    return true;
}

// Of a value that is absent, empty or folded. True with -1 where it is absent.
[[gnu::noinline]] bool readOtherContentLength(quillMessageFragment const *frag, int64_t *contentLength) {
    quill::Lines lines({frag->headers, quill::contentLengthFieldName});
    co::Chars line;
    return !lines.last(&line) || isLength(line, contentLength);
}

// The last line of the Content-Length header counts.
bool readContentLength(quillMessageFragment const *frag, int64_t *contentLength) {
    Bytes const received = frag->headers.lastReceived(quill::contentLengthFieldName);
    return received.empty() ? readOtherContentLength(frag, contentLength) : isLength(received, contentLength);
}

// Start line and headers: all that is given, or up to the empty line. What follows that stays. The buffer that it is in is
// null where that goes on to change.
quillMessageFragment *tryDecode(Bytes *rest, bool untilEmptyLine, coBuffer const *buffer, int64_t *contentLength) {
    size_t const end = co::findLineEnd(*rest);
    Bytes const firstLine = rest->substr(0, end);
    if (!co::countUtf8(firstLine).valid) return nullptr;
    co::Ref<quillMessageFragment> frag(quillMessageFragmentCreate());
    StartLine const startLine = decodeStartLine(frag.get(), firstLine);
    if (startLine == StartLine::broken) return nullptr;
    if (startLine == StartLine::decoded || firstLine.empty()) // the empty line that ends headers is not the first one
        rest->remove_prefix(std::min(end + 2, rest->size()));
    if (!frag->headers.tryDecode(rest, untilEmptyLine, buffer)) return nullptr;
    if (contentLength && !readContentLength(frag.get(), contentLength)) return nullptr;
    return frag.take();
}

} // namespace

struct quillMessageFragment *quill::tryDecodeHeaders(Bytes bytes, int64_t *contentLength) {
    if (contentLength) *contentLength = -1;
    return tryDecode(&bytes, false, nullptr, contentLength);
}

struct quillMessageFragment *quillMessageFragmentTryDecodeHeaders(struct coBuffer const *buf, int64_t *contentLength) {
    CO_ASSERT_GIVEN(buf);
    return quill::tryDecodeHeaders(buf->view(), contentLength);
}

struct quillMessageFragment *quillMessageFragmentTryDecode(struct coBuffer const *buf) {
    CO_ASSERT_GIVEN(buf);
    Bytes body = buf->view(); // behind the headers
    int64_t contentLength = -1;
    co::Ref<quillMessageFragment> frag(tryDecode(&body, true, buf, &contentLength));
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
    co::Chars const inner = quill::withoutBlanks(cos->view());
    return inner.empty() ? nullptr : co::makeString(inner);
}

// field-name HCOLON field-value, unfolded; one more line of the header of that name
bool quill___MessageFragmentDecodeHeader(struct quillMessageFragment **frag, struct coString const *cos) {
    CO_ASSERT_REFERENCE(frag);
    CO_ASSERT_GIVEN(cos);
    co::Chars const text = cos->view();
    size_t const colon = text.find(U':');
    if (colon == co::Chars::npos) return false;
    co::Ref<coString> const normal(quill::tryNormalizeFieldName(quill::withoutBlanks(text.substr(0, colon))));
    if (!normal) return false;
    co::Ref<coString> const line(co::makeString(quill::withoutBlanks(text.substr(colon + 1))));
    struct quillMessageHeader *header = quillMessageFragmentHeader(*frag, normal.get());
    if (!header) header = quill::makeMessageHeader(normal.get());
    quillMessageHeaderAppendLine(&header, line.get());
    quillMessageFragmentSetHeader(frag, header);
    co::release(header);
    return true;
}
