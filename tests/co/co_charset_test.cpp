#include <random>
#include <support/text.hpp>

using test::buffer;
using test::taken;

namespace {

constexpr char const *unit = "source/co/co_charset";
constexpr int64_t utf8Charset = 44;
constexpr int64_t strict = 1;
constexpr int64_t lenient = 0;

TEST(Charset, ReadsBuffers) {
    struct {
        std::string_view bytes;
        char const *strictly, *leniently, *why;
    } const rows[] = {
        {"", "", "", "empty"},
        {"abc", "abc", "abc", "ASCII"},
        {"é日\U0001F600", "é日\U0001F600", "é日\U0001F600", "two, three and four bytes"},
        {"\xEF\xBB\xBFz", "\uFEFFz", "\uFEFFz", "a byte order mark is a code point like any other"},
        {"a\xC3", "(null)", "a\uFFFD", "truncated"},
        {"\xC0\x80", "(null)", "\uFFFD\uFFFD", "overlong"},
        {"\xED\xA0\x80", "(null)", "\uFFFD\uFFFD\uFFFD", "a surrogate"},
        {"\xF4\x90\x80\x80", "(null)", "\uFFFD\uFFFD\uFFFD\uFFFD", "above Unicode"},
        {"a\xFFz", "(null)", "a\uFFFDz", "no byte of UTF-8"},
    };
    for (auto const &row : rows) {
        SCOPED_TRACE(row.why);
        EXPECT_EQ(taken(coCharsetBufferToStringWithFlags(utf8Charset, buffer(row.bytes).get(), strict)), row.strictly);
        EXPECT_EQ(taken(coCharsetBufferToStringWithFlags(utf8Charset, buffer(row.bytes).get(), lenient)),
                  row.leniently);
    }
}

TEST(Charset, KeepsNul) {
    std::string_view const text("a\0b", 3);
    EXPECT_EQ(taken(coCharsetBufferToStringWithFlags(utf8Charset, buffer(text).get(), strict)), text);
}

TEST(Charset, ReadsWhatIsLeftOfABuffer) {
    co::Ref<coBuffer> const b = buffer("\xFFxyz");
    co::Ref<coBuffer> rest(co::retained(b.get()));
    coBufferDelLeading(rest.address(), 1);
    EXPECT_EQ(taken(coCharsetBufferToStringWithFlags(utf8Charset, rest.get(), strict)), "xyz");
}

TEST(Charset, WritesAsManyWholeCodePointsAsFit) {
    struct {
        std::u32string_view chars;
        int64_t capacity, needed;
        char const *written, *why;
    } const rows[] = {
        {U"", 0, 0, "", "nothing"},
        {U"", 4, 0, "", "nothing into room"},
        {U"abc", 3, 3, "abc", "just enough"},
        {U"abc", 9, 3, "abc", "more than enough"},
        {U"abc", 2, 3, "ab", "one too little"},
        {U"abc", 0, 3, "", "no room"},
        {U"aé", 2, 3, "a", "no half of two bytes"},
        {U"aé", 3, 3, "aé", "two bytes"},
        {U"日本", 5, 6, "日", "no part of three bytes"},
        {U"\U0001F600x", 3, 5, "", "no part of four bytes, nor what follows them"},
        {U"\U0001F600x", 4, 5, "\U0001F600", "four bytes"},
        {U"\xD800", 3, 3, "\uFFFD", "no scalar value"},
        {U"\xD800", 2, 3, "", "no scalar value, too little room"},
    };
    for (auto const &row : rows) {
        SCOPED_TRACE(row.why);
        uint8_t dest[16];
        std::fill(std::begin(dest), std::end(dest), uint8_t{0xEE});
        auto const count = static_cast<int64_t>(row.chars.size());
        EXPECT_EQ(coCharsConvertToUtf8(dest, row.capacity, row.chars.data(), count, 0), row.needed);
        std::string_view const written(row.written);
        EXPECT_EQ(std::string_view(reinterpret_cast<char *>(dest), written.size()), written);
        for (size_t i = written.size(); i < sizeof dest; i++) EXPECT_EQ(dest[i], 0xEE) << "written too far";
    }
    EXPECT_EQ(coCharsConvertToUtf8(nullptr, 0, U"é", 1, 0), 2);
    EXPECT_EQ(coCharsConvertToUtf8(nullptr, 0, nullptr, 0, 0), 0);
}

TEST(Charset, ReadsBackWhatItWrites) {
    std::mt19937 random(1);
    for (int round = 0; round < 2000; round++) {
        std::u32string chars;
        for (size_t i = random() % 600; i-- > 0;) {
            auto const ch = static_cast<coChar>(random() % (random() % 2 ? 0x80 : 0x110000));
            chars += ch >= 0xD800 && ch < 0xE000 ? U'x' : ch;
        }
        auto const count = static_cast<int64_t>(chars.size());
        int64_t const needed = coCharsConvertToUtf8(nullptr, 0, chars.data(), count, 0);
        auto *bytes = static_cast<uint8_t *>(coMemAllocN(needed, 1));
        EXPECT_EQ(coCharsConvertToUtf8(bytes, needed, chars.data(), count, 0), needed);
        co::Ref<coBuffer> const b(coBufferCreateFromBytesCopy(bytes, needed));
        coMemFree(bytes);
        co::Ref<coString> const back(coCharsetBufferToStringWithFlags(utf8Charset, b.get(), strict));
        ASSERT_TRUE(back);
        ASSERT_TRUE(coStringEqualsChars(back.get(), chars.data(), count));
    }
}

TEST(Charset, BrokenPreconditionsAbort) {
    uint8_t dest[4];
    co::Ref<coBuffer> const b = buffer("a");
    EXPECT_ABORT(coCharsConvertToUtf8(nullptr, 1, U"a", 1, 0), unit, "dest || capacity == 0");
    EXPECT_ABORT(coCharsConvertToUtf8(dest, -1, U"a", 1, 0), unit, "capacity >= 0");
    EXPECT_ABORT(coCharsConvertToUtf8(dest, 4, nullptr, 1, 0), unit, "chars || count == 0");
    EXPECT_ABORT(coCharsConvertToUtf8(dest, 4, U"a", -1, 0), unit, "count >= 0");
    EXPECT_ABORT(coCharsConvertToUtf8(dest, 4, U"a", 1, 1), unit, "flags == 0");
    EXPECT_ABORT(coCharsetBufferToStringWithFlags(utf8Charset, nullptr, strict), unit, "buffer");
    EXPECT_ABORT(coCharsetBufferToStringWithFlags(43, b.get(), strict), unit, "charset == 44");
    EXPECT_ABORT(coCharsetBufferToStringWithFlags(utf8Charset, b.get(), 2), unit, "flags == 0 || flags == 1");
}

} // namespace
