// Names of header fields. Contract: quill_field_name.hpp.

#include <array>
#include <bit>
#include <co/co_simd.hpp>
#include <co/co_unicode.hpp>
#include <cstring>
#include <quill/quill_char.hpp>
#include <quill/quill_family.hpp>
#include <quill/quill_field_name.hpp>
#include <quill/quill_typed_headers.hpp>

namespace {

#define FIELD(Camel, SORT, name, shape, definition) std::string_view(name),
constexpr std::string_view known[] = {QUILL_TYPED_HEADERS(FIELD) // and those without a typed header
                                      "Accept-Contact",
                                      "Content-Length",
                                      "Content-Type",
                                      "Identity",
                                      "Identity-Info",
                                      "Reject-Contact",
                                      "Request-Disposition"};
#undef FIELD

struct Compact {
    char letter;
    std::string_view name;
};

constexpr Compact compact[] = {
    {'a', "Accept-Contact"},
    {'u', "Allow-Events"},
    {'i', "Call-Id"},
    {'m', "Contact"},
    {'e', "Content-Encoding"},
    {'l', "Content-Length"},
    {'c', "Content-Type"},
    {'o', "Event"},
    {'f', "From"},
    {'y', "Identity"},
    {'n', "Identity-Info"},
    {'r', "Refer-To"},
    {'b', "Referred-By"},
    {'j', "Reject-Contact"},
    {'d', "Request-Disposition"},
    {'x', "Session-Expires"},
    {'s', "Subject"},
    {'k', "Supported"},
    {'t', "To"},
    {'v', "Via"},
};

constexpr char lowerOf(char ch) { return ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch + 32) : ch; }
constexpr char upperOf(char ch) { return ch >= 'a' && ch <= 'z' ? static_cast<char>(ch - 32) : ch; }

// The bytes of a name in whole words, zeros behind it: names are compared eight letters at a time.
constexpr size_t longest = 24;
using Letters = std::array<char, longest>;
using Words = std::array<uint64_t, longest / sizeof(uint64_t)>;

// A known name in its normal form: upper case for the first letter and those after a hyphen. A letter that stands in a
// text matches either case, so that the bit for the case counts only where there is no letter.
struct Known {
    size_t length;
    Words normal;
    Words inName; // bits that belong to the name
    Words counts; // bits that matter in any case
};

consteval Known formsOf(std::string_view name) {
    Letters text{}, inName{}, counts{};
    for (size_t i = 0; i < name.size(); i++) {
        char const lower = lowerOf(name[i]);
        bool const isLetter = lower >= 'a' && lower <= 'z';
        bool const atStart = i == 0 || name[i - 1] == '-';
        text[i] = atStart ? upperOf(lower) : lower;
        inName[i] = '\xFF';
        counts[i] = isLetter ? '\xDF' : '\xFF';
    }
    return {name.size(), std::bit_cast<Words>(text), std::bit_cast<Words>(inName), std::bit_cast<Words>(counts)};
}

consteval auto allForms() {
    std::array<Known, std::size(known)> forms{};
    for (size_t i = 0; i < std::size(known); i++) forms[i] = formsOf(known[i]);
    return forms;
}

constexpr std::array<Known, std::size(known)> knownForms = allForms();

// The first eight letters in any case and the length tell all known names apart; a multiplier spreads them over the slots
// without collision. It is looked for when this is compiled.
constexpr int slotBits = 9;

constexpr size_t slotOf(uint64_t firstWord, size_t length, uint64_t multiplier) {
    return ((firstWord | 0x2020202020202020) ^ length) * multiplier >> (64 - slotBits);
}

// The first word of a name alone, without what stands behind the name.
constexpr uint64_t firstWord(std::string_view name) {
    std::array<char, sizeof(uint64_t)> letters{};
    for (size_t i = 0; i < letters.size() && i < name.size(); i++) letters[i] = name[i];
    return std::bit_cast<uint64_t>(letters);
}

// The bits of a first word that belong to a name, by its length.
constexpr auto firstWordMasks = [] {
    std::array<uint64_t, longest + 1> masks{};
    for (size_t length = 0; length <= longest; length++)
        masks[length] = firstWord(std::string_view("\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF").substr(0, length));
    return masks;
}();

