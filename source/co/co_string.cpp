// Strings. Contract: co_string.h.

#define CO_UNIT "source/co/co_string"

#include <algorithm>
#include <co/co_assert.hpp>
#include <co/co_family.hpp>
#include <co/co_format.hpp>
#include <co/co_memory.h>
#include <co/co_simd.hpp>
#include <co/co_string.hpp>
#include <co/co_unicode.hpp>
#include <co/co_vector.h>
#include <cstdlib>
#include <cstring>
#include <cwchar>

static int compareStrings(coObj const *objA, coObj const *objB) {
    int const order = static_cast<coString const *>(objA)->view().compare(static_cast<coString const *>(objB)->view());
    return (order > 0) - (order < 0);
}

static coString *stringOfString(coObj const *obj) { return co::retained(static_cast<coString const *>(obj)); }

static int64_t sizeOfString(coObj const *obj) { return static_cast<coString const *>(obj)->size(); }

constinit coSort const co___sort_CO_STRING{&co___sort_CO_SORT, &co___module,   "CO_STRING", nullptr,
                                           compareStrings,     stringOfString, 0,           sizeOfString};

CO_DEFINE_FAMILY(coString, co___sort_CO_STRING)

// Creation.

coString *co::makeString(int64_t capacity) {
    auto *string = static_cast<coString *>(allocateObject(coString::sizeFor(capacity), &co___sort_CO_STRING));
    string->length = 0;
    string->capacity = capacity;
    return string;
}

static void fill(coString *string, co::Chars text) {
    co::simd::copy(string->chars() + string->length, text);
    string->length += co::length(text);
}

coString *co::makeString(Chars text) {
    coString *string = makeString(length(text));
    fill(string, text);
    return string;
}

coString *co::makeStringFromUtf8(std::string_view valid) {
    int64_t const count = countUtf8(valid).chars;
    coString *string = makeString(count);
    string->length = count;
    bool const ascii = count == static_cast<int64_t>(valid.size());
    ascii ? widenAscii(string->chars(), valid) : widenUtf8(string->chars(), valid);
    return string;
}

static std::string_view cstr(char const *text, int64_t length) {
    CO_ASSERT(text || length == 0, "text || length == 0");
    CO_ASSERT(length >= -1, "length >= -1");
    return length < 0 ? std::string_view(text) : std::string_view(text, static_cast<size_t>(length));
}

struct coString *coStringCreate(void) {
    return co::makeString(0);
}

struct coString *coStringCreateFromCstr(char const *text, int64_t length) {
    std::string_view const bytes = cstr(text, length);
    bool const ascii = co::simd::asciiRun(bytes) == bytes.size();
    int64_t const count = ascii ? std::ssize(bytes) : co::widenAnyBytes(nullptr, bytes);
    coString *string = co::makeString(count);
    string->length = count;
    if (ascii)
        co::widenAscii(string->chars(), bytes);
    else
        co::widenAnyBytes(string->chars(), bytes);
    return string;
}

struct coString *coStringCreateFromWcstr(wchar_t const *text, int64_t length) {
    static_assert(sizeof(wchar_t) == sizeof(coChar), "wide characters are code points");
    CO_ASSERT(text || length == 0, "text || length == 0");
    CO_ASSERT(length >= -1, "length >= -1");
    size_t const count = length < 0 ? std::wcslen(text) : static_cast<size_t>(length);
    return co::makeString({reinterpret_cast<coChar const *>(text), count});
}

struct coString *coStringCreateFromCharsCopy(coChar const *chars, int64_t count) {
    CO_ASSERT(count >= 0, "count >= 0");
    CO_ASSERT(chars || count == 0, "chars || count == 0");
    return co::makeString(co::chars(chars, count));
}

struct coString *coStringCreateFromInner(struct coString const *string, int64_t start, int64_t count) {
    CO_ASSERT_GIVEN(string);
    CO_ASSERT(start >= 0 && start <= string->length, "start >= 0 && start <= coStringLength( string )");
    CO_ASSERT(count >= 0 && count <= string->length - start, "count >= 0 && count <= coStringLength( string ) - start");
    return co::makeString(co::chars(string->chars() + start, count));
}

// Reading.

int64_t coStringLength(struct coString const *string) {
    CO_ASSERT_GIVEN(string);
    return string->length;
}

coChar const *coStringBacking(struct coString const *string) {
    CO_ASSERT_GIVEN(string);
    return string->chars();
}

coChar coStringCharAt(struct coString const *string, int64_t index) {
    CO_ASSERT_GIVEN(string);
    CO_ASSERT(index >= 0 && index < string->length, "index >= 0 && index < coStringLength( string )");
    return string->chars()[index];
}

bool coStringEqualsChars(struct coString const *string, coChar const *chars, int64_t count) {
    CO_ASSERT_GIVEN(string);
    CO_ASSERT(count >= 0, "count >= 0");
    CO_ASSERT(chars || count == 0, "chars || count == 0");
    return co::equal(string->view(), co::chars(chars, count));
}

