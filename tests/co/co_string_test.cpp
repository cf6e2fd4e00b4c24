#include <climits>
#include <co/co_string.hpp>
#include <co/co_vector.hpp>
#include <random>
#include <support/text.hpp>

using test::str;
using test::taken;
using test::utf8;

namespace {

constexpr char const *unit = "source/co/co_string";

int64_t length(std::u32string_view text) { return static_cast<int64_t>(text.size()); }

TEST(String, IsReadBackAsItWasGiven) {
    for (char const *text : {"", "a", "Möts åtta", "日本語", "\U0001F600"}) {
        EXPECT_EQ(utf8(str(text)), text);
        EXPECT_EQ(taken(coStringCreateFromCstr(text, -1)), text);
        EXPECT_EQ(coStringLength(str(text)), length(test::wide(text)));
    }
    EXPECT_EQ(taken(coStringCreate()), "");
    EXPECT_EQ(taken(coStringCreateFromWcstr(L"Möts \U0001F600", -1)), "Möts \U0001F600");
}

TEST(String, IsMadeOfAsMuchOfATextAsIsAsked) {
    EXPECT_EQ(taken(coStringCreateFromCstr("abc", 2)), "ab");
    EXPECT_EQ(taken(coStringCreateFromCstr("abc", 0)), "");
    EXPECT_EQ(taken(coStringCreateFromCstr(nullptr, 0)), "");
    EXPECT_EQ(taken(coStringCreateFromCstr("a\0b", 3)), std::string("a\0b", 3));
    EXPECT_EQ(taken(coStringCreateFromCstr("a\0b", -1)), "a");
    EXPECT_EQ(taken(coStringCreateFromWcstr(L"abc", 2)), "ab");
    EXPECT_EQ(taken(coStringCreateFromWcstr(L"a\0b", 3)), std::string("a\0b", 3));
    EXPECT_EQ(taken(coStringCreateFromWcstr(nullptr, 0)), "");
    EXPECT_EQ(taken(coStringCreateFromCharsCopy(U"abc", 2)), "ab");
    EXPECT_EQ(taken(coStringCreateFromCharsCopy(nullptr, 0)), "");
    EXPECT_EQ(taken(coStringCreateFromInner(str("abcd"), 1, 2)), "bc");
    EXPECT_EQ(taken(coStringCreateFromInner(str("abcd"), 4, 0)), "");
    EXPECT_EQ(taken(coStringCreateFromInner(str("abcd"), 0, 4)), "abcd");
}

TEST(String, ReplacesWhatIsNotUtf8) {
    EXPECT_EQ(taken(coStringCreateFromCstr("a\xFF\xC3z", -1)), "a\uFFFD\uFFFDz");
    EXPECT_EQ(taken(coStringCreateFromCstr("\xC3\xA9", 1)), "\uFFFD");
    co::Ref<coString> string(coStringCreateFromCstr("a", -1));
    coStringAppendCstr(string.address(), "\xE2\x82", -1);
    EXPECT_EQ(utf8(string.get()), "a\uFFFD");
}

TEST(String, KeepsAnyCodePoint) {
    coChar const chars[] = {0, 0xD800, 0x10FFFF, 0xFFFFFFFF};
    co::Ref<coString> const string(coStringCreateFromCharsCopy(chars, 4));
    for (int64_t i = 0; i < 4; i++) EXPECT_EQ(coStringCharAt(string.get(), i), chars[i]);
    EXPECT_TRUE(coStringEqualsChars(string.get(), chars, 4));
}

TEST(String, ComparesByCodePoint) {
    struct {
        char const *a, *b;
        int expected;
        char const *why;
    } const rows[] = {
        {"", "", 0, "both empty"},
        {"", "a", -1, "a beginning comes first"},
        {"ab", "abc", -1, "a beginning"},
        {"abc", "abd", -1, "the last differs"},
        {"b", "abc", 1, "the first counts"},
        {"B", "a", -1, "letter case counts"},
        {"\uFFFD", "\U00010000", -1, "not as UTF-16 does"},
    };
    for (auto const &row : rows) {
        SCOPED_TRACE(row.why);
        EXPECT_EQ(coStringCompare(str(row.a), str(row.b)), row.expected);
        EXPECT_EQ(coStringCompare(str(row.b), str(row.a)), -row.expected);
        EXPECT_EQ(coStringEquals(str(row.a), str(row.b)), row.expected == 0);
        auto const wideB = test::wide(row.b);
        EXPECT_EQ(coStringEqualsChars(str(row.a), wideB.data(), length(wideB)), row.expected == 0);
    }
    EXPECT_TRUE(coStringEqualsChars(str(""), nullptr, 0));
}

TEST(String, BeginsWithChar) {
    EXPECT_TRUE(coStringBeginsWithChar(str("ab"), U'a'));
    EXPECT_FALSE(coStringBeginsWithChar(str("ab"), U'b'));
    EXPECT_FALSE(coStringBeginsWithChar(str(""), U'\0'));
}

TEST(String, FindsChars) {
    struct {
        char const *text;
        int64_t start;
        char const *wanted;
        int64_t expected;
        char const *why;
    } const rows[] = {
        {"abcabc", 0, "abc", 0, "at the start"},
        {"abcabc", 1, "abc", 3, "after the start"},
        {"abcabc", 4, "abc", -1, "cut off"},
        {"abc", 0, "", 0, "nothing is everywhere"},
        {"abc", 3, "", 3, "at the end as well"},
        {"abc", 3, "a", -1, "at the end there is no more"},
        {"", 0, "a", -1, "empty text"},
        {"aab", 0, "ab", 1, "two"},
        {"aaab", 0, "aab", 1, "falls back"},
        {"abababac", 0, "ababac", 2, "falls back to a border"},
        {"aaaa", 0, "aaaaa", -1, "longer than the text"},
    };
    for (auto const &row : rows) {
        SCOPED_TRACE(row.why);
        auto const wanted = test::wide(row.wanted);
        EXPECT_EQ(coStringFindChars(str(row.text), row.start, wanted.data(), length(wanted)), row.expected);
    }
    EXPECT_EQ(coStringFindChars(str("a"), 0, nullptr, 0), 0);
}

std::u32string randomText(std::mt19937 &random, size_t size) {
    std::u32string text;
    for (size_t i = 0; i < size; i++) text += U"ab"[random() % 2];
    return text;
}

TEST(String, FindsWhatTheStandardLibraryFinds) {
    std::mt19937 random(1);
    for (int round = 0; round < 20000; round++) {
        std::u32string const text = randomText(random, random() % 24);
        std::u32string const wanted = randomText(random, random() % 7);
        size_t const start = random() % (text.size() + 1);
        size_t const at = text.find(wanted, start);
        int64_t const expected = at == std::u32string::npos ? -1 : static_cast<int64_t>(at);
        ASSERT_EQ(coStringFindChars(str(text), static_cast<int64_t>(start), wanted.data(), length(wanted)), expected)
            << utf8(str(text)) << " " << utf8(str(wanted)) << " " << start;
    }
}

std::string pieces(coVector *owned) {
    std::string text;
    co::Ref<coVector> const vector(owned);
    for (int64_t i = 0; i < coVectorLength(vector.get()); i++) text += "<" + utf8(co::stringAt(vector.get(), i)) + ">";
    return text;
}

TEST(String, Splits) {
    struct {
        char const *text, *delimiter;
        int64_t maxPieces;
        char const *expected, *why;
    } const rows[] = {
        {"a,b,c", ",", -1, "<a><b><c>", "all"},
        {"a,b,c", ",", 2, "<a><b,c>", "the last piece keeps the rest"},
        {"a,b,c", ",", 1, "<a,b,c>", "one piece is the whole"},
        {"a,b,c", ",", 3, "<a><b><c>", "just as many"},
        {"a,b,c", ",", 9, "<a><b><c>", "more than there are"},
        {"", ",", -1, "<>", "an empty string is one empty piece"},
        {",", ",", -1, "<><>", "nothing on both sides"},
        {"a,,b,", ",", -1, "<a><><b><>", "empty pieces count"},
        {"abc", ",", -1, "<abc>", "no delimiter"},
        {"a\r\nb\rc\r\n", "\r\n", -1, "<a><b\rc><>", "a sequence"},
        {"aaaaa", "aa", -1, "<><><a>", "from the left"},
        {"xabcyabc", "abc", -1, "<x><y><>", "a longer sequence"},
        {"xabcyabc", "abc", 2, "<x><yabc>", "a longer sequence, limited"},
    };
    for (auto const &row : rows) {
        SCOPED_TRACE(row.why);
        auto const delimiter = test::wide(row.delimiter);
        EXPECT_EQ(pieces(coStringSplitChars(str(row.text), delimiter.data(), length(delimiter), row.maxPieces)),
                  row.expected);
        if (delimiter.size() == 1) {
            EXPECT_EQ(pieces(coStringSplitChar(str(row.text), delimiter[0], row.maxPieces)), row.expected);
        }
    }
}

TEST(String, ScansIntegers) {
    struct {
        char const *text;
        int64_t start, length, base;
        bool ok;
        int64_t value, consumed;
        char const *why;
    } const rows[] = {
        {"123", 0, -1, 10, true, 123, 3, "whole"},
        {"123x", 0, -1, 10, true, 123, 3, "something behind"},
        {"a-12b", 1, -1, 10, true, -12, 3, "from a place"},
        {"12345", 1, 2, 10, true, 23, 2, "a part"},
        {"12345", 1, 0, 10, false, 0, 0, "an empty part"},
        {"", 0, -1, 10, false, 0, 0, "empty"},
        {"fF", 0, -1, 16, true, 255, 2, "either letter case"},
        {"102", 0, -1, 2, true, 2, 2, "a digit of a higher base ends it"},
        {" 1", 0, -1, 10, false, 0, 0, "no blanks"},
    };
    for (auto const &row : rows) {
        SCOPED_TRACE(row.why);
        int64_t value = -77;
        int64_t consumed = -77;
        EXPECT_EQ(coStringScanInt(str(row.text), row.start, row.length, row.base, &value, &consumed), row.ok);
        EXPECT_EQ(value, row.ok ? row.value : -77);
        EXPECT_EQ(consumed, row.ok ? row.consumed : -77);
    }
}

TEST(String, Appends) {
    co::Ref<coString> string(coStringCreate());
    coStringAppend(string.address(), str("a"));
    coStringAppendChar(string.address(), U'é');
    coStringAppendChars(string.address(), U"cdx", 2);
    coStringAppendChars(string.address(), nullptr, 0);
    coStringAppendCstr(string.address(), "efx", 2);
    coStringAppendCstr(string.address(), "gé", -1);
    coStringAppendFormatCstr(string.address(), "<%i>", -1, int64_t{7});
    EXPECT_EQ(utf8(string.get()), "aécdefgé<7>");
}

TEST(String, AppendsItselfAndPartsOfItself) {
    co::Ref<coString> string(coStringCreateFromCstr("ab", -1));
    std::string expected = "ab";
    for (int i = 0; i < 10; i++) {
        coStringAppend(string.address(), string.get());
        expected += expected;
        coStringAppendChars(string.address(), coStringBacking(string.get()) + 1, 2);
        expected += expected.substr(1, 2);
        ASSERT_EQ(utf8(string.get()), expected);
    }
    coStringAppendFormatCstr(string.address(), "%s|%s", -1, string.get(), string.get());
    EXPECT_EQ(utf8(string.get()), expected + expected + "|" + expected);
}

TEST(String, AppendsWithADelimiter) {
    co::Ref<coString> string(coStringCreate());
    coStringDelimitedAppendCharDelimiter(string.address(), str(""), U',');
    EXPECT_EQ(utf8(string.get()), "");
    coStringDelimitedAppendCharDelimiter(string.address(), str("a"), U',');
    EXPECT_EQ(utf8(string.get()), "a");
    coStringDelimitedAppendCharDelimiter(string.address(), str("b"), U',');
    EXPECT_EQ(utf8(string.get()), "a,b");
    coStringDelimitedAppendCharDelimiter(string.address(), str(""), U',');
    EXPECT_EQ(utf8(string.get()), "a,b,");
    coStringDelimitedAppendCharDelimiter(string.address(), string.get(), U' ');
    EXPECT_EQ(utf8(string.get()), "a,b, a,b,");
}

TEST(String, ChangesOneChar) {
    co::Ref<coString> string(coStringCreateFromCstr("abc", -1));
    coStringSetCharAt(string.address(), 0, U'x');
    coStringSetCharAt(string.address(), 2, 0x10FFFF);
    EXPECT_EQ(utf8(string.get()), "xb\U0010FFFF");
}

TEST(String, ChangesLetterCase) {
    co::Ref<coString> string(coStringCreateFromCstr("aZ@[`{09 äÖ", -1));
    coStringToUpper(string.address());
    EXPECT_EQ(utf8(string.get()), "AZ@[`{09 ÄÖ");
    coStringToLower(string.address());
    EXPECT_EQ(utf8(string.get()), "az@[`{09 äö");
}

TEST(String, InternalFormsAgree) {
    co::Ref<coString> const fromUtf8(co::makeStringFromUtf8("aé\U0001F600"));
    EXPECT_EQ(utf8(fromUtf8.get()), "aé\U0001F600");
    co::Ref<coString> string(co::makeString(2));
    EXPECT_EQ(coStringLength(string.get()), 0);
    coChar *room = co::appendSpace(string.address(), 3);
    for (coChar ch : {U'a', U'b', U'c'}) *room++ = ch;
    string->length += 3;
    EXPECT_EQ(utf8(string.get()), "abc");
    EXPECT_TRUE(co::equal(U"", {}));
    EXPECT_TRUE(co::equal(U"ab", string->view().substr(0, 2)));
    EXPECT_FALSE(co::equal(U"ab", string->view()));
    EXPECT_FALSE(co::equal(U"abd", string->view()));
}

TEST(String, BrokenPreconditionsAbort) {
    co::Ref<coString> string(coStringCreateFromCstr("abc", -1));
    coString *s = string.get();
    coString *none = nullptr;
    int64_t value = 0;
    int64_t consumed = 0;
    EXPECT_ABORT(coStringCreateFromCstr(nullptr, -1), unit, "text || length == 0");
    EXPECT_ABORT(coStringCreateFromCstr("", -2), unit, "length >= -1");
    EXPECT_ABORT(coStringCreateFromWcstr(nullptr, -1), unit, "text || length == 0");
    EXPECT_ABORT(coStringCreateFromWcstr(L"", -2), unit, "length >= -1");
    EXPECT_ABORT(coStringCreateFromCharsCopy(nullptr, 1), unit, "chars || count == 0");
    EXPECT_ABORT(coStringCreateFromCharsCopy(U"", -1), unit, "count >= 0");
    EXPECT_ABORT(coStringCreateFromInner(nullptr, 0, 0), unit, "string");
    EXPECT_ABORT(coStringCreateFromInner(s, 4, 0), unit, "start >= 0 && start <= coStringLength( string )");
    EXPECT_ABORT(coStringCreateFromInner(s, -1, 0), unit, "start >= 0 && start <= coStringLength( string )");
    EXPECT_ABORT(coStringCreateFromInner(s, 1, 3), unit, "count >= 0 && count <= coStringLength( string ) - start");
    EXPECT_ABORT(coStringCreateFromInner(s, 1, INT64_MAX), unit,
                 "count >= 0 && count <= coStringLength( string ) - start");
    EXPECT_ABORT(coStringLength(nullptr), unit, "string");
    EXPECT_ABORT(coStringBacking(nullptr), unit, "string");
    EXPECT_ABORT(coStringCharAt(nullptr, 0), unit, "string");
    EXPECT_ABORT(coStringCharAt(s, 3), unit, "index >= 0 && index < coStringLength( string )");
    EXPECT_ABORT(coStringCharAt(s, -1), unit, "index >= 0 && index < coStringLength( string )");
    EXPECT_ABORT(coStringEqualsChars(nullptr, U"", 0), unit, "string");
    EXPECT_ABORT(coStringBeginsWithChar(nullptr, U'a'), unit, "string");
    EXPECT_ABORT(coStringFindChars(s, 4, U"a", 1), unit, "start >= 0 && start <= coStringLength( string )");
    EXPECT_ABORT(coStringFindChars(s, 0, nullptr, 1), unit, "chars || count == 0");
    EXPECT_ABORT(coStringSplitChar(nullptr, U'a', -1), unit, "string");
    EXPECT_ABORT(coStringSplitChar(s, U'a', 0), unit, "maxPieces == -1 || maxPieces > 0");
    EXPECT_ABORT(coStringSplitChars(s, U"", 0, -1), unit, "chars && count > 0");
    EXPECT_ABORT(coStringSplitChars(s, U"a", 1, -2), unit, "maxPieces == -1 || maxPieces > 0");
    EXPECT_ABORT(coStringScanInt(nullptr, 0, -1, 10, &value, &consumed), unit, "string");
    EXPECT_ABORT(coStringScanInt(s, 0, 4, 10, &value, &consumed), unit,
                 "length >= -1 && length <= coStringLength( string ) - start");
    EXPECT_ABORT(coStringScanInt(s, 0, -1, 10, nullptr, &consumed), unit, "value");
    EXPECT_ABORT(coStringScanInt(s, 0, -1, 10, &value, nullptr), unit, "consumed");
    EXPECT_ABORT(coStringAppend(nullptr, s), unit, "string");
    EXPECT_ABORT(coStringAppend(&none, s), unit, "*string");
    EXPECT_ABORT(coStringAppend(&s, nullptr), unit, "other");
    EXPECT_ABORT(coStringAppendChar(&s, 0x110000), unit, "CO_CHAR_OK( ch )");
    EXPECT_ABORT(coStringAppendChars(&none, U"a", 1), unit, "*string");
    EXPECT_ABORT(coStringAppendCstr(&none, "a", 1), unit, "*string");
    EXPECT_ABORT(coStringAppendFormatCstr(&none, "a", 1), unit, "*string");
    EXPECT_ABORT(coStringDelimitedAppendCharDelimiter(&s, nullptr, U','), unit, "other");
    EXPECT_ABORT(coStringSetCharAt(&s, 3, U'a'), unit, "index >= 0 && index < coStringLength( *string )");
    EXPECT_ABORT(coStringSetCharAt(&s, 0, 0x110000), unit, "CO_CHAR_OK( ch )");
    EXPECT_ABORT(coStringToLower(&none), unit, "*string");
    EXPECT_ABORT(coStringToUpper(nullptr), unit, "string");
}

} // namespace
