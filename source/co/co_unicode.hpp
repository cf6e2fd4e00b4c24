// Simple case mappings of code points: always one code point.
#pragma once

#include <co/co_unicode.h>
#include <cstddef>

namespace co {

coChar simpleUpperBeyondAscii(coChar ch);
coChar simpleLowerBeyondAscii(coChar ch);

constexpr coChar asciiLower(coChar ch) { return ch >= U'A' && ch <= U'Z' ? ch + 32 : ch; }
constexpr coChar asciiUpper(coChar ch) { return ch >= U'a' && ch <= U'z' ? ch - 32 : ch; }

using CharMap = coChar (*)(coChar);

constexpr coChar sameChar(coChar ch) { return ch; }

inline void makeAsciiLower(coChar *chars, size_t count) {
    for (size_t i = 0; i < count; i++) chars[i] = asciiLower(chars[i]);
}

inline coChar simpleLower(coChar ch) { return ch < 0x80 ? asciiLower(ch) : simpleLowerBeyondAscii(ch); }
inline coChar simpleUpper(coChar ch) { return ch < 0x80 ? asciiUpper(ch) : simpleUpperBeyondAscii(ch); }

} // namespace co
