// IRIs and URIs. Contract: loc_iri.h.

#define CO_UNIT "source/loc/loc_iri"

#include <co/co_assert.hpp>
#include <co/co_scan.hpp>
#include <co/co_string.hpp>
#include <loc/loc_iri.h>
#include <loc/loc_iri.hpp>
#include <loc/loc_skip.hpp>

using co::Chars;
using co::from;

static bool isIri(coString const *text) { return text->length > 0 && loc::iriLength(text->view()) == text->length; }

// RFC 3987, 4.1: LRM, RLM, LRE, RLE, PDF, LRO, RLO
static bool isBidiFormatting(coChar ch) { return ch == 0x200E || ch == 0x200F || (ch >= 0x202A && ch <= 0x202E); }

// The octets of a UTF-8 sequence by its first one, 0 for what begins none beyond US-ASCII.
static size_t sequenceLength(int first) {
    if (first >= 0xC2 && first <= 0xDF) return 2;
    if (first >= 0xE0 && first <= 0xEF) return 3;
    if (first >= 0xF0 && first <= 0xF4) return 4;
    return 0;
}

// The octet of the escape sequence that the text begins with, or -1.
static int escapedOctet(Chars text) {
    return co::beginsWithEscape(text) ? co::hexValue(text[1]) * 16 + co::hexValue(text[2]) : -1;
}

namespace {
struct Decoded {
    coChar ch;
    size_t escapes; // 0: nothing to decode
};
} // namespace

static Decoded decodeEscapes(Chars text, bool inQuery) {
    char octets[4];
    size_t const count = sequenceLength(escapedOctet(text));
    if (count == 0) return {0, 0};
    for (size_t i = 0; i < count; i++, text.remove_prefix(3)) {
        int const octet = escapedOctet(text);
        if (octet < 0) return {0, 0};
        octets[i] = static_cast<char>(octet);
    }
    if (!co::countUtf8({octets, count}).valid) return {0, 0};
    coChar ch;
    co::widenUtf8(&ch, {octets, count});
    bool const allowed = !isBidiFormatting(ch) && (loc::isUcschar(ch) || (inQuery && loc::isIprivate(ch)));
    return {ch, allowed ? count : 0};
}

coString *loc::makeIri(Chars uri) {
    if (uri.find(U'%') == Chars::npos) return co::makeString(uri);
    size_t const query = uri.find(U'?'), fragment = uri.find(U'#');
    coString *iri = co::makeString(co::length(uri));
    for (size_t at = 0; at < uri.size();) {
        Decoded const decoded = decodeEscapes(from(uri, static_cast<int64_t>(at)), at > query && at < fragment);
        iri->chars()[iri->length++] = decoded.escapes > 0 ? decoded.ch : uri[at];
        at += decoded.escapes > 0 ? 3 * decoded.escapes : 1;
    }
    return iri;
}

coString *locTryConvertFromUri(coString const *uri) {
    CO_ASSERT_GIVEN(uri);
    if (!isIri(uri)) return nullptr;
    return uri->view().find(U'%') == Chars::npos ? co::retained(uri) : loc::makeIri(uri->view());
}

static coChar *writeEscapes(coChar *to, coChar ch) {
    constexpr char digits[] = "0123456789ABCDEF";
    uint8_t octets[4];
    uint8_t const *const end = co::narrowToUtf8(octets, {&ch, 1});
    for (uint8_t const *octet = octets; octet < end; octet++) {
        *to++ = U'%';
        *to++ = static_cast<coChar>(digits[*octet >> 4]);
        *to++ = static_cast<coChar>(digits[*octet & 15]);
    }
    return to;
}

coString *locTryConvertToUri(coString const *iri) {
    CO_ASSERT_GIVEN(iri);
    if (!isIri(iri)) return nullptr;
    if (co::isAscii(iri->view())) return co::retained(iri);
    coString *uri = co::makeString(3 * co::utf8Length(iri->view()));
    coChar *to = uri->chars();
    for (coChar const ch : iri->view()) {
        if (ch < 128)
            *to++ = ch;
        else
            to = writeEscapes(to, ch);
    }
    uri->length = to - uri->chars();
    return uri;
}

bool locGensValidatePart(int64_t part, coString const *text) {
    CO_ASSERT_GIVEN(text);
    return part == 0 && isIri(text);
}
