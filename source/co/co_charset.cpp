// Character sets. Contract: co_charset.h.

#define CO_UNIT "source/co/co_charset"

#include <co/co_assert.hpp>
#include <co/co_buffer.hpp>
#include <co/co_charset.h>
#include <co/co_string.hpp>
#include <co/co_utf8.hpp>

static constexpr int64_t utf8Charset = 44;
static constexpr int64_t strictFlag = 1;

// How many leading code points together take no more than `capacity` bytes.
static size_t fitting(co::Chars text, int64_t capacity) {
    size_t count = 0;
    for (; count < text.size(); count++) {
        capacity -= co::utf8Length(text.substr(count, 1));
        if (capacity < 0) break;
    }
    return count;
}

int64_t coCharsConvertToUtf8(uint8_t *dest, int64_t capacity, coChar const *chars, int64_t count, int64_t flags) {
    CO_ASSERT(capacity >= 0, "capacity >= 0");
    CO_ASSERT(dest || capacity == 0, "dest || capacity == 0");
    CO_ASSERT_TEXT(chars, count);
    CO_ASSERT(flags == 0, "flags == 0");
    co::Chars const text = co::chars(chars, count);
    int64_t const needed = co::utf8Length(text);
    co::narrowToUtf8(dest, needed <= capacity ? text : text.substr(0, fitting(text, capacity)));
    return needed;
}

struct coString *coCharsetBufferToStringWithFlags(int64_t charset, struct coBuffer const *buffer, int64_t flags) {
    CO_ASSERT_GIVEN(buffer);
    CO_ASSERT(charset == utf8Charset, "charset == 44");
    CO_ASSERT(flags == 0 || flags == strictFlag, "flags == 0 || flags == 1");
    std::string_view const bytes = buffer->view();
    co::Utf8Count const count = co::countUtf8(bytes);
    if (count.valid) {
        coString *string = co::makeString(count.chars);
        string->length = co::widenUtf8(string->chars(), bytes) - string->chars();
        return string;
    }
    if (flags == strictFlag) return nullptr;
    return coStringCreateFromCstr(bytes.data(), buffer->length);
}
