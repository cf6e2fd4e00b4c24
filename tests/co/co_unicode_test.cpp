#include <co/co_unicode.hpp>
#include <gtest/gtest.h>
#include <string>
#include <support/text.hpp>
#include <unicode/uchar.h>
#include <unicode/ustring.h>

namespace {

static_assert(U_UNICODE_VERSION[0] == '1' && U_UNICODE_VERSION[1] == '5', "the oracle has the version of the tables");

constexpr coChar last = 0x10FFFF;

UChar32 asIcu(coChar ch) { return static_cast<UChar32>(ch); }

std::u32string fullUpper(coChar ch) {
    int64_t count = -1;
    coChar const *chars = co___UnicodeUpperCaseDbLookup(ch, &count);
    EXPECT_EQ(chars == nullptr, count == 0) << std::hex << uint32_t{ch};
    return {chars ? chars : &ch, chars ? static_cast<size_t>(count) : 1};
}

std::u32string icuFullUpper(coChar ch) {
    UErrorCode error = U_ZERO_ERROR;
    UChar text[2];
    UChar upper[16];
    UChar32 chars[16];
    int32_t length = 0;
    UChar32 const source = asIcu(ch);
    u_strFromUTF32(text, 2, &length, &source, 1, &error);
    length = u_strToUpper(upper, 16, text, length, "", &error);
    u_strToUTF32(chars, 16, &length, upper, length, &error);
    EXPECT_TRUE(U_SUCCESS(error)) << std::hex << uint32_t{ch};
    return {chars, chars + length};
}

TEST(SimpleCase, EveryCodePoint) {
    for (coChar ch = 0; ch <= last; ch++) {
        ASSERT_EQ(co::simpleUpper(ch), static_cast<coChar>(u_toupper(asIcu(ch)))) << std::hex << uint32_t{ch};
        ASSERT_EQ(co::simpleLower(ch), static_cast<coChar>(u_tolower(asIcu(ch)))) << std::hex << uint32_t{ch};
    }
}

TEST(SimpleCase, BeyondUnicode) {
    for (coChar ch : {coChar{0x110000}, coChar{0x80000041}, coChar{0xFFFFFFFF}}) {
        EXPECT_EQ(co::simpleUpper(ch), ch);
        EXPECT_EQ(co::simpleLower(ch), ch);
        EXPECT_EQ(fullUpper(ch), std::u32string(1, ch));
    }
}

TEST(FullUpperCase, EveryCodePoint) {
    for (coChar ch = 0; ch <= last; ch++) {
        if (ch >= 0xD800 && ch < 0xE000) { // no text of the oracle's can hold one
            ASSERT_EQ(fullUpper(ch), std::u32string(1, ch)) << std::hex << uint32_t{ch};
            continue;
        }
        ASSERT_EQ(fullUpper(ch), icuFullUpper(ch)) << std::hex << uint32_t{ch};
    }
}

TEST(FullUpperCase, Table) {
    struct {
        coChar ch;
        std::u32string_view upper;
        int64_t count;
        char const *why;
    } const rows[] = {
        {U'a', U"A", 1, "ASCII"},
        {U'A', U"A", 0, "its own upper case"},
        {U'1', U"1", 0, "no letter"},
        {U'\u00FC', U"\u00DC", 1, "Latin-1"},
        {U'\u00DF', U"SS", 2, "sharp s"},
        {U'\u0131', U"I", 1, "dotless i"},
        {U'\uFB03', U"FFI", 3, "a ligature"},
        {U'\u0390', U"\u0399\u0308\u0301", 3, "three, two of them marks"},
        {U'\U00010428', U"\U00010400", 1, "beyond the BMP"},
    };
    for (auto const &row : rows) {
        int64_t count = -1;
        co___UnicodeUpperCaseDbLookup(row.ch, &count);
        EXPECT_EQ(fullUpper(row.ch), row.upper) << row.why;
        EXPECT_EQ(count, row.count) << row.why;
    }
}

TEST(FullUpperCaseDeathTest, CountMustBeGiven) {
    EXPECT_ABORT(co___UnicodeUpperCaseDbLookup(U'a', nullptr), "source/co/co_unicode", "count");
}

} // namespace
