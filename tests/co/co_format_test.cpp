#include <charconv>
#include <co/co_format.hpp>
#include <cstdarg>
#include <random>
#include <support/text.hpp>

using test::count;
using test::str;
using test::taken;
using test::utf8;

namespace {

constexpr char const *unit = "source/co/co_format";

std::string format(char const *text, ...) {
    va_list args;
    va_start(args, text);
    std::string const result = taken(coStringCreateFromFormatCstrArgList(text, -1, args));
    va_end(args);
    return result;
}

TEST(Format, Integers) {
    struct {
        char const *format;
        int64_t value;
        char const *expected, *why;
    } const rows[] = {
        {"%i", 0, "0", "zero"},
        {"%i", -7, "-7", "negative"},
        {"%i", INT64_MAX, "9223372036854775807", "largest"},
        {"%i", INT64_MIN, "-9223372036854775808", "smallest"},
        {"a%ib", 1, "a1b", "text around it"},
        {"%3i", 5, "  5", "blanks"},
        {"%3i", -5, " -5", "blanks before the sign"},
        {"%3i", 12345, "12345", "wider than its width"},
        {"%03i", 5, "005", "zeros"},
        {"%03i", -5, "-05", "zeros behind the sign"},
        {"%01i", 5, "5", "width 1"},
        {"%02i", 10, "10", "exactly as wide"},
        {"%04i", 2026, "2026", "a year"},
        {"%!16i", 255, "ff", "lower case"},
        {"%^!16i", 255, "FF", "upper case"},
        {"%^02!16i", 13, "0D", "upper case, two digits"},
        {"%^02!16i", 255, "FF", "upper case, two digits, full"},
        {"%%%^02!16i", 13, "%0D", "an escape"},
        {"%!2i", 5, "101", "smallest base"},
        {"%!36i", 35, "z", "largest base"},
        {"%!2i", INT64_MIN, "-1000000000000000000000000000000000000000000000000000000000000000", "most digits"},
        {"%066!2i", INT64_MIN, "-01000000000000000000000000000000000000000000000000000000000000000", "and padded"},
    };
    for (auto const &row : rows) {
        SCOPED_TRACE(row.why);
        EXPECT_EQ(format(row.format, row.value), row.expected);
    }
    EXPECT_EQ(format("%01i.%03i", int64_t{0}, int64_t{500}), "0.500");
    EXPECT_EQ(format("%4096i", int64_t{7}), std::string(4095, ' ') + "7");
}

TEST(Format, Strings) {
    EXPECT_EQ(format("%s", str("é").get()), "é");
    EXPECT_EQ(format("<%s|%s>", str("").get(), str("b").get()), "<|b>");
    EXPECT_EQ(format("%%"), "%");
    EXPECT_EQ(format(""), "");
    EXPECT_EQ(format("é%ié", int64_t{1}), "é1é");
}

TEST(Format, TakesAReferenceOver) {
    co::Ref<coString> const text(coStringCreateFromCstr("0.5", -1));
    EXPECT_EQ(format(";q=%~s", co::retained(text.get())), ";q=0.5");
    EXPECT_EQ(count(text.get()), 1);
    EXPECT_EQ(format(";q=%s", text.get()), ";q=0.5");
    EXPECT_EQ(count(text.get()), 1);
}

TEST(Format, KeysOfASequence) {
    struct {
        int64_t highest, index;
        char const *expected;
    } const rows[] = {{0, 0, "0"},   {9, 9, "9"},     {10, 9, "09"},       {10, 10, "10"},
                      {99, 0, "00"}, {100, 7, "007"}, {1000, 1000, "1000"}};
    for (auto const &row : rows) EXPECT_EQ(format("%.*A", row.highest, row.index), row.expected);
    EXPECT_EQ(format("a%.*Ab", int64_t{10}, int64_t{1}), "a01b");

    std::string before;
    for (int64_t i = 0; i <= 1234; i++) {
        std::string const key = format("%.*A", int64_t{1234}, i);
        ASSERT_EQ(key.size(), 4u);
        ASSERT_LT(before, key);
        before = key;
    }
}

coString *fromString(coString const *text, ...) {
    va_list args;
    va_start(args, text);
    coString *result = coStringCreateFromFormatArgList(text, args);
    va_end(args);
    return result;
}

coString *fromWide(int64_t length, wchar_t const *text, ...) {
    va_list args;
    va_start(args, text);
    coString *result = coStringCreateFromFormatWcstrArgList(text, length, args);
    va_end(args);
    return result;
}

TEST(Format, ComesInThreeKindsOfText) {
    EXPECT_EQ(taken(coStringCreateFromFormatCstr("%i-%i", -1, int64_t{1}, int64_t{2})), "1-2");
    EXPECT_EQ(taken(coStringCreateFromFormatCstr("%i-%i", 2, int64_t{1})), "1");
    EXPECT_EQ(taken(fromString(str("é%i"), int64_t{1})), "é1");
    EXPECT_EQ(taken(fromWide(-1, L"é%i", int64_t{1})), "é1");
    EXPECT_EQ(taken(fromWide(3, L"é%i%i", int64_t{1})), "é1");
}

TEST(Format, AnythingElseAborts) {
    for (char const *text : {"%", "%x", "%d", "%5s", "%^s", "%05%", "%~i", "%.i", "%.5i", "%.*i", "%.*s", "%A", "%5.*A",
                             "%~.*A", "%!16s", "%!", "%.", "%.*", "%99999i"})
        EXPECT_ABORT(format(text, nullptr, nullptr), unit, "format", "unknown format directive") << text;
    EXPECT_ABORT(format("%s", nullptr), unit, "text");
    EXPECT_ABORT(format("%!1i", int64_t{1}), unit, "base >= 2 && base <= 36");
    EXPECT_ABORT(format("%!37i", int64_t{1}), unit, "base >= 2 && base <= 36");
    EXPECT_ABORT(format("%4097i", int64_t{1}), unit, "width >= 0 && width <= 4096");
    EXPECT_ABORT(fromString(nullptr), "source/co/co_string", "format");
}

TEST(Format, EncodesIntegers) {
    struct {
        int64_t value, base, width, flags;
        char const *expected;
    } const rows[] = {
        {0, 10, 0, 0, "0"},
        {-1, 10, 0, 0, "-1"},
        {7, 10, 3, 0, "  7"},
        {7, 10, 3, 2, "007"},
        {-7, 10, 3, 2, "-07"},
        {-7, 10, 3, 0, " -7"},
        {255, 16, 0, 0, "ff"},
        {255, 16, 4, 2, "00ff"},
        {35, 36, 0, 0, "z"},
        {1234, 10, 2, 2, "1234"},
        {INT64_MAX, 10, 0, 0, "9223372036854775807"},
        {INT64_MIN, 10, 0, 0, "-9223372036854775808"},
    };
    for (auto const &row : rows)
        EXPECT_EQ(taken(coFormatEncodeInt(row.value, row.base, row.width, row.flags)), row.expected);
    EXPECT_ABORT(coFormatEncodeInt(0, 1, 0, 0), unit, "base >= 2 && base <= 36");
    EXPECT_ABORT(coFormatEncodeInt(0, 10, -1, 0), unit, "width >= 0 && width <= 4096");
}

TEST(Format, DecodesIntegers) {
    struct {
        char const *text;
        int64_t base;
        bool ok;
        int64_t value, end;
        char const *why;
    } const rows[] = {
        {"0", 10, true, 0, 1, "zero"},
        {"-0", 10, true, 0, 2, "minus zero"},
        {"007", 10, true, 7, 3, "leading zeros"},
        {"12;x", 10, true, 12, 2, "something behind"},
        {"9223372036854775807", 10, true, INT64_MAX, 19, "largest"},
        {"9223372036854775808", 10, false, 0, 0, "one more"},
        {"-9223372036854775808", 10, true, INT64_MIN, 20, "smallest"},
        {"-9223372036854775809", 10, false, 0, 0, "one less"},
        {"9223372036854775810", 10, false, 0, 0, "past it by a digit"},
        {"92233720368547758070", 10, false, 0, 0, "ten times too large"},
        {"18446744073709551617", 10, false, 0, 0, "would wrap around to 1"},
        {"99999999999999999999999999999999999999", 10, false, 0, 0, "far too large"},
        {"00000000000000000000000000000000000001", 10, true, 1, 38, "long but small"},
        {"7fffffffffffffff", 16, true, INT64_MAX, 16, "largest, base 16"},
        {"8000000000000000", 16, false, 0, 0, "one more, base 16"},
        {"-8000000000000000", 16, true, INT64_MIN, 17, "smallest, base 16"},
        {"", 10, false, 0, 0, "empty"},
        {"-", 10, false, 0, 0, "a sign alone"},
        {"--1", 10, false, 0, 0, "two signs"},
        {"+1", 10, false, 0, 0, "no plus"},
        {" 1", 10, false, 0, 0, "no blank"},
        {"x", 10, false, 0, 0, "a letter"},
        {"a", 10, false, 0, 0, "a digit of another base"},
        {"Zz", 36, true, 35 * 36 + 35, 2, "largest base"},
        {"012", 2, true, 1, 2, "smallest base"},
        {"٣", 10, false, 0, 0, "ASCII digits only"},
    };
    for (auto const &row : rows) {
        SCOPED_TRACE(row.why);
        auto const chars = test::wide(row.text);
        int64_t value = -77;
        int64_t end = -77;
        EXPECT_EQ(coFormatTryDecodeIntChars(chars.data(), static_cast<int64_t>(chars.size()), row.base, &value, &end),
                  row.ok);
        EXPECT_EQ(value, row.ok ? row.value : -77);
        EXPECT_EQ(end, row.ok ? row.end : -77);
    }
}

TEST(Format, DecodesWhatItEncodesAndWhatTheStandardLibraryDoes) {
    std::mt19937_64 random(1);
    for (int round = 0; round < 20000; round++) {
        auto const value = static_cast<int64_t>(random()) >> (random() % 64);
        auto const base = static_cast<int64_t>(2 + random() % 35);
        co::Ref<coString> const text(coFormatEncodeInt(value, base, 0, 0));
        char expected[80];
        char *const last = std::to_chars(expected, expected + 80, value, static_cast<int>(base)).ptr;
        ASSERT_EQ(utf8(text.get()), std::string(expected, last));
        int64_t decoded = 0;
        int64_t end = 0;
        ASSERT_TRUE(
            coFormatTryDecodeIntChars(coStringBacking(text.get()), coStringLength(text.get()), base, &decoded, &end));
        ASSERT_EQ(decoded, value);
        ASSERT_EQ(end, coStringLength(text.get()));
    }
}

TEST(Format, DecoderBrokenPreconditionsAbort) {
    int64_t value = 0;
    int64_t end = 0;
    EXPECT_ABORT(coFormatTryDecodeIntChars(U"1", -1, 10, &value, &end), unit, "count >= 0");
    EXPECT_ABORT(coFormatTryDecodeIntChars(nullptr, 1, 10, &value, &end), unit, "chars || count == 0");
    EXPECT_ABORT(coFormatTryDecodeIntChars(U"1", 1, 1, &value, &end), unit, "base >= 2 && base <= 36");
    EXPECT_ABORT(coFormatTryDecodeIntChars(U"1", 1, 10, nullptr, &end), unit, "value");
    EXPECT_ABORT(coFormatTryDecodeIntChars(U"1", 1, 10, &value, nullptr), unit, "end");
}

} // namespace
