// What scanners have in common: the rest of a text, sets of characters, hexadecimal digits, escape sequences.
#pragma once

#include <co/co_string.hpp>

namespace co {

// What follows the first `at` code points.
constexpr Chars from(Chars text, int64_t at) { return {text.data() + at, text.size() - static_cast<size_t>(at)}; }

// A set of US-ASCII characters, to be written as the grammars do: `alphanum + "-.!%*_+`'~"`.
class CharSet {
public:
    constexpr CharSet() = default;
    constexpr CharSet(char const *members) { // NOLINT(google-explicit-constructor): a literal is the set of its members
        for (; *members; members++) add(static_cast<coChar>(*members));
    }

    static constexpr CharSet range(coChar first, coChar last) {
        CharSet set;
        for (coChar ch = first; ch <= last; ch++) set.add(ch);
        return set;
    }

    // No code point beyond US-ASCII is a member of any set.
    constexpr bool has(coChar ch) const { return ch < 128 && (bits[ch >> 6] >> (ch & 63) & 1); }

    friend constexpr CharSet operator+(CharSet a, CharSet b) {
        for (int i = 0; i < 2; i++) a.bits[i] |= b.bits[i];
        return a;
    }

private:
    constexpr void add(coChar ch) { bits[ch >> 6] |= uint64_t{1} << (ch & 63); }

    uint64_t bits[2] = {};
};

inline constexpr CharSet asciiAlpha = CharSet::range(U'A', U'Z') + CharSet::range(U'a', U'z');
inline constexpr CharSet asciiDigits = CharSet::range(U'0', U'9');
inline constexpr CharSet asciiAlphanum = asciiAlpha + asciiDigits;

// The value of a hexadecimal digit of either case, or -1.
constexpr int hexValue(coChar ch) {
    if (ch >= U'0' && ch <= U'9') return static_cast<int>(ch - U'0');
    if (ch >= U'A' && ch <= U'F') return static_cast<int>(ch - U'A' + 10);
    if (ch >= U'a' && ch <= U'f') return static_cast<int>(ch - U'a' + 10);
    return -1;
}

// "%" HEXDIG HEXDIG
constexpr bool beginsWithEscape(Chars text) {
    return text.size() >= 3 && text[0] == U'%' && hexValue(text[1]) >= 0 && hexValue(text[2]) >= 0;
}

} // namespace co
