// Labels of internationalised domain names. Contract: nx_idna.hpp.

#include <iterator>
#include <nx/nx_idna.hpp>
#include <nx/nx_idna_tables.hpp>

using namespace nx::unicode;

namespace {

Properties const &propertiesOf(coChar ch) {
    if (ch >= propertiesEnd) return properties[0];
    coChar const block = propertiesBlocks[ch >> propertiesShift];
    return properties[propertiesValues[block << propertiesShift | (ch & ((1 << propertiesShift) - 1))]];
}

uint8_t combiningClass(coChar ch) { return propertiesOf(ch).combiningClass; }

// Mapping and Normalization Form C (Unicode, 3.11 and 3.12).

constexpr coChar hangulFirst = 0xAC00;
constexpr coChar leadFirst = 0x1100;
constexpr coChar vowelFirst = 0x1161;
constexpr coChar trailBase = 0x11A7; // one before the first: no trail
constexpr coChar leads = 19;
constexpr coChar vowels = 21;
constexpr coChar trails = 28;

bool isHangulSyllable(coChar ch) { return ch >= hangulFirst && ch < hangulFirst + leads * vowels * trails; }

// A normal form of n code points has n times the longest decomposition before its composition, at most.
using Decomposed = nx::Bounded<63 * longestMapping>;

bool appendHangul(coChar syllable, Decomposed &text) {
    coChar const index = syllable - hangulFirst;
    coChar const trail = index % trails;
    return text.append(leadFirst + index / trails / vowels) && text.append(vowelFirst + index / trails % vowels) &&
           (trail == 0 || text.append(trailBase + trail));
}

bool appendMapped(coChar ch, Decomposed &text) {
    if (isHangulSyllable(ch)) return appendHangul(ch, text);
    if (ch >= mappingEnd) return text.append(ch);
    coChar const block = mappingBlocks[ch >> mappingShift];
    coChar const *mapping = mappings + mappingValues[block << mappingShift | (ch & ((1 << mappingShift) - 1))];
    return mapping[0] ? text.append(co::Chars(mapping + 1, mapping[0])) : text.append(ch);
}

// The canonical ordering: within each run of non-starters by combining class, otherwise as it was.
void reorder(Decomposed &text) {
    for (size_t i = 1; i < text.size(); i++) {
        coChar const ch = text[i];
        uint8_t const ccc = combiningClass(ch);
        if (ccc == 0) continue;
        size_t place = i;
        for (; place > 0 && combiningClass(text[place - 1]) > ccc; place--) text[place] = text[place - 1];
        text[place] = ch;
    }
}

// The primary composite of two code points, or 0.
coChar composite(coChar first, coChar second) {
    if (first - leadFirst < leads && second - vowelFirst < vowels)
        return hangulFirst + ((first - leadFirst) * vowels + second - vowelFirst) * trails;
    if (isHangulSyllable(first) && (first - hangulFirst) % trails == 0 && second > trailBase &&
        second < trailBase + trails)
        return first + second - trailBase;
    auto const *found = std::lower_bound(std::begin(compositions), std::end(compositions), std::pair(first, second),
                                         [](Composition const &entry, std::pair<coChar, coChar> const &wanted) {
                                             return std::pair(entry.first, entry.second) < wanted;
                                         });
    bool const exists = found != std::end(compositions) && found->first == first && found->second == second;
    return exists ? found->composite : 0;
}

void compose(Decomposed &text) {
    size_t end = 0;
    size_t starter = 0;
    bool hasStarter = false;
    uint8_t between = 0; // the class of the last code point kept since the starter; 0: none was
    for (size_t i = 0; i < text.size(); i++) {
        coChar const ch = text[i];
        uint8_t const ccc = combiningClass(ch);
        bool const isBlocked = between != 0 && between >= ccc;
        if (coChar const whole = hasStarter && !isBlocked ? composite(text[starter], ch) : 0) {
            text[starter] = whole;
            continue;
        }
        if (ccc == 0) {
            hasStarter = true;
            starter = end;
        }
        between = ccc;
        text[end++] = ch;
    }
    text.truncate(end);
}

// The rules of RFC 5892, appendix A. They look at the characters around the one at `i`.

bool followsVirama(co::Chars label, size_t i) {
    constexpr uint8_t virama = 9;
    return i > 0 && combiningClass(label[i - 1]) == virama;
}

Joining joiningOf(coChar ch) { return propertiesOf(ch).joining; }

// (Joining_Type:{L,D})(Joining_Type:T)* ZWNJ (Joining_Type:T)*(Joining_Type:{R,D}). A non-joiner is of type U, so no
// run of T is looked at for more than two of them.
bool isBetweenJoining(co::Chars label, size_t i) {
    size_t before = i;
    while (before > 0 && joiningOf(label[before - 1]) == Joining::T) before--;
    size_t after = i + 1;
    while (after < label.size() && joiningOf(label[after]) == Joining::T) after++;
    if (before == 0 || after == label.size()) return false;
    Joining const left = joiningOf(label[before - 1]);
    Joining const right = joiningOf(label[after]);
    return (left == Joining::L || left == Joining::D) && (right == Joining::R || right == Joining::D);
}

bool isBetween(co::Chars label, size_t i, coChar ch) {
    return i > 0 && label[i - 1] == ch && i + 1 < label.size() && label[i + 1] == ch;
}

bool precedesScript(co::Chars label, size_t i, Script script) {
    return i + 1 < label.size() && propertiesOf(label[i + 1]).script == script;
}

bool followsScript(co::Chars label, size_t i, Script script) {
    return i > 0 && propertiesOf(label[i - 1]).script == script;
}

bool hasJapanese(co::Chars label) {
    return std::any_of(label.begin(), label.end(), [](coChar ch) {
        Script const script = propertiesOf(ch).script;
        return script == Script::Hiragana || script == Script::Katakana || script == Script::Han;
    });
}

constexpr bool isArabicIndicDigit(coChar ch) { return ch >= 0x660 && ch <= 0x669; }
constexpr bool isExtendedArabicIndicDigit(coChar ch) { return ch >= 0x6F0 && ch <= 0x6F9; }

bool contextAllows(co::Chars label, size_t i) {
    coChar const ch = label[i];
    switch (ch) {
    case 0x200C:
        return followsVirama(label, i) || isBetweenJoining(label, i); // A.1, ZERO WIDTH NON-JOINER
    case 0x200D:
        return followsVirama(label, i); // A.2, ZERO WIDTH JOINER
    case 0x00B7:
        return isBetween(label, i, U'l'); // A.3, MIDDLE DOT
    case 0x0375:
        return precedesScript(label, i, Script::Greek); // A.4, GREEK LOWER NUMERAL SIGN
    case 0x05F3:                                        // A.5, HEBREW PUNCTUATION GERESH
    case 0x05F4:
        return followsScript(label, i, Script::Hebrew); // A.6, HEBREW PUNCTUATION GERSHAYIM
    case 0x30FB:
        return hasJapanese(label); // A.7, KATAKANA MIDDLE DOT
    default:
        break;
    }
    if (isArabicIndicDigit(ch)) return std::none_of(label.begin(), label.end(), isExtendedArabicIndicDigit); // A.8
    if (isExtendedArabicIndicDigit(ch)) return std::none_of(label.begin(), label.end(), isArabicIndicDigit); // A.9
    return false;
}

bool isPermitted(co::Chars label, size_t i) {
    Derived const derived = propertiesOf(label[i]).derived;
    if (derived == Derived::pvalid) return true;
    return (derived == Derived::contextJ || derived == Derived::contextO) && contextAllows(label, i);
}

// RFC 5891, 4.2.3.1.
bool hyphensAreAllowed(co::Chars label) {
    return label.front() != U'-' && label.back() != U'-' && label.substr(std::min(label.size(), size_t{2}), 2) != U"--";
}

// Of a label whose characters are all permitted: to them the mapping does nothing but normalise.
bool isNormal(co::Chars label) {
    nx::Label normal;
    return nx::mapLabel(label, normal) && normal.view() == label;
}

// The Bidi rule as sets of classes.

constexpr unsigned set(Bidi bidi) { return 1u << static_cast<unsigned>(bidi); }

template <class... Rest> constexpr unsigned set(Bidi first, Rest... rest) { return set(first) | set(rest...); }

unsigned bidiOf(coChar ch) { return set(propertiesOf(ch).bidi); }

constexpr unsigned neutral = set(Bidi::EN, Bidi::ES, Bidi::CS, Bidi::ET, Bidi::ON, Bidi::BN, Bidi::NSM);
constexpr unsigned rightToLeft = set(Bidi::R, Bidi::AL, Bidi::AN);

} // namespace

