// Names of header fields. Contract: quill_field_name.hpp.

#include <array>
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

constexpr coChar code(char ch) { return static_cast<unsigned char>(ch); }
constexpr coChar code(coChar ch) { return ch; }

// A known name in the forms in which it is compared and written. A letter that stands in a text matches either case: its
// bit for the case is set before it is compared.
struct Known {
    size_t length;
    std::array<char, quill::fieldNameRoom> lower;
    std::array<char, quill::fieldNameRoom> caseBit;
    std::array<char, quill::fieldNameRoom> normal;
};

consteval Known formsOf(std::string_view name) {
    Known forms{name.size(), {}, {}, {}};
    for (size_t i = 0; i < name.size(); i++) {
        coChar const lower = co::asciiLower(code(name[i]));
        bool const isLetter = lower >= U'a' && lower <= U'z';
        bool const atStart = i == 0 || name[i - 1] == '-';
        forms.lower[i] = static_cast<char>(lower);
        forms.caseBit[i] = isLetter ? 0x20 : 0;
        forms.normal[i] = static_cast<char>(atStart ? co::asciiUpper(lower) : lower);
    }
    return forms;
}

consteval auto allForms() {
    std::array<Known, std::size(known)> forms{};
    for (size_t i = 0; i < std::size(known); i++) forms[i] = formsOf(known[i]);
    return forms;
}

constexpr std::array<Known, std::size(known)> knownForms = allForms();

template <class Char> constexpr bool matches(std::basic_string_view<Char> name, Known const &forms) {
    if (name.size() != forms.length) return false;
    for (size_t i = 0; i < name.size(); i++)
        if ((code(name[i]) | code(forms.caseBit[i])) != code(forms.lower[i])) return false;
    return true;
}

// Length, first, middle and last letter tell all known names apart; a multiplier spreads them over the slots without
// collision. It is looked for when this is compiled.
constexpr int slotBits = 9;

template <class Char> constexpr size_t slotOf(std::basic_string_view<Char> name, uint32_t multiplier) {
    auto const letter = [&](size_t i) { return code(name[i]) | 0x20; };
    uint32_t const key = static_cast<uint32_t>(name.size()) ^ letter(0) << 8 ^ letter(name.size() / 2) << 16 ^
                         letter(name.size() - 1) << 24;
    return key * multiplier >> (32 - slotBits);
}

struct Slots {
    uint32_t multiplier;
    std::array<int8_t, 1 << slotBits> at;
};

consteval Slots findSlots() {
    for (uint32_t multiplier = 0x9E3779B1;; multiplier += 2) {
        Slots slots{multiplier, {}};
        slots.at.fill(-1);
        bool collision = false;
        for (size_t i = 0; i < std::size(known) && !collision; i++) {
            int8_t &slot = slots.at[slotOf(known[i], multiplier)];
            collision = slot != -1;
            slot = static_cast<int8_t>(i);
        }
        if (!collision) return slots;
    }
}

constexpr Slots slots = findSlots();

constexpr int find(std::string_view name) {
    int const i = name.empty() ? -1 : slots.at[slotOf(name, slots.multiplier)];
    return i >= 0 && matches(name, knownForms[static_cast<size_t>(i)]) ? i : -1;
}

consteval auto findCompact() {
    std::array<int8_t, 26> letters{};
    letters.fill(-1);
    for (auto [letter, name] : compact) letters[static_cast<size_t>(letter - 'a')] = static_cast<int8_t>(find(name));
    return letters;
}

constexpr std::array<int8_t, 26> compactNames = findCompact();

template <class Char> int findKnown(std::basic_string_view<Char> name) {
    if (name.empty()) return -1;
    if (name.size() == 1) {
        coChar const letter = co::asciiLower(code(name[0]));
        return letter >= U'a' && letter <= U'z' ? compactNames[letter - U'a'] : -1;
    }
    int const i = slots.at[slotOf(name, slots.multiplier)];
    return i >= 0 && matches(name, knownForms[static_cast<size_t>(i)]) ? i : -1;
}

coString *knownNames[std::size(known)];

// Lower case, but upper case for the first letter and those after a hyphen.
template <class Char> coString *makeNormal(std::basic_string_view<Char> name) {
    coString *normal = co::makeString(static_cast<int64_t>(name.size()));
    bool atStart = true;
    for (Char ch : name) {
        coChar const ascii = code(ch);
        normal->chars()[normal->length++] = atStart ? co::asciiUpper(ascii) : co::asciiLower(ascii);
        atStart = ascii == U'-';
    }
    return normal;
}

// A token is ASCII (RFC 3261, 25.1), so that its letters are too.
template <class Char> coString *tryNormalize(std::basic_string_view<Char> name) {
    if (int const i = findKnown(name); i >= 0) return co::retained(knownNames[i]);
    for (Char ch : name)
        if (!quill::isToken(code(ch))) return nullptr;
    return name.empty() ? nullptr : makeNormal(name);
}

} // namespace

namespace quill {

int knownFieldName(std::string_view name) { return findKnown(name); }
int knownFieldName(co::Chars name) { return findKnown(name); }

static_assert(std::size(known) == knownFieldNameCount);
static_assert(known[contentLengthField] == "Content-Length");
coString *fieldNameAt(int i) { return knownNames[i]; }

std::string_view fieldNameText(int i) {
    Known const &forms = knownForms[static_cast<size_t>(i)];
    return {forms.normal.data(), forms.length};
}

// A copy of constant length takes a few instructions.
uint8_t *putFieldName(uint8_t *to, int i) {
    Known const &forms = knownForms[static_cast<size_t>(i)];
    std::memcpy(to, forms.normal.data(), fieldNameRoom);
    return to + forms.length;
}

coString *tryNormalizeFieldName(std::string_view name) { return tryNormalize(name); }
coString *tryNormalizeFieldName(co::Chars name) { return tryNormalize(name); }

void startFieldNames() {
    for (size_t i = 0; i < std::size(known); i++) startShared(&knownNames[i], makeNormal(known[i]));
}

void stopFieldNames() {
    for (coString *&name : knownNames) stopShared(&name);
}

} // namespace quill