struct Slots {
    uint64_t multiplier;
    std::array<int8_t, 1 << slotBits> at;
};

consteval Slots findSlots() {
    for (uint64_t multiplier = 0x9E3779B97F4A7C15;; multiplier += 2) {
        Slots slots{multiplier, {}};
        slots.at.fill(-1);
        bool collision = false;
        for (size_t i = 0; i < std::size(known) && !collision; i++) {
            int8_t &slot = slots.at[slotOf(firstWord(known[i]), known[i].size(), multiplier)];
            collision = slot != -1;
            slot = static_cast<int8_t>(i);
        }
        if (!collision) return slots;
    }
}

constexpr Slots slots = findSlots();

// The one known name that a text of more than one letter can be, or -1.
constexpr int candidate(uint64_t firstWord, size_t length) {
    int const i = slots.at[slotOf(firstWord, length, slots.multiplier)];
    return i >= 0 && knownForms[static_cast<size_t>(i)].length == length ? i : -1;
}

consteval auto findCompact() {
    std::array<int8_t, 26> letters{};
    letters.fill(-1);
    for (auto [letter, name] : compact)
        letters[static_cast<size_t>(letter - 'a')] = static_cast<int8_t>(candidate(firstWord(name), name.size()));
    return letters;
}

constexpr std::array<int8_t, 26> compactNames = findCompact();

int findCompactName(char ch) {
    char const letter = lowerOf(ch);
    return letter >= 'a' && letter <= 'z' ? compactNames[static_cast<size_t>(letter - 'a')] : -1;
}

template <class Word = uint64_t> Word wordAt(char const *text) {
    Word word = 0;
    std::memcpy(&word, text, sizeof word);
    return word;
}

// The first and the last bytes of a text, which may overlap, as one word.
template <class Half> uint64_t joined(std::string_view bytes) {
    size_t const second = bytes.size() - sizeof(Half);
    return wordAt<Half>(bytes.data()) | uint64_t{wordAt<Half>(bytes.data() + second)} << 8 * second;
}

// Up to eight bytes as a word, zeros behind them. A word that was just written byte by byte would be waited for.
uint64_t wordOf(std::string_view bytes) {
    if (bytes.size() >= 8) return wordAt(bytes.data());
    if constexpr (std::endian::native == std::endian::little) {
        if (bytes.size() >= 4) return joined<uint32_t>(bytes);
        if (bytes.size() >= 2) return joined<uint16_t>(bytes);
    }
    uint64_t word = 0;
    if (!bytes.empty()) std::memcpy(&word, bytes.data(), bytes.size());
    return word;
}

struct Match {
    int known; // -1 for none
    bool normal;
};

// What the bits that a mask takes from each word of a text differ in. All words behind a known name are zeros.
template <size_t count>
uint64_t difference(std::array<uint64_t, count> const &text, Words const &wanted, Words const &mask) {
    uint64_t bits = 0;
    for (size_t i = 0; i < count; i++) bits |= (text[i] ^ wanted[i]) & mask[i];
    return bits;
}

// A name of more than one letter, and no longer than `text`, that `text` begins with.
template <size_t count>
[[gnu::always_inline]] inline Match match(std::array<uint64_t, count> const &text, size_t length) {
    int const i = candidate(text[0] & firstWordMasks[length], length);
    if (i < 0) return {-1, false};
    Known const &forms = knownForms[static_cast<size_t>(i)];
    bool const isNormal = difference(text, forms.normal, forms.inName) == 0;
    bool const isKnown = isNormal || difference(text, forms.normal, forms.counts) == 0;
    return {isKnown ? i : -1, isNormal};
}

// A name of any length, which is copied: what stands behind it may not be there to be read.
[[gnu::noinline]] Match matchCopy(std::string_view name) {
    if (name.size() <= 1) return {name.empty() ? -1 : findCompactName(name[0]), false};
    if (name.size() > longest) return {-1, false};
    Words copy{};
    for (size_t i = 0; i < name.size(); i += 8) copy[i / 8] = wordOf(name.substr(i, 8));
    return match(copy, name.size());
}

