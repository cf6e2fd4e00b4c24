// Scanners for IRIs, IP addresses and ports. Contract: loc_skip.h.

#define CO_UNIT "source/loc/loc_skip"

#include <array>
#include <co/co_assert.hpp>
#include <co/co_ip.hpp>
#include <co/co_scan.hpp>
#include <co/co_simd.hpp>
#include <co/co_unicode.hpp>
#include <loc/loc_skip.h>
#include <loc/loc_skip.hpp>

using co::Chars;
using co::CharSet;
using co::from;

// RFC 3987, 2.2

bool loc::isUcschar(coChar ch) {
    if (ch < 0x10000)
        return (ch >= 0xA0 && ch < 0xD800) || (ch >= 0xF900 && ch < 0xFDD0) || (ch >= 0xFDF0 && ch < 0xFFF0);
    return ch < 0xF0000 && (ch & 0xFFFF) < 0xFFFE && (ch < 0xE0000 || ch >= 0xE1000);
}

bool loc::isIprivate(coChar ch) {
    return (ch >= 0xE000 && ch < 0xF900) || (ch >= 0xF0000 && ch < 0x110000 && (ch & 0xFFFF) < 0xFFFE);
}

namespace {

constexpr CharSet schemeChars = co::asciiAlphanum + "+-.";
constexpr CharSet unreserved = co::asciiAlphanum + "-._~";
constexpr CharSet subDelims = "!$&'()*+,;=";
constexpr CharSet pathChars = unreserved + subDelims + ":@/";
constexpr CharSet queryChars = pathChars + "?";

// What belongs to every part and decides nothing: most of an IRI is runs of these.
constexpr CharSet plain = unreserved + "!$&'()*+=";

using Members = std::array<bool, 128>;

constexpr Members membersOf(CharSet set) {
    Members members{};
    for (coChar ch = 0; ch < 128; ch++) members[ch] = set.has(ch);
    return members;
}

constexpr Members isPlain = membersOf(plain);
constexpr Members isPlainInSip = membersOf(plain + "/[]"); // whose host may be an IPv6 reference
constexpr Members isUsualInSip = membersOf(plain + "/[]:;@");

int64_t runOf(Members const &members, Chars text, int64_t from) {
    coChar const *at = text.data() + from;
    coChar const *const end = text.data() + text.size();
    while (at < end && *at < 128 && members[*at]) at++;
    return at - text.data();
}

// What stands in all parts of a SIP URI.
constexpr CharSet sipDelimiters = ":;@";

enum class Part { path, query, fragment }; // an authority is the beginning of the path here

// scheme = ALPHA *( ALPHA / DIGIT / "+" / "-" / "." ), and its colon
int64_t schemeLength(Chars text) {
    if (text.empty() || !co::asciiAlpha.has(text[0])) return 0;
    size_t at = 1;
    while (at < text.size() && schemeChars.has(text[at])) at++;
    return at < text.size() && text[at] == U':' ? static_cast<int64_t>(at + 1) : 0;
}

bool isSip(Chars scheme) {
    constexpr Chars sips = U"sips:";
    if (scheme.size() < 4 || scheme.size() > 5) return false;
    for (size_t i = 0; i + 1 < scheme.size(); i++) {
        if (co::asciiLower(scheme[i]) != sips[i]) return false;
    }
    return true;
}

bool belongs(coChar ch, Part part) {
    if (ch < 128) return (part == Part::path ? pathChars : queryChars).has(ch);
    return loc::isUcschar(ch) || (part == Part::query && loc::isIprivate(ch));
}

// The code points that the next character of an IRI takes, 0 where there is none; `?` and `#` lead to the next part.
int64_t step(Chars text, Part &part) {
    coChar const ch = text[0];
    if (ch == U'%') return co::beginsWithEscape(text) ? 3 : 0; // pct-encoded
    if (ch == U'?' && part == Part::path) part = Part::query;
    if (ch == U'#' && part != Part::fragment) return part = Part::fragment, 1;
    return belongs(ch, part) ? 1 : 0;
}

// "[" IPv6address "]"
int64_t ipV6ReferenceLength(Chars text) {
    if (text.empty() || text[0] != U'[') return 0;
    int64_t const length = co::ipv6Length(from(text, 1));
    if (length == 0 || co::length(text) < length + 2 || text[static_cast<size_t>(length) + 1] != U']') return 0;
    return length + 2;
}

// What follows the scheme. In "//" [ iuserinfo "@" ] ihost, an IPv6 reference may be the host.
int64_t hierPartLength(Chars text, coChar end) {
    bool authority = text.size() >= 2 && text[0] == U'/' && text[1] == U'/';
    bool hostBegins = authority;
    int64_t at = authority ? 2 : 0;
    Part part = Part::path;
    for (;;) {
        if (!hostBegins) at = runOf(isPlain, text, at);
        if (at >= co::length(text)) break;
        Chars const rest = from(text, at);
        int64_t const reference = hostBegins ? ipV6ReferenceLength(rest) : 0;
        int64_t const length = reference > 0 ? reference : step(rest, part);
        if (rest[0] == end || length == 0) break;
        authority = authority && part == Part::path && rest[0] != U'/';
        hostBegins = authority && rest[0] == U'@';
        at += length;
    }
    return at;
}

// What follows "sip:" or "sips:". Whether a comma belongs to it shows only at the "@" behind it. Looking for that no
// further than to a second colon keeps the scanning of a list linear: its elements hold a colon each.
int64_t anySipPartLength(Chars text, coChar end) {
    int64_t comma = -1; // the first one, as long as it is in doubt
    int colons = 0;
    bool userMayFollow = true;
    int64_t at = 0;
    Part part = Part::path;
    for (;;) {
        at = runOf(isPlainInSip, text, at);
        if (at >= co::length(text)) break;
        Chars const rest = from(text, at);
        coChar const ch = rest[0];
        if (ch == end) break;
        int64_t const length = sipDelimiters.has(ch) ? 1 : step(rest, part);
        if (length == 0) break;
        if (ch == U':') colons++;
        if (ch == U'@' || colons > 1) userMayFollow = false;
        if (ch == U'@') comma = -1;
        if (ch == U',' && comma < 0) comma = at;
        if (comma >= 0 && !userMayFollow) break;
        at += length;
    }
    return comma >= 0 ? comma : at;
}

// Whether a SIP URI may go on with a character that is none of the usual ones.
bool maySipPartGoOn(coChar ch) { return ch == U',' || ch == U'?' || ch == U'%' || ch == U'#' || ch >= 128; }

// `UsualChars` is what is searched for in blocks.
template <class UsualChars> int64_t sipPartLength(Chars text, coChar end, bool *hasNoEscapes) {
    auto const begin = static_cast<int64_t>(co::simd::run<UsualChars>(text));
    Chars const usual(text.data(), static_cast<size_t>(runOf(isUsualInSip, text, begin)));
    if (usual.size() < text.size() && maySipPartGoOn(text[usual.size()])) return anySipPartLength(text, end);
    *hasNoEscapes = true;
    return co::length(end == loc::noChar ? usual : usual.substr(0, usual.find(end)));
}

// Of any scheme.
[[gnu::noinline]] int64_t anyIriLength(Chars text, coChar end) {
    int64_t const scheme = schemeLength(text);
    if (scheme == 0) return 0;
    Chars const rest = from(text, scheme);
    int64_t const length =
        isSip(co::chars(text.data(), scheme)) ? anySipPartLength(rest, end) : hierPartLength(rest, end);
    return length == 0 ? 0 : scheme + length;
}

template <class UsualChars> int64_t measureIri(Chars text, coChar end, bool *hasNoEscapes) {
    constexpr Chars sip = U"sip:"; // nearly always
    *hasNoEscapes = false;
    if (!co::equal(text.substr(0, sip.size()), sip)) return anyIriLength(text, end);
    int64_t const length = sipPartLength<UsualChars>(text.substr(sip.size()), end, hasNoEscapes);
    return length == 0 ? 0 : co::length(sip) + length;
}

} // namespace

int64_t loc::iriLength(Chars text, coChar end) {
    bool hasNoEscapes;
    return measureIri<co::UriChars>(text, end, &hasNoEscapes);
}

int64_t loc::iriLengthInAddress(Chars text, coChar end, bool *hasNoEscapes) {
    return measureIri<co::UriWithParamsChars>(text, end, hasNoEscapes);
}

int64_t loc___SkipIri(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    return loc::iriLength(co::chars(chs, length));
}

int64_t loc___SkipIpV4Address(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    return co::ipv4Length(co::chars(chs, length));
}

int64_t loc___SkipIpV6Address(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    return co::ipv6Length(co::chars(chs, length));
}

int64_t loc___SkipPort(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    int64_t at = 0;
    while (at < length && co::asciiDigits.has(chs[at])) at++;
    return at;
}
