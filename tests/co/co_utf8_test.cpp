// UTF-8, beside two oracles: the C library's iconv for what is valid, and the set of all beginnings of valid sequences
// for where a replacement character stands.

#include <co/co_string.hpp>
#include <co/co_utf8.hpp>
#include <iconv.h>
#include <random>
#include <set>
#include <support/text.hpp>

namespace {

class Iconv {
public:
    Iconv(char const *to, char const *from) : descriptor(iconv_open(to, from)) {}
    ~Iconv() { iconv_close(descriptor); }
    Iconv(Iconv const &) = delete;

    // False when the text is not valid, or not complete.
    bool convert(std::string_view text, std::string *result) const {
        result->assign(text.size() * 4 + 4, '\0');
        char *in = const_cast<char *>(text.data());
        size_t inLeft = text.size();
        char *out = result->data();
        size_t outLeft = result->size();
        iconv(descriptor, nullptr, nullptr, nullptr, nullptr);
        if (iconv(descriptor, &in, &inLeft, &out, &outLeft) == static_cast<size_t>(-1)) return false;
        result->resize(result->size() - outLeft);
        return true;
    }

private:
    iconv_t descriptor;
};

// The code points of valid UTF-8 by iconv.
bool oracle(std::string_view text, std::u32string *chars) {
    static Iconv const iconv("UTF-32LE", "UTF-8");
    std::string result;
    if (!iconv.convert(text, &result)) return false;
    chars->assign(result.size() / 4, U'\0');
    std::memcpy(chars->data(), result.data(), result.size());
    return true;
}

bool isScalar(coChar ch) { return ch <= 0x10FFFF && (ch < 0xD800 || ch > 0xDFFF); }

std::string narrow(std::u32string_view chars) {
    std::string bytes(static_cast<size_t>(co::utf8Length(chars)), '\0');
    auto *const first = reinterpret_cast<uint8_t *>(bytes.data());
    EXPECT_EQ(co::narrowToUtf8(first, chars) - first, static_cast<int64_t>(bytes.size()));
    return bytes;
}

std::u32string widenAny(std::string_view bytes) {
    std::u32string chars(static_cast<size_t>(co::widenAnyBytes(nullptr, bytes)), U'\0');
    EXPECT_EQ(co::widenAnyBytes(chars.data(), bytes), static_cast<int64_t>(chars.size()));
    return chars;
}

void expectAsOracle(std::string_view bytes) {
    std::u32string expected;
    bool const valid = oracle(bytes, &expected);
    co::Utf8Count const count = co::countUtf8(bytes);
    ASSERT_EQ(count.valid, valid) << testing::PrintToString(std::string(bytes));
    if (!valid) return;
    ASSERT_EQ(count.chars, static_cast<int64_t>(expected.size()));
    std::u32string chars(expected.size(), U'\0');
    ASSERT_EQ(co::widenUtf8(chars.data(), bytes), chars.data() + chars.size());
    ASSERT_EQ(chars, expected);
    ASSERT_EQ(widenAny(bytes), expected);
}

TEST(Utf8, WritesEveryCodePointAsIconvDoes) {
    Iconv const iconv("UTF-8", "UTF-32LE");
    for (coChar ch = 0; ch <= 0x10FFFF; ch++) {
        coChar const expectedChar = isScalar(ch) ? ch : 0xFFFD;
        std::string expected;
        ASSERT_TRUE(iconv.convert({reinterpret_cast<char const *>(&expectedChar), 4}, &expected));
        ASSERT_EQ(narrow({&ch, 1}), expected) << std::hex << static_cast<uint32_t>(ch);
    }
    for (coChar ch : {coChar{0x110000}, coChar{0x7FFFFFFF}, coChar{0xFFFFFFFF}})
        EXPECT_EQ(narrow({&ch, 1}), "\xEF\xBF\xBD");
}

// One code point beyond ASCII at every place of texts that are shorter and longer than what is taken at once.
TEST(Utf8, WritesTextsOfAllLengths) {
    for (size_t length = 0; length < 70; length++) {
        std::u32string text;
        for (size_t i = 0; i < length; i++) text += static_cast<char32_t>(i * 5 % 128);
        EXPECT_TRUE(co::isAscii(text)) << length;
        EXPECT_EQ(narrow(text), std::string(text.begin(), text.end())) << length;
        std::string bytes(length + 2, '#');
        auto *const first = reinterpret_cast<uint8_t *>(bytes.data()) + 1;
        EXPECT_EQ(co::narrowAscii(first, text), first + length);
        EXPECT_EQ(bytes, "#" + std::string(text.begin(), text.end()) + "#") << "and nothing beside it";
        for (size_t at = 0; at < length; at++) {
            for (auto const &[ch, utf8] :
                 {std::pair<char32_t, char const *>{0x80, "\u0080"}, {0x10FFFF, "\U0010FFFF"}}) {
                std::u32string other = text;
                other[at] = ch;
                EXPECT_FALSE(co::isAscii(other)) << at << " of " << length;
                std::string expected(text.begin(), text.end());
                EXPECT_EQ(narrow(other), expected.replace(at, 1, utf8)) << at << " of " << length;
            }
        }
    }
    EXPECT_FALSE(co::isAscii(std::u32string(20, static_cast<char32_t>(0x80000000))));
}

TEST(Utf8, ReadsEveryCodePointAndRefusesEachBeginning) {
    for (coChar ch = 0; ch <= 0x10FFFF; ch++) {
        if (!isScalar(ch)) continue;
        std::string const bytes = narrow({&ch, 1});
        ASSERT_TRUE(co::countUtf8(bytes).valid);
        ASSERT_EQ(widenAny(bytes), std::u32string(1, ch));
        for (size_t i = 1; i < bytes.size(); i++) ASSERT_FALSE(co::countUtf8({bytes.data(), i}).valid);
    }
}

// A code point in a given number of bytes, whether or not these are right for it.
std::string forced(coChar ch, int size) {
    std::string bytes(static_cast<size_t>(size), '\0');
    for (int i = size - 1; i > 0; i--, ch >>= 6) bytes[static_cast<size_t>(i)] = static_cast<char>(0x80 | (ch & 0x3F));
    constexpr coChar marks[] = {0, 0, 0xC0, 0xE0, 0xF0, 0xF8, 0xFC};
    bytes[0] = static_cast<char>(static_cast<uint8_t>(marks[size] | ch));
    return bytes;
}

TEST(Utf8, RefusesOverlongFormsSurrogatesAndWhatLiesAboveUnicode) {
    for (coChar ch = 0; ch < 0x10000; ch++) {
        bool const refused2 = ch >= 0x80 || !co::countUtf8(forced(ch, 2)).valid;
        bool const refused3 = (ch >= 0x800 && isScalar(ch)) || !co::countUtf8(forced(ch, 3)).valid;
        ASSERT_TRUE(refused2 && refused3) << static_cast<uint32_t>(ch);
        for (int size : {4, 5, 6}) ASSERT_FALSE(co::countUtf8(forced(ch, size)).valid) << static_cast<uint32_t>(ch);
    }
    for (coChar ch = 0x110000; ch < 0x200000; ch++)
        ASSERT_FALSE(co::countUtf8(forced(ch, 4)).valid) << static_cast<uint32_t>(ch);
}

TEST(Utf8, AgreesWithIconvOnShortSequences) {
    for (int first = 0; first < 256; first++) {
        char const one[] = {static_cast<char>(first)};
        expectAsOracle({one, 1});
        for (int second = 0; second < 256; second++) {
            char const two[] = {static_cast<char>(first), static_cast<char>(second)};
            expectAsOracle({two, 2});
        }
        if (HasFatalFailure()) return;
    }
}

constexpr std::string_view edges =
    "\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xC1\xC2\xDF\xE0\xE1\xEC\xED\xEE\xEF\xF0\xF1\xF3\xF4"
    "\xF5\xFF";

TEST(Utf8, AgreesWithIconvOnSequencesOfEdgeBytes) {
    for (char a : edges)
        for (char b : edges)
            for (char c : edges)
                for (char d : edges) {
                    char const text[] = {a, b, c, d};
                    expectAsOracle({text, 3});
                    expectAsOracle({text, 4});
                    if (HasFatalFailure()) return;
                }
}

// Texts of valid pieces and now and then a wrong byte.
std::string randomBytes(std::mt19937 &random, bool spoilt) {
    std::u32string chars;
    for (size_t i = random() % 40; i-- > 0;) {
        coChar const mask = random() % 2 ? 0x7F : random() % 2 ? 0x7FF : 0xFFFFF;
        coChar const ch = static_cast<coChar>(random()) & mask;
        chars += isScalar(ch) ? ch : U'x';
    }
    std::string bytes = narrow(chars);
    for (size_t i = spoilt ? 1 + random() % 4 : 0; i-- > 0 && !bytes.empty();) {
        size_t const at = random() % bytes.size();
        if (random() % 2)
            bytes[at] = edges[random() % edges.size()];
        else
            bytes.erase(at, 1);
    }
    return bytes;
}

TEST(Utf8, AgreesWithIconvOnRandomTexts) {
    std::mt19937 random(1);
    for (int round = 0; round < 20000; round++) {
        expectAsOracle(randomBytes(random, round % 2));
        if (HasFatalFailure()) return;
    }
}

// A wrong byte at each place of a long text, so that no way of reading many bytes at once overlooks one.
TEST(Utf8, FindsOneWrongByteAnywhere) {
    for (size_t size = 1; size < 70; size++)
        for (size_t at = 0; at < size; at++) {
            std::string text(size, 'a');
            text[at] = '\xFF';
            ASSERT_FALSE(co::countUtf8(text).valid);
            std::u32string expected(size, U'a');
            expected[at] = 0xFFFD;
            ASSERT_EQ(widenAny(text), expected);
            text.replace(at, 1, "é");
            expected[at] = U'é';
            expectAsOracle(text);
            ASSERT_EQ(widenAny(text), expected);
            ASSERT_EQ(narrow(expected), text);
            if (HasFatalFailure()) return;
        }
}

// U+FFFD for each maximal subpart of an ill-formed sequence: the examples of the Unicode Standard, tables 3-8 to 3-11.
TEST(Utf8, ReplacesWhatTheStandardReplaces) {
    struct {
        std::string_view bytes;
        std::u32string_view expected;
        char const *why;
    } const rows[] = {
        {"\xC0\xAF\xE0\x80\xBF\xF0\x81\x82\x41", U"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA",
         "overlong forms (3-8)"},
        {"\xED\xA0\x80\xED\xBF\xBF\xED\xAF\x41", U"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA",
         "surrogates (3-9)"},
        {"\xF4\x91\x92\x93\xFF\x41\x80\xBF\x42", U"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDA\uFFFD\uFFFDB",
         "other ill-formed sequences (3-10)"},
        {"\xE1\x80\xE2\xF0\x91\x92\xF1\xBF\x41", U"\uFFFD\uFFFD\uFFFD\uFFFDA", "truncated sequences (3-11)"},
        {"\x61\xF1\x80\x80\xE1\x80\xC2\x62\x80\x63\x80\xBF\x64", U"a\uFFFD\uFFFD\uFFFDb\uFFFDc\uFFFD\uFFFDd",
         "truncated sequences and lone trailing bytes"},
        {"\xEF\xBB\xBFz", U"\uFEFFz", "a byte order mark stays"},
    };
    for (auto const &row : rows) {
        SCOPED_TRACE(row.why);
        EXPECT_EQ(widenAny(row.bytes), row.expected);
    }
}

// Every beginning of every valid sequence. Code points that differ in their last byte only begin alike.
std::set<std::string> allBeginnings() {
    std::set<std::string> beginnings;
    for (coChar ch = 0x80; ch <= 0x10FFFF; ch += 0x40) {
        if (!isScalar(ch)) continue;
        std::string const whole = narrow({&ch, 1});
        for (size_t i = 1; i < whole.size(); i++) beginnings.insert(whole.substr(0, i));
    }
    return beginnings;
}

TEST(Utf8, ReplacesEachMaximalBeginning) {
    std::set<std::string> const beginnings = allBeginnings();
    std::mt19937 random(2);
    for (int round = 0; round < 20000; round++) {
        std::string const bytes = randomBytes(random, true);
        std::u32string expected;
        for (size_t i = 0; i < bytes.size();) {
            std::u32string chars;
            size_t size = 1;
            while (size <= 4 && i + size <= bytes.size() && !oracle({bytes.data() + i, size}, &chars)) size++;
            if (size <= 4 && i + size <= bytes.size()) {
                expected += chars;
                i += size;
                continue;
            }
            size_t illFormed = 1;
            while (i + illFormed < bytes.size() && beginnings.count(bytes.substr(i, illFormed + 1))) illFormed++;
            expected += U'\uFFFD';
            i += illFormed;
        }
        ASSERT_EQ(widenAny(bytes), expected) << testing::PrintToString(bytes);
    }
}

} // namespace