bool nx::mapLabel(co::Chars text, Label &mapped) {
    Decomposed decomposed;
    for (coChar ch : text) {
        if (!appendMapped(ch, decomposed)) return false;
    }
    reorder(decomposed);
    compose(decomposed);
    return mapped.append(decomposed.view());
}

bool nx::isULabel(co::Chars label) {
    if (label.empty() || !hyphensAreAllowed(label) || propertiesOf(label.front()).mark) return false;
    bool hasNonAscii = false;
    for (size_t i = 0; i < label.size(); i++) {
        if (!isPermitted(label, i)) return false;
        hasNonAscii |= label[i] >= 0x80;
    }
    return hasNonAscii && isNormal(label);
}

bool nx::isRightToLeftLabel(co::Chars label) {
    return std::any_of(label.begin(), label.end(), [](coChar ch) { return bidiOf(ch) & rightToLeft; });
}

bool nx::satisfiesBidiRule(co::Chars label) {
    unsigned classes = 0;
    unsigned last = 0; // of the characters that are no NSM
    for (coChar ch : label) {
        unsigned const bidi = bidiOf(ch);
        classes |= bidi;
        if (bidi != set(Bidi::NSM)) last = bidi;
    }
    unsigned const first = label.empty() ? 0 : bidiOf(label.front());
    if (first == set(Bidi::L)) // conditions 5 and 6
        return (classes & ~(neutral | set(Bidi::L))) == 0 && (last & set(Bidi::L, Bidi::EN));
    if ((first & set(Bidi::R, Bidi::AL)) == 0) return false; // condition 1
    bool const mixesNumbers = (classes & set(Bidi::EN)) && (classes & set(Bidi::AN));
    return (classes & ~(neutral | rightToLeft)) == 0 && (last & (rightToLeft | set(Bidi::EN))) && !mixesNumbers;
}
