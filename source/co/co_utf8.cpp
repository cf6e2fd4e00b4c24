// UTF-8, both ways. Contract: co_utf8.hpp.

#include <co/co_simd.hpp>
#include <co/co_utf8.hpp>

namespace {

constexpr coChar replacement = 0xFFFD;

// What Unicode's table 3-7 says of a lead byte: how many bytes follow and which range the first of them has.
struct Lead {
    uint8_t follow;
    uint8_t low;
    uint8_t high;
};

constexpr Lead lead(uint8_t byte) {
    if (byte < 0xC2) return {0, 1, 0};
    if (byte < 0xE0) return {1, 0x80, 0xBF};
    if (byte < 0xF0) return {2, uint8_t(byte == 0xE0 ? 0xA0 : 0x80), uint8_t(byte == 0xED ? 0x9F : 0xBF)};
    if (byte < 0xF5) return {3, uint8_t(byte == 0xF0 ? 0x90 : 0x80), uint8_t(byte == 0xF4 ? 0x8F : 0xBF)};
    return {0, 1, 0};
}

bool startsLong(std::string_view bytes) { return !bytes.empty() && static_cast<uint8_t>(bytes[0]) >= 0x80; }

struct Decoded {
    bool valid;
    size_t bytes; // of the code point, or of the maximal ill-formed piece
    coChar ch;
};

// The code point that begins with a byte above 0x7F.
Decoded decodeLong(std::string_view text) {
    auto const *bytes = reinterpret_cast<uint8_t const *>(text.data());
    Lead const first = lead(bytes[0]);
    if (first.follow == 0) return {false, 1, replacement};
    coChar ch = bytes[0] & (0x3Fu >> first.follow);
    for (size_t i = 1; i <= first.follow; i++) {
        uint8_t const low = i == 1 ? first.low : 0x80;
        uint8_t const high = i == 1 ? first.high : 0xBF;
        if (i >= text.size() || bytes[i] < low || bytes[i] > high) return {false, i, replacement};
        ch = ch << 6 | (bytes[i] & 0x3Fu);
    }
    return {true, first.follow + size_t{1}, ch};
}

} // namespace

namespace co {

Utf8Count countUtf8(std::string_view bytes) {
    size_t chars = 0;
    for (;;) {
        size_t const ascii = simd::asciiRun(bytes);
        chars += ascii;
        bytes.remove_prefix(ascii);
        if (bytes.empty()) return {true, static_cast<int64_t>(chars)};
        for (; startsLong(bytes); chars++) {
            Decoded const decoded = decodeLong(bytes);
            if (!decoded.valid) return {false, 0};
            bytes.remove_prefix(decoded.bytes);
        }
    }
}

coChar *widenAscii(coChar *chars, std::string_view ascii) {
    simd::widen(chars, ascii);
    return chars + ascii.size();
}

coChar *widenUtf8(coChar *chars, std::string_view valid) { return chars + widenAnyBytes(chars, valid); }

int64_t widenAnyBytes(coChar *chars, std::string_view bytes) {
    size_t count = 0;
    for (;;) {
        size_t const ascii = simd::asciiRun(bytes);
        if (chars) widenAscii(chars + count, bytes.substr(0, ascii));
        count += ascii;
        bytes.remove_prefix(ascii);
        if (bytes.empty()) return static_cast<int64_t>(count);
        for (; startsLong(bytes); count++) {
            Decoded const decoded = decodeLong(bytes);
            if (chars) chars[count] = decoded.ch;
            bytes.remove_prefix(decoded.bytes);
        }
    }
}

static coChar scalarValue(coChar ch) { return ch > 0x10FFFF || (ch >= 0xD800 && ch < 0xE000) ? replacement : ch; }

static bool startsLong(std::u32string_view chars) { return !chars.empty() && chars[0] >= 0x80; }

int64_t utf8Length(std::u32string_view chars) {
    size_t bytes = 0;
    for (;;) {
        size_t const ascii = simd::asciiRun(chars);
        bytes += ascii;
        chars.remove_prefix(ascii);
        if (chars.empty()) return static_cast<int64_t>(bytes);
        for (; startsLong(chars); chars.remove_prefix(1)) {
            coChar const ch = scalarValue(chars[0]);
            bytes += size_t{2} + (ch >= 0x800) + (ch >= 0x10000);
        }
    }
}

// Writes a code point beyond US-ASCII.
static uint8_t *narrowLong(uint8_t *bytes, coChar ch) {
    if (ch < 0x800) {
        *bytes++ = static_cast<uint8_t>(0xC0 | ch >> 6);
    } else if (ch < 0x10000) {
        *bytes++ = static_cast<uint8_t>(0xE0 | ch >> 12);
        *bytes++ = static_cast<uint8_t>(0x80 | (ch >> 6 & 0x3F));
    } else {
        *bytes++ = static_cast<uint8_t>(0xF0 | ch >> 18);
        *bytes++ = static_cast<uint8_t>(0x80 | (ch >> 12 & 0x3F));
        *bytes++ = static_cast<uint8_t>(0x80 | (ch >> 6 & 0x3F));
    }
    *bytes++ = static_cast<uint8_t>(0x80 | (ch & 0x3F));
    return bytes;
}

uint8_t *narrowToUtf8(uint8_t *bytes, std::u32string_view chars) {
    for (;;) {
        size_t const ascii = simd::narrow(bytes, chars);
        bytes += ascii;
        chars.remove_prefix(ascii);
        if (chars.empty()) return bytes;
        for (; startsLong(chars); chars.remove_prefix(1)) bytes = narrowLong(bytes, scalarValue(chars[0]));
    }
}

bool isAscii(std::u32string_view chars) { return simd::asciiRun(chars) == chars.size(); }

uint8_t *narrowAscii(uint8_t *bytes, std::u32string_view ascii) { return bytes + simd::narrow(bytes, ascii); }

} // namespace co
