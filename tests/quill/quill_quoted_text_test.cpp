// Texts in quotes and free texts: quotable strings and what is one (display names, texts of warnings and reasons),
// Organization and Subject.
#include <ostream>
#include <quill/quill_display_name.h>
#include <quill/quill_internal.h>
#include <quill/quill_organization.h>
#include <quill/quill_quotable_string.h>
#include <quill/quill_reason_text.h>
#include <quill/quill_subject.h>
#include <quill/quill_warn_text.h>
#include <random>
#include <support/text.hpp>
#include <vector>

using test::str;

static std::string unquoted(std::string const &text) {
    std::u32string const chars = test::wide(text);
    return test::taken(quill___QuotableStringTryDecode(chars.data(), static_cast<int64_t>(chars.size())));
}

static std::string displayName(std::string const &text) {
    std::u32string const chars = test::wide(text);
    return test::taken(quill___DisplayNameTryDecode(chars.data(), static_cast<int64_t>(chars.size())));
}

namespace {

constexpr char const *none = "(null)";

// All values that are quotable strings.
struct Quotable {
    std::string unit;
    std::string parameter;
    bool (*ok)(coString const *);
};

void PrintTo(Quotable const &value, std::ostream *out) { *out << value.unit; }

class QuotableText : public testing::TestWithParam<Quotable> {};

INSTANTIATE_TEST_SUITE_P(Each, QuotableText,
                         testing::Values(Quotable{"quotable_string", "quotableString", quillQuotableStringOk},
                                         Quotable{"display_name", "displayName", quillDisplayNameOk},
                                         Quotable{"warn_text", "warnText", quillWarnTextOk},
                                         Quotable{"reason_text", "reasonText", quillReasonTextOk}),
                         [](auto const &each) { return each.param.unit; });

} // namespace

TEST_P(QuotableText, IsAnyTextInOneLine) {
    for (auto const *text : {"", " ", "abc", "\t", "a \"b\" \\", "\x01\x7f", "\u00e9", "\u2028", "\U0001F600"})
        EXPECT_TRUE(GetParam().ok(str(text))) << text;
    EXPECT_TRUE(GetParam().ok(str(std::string(1, '\0'))));
    for (auto const *text : {"\r", "\n", "a\nb", "a\rb", "a\r\n", "\nab"})
        EXPECT_FALSE(GetParam().ok(str(text))) << text;
}

TEST_P(QuotableText, MustBeGiven) {
    EXPECT_ABORT(GetParam().ok(nullptr), "source/quill/quill_" + GetParam().unit, GetParam().parameter);
}