bool coStringBeginsWithChar(struct coString const *string, coChar ch) {
    CO_ASSERT_GIVEN(string);
    return string->length > 0 && string->chars()[0] == ch;
}

// The place of `wanted` in `text` at or after `start`, or -1: Knuth, Morris and Pratt, so that no text and no pattern
// make it slow. One code point, the usual case, needs no table.
static int64_t find(co::Chars text, int64_t start, co::Chars wanted) {
    auto const from = static_cast<size_t>(start);
    if (wanted.size() <= 2) { // nothing to fall back to but the beginning: at worst two passes
        size_t const at = text.find(wanted, from);
        return at == co::Chars::npos ? -1 : static_cast<int64_t>(at);
    }
    auto *border = static_cast<size_t *>(coMemAllocN(co::length(wanted), sizeof(size_t)));
    border[0] = 0;
    for (size_t i = 1, k = 0; i < wanted.size(); i++) {
        while (k && wanted[i] != wanted[k]) k = border[k - 1];
        k += wanted[i] == wanted[k];
        border[i] = k;
    }
    int64_t place = -1;
    for (size_t i = from, k = 0; i < text.size(); i++) {
        while (k && text[i] != wanted[k]) k = border[k - 1];
        k += text[i] == wanted[k];
        if (k == wanted.size()) {
            place = static_cast<int64_t>(i + 1 - k);
            break;
        }
    }
    coMemFree(border);
    return place;
}

int64_t coStringFindChars(struct coString const *string, int64_t start, coChar const *chars, int64_t count) {
    CO_ASSERT_GIVEN(string);
    CO_ASSERT(start >= 0 && start <= string->length, "start >= 0 && start <= coStringLength( string )");
    CO_ASSERT(count >= 0, "count >= 0");
    CO_ASSERT(chars || count == 0, "chars || count == 0");
    return find(string->view(), start, co::chars(chars, count));
}

static coVector *split(co::Chars text, co::Chars delimiter, int64_t maxPieces) {
    coVector *pieces = coVectorCreate();
    size_t start = 0;
    while (maxPieces < 0 || coVectorLength(pieces) + 1 < maxPieces) {
        int64_t const at = find(text, static_cast<int64_t>(start), delimiter);
        if (at < 0) break;
        co::Ref<coString> const piece(co::makeString(text.substr(start, static_cast<size_t>(at) - start)));
        coVectorAppendString(&pieces, piece.get());
        start = static_cast<size_t>(at) + delimiter.size();
    }
    co::Ref<coString> const rest(co::makeString(text.substr(start)));
    coVectorAppendString(&pieces, rest.get());
    return pieces;
}

struct coVector *coStringSplitChar(struct coString const *string, coChar ch, int64_t maxPieces) {
    CO_ASSERT_GIVEN(string);
    CO_ASSERT(maxPieces == -1 || maxPieces > 0, "maxPieces == -1 || maxPieces > 0");
    return split(string->view(), {&ch, 1}, maxPieces);
}

struct coVector *coStringSplitChars(struct coString const *string, coChar const *chars, int64_t count,
                                    int64_t maxPieces) {
    CO_ASSERT_GIVEN(string);
    CO_ASSERT(chars && count > 0, "chars && count > 0");
    CO_ASSERT(maxPieces == -1 || maxPieces > 0, "maxPieces == -1 || maxPieces > 0");
    return split(string->view(), co::chars(chars, count), maxPieces);
}

bool coStringScanInt(struct coString const *string, int64_t start, int64_t length, int64_t base, int64_t *value,
                     int64_t *consumed) {
    CO_ASSERT_GIVEN(string);
    CO_ASSERT(start >= 0 && start <= string->length, "start >= 0 && start <= coStringLength( string )");
    CO_ASSERT(length >= -1 && length <= string->length - start,
              "length >= -1 && length <= coStringLength( string ) - start");
    CO_ASSERT_GIVEN(value);
    CO_ASSERT_GIVEN(consumed);
    int64_t const count = length < 0 ? string->length - start : length;
    return coFormatTryDecodeIntChars(string->chars() + start, count, base, value, consumed);
}

// Changing.

// Makes room for `more` code points: in place where the string is the caller's own and has it, else in a new string
// that takes over the text. The old string is handed back, to be released once the source of an append, which may lie
// within it, has been read.
static coString *reserve(coString **string, int64_t more) {
    coString *old = *string;
    if (co::isUnique(old) && old->capacity - old->length >= more) return nullptr;
    int64_t const needed = old->length + more;
    coString *grown = co::makeString(more == 0 ? needed : std::max(needed, old->length + old->length / 2 + 8));
    fill(grown, old->view());
    *string = grown;
    return old;
}

