// Privacy, reason and screen of a diversion, as text and back. Which texts are valid: quill_token_values_test.cpp;
// counter and limit: quill_integer_values_test.cpp.
#include <ostream>
#include <quill/quill_internal.h>
#include <support/text.hpp>

using test::str;

namespace {

struct Value {
    std::string unit;
    std::string parameter;
    coString *(*encode)(coString *);
    coString *(*tryDecode)(coChar const *, int64_t);

    std::string source() const { return "source/quill/quill_" + unit; }
    std::string decode(std::string const &text) const {
        std::u32string const chars = test::wide(text);
        return test::taken(tryDecode(chars.data(), static_cast<int64_t>(chars.size())));
    }
};

void PrintTo(Value const &value, std::ostream *out) { *out << value.unit; }

class DiversionValue : public testing::TestWithParam<Value> {};

INSTANTIATE_TEST_SUITE_P(Each, DiversionValue,
                         testing::Values(Value{"diversion_privacy", "diversionPrivacy", quill___DiversionPrivacyEncode,
                                               quill___DiversionPrivacyTryDecode},
                                         Value{"diversion_reason", "diversionReason", quill___DiversionReasonEncode,
                                               quill___DiversionReasonTryDecode},
                                         Value{"diversion_screen", "diversionScreen", quill___DiversionScreenEncode,
                                               quill___DiversionScreenTryDecode}),
                         [](auto const &each) { return each.param.unit; });

} // namespace

TEST_P(DiversionValue, IsWrittenAsItIsWhereItIsAToken) {
    for (auto const *text : {"full", "OFF", "user-busy", "x.y"}) {
        auto const value = str(text);
        co::Ref<coString> const encoded(GetParam().encode(value));
        EXPECT_EQ(encoded.get(), value.get()) << text;
    }
}

TEST_P(DiversionValue, IsQuotedWhereItIsNot) {
    EXPECT_EQ(test::taken(GetParam().encode(str("a b"))), R"("a b")");
    EXPECT_EQ(test::taken(GetParam().encode(str(""))), R"("")");
    EXPECT_EQ(test::taken(GetParam().encode(str("\u00e9"))), "\"\u00e9\"");
    EXPECT_EQ(test::taken(GetParam().encode(str(R"("a")"))), R"("\"a\"")") << "a text in quotes is quoted once more";
}

TEST_P(DiversionValue, IsReadFromATokenOrQuotes) {
    struct {
        std::string text;
        std::string expected;
        char const *why;
    } const rows[] = {
        {"full", "full", ""},
        {"FULL", "FULL", "its letter case stays"},
        {R"("A b")", "A b", ""},
        {R"("full")", "full", ""},
        {R"("")", "", ""},
        {R"( "a")", "a", "blanks before quotes"},
        {R"("a\"b")", "a\"b", ""},
        {"", "(null)", "nothing"},
        {"a b", "(null)", "two tokens"},
        {" a", "(null)", "no blanks before a token"},
        {"a ", "(null)", "no blanks behind"},
        {R"("a" )", "(null)", "no blanks behind"},
        {R"("a)", "(null)", "not closed"},
        {R"("a"b)", "(null)", "text behind"},
        {"\"a\nb\"", "(null)", "a line end"},
        {"\u00e9", "(null)", "tokens are ASCII"},
        {"a;b", "(null)", "no token"},
    };
    for (auto const &[text, expected, why] : rows) EXPECT_EQ(GetParam().decode(text), expected) << text << ": " << why;
    EXPECT_EQ(GetParam().tryDecode(nullptr, 0), nullptr);
}

TEST_P(DiversionValue, ComesBack) {
    for (auto const *text : {"full", "a b", "", "\u00e9", "\"a\"", "a\\b", "a  b"})
        EXPECT_EQ(GetParam().decode(test::taken(GetParam().encode(str(text)))), text);
}

TEST_P(DiversionValue, MustBeOfOneLineToBeWritten) {
    EXPECT_ABORT(GetParam().encode(str("a\nb")), "source/quill/quill_quotable_string",
                 "backing[i] != CO_CHAR_CARRIAGE_RETURN && backing[i] != CO_CHAR_LINE_FEED");
    EXPECT_ABORT(GetParam().encode(nullptr), GetParam().source(), GetParam().parameter);
}

TEST_P(DiversionValue, IsReadFromATextThatIsThere) {
    EXPECT_ABORT(GetParam().tryDecode(U"a", -1), GetParam().source(), "length >= 0");
    EXPECT_ABORT(GetParam().tryDecode(nullptr, 1), GetParam().source(), "chs || length == 0");
}
