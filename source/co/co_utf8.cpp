// UTF-8, both ways. Contract: co_utf8.hpp.

#include <co/co_utf8.hpp>
#include <cstring>

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

// How many leading bytes are ASCII. Most text is nothing else, and eight bytes at a time are soon read.
size_t asciiRun(std::string_view bytes) {
    constexpr uint64_t highBits = 0x8080808080808080;
    size_t count = 0;
    for (uint64_t word = 0; count + sizeof word <= bytes.size(); count += sizeof word) {
        std::memcpy(&word, bytes.data() + count, sizeof word);
        if (word & highBits) break;
    }
    while (count < bytes.size() && static_cast<uint8_t>(bytes[count]) < 0x80) count++;
    return count;
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
        size_t const ascii = asciiRun(bytes);
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

coChar *widenAscii(coChar *__restrict chars, std::string_view ascii) {
    constexpr size_t step = 16; // known to the compiler, which makes vector instructions of it
    char const *__restrict bytes = ascii.data();
    size_t i = 0;
    for (; i + step <= ascii.size(); i += step)
        for (size_t k = 0; k < step; k++) chars[i + k] = static_cast<uint8_t>(bytes[i + k]);
    for (; i < ascii.size(); i++) chars[i] = static_cast<uint8_t>(bytes[i]);
    return chars + i;
}

coChar *widenUtf8(coChar *chars, std::string_view valid) { return chars + widenAnyBytes(chars, valid); }

int64_t widenAnyBytes(coChar *chars, std::string_view bytes) {
    size_t count = 0;
    for (;;) {
        size_t const ascii = asciiRun(bytes);
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

static coChar scalar(coChar ch) { return ch > 0x10FFFF || (ch >= 0xD800 && ch < 0xE000) ? replacement : ch; }

// Text is measured and narrowed in blocks, since most blocks are ASCII alone.
static constexpr size_t block = 16;

static inline uint64_t bitsOfEight(coChar const *chars) {
    uint64_t words[4];
    std::memcpy(words, chars, sizeof words);
    return words[0] | words[1] | words[2] | words[3];
}

static inline bool isAsciiBlock(coChar const *chars) {
    return ((bitsOfEight(chars) | bitsOfEight(chars + 8)) & 0xFFFFFF80FFFFFF80) == 0;
}

// The compiler makes vector instructions of a count that it knows.
static void narrowAsciiBlock(uint8_t *__restrict bytes, coChar const *__restrict chars) {
    for (size_t i = 0; i < block; i++) bytes[i] = static_cast<uint8_t>(chars[i]);
}

bool isAscii(std::u32string_view chars) {
    if (chars.size() < block) {
        coChar all = 0;
        for (coChar const ch : chars) all |= ch;
        return all < 0x80;
    }
    for (size_t at = 0; at + block < chars.size(); at += block)
        if (!isAsciiBlock(chars.data() + at)) return false;
    return isAsciiBlock(chars.data() + chars.size() - block); // which overlaps the one before
}

static int64_t lengthOfEach(std::u32string_view chars) {
    int64_t bytes = 0;
    for (coChar raw : chars) {
        coChar const ch = scalar(raw);
        bytes += 1 + (ch >= 0x80) + (ch >= 0x800) + (ch >= 0x10000);
    }
    return bytes;
}

int64_t utf8Length(std::u32string_view chars) {
    return isAscii(chars) ? static_cast<int64_t>(chars.size()) : lengthOfEach(chars);
}

static uint8_t *narrowEach(uint8_t *bytes, std::u32string_view chars) {
    for (coChar raw : chars) {
        if (raw < 0x80) {
            *bytes++ = static_cast<uint8_t>(raw);
            continue;
        }
        coChar const ch = scalar(raw);
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
    }
    return bytes;
}

uint8_t *narrowToUtf8(uint8_t *bytes, std::u32string_view chars) {
    for (; chars.size() >= block; chars.remove_prefix(block)) {
        if (isAsciiBlock(chars.data())) {
            narrowAsciiBlock(bytes, chars.data());
            bytes += block;
        } else {
            bytes = narrowEach(bytes, chars.substr(0, block));
        }
    }
    return narrowEach(bytes, chars);
}

uint8_t *narrowAscii(uint8_t *bytes, std::u32string_view ascii) {
    uint8_t *const end = bytes + ascii.size();
    if (ascii.size() < block) {
        for (coChar const ch : ascii) *bytes++ = static_cast<uint8_t>(ch);
        return end;
    }
    for (size_t at = 0; at + block < ascii.size(); at += block) narrowAsciiBlock(bytes + at, ascii.data() + at);
    narrowAsciiBlock(end - block, ascii.data() + ascii.size() - block); // which overlaps the one before
    return end;
}

} // namespace co