coChar *co::appendSpace(coString **string, int64_t more) {
    if (coString *old = reserve(string, more)) release(old);
    return (*string)->chars() + (*string)->length;
}

void co::append(coString **string, Chars text) {
    coString *old = reserve(string, length(text));
    fill(*string, text);
    if (old) release(old);
}

void co::append(coString **string, std::initializer_list<Chars> texts) {
    int64_t more = 0;
    for (Chars const text : texts) more += length(text);
    coString *old = reserve(string, more);
    coChar *end = (*string)->chars() + (*string)->length;
    for (Chars const text : texts) {
        simd::copy(end, text);
        end += text.size();
    }
    (*string)->length += more;
    if (old) release(old);
}

void coStringAppend(struct coString **string, struct coString const *other) {
    CO_ASSERT_REFERENCE(string);
    CO_ASSERT_GIVEN(other);
    co::append(string, other->view());
}

void coStringAppendChar(struct coString **string, coChar ch) {
    CO_ASSERT_REFERENCE(string);
    CO_ASSERT(CO_CHAR_OK(ch), "CO_CHAR_OK( ch )");
    co::append(string, {&ch, 1});
}

void coStringAppendChars(struct coString **string, coChar const *chars, int64_t count) {
    CO_ASSERT_REFERENCE(string);
    CO_ASSERT(count >= 0, "count >= 0");
    CO_ASSERT(chars || count == 0, "chars || count == 0");
    co::append(string, co::chars(chars, count));
}

void coStringAppendCstr(struct coString **string, char const *text, int64_t length) {
    CO_ASSERT_REFERENCE(string);
    std::string_view const bytes = cstr(text, length);
    int64_t const count = co::widenAnyBytes(nullptr, bytes);
    co::widenAnyBytes(co::appendSpace(string, count), bytes);
    (*string)->length += count;
}

void coStringDelimitedAppendCharDelimiter(struct coString **string, struct coString const *other, coChar ch) {
    CO_ASSERT_REFERENCE(string);
    CO_ASSERT_GIVEN(other);
    CO_ASSERT(CO_CHAR_OK(ch), "CO_CHAR_OK( ch )");
    co::Ref<coString> const kept(co::retained(other)); // it may be the string itself
    if ((*string)->length > 0) co::append(string, {&ch, 1});
    co::append(string, kept->view());
}

void coStringSetCharAt(struct coString **string, int64_t index, coChar ch) {
    CO_ASSERT_REFERENCE(string);
    CO_ASSERT(index >= 0 && index < (*string)->length, "index >= 0 && index < coStringLength( *string )");
    CO_ASSERT(CO_CHAR_OK(ch), "CO_CHAR_OK( ch )");
    co::appendSpace(string, 0);
    (*string)->chars()[index] = ch;
}

// Copies a shared string only when something in it changes.
static void mapEach(coString **string, coChar (*map)(coChar)) {
    for (int64_t i = 0; i < (*string)->length; i++) {
        coChar const ch = (*string)->chars()[i];
        coChar const mapped = map(ch);
        if (mapped == ch) continue;
        co::appendSpace(string, 0);
        (*string)->chars()[i] = mapped;
    }
}

void coStringToLower(struct coString **string) {
    CO_ASSERT_REFERENCE(string);
    mapEach(string, co::simpleLower);
}

void coStringToUpper(struct coString **string) {
    CO_ASSERT_REFERENCE(string);
    mapEach(string, co::simpleUpper);
}

// Formatting: the directives are co_format's; here are the three kinds of format text.

static coString *format(coString *text, va_list args) {
    coString *result = coStringCreate();
    co::appendFormat(&result, text->view(), args);
    return result;
}

struct coString *coStringCreateFromFormatCstrArgList(char const *text, int64_t length, va_list args) {
    co::Ref<coString> const formatText(coStringCreateFromCstr(text, length));
    return format(formatText.get(), args);
}

struct coString *coStringCreateFromFormatWcstrArgList(wchar_t const *text, int64_t length, va_list args) {
    co::Ref<coString> const formatText(coStringCreateFromWcstr(text, length));
    return format(formatText.get(), args);
}

struct coString *coStringCreateFromFormatArgList(struct coString const *text, va_list args) {
    CO_ASSERT(text, "format");
    co::Ref<coString> const formatText(co::retained(text));
    return format(formatText.get(), args);
}

struct coString *coStringCreateFromFormatCstr(char const *text, int64_t length, ...) {
    va_list args;
    va_start(args, length);
    coString *result = coStringCreateFromFormatCstrArgList(text, length, args);
    va_end(args);
    return result;
}

void coStringAppendFormatCstr(struct coString **string, char const *text, int64_t length, ...) {
    CO_ASSERT_REFERENCE(string);
    va_list args;
    va_start(args, length);
    co::Ref<coString> const more(coStringCreateFromFormatCstrArgList(text, length, args));
    va_end(args);
    co::append(string, more->view()); // only now: the string itself may be among the arguments
}
