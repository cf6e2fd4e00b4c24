#include "values.hpp"

using namespace test;

namespace {

using Warning = struct quillWarningValue;

TEST(QuillWarningValue, CreatesWithTheTextOfTheCode) {
    auto const warning = own(quillWarningValueCreate(300, str("h:5060")));
    EXPECT_EQ(quillWarningValueWarnCode(warning.get()), 300);
    EXPECT_EQ(taken(quillWarningValueWarnAgent(warning.get())), "h:5060");
    EXPECT_EQ(taken(quillWarningValueWarnText(warning.get())), "Incompatible network protocol");
    EXPECT_EQ(text(warning), "300 h:5060 \"Incompatible network protocol\"");
    EXPECT_EQ(text(own(quillWarningValueCreate(398, str("h")))), "398 h \"Warning \\\"398\\\"\"") << "no known code";
    EXPECT_EQ(text(own(quillWarningValueCreate(7, str("h")))), "7 h \"Warning \\\"007\\\"\"")
        << "the code itself without leading zeros";
}

TEST(QuillWarningValue, CreatesWithAText) {
    EXPECT_EQ(text(own(quillWarningValueCreateWithWarnText(999, str("[::1]"), str("a \u00E9")))),
              "999 [::1] \"a \u00E9\"");
}

TEST(QuillWarningValue, DecodesAndEncodes) {
    expectCoded<Warning>({
        {"307 isi.edu \"Session parameter 'foo' not understood\"",
         "307 isi.edu \"Session parameter 'foo' not understood\"", ""},
        {"301\t isi.edu:5060  \"a\"", "301 isi.edu:5060 \"a\"", "blanks"},
        {"301 _pseudonym! \"\"", "301 _pseudonym! \"\"", "a pseudonym, an empty text"},
        {"301 [2001:DB8::1]:1 \"\\\"\u00E9\"", "301 [2001:DB8::1]:1 \"\\\"\u00E9\"", "as given"},
        {"000 h \"a\"", "0 h \"a\"", "a code is a number"},
        {"301 h \"a\" x", "301 h \"a\"", "what follows the text is not looked at"},
        {"301 h \"a\"\"b\"", "301 h \"a\"", "the same"},
        {"301 h \"a\";\r\n\u00E9,", "301 h \"a\"", "the same"},
    });
    auto const warning = decode<Warning>("307 isi.edu \"a \\\\b\"");
    EXPECT_EQ(quillWarningValueWarnCode(warning.get()), 307);
    EXPECT_EQ(taken(quillWarningValueWarnAgent(warning.get())), "isi.edu");
    EXPECT_EQ(taken(quillWarningValueWarnText(warning.get())), "a \\b");
}

TEST(QuillWarningValue, Refuses) {
    expectRefused<Warning>({
        {"", "nothing"},
        {"301", "no agent"},
        {"301 h", "no text"},
        {"301 h ", "no text"},
        {"301 \"a\"", "no agent"},
        {"301 h\"a\"", "no blank before the text"},
        {"301 h a", "no quotes"},
        {"301 h \"a", "an open quote"},
        {"301 h:x \"a\"", "no port"},
        {"301 h: \"a\"", "no port"},
        {"301 pseudo!nym \"a\"", "what begins as a host is none"},
        {"30 h \"a\"", "two digits"},
        {"3010 h \"a\"", "four digits"},
        {"x01 h \"a\"", "no digits"},
        {" 301 h \"a\"", "a blank in front"},
        {"301 \u00E9 \"a\"", "no agent"},
        {"301 h \"a\r\"", "a line end"},
    });
}

TEST(QuillWarningValue, ChangesInPlaceOrOnACopy) {
    std::vector<Change<Warning>> const changes{
        {"code", [](Warning **warning) { quillWarningValueSetWarnCode(warning, 999); }, "999 h \"a\""},
        {"agent", [](Warning **warning) { quillWarningValueSetWarnAgent(warning, str("G:1")); }, "301 G:1 \"a\""},
        {"text", [](Warning **warning) { quillWarningValueSetWarnText(warning, str("")); }, "301 h \"\""},
    };
    expectChanges("301 h \"a\"", changes);
}

TEST(QuillWarningValue, Compares) {
    expectAscending<Warning>(
        {"000 z \"z\"", "100 z \"z\"", "200 a \"z\"", "200 b \"\"", "200 b \"a\"", "200 b \"b\"", "200 c \"a\""});
    EXPECT_TRUE(areEqual<Warning>("301 h \"a\"", "301  h \"\\a\""));
    EXPECT_FALSE(areEqual<Warning>("301 h \"a\"", "301 H \"a\""));
}

TEST(QuillWarningValue, Asserts) {
    constexpr auto &unit = ValueFunctions<Warning>::unit;
    auto const warning = decode<Warning>("301 h \"a\"");
    Preconditions<Warning> const preconditions{"warningValue"};
    preconditions.ofSort(warning.get());
    preconditions.ofAll(quillWarningValueWarnCode, quillWarningValueWarnAgent, quillWarningValueWarnText);
    Str const good = str("h"), blank = str("a b"), lineEnd = str("\n");
    preconditions.ofSetter(quillWarningValueSetWarnCode, 1, warning.get(), {-1, 1000}, "quillWarnCodeOk( warnCode )");
    preconditions.ofSetter(quillWarningValueSetWarnAgent, good, warning.get(), {blank},
                           "quillWarnAgentOk( warnAgent )");
    preconditions.ofSetter(quillWarningValueSetWarnText, good, warning.get(), {lineEnd}, "quillWarnTextOk( warnText )");
    EXPECT_ABORT(quillWarningValueCreate(-1, good), unit, "quillWarnCodeOk( warnCode )");
    EXPECT_ABORT(quillWarningValueCreate(1, blank), unit, "quillWarnAgentOk( warnAgent )");
    EXPECT_ABORT(quillWarningValueCreateWithWarnText(1000, good, good), unit, "quillWarnCodeOk( warnCode )");
    EXPECT_ABORT(quillWarningValueCreateWithWarnText(1, blank, good), unit, "quillWarnAgentOk( warnAgent )");
    EXPECT_ABORT(quillWarningValueCreateWithWarnText(1, good, lineEnd), unit, "quillWarnTextOk( warnText )");
}

} // namespace
