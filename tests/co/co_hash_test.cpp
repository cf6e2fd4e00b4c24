#include <co/co_hash.hpp>
#include <support/text.hpp>

namespace {

// Computed by another implementation of SipHash-1-3, of the texts' bytes in US-ASCII, or else in UTF-32LE.
TEST(Hash, IsSipHash13) {
    co::HashKey const none{0, 0};
    co::HashKey const some{0xAED66CE184BE2329, 0xEBE9BBF1F1499052};
    co::HashKey const another{0x8D85BE4C852E2B23, 0x778977FB98719852};
    struct {
        co::HashKey key;
        co::Chars text;
        uint64_t expected;
    } const rows[] = {
        {none, U"a", 0x407448D2B89B1813},
        {none, U"ab", 0x555508CBC6ADD439},
        {none, U"abc", 0xC03BC3A0042630F2},
        {none, U"to", 0x2C618A4308A30424},
        {none, U"received", 0x61F6986F1465FCC3},
        {none, U"\U0001F600", 0xCEEBAEF96CA4072C},
        {none, U"日本語テキスト", 0xA4EEE7A388275BF5},
        {some, U"a", 0xD6300BC9F7CC0E73},
        {some, U"ab", 0xB8561EE67CD5B166},
        {some, U"abc", 0xBF3A636EDF177675},
        {some, U"received", 0x17CD31A26DC227B1},
        {some, U"\U0010FFFF\U0010FFFF\U0010FFFF\U0010FFFF\U0010FFFF", 0xF104D0EA5EFE46BF},
        {another, U"to", 0x5E461231EF1846F2},
        {another, U"日本語テキスト", 0x3711AC2687DCCF7A},
        {another, U"\U0010FFFF\U0010FFFF\U0010FFFF\U0010FFFF\U0010FFFF", 0x573E9678FD149305},
        {none, U"", 0xD1FBA762150C532C},
        {none, U"content", 0xA7DB06668CAD9ADB},
        {some, U"max-breadth", 0x668BB4E3AA64B6F9},
        {another, U"z9hg4bk-0123456789-abcdef", 0x1307FF86FD8B34BA},
        {some, U"to\u0080", 0xA89EA10890B25627},
        {another, U"\u007F", 0x4C58D0F317ED23D4},
    };
    for (auto const &row : rows) EXPECT_EQ(co::sipHash(row.key, row.text), row.expected);
}

TEST(Hash, IgnoresTheCaseOfLettersAlone) {
    co::HashKey const key{1, 2};
    for (size_t const length : {1U, 3U, 7U, 8U, 9U, 16U, 21U})
        for (size_t place = 0; place < length; place++)
            for (int ch = 0; ch < 0x80; ch++) {
                std::string text(length, 'z');
                text[place] = static_cast<char>(ch);
                std::u32string chars(text.begin(), text.end());
                uint64_t const hash = co::sipHashIgnoringCase(key, std::string_view(text));
                ASSERT_EQ(co::sipHashIgnoringCase(key, co::Chars(chars)), hash) << ch;
                if (ch >= 'A' && ch <= 'Z') chars[place] = static_cast<char32_t>(ch + 32);
                ASSERT_EQ(hash, co::sipHash(key, chars)) << ch;
            }
}

TEST(Hash, TellsLengthsApart) {
    co::HashKey const key{1, 2};
    std::u32string const zeros(3, U'\0');
    EXPECT_NE(co::sipHash(key, {}), co::sipHash(key, {zeros.data(), 1}));
    EXPECT_NE(co::sipHash(key, {zeros.data(), 1}), co::sipHash(key, {zeros.data(), 2}));
    EXPECT_NE(co::sipHash(key, {zeros.data(), 2}), co::sipHash(key, {zeros.data(), 3}));
}

TEST(Hash, KeyStaysTheSameWithinAProcess) {
    co::HashKey const key = co::processHashKey();
    co::HashKey const again = co::processHashKey();
    EXPECT_EQ(key.first, again.first);
    EXPECT_EQ(key.second, again.second);
    EXPECT_NE(key.first, 0u);
    EXPECT_NE(key.second, 0u);
    EXPECT_EQ(co::hash(U"to"), co::sipHash(key, U"to"));
}

std::string hashOfThisProcess() { return std::to_string(co::hash(U"to")); }

TEST(Hash, KeyIsAnotherInEachProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // which starts the program anew
    EXPECT_EXIT((fprintf(stderr, "hash %s", hashOfThisProcess().c_str()), exit(0)), testing::ExitedWithCode(0),
                testing::AllOf(testing::HasSubstr("hash "), testing::Not(testing::HasSubstr(hashOfThisProcess()))));
    GTEST_FLAG_SET(death_test_style, "fast");
}

} // namespace