// `readable` bytes can be read from the name's start on. Most names have no more than two words.
inline Match match(std::string_view name, size_t readable) {
    constexpr size_t usual = 16;
    char const *const text = name.data();
    bool const isUsual = name.size() - 2 <= usual - 2 && readable >= usual;
    return isUsual ? match(std::array{wordAt(text), wordAt(text + 8)}, name.size()) : matchCopy(name);
}

int findKnown(std::string_view name) { return match(name, name.size()).known; }

// A name that has other than ASCII characters in it, or too many, is none of the known ones.
int findKnown(co::Chars name) {
    uint8_t bytes[longest] = {};
    if (name.size() > longest || co::simd::narrow(bytes, name) < name.size()) return -1;
    return match({reinterpret_cast<char const *>(bytes), name.size()}, longest).known;
}

constexpr coChar code(char ch) { return static_cast<unsigned char>(ch); }
constexpr coChar code(coChar ch) { return ch; }

// Lower case, but upper case for the first letter and those after a hyphen: calls `take` with each character as it is and
// as it is in the normal form.
template <class Char, class Take> void forEachNormal(std::basic_string_view<Char> name, Take take) {
    bool atStart = true;
    for (Char ch : name) {
        coChar const ascii = code(ch);
        take(ascii, atStart ? co::asciiUpper(ascii) : co::asciiLower(ascii));
        atStart = ascii == U'-';
    }
}

template <class Char> coString *makeNormal(std::basic_string_view<Char> name) {
    coString *normal = co::makeString(static_cast<int64_t>(name.size()));
    forEachNormal(name, [normal](coChar, coChar ch) { normal->chars()[normal->length++] = ch; });
    return normal;
}

// A token is ASCII (RFC 3261, 25.1), so that its letters are too.
template <class Char> coString *tryMakeNormal(std::basic_string_view<Char> name) {
    for (Char ch : name)
        if (!quill::isToken(code(ch))) return nullptr;
    return name.empty() ? nullptr : makeNormal(name);
}

template <class Char> coString *tryNormalize(std::basic_string_view<Char> name) {
    int const i = findKnown(name);
    return i >= 0 ? co::retained(quill::sharedFieldNames[i]) : tryMakeNormal(name);
}

} // namespace

namespace quill {

int knownFieldName(std::string_view name) { return findKnown(name); }
int knownFieldName(co::Chars name) { return findKnown(name); }
int matchFieldName(std::string_view name, char const *end, bool *isNormal) {
    Match const field = match(name, static_cast<size_t>(end - name.data()));
    *isNormal = field.normal;
    return field.known;
}

static_assert(std::size(known) == knownFieldNameCount);
static_assert(known[contentLengthFieldName] == "Content-Length");
static_assert(fieldNameRoom == longest);
constinit coString *sharedFieldNames[knownFieldNameCount] = {};

std::string_view fieldNameText(int i) {
    Known const &forms = knownForms[static_cast<size_t>(i)];
    return {reinterpret_cast<char const *>(forms.normal.data()), forms.length};
}

// A copy of constant length takes a few instructions.
uint8_t *putFieldName(uint8_t *to, int i) {
    Known const &forms = knownForms[static_cast<size_t>(i)];
    std::memcpy(to, forms.normal.data(), fieldNameRoom);
    return to + forms.length;
}

coString *tryNormalizeFieldName(std::string_view name) { return tryNormalize(name); }
coString *tryNormalizeFieldName(co::Chars name) { return tryNormalize(name); }

NameForm formOfFieldName(std::string_view name) {
    NameForm form{!name.empty(), true};
    forEachNormal(name, [&form](coChar ch, coChar normal) {
        form.isName &= isToken(ch);
        form.isNormal &= ch == normal;
    });
    return form;
}

void normalizeFieldName(char *name, size_t length) {
    forEachNormal(std::string_view(name, length), [&](coChar, coChar normal) { *name++ = static_cast<char>(normal); });
}

void startFieldNames() {
    for (size_t i = 0; i < std::size(known); i++) startShared(&sharedFieldNames[i], makeNormal(known[i]));
}

void stopFieldNames() {
    for (coString *&name : sharedFieldNames) stopShared(&name);
}

} // namespace quill
