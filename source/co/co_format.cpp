// Integers as text and format directives. Contracts: co_format.h, co_string.h.

#define CO_UNIT "source/co/co_format"

#include <co/co_assert.hpp>
#include <co/co_format.hpp>

namespace {

constexpr int64_t largestWidth = 4096;

// A directive, as far as it has been read: %[~^0][width][!base][.*]conversion
struct Directive {
    bool takesOver = false;
    bool upper = false;
    bool zeros = false;
    int64_t width = 0;
    int64_t base = 10;
    bool starPrecision = false;
    coChar conversion = 0;

    // Whether the conversion goes with what stands before it.
    bool isKnown() const {
        bool const ofNumber = upper || zeros || width != 0 || base != 10;
        if (conversion == U'%') return !takesOver && !starPrecision && !ofNumber;
        if (conversion == U's') return !starPrecision && !ofNumber;
        if (conversion == U'i') return !takesOver && !starPrecision;
        if (conversion == U'A') return starPrecision && !takesOver && !ofNumber;
        return false;
    }
};

class Reader {
public:
    explicit Reader(co::Chars text) : rest(text) {}

    Directive directive() {
        Directive d;
        for (;; rest.remove_prefix(1)) {
            if (next() == U'~')
                d.takesOver = true;
            else if (next() == U'^')
                d.upper = true;
            else if (next() == U'0')
                d.zeros = true;
            else
                break;
        }
        d.width = number();
        if (take(U'!')) d.base = number();
        d.starPrecision = rest.starts_with(U".*");
        if (d.starPrecision) rest.remove_prefix(2);
        d.conversion = next();
        rest.remove_prefix(rest.empty() ? 0 : 1);
        return d;
    }

    co::Chars rest;

private:
    coChar next() const { return rest.empty() ? U'\0' : rest.front(); }

    bool take(coChar ch) {
        if (next() != ch) return false;
        rest.remove_prefix(1);
        return true;
    }

    int64_t number() {
        int64_t value = 0;
        while (next() >= U'0' && next() <= U'9' && value < largestWidth) {
            value = value * 10 + static_cast<int64_t>(next() - U'0');
            rest.remove_prefix(1);
        }
        return value;
    }
};

int64_t decimalWidth(int64_t value) {
    int64_t width = 1;
    for (; value >= 10; value /= 10) width++;
    return width;
}

// The usual base is a constant, by which the compiler divides with a multiplication.
uint64_t divided(uint64_t value, uint64_t base) { return base == 10 ? value / 10 : value / base; }

} // namespace

namespace co {

void appendInt(coString **string, int64_t value, int64_t base, int64_t width, bool zeros, Case digits) {
    CO_ASSERT(base >= 2 && base <= 36, "base >= 2 && base <= 36");
    CO_ASSERT(width >= 0 && width <= largestWidth, "width >= 0 && width <= 4096");
    coChar const ten = digits == Case::upper ? U'A' : U'a';
    coChar text[65];
    coChar *const end = text + 65;
    coChar *first = end;
    auto rest = value < 0 ? 0 - static_cast<uint64_t>(value) : static_cast<uint64_t>(value);
    auto const radix = static_cast<uint64_t>(base);
    do {
        uint64_t const quotient = divided(rest, radix);
        auto const digit = static_cast<coChar>(rest - quotient * radix);
        *--first = digit < 10 ? U'0' + digit : ten + digit - 10;
        rest = quotient;
    } while (rest);

    int64_t const pad = width - (end - first) - (value < 0);
    coChar const minus = U'-';
    if (value < 0 && zeros) append(string, {&minus, 1});
    coChar const filler = zeros ? U'0' : U' ';
    for (int64_t i = 0; i < pad; i++) append(string, {&filler, 1});
    if (value < 0 && !zeros) append(string, {&minus, 1});
    append(string, chars(first, end - first));
}

void appendFormat(coString **string, Chars format, va_list args) {
    Reader reader(format);
    while (!reader.rest.empty()) {
        size_t const literal = std::min(reader.rest.find(U'%'), reader.rest.size());
        append(string, reader.rest.substr(0, literal));
        reader.rest.remove_prefix(literal);
        if (reader.rest.empty()) break;
        reader.rest.remove_prefix(1);
        Directive const d = reader.directive();
        CO_ASSERT_SAYING("unknown format directive", d.isKnown(), "format");
        if (d.conversion == U'%') {
            append(string, U"%");
        } else if (d.conversion == U's') {
            auto *text = va_arg(args, coString *);
            CO_ASSERT(text, "text");
            append(string, text->view());
            if (d.takesOver) release(text);
        } else if (d.conversion == U'i') {
            appendInt(string, va_arg(args, int64_t), d.base, d.width, d.zeros, d.upper ? Case::upper : Case::lower);
        } else {
            auto const highest = va_arg(args, int64_t);
            appendInt(string, va_arg(args, int64_t), 10, decimalWidth(highest), true, Case::lower);
        }
    }
}

} // namespace co

struct coString *coFormatEncodeInt(int64_t value, int64_t base, int64_t width, int64_t flags) {
    coString *text = co::makeString(20);
    co::appendInt(&text, value, base, width, flags == 2, co::Case::lower);
    return text;
}

template <class Char> static int64_t digitOf(Char ch) {
    if (ch >= Char{'0'} && ch <= Char{'9'}) return static_cast<int64_t>(ch - Char{'0'});
    if (ch >= Char{'a'} && ch <= Char{'z'}) return static_cast<int64_t>(ch - Char{'a'}) + 10;
    if (ch >= Char{'A'} && ch <= Char{'Z'}) return static_cast<int64_t>(ch - Char{'A'}) + 10;
    return 36;
}

template <class Text> static bool tryDecode(Text text, int64_t base, int64_t *value, int64_t *end) {
    bool const negative = !text.empty() && text[0] == '-';
    size_t const firstDigit = negative;
    size_t i = firstDigit;
    int64_t total = 0; // counted downwards, where there is one more value
    for (; i < text.size() && digitOf(text[i]) < base; i++)
        if (__builtin_mul_overflow(total, base, &total) || __builtin_sub_overflow(total, digitOf(text[i]), &total))
            return false;
    if (i == firstDigit || (!negative && total == INT64_MIN)) return false;
    *value = negative ? total : -total;
    *end = static_cast<int64_t>(i);
    return true;
}

bool co::tryDecodeInt(Chars text, int64_t base, int64_t *value, int64_t *end) {
    return tryDecode(text, base, value, end);
}

bool co::tryDecodeInt(std::string_view text, int64_t base, int64_t *value, int64_t *end) {
    return tryDecode(text, base, value, end);
}

bool coFormatTryDecodeIntChars(coChar const *chars, int64_t count, int64_t base, int64_t *value, int64_t *end) {
    CO_ASSERT_TEXT(chars, count);
    CO_ASSERT(base >= 2 && base <= 36, "base >= 2 && base <= 36");
    CO_ASSERT_GIVEN(value);
    CO_ASSERT_GIVEN(end);
    return tryDecode(co::chars(chars, count), base, value, end);
}