TEST(QuotableString, IsQuotedAndReadBack) {
    struct {
        std::string text;
        std::string quoted;
    } const rows[] = {
        {"", R"("")"},
        {"abc", R"("abc")"},
        {"a b", R"("a b")"},
        {R"(say "hi")", R"("say \"hi\"")"},
        {R"(a\b)", R"("a\\b")"},
        {R"(\)", R"("\\")"},
        {R"(")", R"("\"")"},
        {" ", R"(" ")"},
        {"  ", R"(" \ ")"},
        {"   ", R"(" \  ")"},
        {"    ", R"(" \  \ ")"},
        {"a   b", R"("a \  b")"},
        {"a b  c   d", R"("a b \ c \  d")"},
        {" \t ", "\" \\\t \""},
        {"\t", "\"\\\t\""},
        {"\x01\x1f\x7f", "\"\\\x01\\\x1f\\\x7f\""},
        {std::string(1, '\0'), std::string("\"\\\0\"", 4)},
        {"!#[]~", R"("!#[]~")"},
        {"\u00e9\u0080\u2028\U0001F600", "\"\u00e9\u0080\u2028\U0001F600\""},
    };
    for (auto const &[text, quoted] : rows) {
        EXPECT_EQ(test::taken(quill___QuotableStringEncode(str(text))), quoted);
        EXPECT_EQ(unquoted(quoted), text);
    }
}

TEST(QuotableString, EscapesWhatIsNoPrintableQdtext) {
    for (char32_t ch = 0; ch < 0x180; ch++) {
        if (ch == U'\r' || ch == U'\n') continue;
        bool const isPlain = ch == 32 || ch == 33 || (ch >= 35 && ch <= 91) || (ch >= 93 && ch <= 126) || ch > 127;
        std::u32string const text(1, ch);
        std::u32string const expected = isPlain ? U"\"" + text + U"\"" : U"\"\\" + text + U"\"";
        EXPECT_EQ(test::wide(test::taken(quill___QuotableStringEncode(str(text)))), expected);
    }
}

TEST(QuotableString, CannotHoldALineEnd) {
    for (auto const *text : {"\r", "\n", "a\nb", "a\r\nb", "ab\r"}) {
        EXPECT_ABORT(quill___QuotableStringEncode(str(text)), "source/quill/quill_quotable_string",
                     "backing[i] != CO_CHAR_CARRIAGE_RETURN && backing[i] != CO_CHAR_LINE_FEED");
    }
    EXPECT_ABORT(quill___QuotableStringEncode(nullptr), "source/quill/quill_quotable_string", "quotableString");
}

TEST(QuotableString, IsReadFromOneWholeQuotedString) {
    struct {
        std::string text;
        std::string expected;
        char const *why;
    } const rows[] = {
        {R"("")", "", ""},
        {R"("abc")", "abc", ""},
        {R"( "abc")", "abc", "blanks before"},
        {" \t \"abc\"", "abc", "blanks before"},
        {R"("\a\b\c")", "abc", "escapes of anything"},
        {R"("\\\"")", "\\\"", ""},
        {"\"\x01\x7f\t\"", "\x01\x7f\t", "controls as they are"},
        {"\"\\\u00e9\"", "\u00e9", "escapes of anything"},
        {std::string("\"\0\\\0\"", 5), std::string("\0\0", 2), "zeros too"},
        {"", none, "nothing"},
        {" ", none, "nothing"},
        {"\"", none, "one quote"},
        {" \"", none, "one quote"},
        {"abc", none, "no quotes"},
        {"abc\"", none, "none at the beginning"},
        {R"("ab)", none, "none at the end"},
        {R"("abc" )", none, "blanks behind"},
        {"\"abc\"\t", none, "blanks behind"},
        {R"("abc"d)", none, "text behind"},
        {R"("abc""d")", none, "text behind"},
        {R"("abc"")", none, "a quote behind"},
        {R"("ab\")", none, "the last quote is escaped"},
        {R"("\)", none, "nothing to escape"},
        {R"("\")", none, "the last quote is escaped"},
        {R"("ab\\\")", none, "the last quote is escaped"},
        {"\"a\rb\"", none, "a line end"},
        {"\"a\nb\"", none, "a line end"},
        {"\"a\\\rb\"", none, "an escaped line end"},
        {"\"a\\\nb\"", none, "an escaped line end"},
        {"\"ab\n\"", none, "a line end"},
        {"\r\n \"abc\"", none, "blanks are SP and HTAB"},
        {R"(x"abc")", none, "text before"},
    };
    for (auto const &[text, expected, why] : rows) EXPECT_EQ(unquoted(text), expected) << text << ": " << why;
    EXPECT_EQ(test::taken(quill___QuotableStringTryDecode(nullptr, 0)), none);
}

TEST(QuotableString, IsReadFromATextThatIsThere) {
    EXPECT_ABORT(quill___QuotableStringTryDecode(U"a", -1), "source/quill/quill_quotable_string", "length >= 0");
    EXPECT_ABORT(quill___QuotableStringTryDecode(nullptr, 1), "source/quill/quill_quotable_string",
                 "chs || length == 0");
}

static std::u32string randomText(std::mt19937 &random, std::u32string const &alphabet) {
    std::u32string text(random() % 24, U' ');
    for (char32_t &ch : text) ch = alphabet[random() % alphabet.size()];
    return text;
}

