// The character classes as the scanners test them: their definitions, and one table of a bit for each class.
#pragma once

#include <co/co_scan.hpp>
#include <quill/quill_char.h>

namespace quill {

// RFC 3261, 25.1, in the order in which they build on each other.
namespace members {

using co::CharSet;

inline constexpr CharSet alpha = co::asciiAlpha;
inline constexpr CharSet digit = co::asciiDigits;
inline constexpr CharSet alphanum = alpha + digit;
inline constexpr CharSet hexdig = digit + "ABCDEFabcdef";
inline constexpr CharSet lws = " \t";

inline constexpr CharSet atom = alphanum + "-!%*_+`'~";
inline constexpr CharSet tokenNodot = atom;
inline constexpr CharSet token = tokenNodot + ".";
inline constexpr CharSet word = token + "()<>:\\\"/[]?{}";
inline constexpr CharSet separator = lws + "()<>@,;:\\\"/[]?={}";

inline constexpr CharSet mark = "-_.!~*'()";
inline constexpr CharSet unreserved = alphanum + mark;
inline constexpr CharSet reserved = ";/?:@&=+$,";
inline constexpr CharSet userUnreserved = "&=+$,;?/";
inline constexpr CharSet paramUnreserved = "[]/:&+$";
inline constexpr CharSet paramChar = unreserved + paramUnreserved + "%";
inline constexpr CharSet hnvUnreserved = "[]/?:+$";

} // namespace members

// A class, or a union of some: a predicate over code points.
struct CharClass {
    uint16_t bits;

    constexpr bool operator()(coChar ch) const;
    friend constexpr CharClass operator|(CharClass a, CharClass b) { return {static_cast<uint16_t>(a.bits | b.bits)}; }
};

inline constexpr CharClass isAlpha{1 << 0};
inline constexpr CharClass isDigit{1 << 1};
inline constexpr CharClass isAlphanum{1 << 2};
inline constexpr CharClass isAtom{1 << 3};
inline constexpr CharClass isTokenNodot{1 << 4};
inline constexpr CharClass isToken{1 << 5};
inline constexpr CharClass isHexdig{1 << 6};
inline constexpr CharClass isHnvUnreserved{1 << 7};
inline constexpr CharClass isLws{1 << 8};
inline constexpr CharClass isMark{1 << 9};
inline constexpr CharClass isReserved{1 << 10};
inline constexpr CharClass isSeparator{1 << 11};
inline constexpr CharClass isUnreserved{1 << 12};
inline constexpr CharClass isParamChar{1 << 13};
inline constexpr CharClass isUserUnreserved{1 << 14};
inline constexpr CharClass isWord{1 << 15};

struct CharTable {
    uint16_t bits[128] = {};

    constexpr CharTable &add(CharClass type, co::CharSet set) {
        for (coChar ch = 0; ch < 128; ch++) bits[ch] = static_cast<uint16_t>(bits[ch] | (set.has(ch) ? type.bits : 0));
        return *this;
    }
};

inline constexpr CharTable charTable = CharTable()
                                           .add(isAlpha, members::alpha)
                                           .add(isDigit, members::digit)
                                           .add(isAlphanum, members::alphanum)
                                           .add(isAtom, members::atom)
                                           .add(isTokenNodot, members::tokenNodot)
                                           .add(isToken, members::token)
                                           .add(isHexdig, members::hexdig)
                                           .add(isHnvUnreserved, members::hnvUnreserved)
                                           .add(isLws, members::lws)
                                           .add(isMark, members::mark)
                                           .add(isReserved, members::reserved)
                                           .add(isSeparator, members::separator)
                                           .add(isUnreserved, members::unreserved)
                                           .add(isParamChar, members::paramChar)
                                           .add(isUserUnreserved, members::userUnreserved)
                                           .add(isWord, members::word);

constexpr bool CharClass::operator()(coChar ch) const { return ch < 128 && (charTable.bits[ch] & bits); }

} // namespace quill
