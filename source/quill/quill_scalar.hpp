// Scalar values. What the regular ones share is said here once: a unit names its scanner or its range, and the macros
// only paste names and condition texts. The headers spell every prototype out, so that the two check each other.
#pragma once

#include <algorithm>
#include <co/co_assert.hpp>
#include <co/co_format.h>
#include <co/co_string.hpp>
#include <co/co_unicode.hpp>
#include <quill/quill_internal.h>
#include <quill/quill_skip.h>

// Validator of a text that one scanner takes as a whole.
#define QUILL_DEFINE_TEXT_VALUE(Value, value, skip)                                                                    \
    bool quill##Value##Ok(struct coString const *value) {                                                              \
        CO_ASSERT_GIVEN(value);                                                                                        \
        return quill::isWhole(skip, value->view());                                                                    \
    }

// Canonical form of a value whose letter case has no meaning.
#define QUILL_DEFINE_LOWER_NORMALIZE(Value, value)                                                                     \
    struct coString *quill##Value##Normalize(struct coString const *value) {                                           \
        CO_ASSERT_OK(quill##Value##Ok, value);                                                                         \
        return quill::mapEach<co::asciiLower>(value);                                                                  \
    }

// Validator of an integer from `least` to `most`.
#define QUILL_DEFINE_INTEGER_VALUE(Value, value, least, most)                                                          \
    bool quill##Value##Ok(int64_t value) { return quill::isWithin(value, least, most); }

// Decimal text of an integer, and back; -1 for a text that is anything else than a valid value.
#define QUILL_DEFINE_INTEGER_CODEC(Value, value)                                                                       \
    struct coString *quill___##Value##Encode(int64_t value) {                                                          \
        CO_ASSERT_OK(quill##Value##Ok, value);                                                                         \
        return coFormatEncodeInt(value, 10, 0, 0);                                                                     \
    }                                                                                                                  \
    int64_t quill___##Value##TryDecode(coChar const *chs, int64_t length) {                                            \
        CO_ASSERT_TEXT(chs, length);                                                                                   \
        return quill::decodeDecimal(chs, length, quill##Value##Ok);                                                    \
    }

// A parameter of a Diversion header field, in its stored form: a token, or the text of a quoted string. Lower-casing
// goes beyond ASCII here, since a quoted string may hold anything.
#define QUILL_DEFINE_DIVERSION_VALUE(Value, value, skip)                                                               \
    QUILL_DEFINE_TEXT_VALUE(Value, value, skip)                                                                        \
    struct coString *quill##Value##Normalize(struct coString const *value) {                                           \
        CO_ASSERT_GIVEN(value);                                                                                        \
        struct coString *normal = co::retained(value);                                                                 \
        coStringToLower(&normal);                                                                                      \
        return normal;                                                                                                 \
    }                                                                                                                  \
    struct coString *quill___##Value##Encode(struct coString *value) {                                                 \
        CO_ASSERT_GIVEN(value);                                                                                        \
        return quill::isWhole(quill___SkipToken, value->view()) ? co::retained(value)                                  \
                                                                : quill___QuotableStringEncode(value);                 \
    }                                                                                                                  \
    struct coString *quill___##Value##TryDecode(coChar const *chs, int64_t length) {                                   \
        CO_ASSERT_TEXT(chs, length);                                                                                   \
        return quill::isWhole(quill___SkipToken, co::chars(chs, length))                                               \
                   ? co::makeString(co::chars(chs, length))                                                            \
                   : quill___QuotableStringTryDecode(chs, length);                                                     \
    }

namespace quill {

using Scanner = int64_t (*)(coChar const *, int64_t);

// Whether the scanner takes all of a text; an empty one never is a value.
inline bool isWhole(Scanner skip, co::Chars text) {
    return !text.empty() && skip(text.data(), co::length(text)) == co::length(text);
}

constexpr bool isWithin(int64_t value, int64_t least, int64_t most) { return value >= least && value <= most; }

// 1*DIGIT at the start of a text: how many they are, 0 for none, and their number, -1 for one that the validator refuses
// or that is too large.
inline int64_t takeDecimal(co::Chars text, bool (*ok)(int64_t), int64_t *value) {
    constexpr int64_t digitsThatFit = 18;
    coChar const *const chs = text.data();
    uint64_t number = 0;
    int64_t digits = 0;
    for (; digits < co::length(text) && chs[digits] >= U'0' && chs[digits] <= U'9'; digits++)
        number = number * 10 + (chs[digits] - U'0');
    *value = static_cast<int64_t>(number);
    bool const fits = digits <= digitsThatFit || coFormatTryDecodeIntChars(chs, digits, 10, value, &digits);
    if (!fits || !ok(*value)) *value = -1;
    return digits;
}

// What the whole text is, which may begin with a minus.
inline int64_t decodeDecimal(coChar const *chs, int64_t length, bool (*ok)(int64_t)) {
    int64_t value;
    int64_t charsRead = takeDecimal(co::chars(chs, length), ok, &value);
    if (charsRead > 0 && charsRead == length) return value; // as nearly always
    bool const whole = coFormatTryDecodeIntChars(chs, length, 10, &value, &charsRead) && charsRead == length;
    return whole && ok(value) ? value : -1;
}

// A new string of a text with each code point mapped.
template <co::CharMap map> coString *makeMapped(co::Chars text) {
    coString *mapped = co::makeString(co::length(text));
    mapped->length = co::length(text);
    std::transform(text.begin(), text.end(), mapped->chars(), map);
    return mapped;
}

// The same of a string: that itself where nothing changes.
template <co::CharMap map> coString *mapEach(coString const *value) {
    co::Chars const text = value->view();
    bool const same = std::all_of(text.begin(), text.end(), [](coChar ch) { return map(ch) == ch; });
    return same ? co::retained(value) : makeMapped<map>(text);
}

} // namespace quill