TEST(QuotableString, ComesBack) {
    std::mt19937 random(1);
    std::u32string const alphabet = U"  \t\"\\ab\u00e9\x7f\x01\U0001F600";
    for (int i = 0; i < 5000; i++) {
        std::u32string const text = randomText(random, alphabet);
        co::Ref<coString> const quoted(quill___QuotableStringEncode(str(text)));
        EXPECT_EQ(test::wide(unquoted(test::utf8(quoted.get()))), text);
        EXPECT_EQ(test::wide(displayName(test::utf8(quoted.get()))), text);
    }
}

// Whatever is read is valid and can be written again.
TEST(QuotableString, IsValidWhereItIsRead) {
    std::mt19937 random(2);
    for (int i = 0; i < 20000; i++) {
        std::u32string const inner = randomText(random, U"\"\\ a\n");
        std::u32string const text = U"\"" + inner + U"\"";
        co::Ref<coString> const read(quill___QuotableStringTryDecode(text.data(), static_cast<int64_t>(text.size())));
        if (!read) continue;
        ASSERT_TRUE(quillQuotableStringOk(read.get()));
        EXPECT_EQ(unquoted(test::taken(quill___QuotableStringEncode(read.get()))), test::utf8(read.get()));
    }
}

TEST(DisplayName, IsAlwaysQuoted) {
    EXPECT_EQ(test::taken(quill___DisplayNameEncode(str("Front"))), R"("Front")");
    EXPECT_EQ(test::taken(quill___DisplayNameEncode(str("Front Desk"))), R"("Front Desk")");
    EXPECT_EQ(test::taken(quill___DisplayNameEncode(str(""))), R"("")");
    EXPECT_EQ(test::taken(quill___DisplayNameEncode(str("a  \"b\""))), R"("a \ \"b\"")");
    EXPECT_ABORT(quill___DisplayNameEncode(nullptr), "source/quill/quill_display_name", "displayName");
}

TEST(DisplayName, IsReadFromQuotesOrTokens) {
    struct {
        std::string text;
        std::string expected;
        char const *why;
    } const rows[] = {
        {"", "", "no name"},
        {R"("")", "", "no name"},
        {R"("Front, Lobby")", "Front, Lobby", ""},
        {R"( "Front")", "Front", "blanks before quotes"},
        {R"("a\"b")", "a\"b", ""},
        {"Front", "Front", ""},
        {"Front Desk", "Front Desk", ""},
        {"Front   Desk  ", "Front Desk", "blanks are folded"},
        {"Front\t \tDesk\t", "Front Desk", "tabs too"},
        {"a b c d", "a b c d", ""},
        {"-.!%*_+`'~", "-.!%*_+`'~", "all that tokens hold"},
        {" ", none, "no token"},
        {"\t", none, "no token"},
        {" Front", none, "blanks before the first token"},
        {"Front, Lobby", none, "no tokens"},
        {"Front,", none, "no tokens"},
        {"Front \u00e9", none, "tokens are ASCII"},
        {"\u00e9", none, "tokens are ASCII"},
        {"Front \"Desk\"", none, "one or the other"},
        {"\"Front\" Desk", none, "one or the other"},
        {"\"Front\" ", none, "blanks behind quotes"},
        {"\"Front", none, "not closed"},
        {"Front\r\n", none, "a line end"},
        {"Front <", none, "no tokens"},
        {std::string("Front\0", 6), none, "no terminator either"},
    };
    for (auto const &[text, expected, why] : rows) EXPECT_EQ(displayName(text), expected) << text << ": " << why;
    EXPECT_EQ(test::taken(quill___DisplayNameTryDecode(nullptr, 0)), "");
}

TEST(DisplayName, IsReadFromATextThatIsThere) {
    EXPECT_ABORT(quill___DisplayNameTryDecode(U"a", -1), "source/quill/quill_display_name", "length >= 0");
    EXPECT_ABORT(quill___DisplayNameTryDecode(nullptr, 1), "source/quill/quill_display_name", "chs || length == 0");
}

