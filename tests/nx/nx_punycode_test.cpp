#include <gtest/gtest.h>
#include <nx/nx_punycode.hpp>
#include <random>
#include <string>
#include <support/text.hpp>

namespace {

std::string text(std::u32string_view chars) { return test::utf8(test::str(chars).get()); }

std::string encoded(std::u32string_view chars) {
    nx::Label label;
    return nx::encodePunycode(chars, label) ? text(label.view()) : "(none)";
}

std::string decoded(std::u32string_view chars) {
    nx::Label label;
    return nx::decodePunycode(chars, label) ? text(label.view()) : "(none)";
}

TEST(Punycode, SamplesOfTheRfc) {
    // RFC 3492, 7.1, those of at most 63 code points, in lower case.
    struct {
        std::u32string_view plain;
        std::u32string_view encoded;
        char const *why;
    } const rows[] = {
        {U"ليهمابتكلموشعربي؟", U"egbpdaj6bu4bxfgehfvwxn", "(A) Arabic"},
        {U"他们为什么不说中文", U"ihqwcrb4cv8a8dqg056pqjye", "(B) simplified Chinese"},
        {U"他們爲什麽不說中文", U"ihqwctvzc91f659drss3x8bo0yb", "(C) traditional Chinese"},
        {U"pročprostěnemluvíčesky", U"proprostnemluvesky-uyb24dma41a", "(D) Czech"},
        {U"למההםפשוטלאמדבריםעברית", U"4dbcagdahymbxekheh6e0a7fei0b", "(E) Hebrew"},
        {U"यहलोगहिन्दीक्योंनहींबोलसकतेहैं", U"i1baa7eci9glrd9b2ae1bj0hfcgg6iyaf8o0a1dig0cd", "(F) Hindi"},
        {U"なぜみんな日本語を話してくれないのか", U"n8jok5ay5dzabd5bym9f0cm5685rrjetr6pdxa", "(G) Japanese"},
        {U"почемужеонинеговорятпорусски", U"b1abfaaepdrnnbgefbadotcwatmq2g4l", "(I) Russian"},
        {U"porquénopuedensimplementehablarenespañol", U"porqunopuedensimplementehablarenespaol-fmd56a", "(J) Spanish"},
        {U"3年b組金八先生", U"3b-ww4c5e180e575a65lsy2b", "(L) a digit first"},
        {U"安室奈美恵-with-super-monkeys", U"-with-super-monkeys-pc58ag80a8qai00g7n9n", "(M) hyphens"},
        {U"ひとつ屋根の下2", U"2-u9tlzr9756bt3uc0v", "(O) a digit last"},
        {U"パフィーdeルンバ", U"de-jg4avhby1noc0d", "(Q) letters within"},
        {U"そのスピードで", U"d9juau41awczczp", "(R) none of ASCII"},
        {U"bücher", U"bcher-kva", "one letter within"},
        {U"", U"", "nothing"},
    };
    for (auto const &row : rows) {
        EXPECT_EQ(encoded(row.plain), text(row.encoded)) << row.why;
        EXPECT_EQ(decoded(row.encoded), text(row.plain)) << row.why;
    }
}

TEST(Punycode, NotDecoded) {
    struct {
        std::u32string_view encoded;
        char const *why;
    } const rows[] = {
        {U"-", "a delimiter with nothing before it is a digit, and none"},
        {U"-kva", "a delimiter with nothing before it is a digit, and none"},
        {U"bcher-kvA", "upper case is not read"},
        {U"bcher-kv", "the integer has no end"},
        {U"bcher-k\u00E9a", "no digit"},
        {U"bcher-k.a", "no digit"},
        {U"9999999999", "an integer beyond all code points"},
        {U"a-99999999999999999999999999999999999999999999999999999999999", "the same, long"},
        {U"zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz", "the same of letters"},
        {U"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa", "64 code points"},
        {U"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa-aa", "65 code points"},
    };
    for (auto const &row : rows) EXPECT_EQ(decoded(row.encoded), "(none)") << text(row.encoded) << ": " << row.why;
}

TEST(Punycode, Limits) {
    std::u32string const basic(62, U'a');
    EXPECT_EQ(encoded(basic), text(basic + U"-")) << "62 code points and the delimiter";
    EXPECT_EQ(encoded(basic + U"a"), "(none)") << "no room for the delimiter";
    EXPECT_EQ(encoded(basic + U"aa"), "(none)") << "64 code points";
    EXPECT_EQ(encoded(basic + U"\u00FC"), "(none)") << "no room for a digit";
    EXPECT_EQ(encoded(std::u32string(58, U'\u00FC')), text(U"tda" + std::u32string(57, U'a'))) << "an early letter";
    EXPECT_EQ(encoded(std::u32string(1, coChar{0x110000})), "(none)") << "no code point";
    EXPECT_EQ(encoded(U"a\U0010FFFF"), "a-h023p") << "the last code point";
    EXPECT_EQ(decoded(U"a-h023p"), text(U"a\U0010FFFF"));
    EXPECT_EQ(decoded(U"a-i023p"), "(none)") << "one more";
}

TEST(Punycode, RoundTrips) {
    std::mt19937 random(3492);
    constexpr std::u32string_view alphabet = U"az09-éüßωя中国ꙮ\U00010400\U0002A6D6";
    int fitting = 0;
    for (int i = 0; i < 50'000; i++) {
        std::u32string chars;
        for (size_t count = random() % 30; count; count--)
            chars += random() % 8 ? alphabet[random() % alphabet.size()] : static_cast<coChar>(random() % 0x110000);
        nx::Label code;
        if (!nx::encodePunycode(chars, code)) continue;
        fitting++;
        nx::Label again;
        ASSERT_TRUE(nx::decodePunycode(code.view(), again)) << text(chars);
        ASSERT_EQ(text(again.view()), text(chars));
    }
    EXPECT_GT(fitting, 20'000);
}

} // namespace
