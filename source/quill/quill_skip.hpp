// What the scanners are put together from.
//
// A rule takes a text and returns how many code points at its start match, noMatch where none do; 0 is the match of a
// rule that may be empty. The functions below make rules out of rules, so that a production reads as its ABNF does:
//
//     // name-addr = [ display-name ] LAQUOT addr-spec RAQUOT
//     constexpr auto nameAddr = sequence(optional(displayName), laquot, uri, raquot);
//
// Rules are greedy and never come back to what they have taken. Each looks at a code point a constant number of times
// at most, however often the text repeats a shape.
#pragma once

#include <co/co_scan.hpp>
#include <co/co_simd.hpp>
#include <co/co_unicode.hpp>
#include <quill/quill_char.hpp>

namespace quill {

using co::Chars;
using co::from;

inline constexpr int64_t noMatch = -1;

// What a scanner that doesn't tell an empty match from none returns.
constexpr int64_t matched(int64_t length) { return length > 0 ? length : 0; }

// The same in the other direction, for what must not be empty.
constexpr int64_t nonEmpty(int64_t length) { return length > 0 ? length : noMatch; }

// Characters

constexpr auto oneOf(coChar ch) {
    return [ch](Chars text) -> int64_t { return !text.empty() && text[0] == ch ? 1 : noMatch; };
}

// How many code points at the start are members; may be none.
template <class Class> constexpr int64_t span(Chars text, Class isMember) {
    size_t at = 0;
    while (at < text.size() && isMember(text[at])) at++;
    return static_cast<int64_t>(at);
}

// 1*member
template <class Class> constexpr auto run(Class isMember) {
    return [isMember](Chars text) { return nonEmpty(span(text, isMember)); };
}

// The same, where nearly all of them are of a set that is searched in blocks.
template <class Usual, class Class> constexpr auto runOfMostly(Class isMember) {
    return [isMember](Chars text) {
        auto const begin = static_cast<int64_t>(co::simd::run<Usual>(text));
        return nonEmpty(begin + span(from(text, begin), isMember));
    };
}

// *( member / escaped ), escaped = "%" HEXDIG HEXDIG
template <class Class> constexpr auto escapedRun(Class isMember) {
    return [isMember](Chars text) {
        int64_t at = 0;
        for (;;) {
            at += span(from(text, at), isMember);
            if (!co::beginsWithEscape(from(text, at))) return at;
            at += 3;
        }
    };
}

constexpr int64_t exactPrefix(Chars text, Chars prefix) {
    if (prefix.empty() || text.size() < prefix.size()) return noMatch;
    for (size_t i = 0; i < prefix.size(); i++) {
        if (text[i] != prefix[i]) return noMatch;
    }
    return co::length(prefix);
}

// Without regard to the case of `A` to `Z`, on either side.
constexpr int64_t foldedPrefix(Chars text, Chars prefix) {
    if (prefix.empty() || text.size() < prefix.size()) return noMatch;
    for (size_t i = 0; i < prefix.size(); i++) {
        if (co::asciiLower(text[i]) != co::asciiLower(prefix[i])) return noMatch;
    }
    return co::length(prefix);
}

// A name, which is given in lower case and matches in any. The two cases of a letter differ in one bit.
constexpr int64_t namePrefix(Chars text, Chars name) {
    if (name.empty() || text.size() < name.size()) return noMatch;
    coChar difference = 0;
    for (size_t i = 0; i < name.size(); i++) {
        coChar const caseBit = name[i] ^ co::asciiUpper(name[i]); // none where it is no letter
        difference |= (text[i] | caseBit) ^ name[i];
    }
    return difference == 0 ? co::length(name) : noMatch;
}

constexpr auto name(Chars letters) {
    return [letters](Chars text) { return namePrefix(text, letters); };
}

// Rules from rules

// All, one after the other.
template <class... Rules> constexpr auto sequence(Rules... rules) {
    return [=](Chars text) {
        int64_t at = 0;
        auto const follows = [&](auto const &rule) {
            int64_t const length = rule(from(text, at));
            at = length < 0 ? noMatch : at + length;
            return length >= 0;
        };
        (follows(rules) && ...);
        return at;
    };
}

// [ rules ]
template <class... Rules> constexpr auto optional(Rules... rules) {
    return [rule = sequence(rules...)](Chars text) { return matched(rule(text)); };
}

// [ first rules ], where what begins must go on: `first` without `rules` is no match.
template <class First, class... Rules> constexpr auto given(First first, Rules... rules) {
    return [first, rule = sequence(rules...)](Chars text) -> int64_t {
        int64_t const begin = first(text);
        if (begin < 0) return 0;
        int64_t const length = rule(from(text, begin));
        return length < 0 ? noMatch : begin + length;
    };
}

// *( rules ), up to the first that doesn't match.
template <class... Rules> constexpr auto repeated(Rules... rules) {
    return [rule = sequence(rules...)](Chars text) {
        int64_t at = 0;
        for (int64_t length; (length = rule(from(text, at))) > 0;) at += length;
        return at;
    };
}

// *( first rules ), where what begins must go on.
template <class First, class... Rules> constexpr auto repeatedGiven(First first, Rules... rules) {
    return [rule = given(first, rules...)](Chars text) {
        int64_t at = 0;
        for (;;) {
            int64_t const length = rule(from(text, at));
            if (length == 0) return at;
            if (length < 0) return noMatch;
            at += length;
        }
    };
}

// The first that matches.
template <class... Rules> constexpr auto firstOf(Rules... rules) {
    return [=](Chars text) {
        int64_t length = noMatch;
        static_cast<void>(((length = rules(text), length > 0) || ...));
        return length;
    };
}

// The one that matches most.
template <class... Rules> constexpr auto longestOf(Rules... rules) {
    return [=](Chars text) {
        int64_t longest = noMatch;
        auto const compare = [&](int64_t length) { longest = length > longest ? length : longest; };
        (compare(rules(text)), ...);
        return longest;
    };
}

// The rule, if it matches anything at all.
template <class Rule> constexpr auto some(Rule rule) {
    return [rule](Chars text) { return nonEmpty(rule(text)); };
}

// What the rule matches of the first `count` code points.
template <class Rule> constexpr auto within(int64_t count, Rule rule) {
    return
        [=](Chars text) { return rule(co::chars(text.data(), count < co::length(text) ? count : co::length(text))); };
}

// The rule, if it matches so many code points.
template <class Rule> constexpr auto exactly(int64_t count, Rule rule) {
    return [=](Chars text) { return rule(text) == count ? count : noMatch; };
}

// What every production is made of (RFC 3261, 25.1)
namespace rules {

inline constexpr auto sws = [](Chars text) { return span(text, isLws); };
inline constexpr auto lws = run(isLws);

constexpr auto swsCharSws(coChar ch) {
    return [ch](Chars text) -> int64_t {
        bool const standsAlone = text.size() > 1 && text[0] == ch && !isLws(text[1]); // as nearly always
        return standsAlone ? 1 : sequence(sws, oneOf(ch), sws)(text);
    };
}
constexpr auto swsChar(coChar ch) {
    return [ch](Chars text) -> int64_t {
        bool const standsFirst = !text.empty() && text[0] == ch; // as nearly always
        return standsFirst ? 1 : sequence(sws, oneOf(ch))(text);
    };
}
constexpr auto charSws(coChar ch) { return sequence(oneOf(ch), sws); }

inline constexpr auto colon = swsCharSws(U':');
inline constexpr auto comma = swsCharSws(U',');
inline constexpr auto equal = swsCharSws(U'=');
inline constexpr auto semi = swsCharSws(U';');
inline constexpr auto slash = swsCharSws(U'/');
inline constexpr auto star = swsCharSws(U'*');
inline constexpr auto lparen = swsCharSws(U'(');
inline constexpr auto rparen = swsCharSws(U')');
inline constexpr auto laquot = swsChar(U'<');
inline constexpr auto raquot = charSws(U'>');
inline constexpr auto ldquot = swsChar(U'"');
inline constexpr auto rdquot = charSws(U'"');

inline constexpr auto digits = run(isDigit);
inline constexpr auto token = run(isToken);
inline constexpr auto longToken = runOfMostly<co::TokenChars>(isToken); // that seldom has less than eight characters

// *qdtext: what stands in a quoted string without being escaped
inline constexpr auto qdtexts = [](Chars text) {
    using Others =
        co::RangesOf<co::Range{'"', '"'}, co::Range{'\\', '\\'}, co::Range{'\n', '\n'}, co::Range{'\r', '\r'}>;
    return static_cast<int64_t>(co::simd::run<co::AllBut<Others>>(text));
};

// protocol-name SLASH protocol-version
inline constexpr auto version = [](Chars text) -> int64_t { return sequence(token, slash, token)(text); };

} // namespace rules

// The length of the host that the text begins with, noMatch where there is none. `isOrdinary`, unless null: whether it is
// a name of letters, digits, single hyphens and dots, so short that no label can be too long.
int64_t hostLength(Chars text, bool *isOrdinary = nullptr);

} // namespace quill