TEST(DisplayName, IsReadFromManyTokens) {
    std::string tokens;
    std::string expected;
    for (int i = 0; i < 10000; i++) tokens += "a   ", expected += i ? " a" : "a";
    EXPECT_EQ(displayName(tokens), expected);
}

namespace {

// The two header fields that hold free text.
struct FreeText {
    std::string unit;
    std::string condition;
    bool (*ok)(coString const *);
    coString *(*normalize)(coString const *);

    std::string source() const { return "source/quill/quill_" + unit; }
};

void PrintTo(FreeText const &value, std::ostream *out) { *out << value.unit; }

class FreeTextHeader : public testing::TestWithParam<FreeText> {};

INSTANTIATE_TEST_SUITE_P(Each, FreeTextHeader,
                         testing::Values(FreeText{"organization", "quillOrganizationOk( organization )",
                                                  quillOrganizationOk, quillOrganizationNormalize},
                                         FreeText{"subject", "quillSubjectOk( subject )", quillSubjectOk,
                                                  quillSubjectNormalize}),
                         [](auto const &each) { return each.param.unit; });

} // namespace

TEST_P(FreeTextHeader, HoldsTextAndBlanks) {
    struct {
        std::string text;
        std::string normal;
    } const rows[] = {
        {"", ""},
        {" ", ""},
        {" \t ", ""},
        {"North", "North"},
        {"North Shore", "North Shore"},
        {"  North\t Shore ", "North Shore"},
        {"North  Shore", "North Shore"},
        {"North\tShore", "North Shore"},
        {"North ", "North"},
        {"North\t", "North"},
        {" North", "North"},
        {"\tN", "N"},
        {"a b  c\t\td", "a b c d"},
        {"!\"#$%&'()*+,;<=>?@[\\]^`{|}~", "!\"#$%&'()*+,;<=>?@[\\]^`{|}~"},
        {"\u00e9t\u00e9  \U0001F600", "\u00e9t\u00e9 \U0001F600"},
        {"\u0080\u00a0", "\u0080\u00a0"},
    };
    for (auto const &[text, normal] : rows) {
        EXPECT_TRUE(GetParam().ok(str(text))) << text;
        auto const given = str(text);
        co::Ref<coString> const once(GetParam().normalize(given));
        EXPECT_EQ(test::utf8(once.get()), normal) << text;
        EXPECT_EQ(once.get() == given.get(), text == normal) << "shared where it is normal: " << text;
        EXPECT_EQ(test::utf8(given), text);
    }
}

TEST_P(FreeTextHeader, HoldsNoControls) {
    std::string const texts[] = {
        "hello\r\n", "\r\nhello", "hello\rworld",         "hello\nworld",      "\x01", "a\x1f", "a\x7f", "\x7f",
        " \n ",      "a \n",      std::string("a\0b", 3), std::string(1, '\0')};
    for (auto const &text : texts) {
        EXPECT_FALSE(GetParam().ok(str(text))) << text;
        EXPECT_ABORT(GetParam().normalize(str(text)), GetParam().source(), GetParam().condition,
                     GetParam().unit + " invalid");
    }
}

TEST_P(FreeTextHeader, MustBeGiven) {
    EXPECT_ABORT(GetParam().ok(nullptr), GetParam().source(), GetParam().unit);
    EXPECT_ABORT(GetParam().normalize(nullptr), GetParam().source(), GetParam().unit);
}

// By another way: the words, joined.
TEST_P(FreeTextHeader, IsItsWords) {
    std::mt19937 random(3);
    for (int i = 0; i < 5000; i++) {
        std::u32string const text = randomText(random, U"   \tab\u00e9");
        std::u32string expected;
        std::u32string word;
        for (char32_t const ch : text + U" ") {
            if (ch != U' ' && ch != U'\t') {
                word += ch;
            } else if (!word.empty()) {
                expected += (expected.empty() ? U"" : U" ") + word;
                word.clear();
            }
        }
        ASSERT_TRUE(GetParam().ok(str(text)));
        EXPECT_EQ(test::wide(test::taken(GetParam().normalize(str(text)))), expected);
    }
}
