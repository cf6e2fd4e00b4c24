// Codes of warnings: their texts, and decimal text. The range: quill_integer_values_test.cpp.
#include <map>
#include <quill/quill_internal.h>
#include <quill/quill_warn_code.h>
#include <support/text.hpp>

static std::map<int64_t, std::string> const texts = {
    {300, "Incompatible network protocol"},   {301, "Incompatible network address formats"},
    {302, "Incompatible transport protocol"}, {303, "Incompatible bandwidth units"},
    {304, "Media type not available"},        {305, "Incompatible media format"},
    {306, "Attribute not understood"},        {307, "Session description parameter not understood"},
    {330, "Multicast not available"},         {331, "Unicast not available"},
    {370, "Insufficient bandwidth"},          {399, "Miscellaneous warning"},
};

static int64_t decode(std::u32string_view text) {
    return quill___WarnCodeDecode(text.data(), static_cast<int64_t>(text.size()));
}

TEST(WarnCode, HasItsText) {
    ASSERT_EQ(texts.size(), 12u);
    for (auto const &[code, text] : texts) EXPECT_EQ(test::taken(quillWarnCodeToString(code)), text);
}

TEST(WarnCode, NamesItselfInThreeDigitsWhereItHasNone) {
    for (int64_t code = 0; code <= 999; code++) {
        if (texts.contains(code)) continue;
        std::string const digits = std::to_string(1000 + code).substr(1);
        EXPECT_EQ(test::taken(quillWarnCodeToString(code)), "Warning \"" + digits + "\"");
    }
    EXPECT_EQ(test::taken(quillWarnCodeToString(0)), "Warning \"000\"");
    EXPECT_EQ(test::taken(quillWarnCodeToString(7)), "Warning \"007\"");
}

TEST(WarnCode, IsWrittenWithoutPadding) {
    EXPECT_EQ(test::taken(quill___WarnCodeEncode(0)), "0");
    EXPECT_EQ(test::taken(quill___WarnCodeEncode(7)), "7");
    EXPECT_EQ(test::taken(quill___WarnCodeEncode(42)), "42");
    EXPECT_EQ(test::taken(quill___WarnCodeEncode(399)), "399");
    EXPECT_EQ(test::taken(quill___WarnCodeEncode(999)), "999");
}

TEST(WarnCode, IsReadFromItsDigits) {
    EXPECT_EQ(decode(U"000"), 0);
    EXPECT_EQ(decode(U"007"), 7);
    EXPECT_EQ(decode(U"399"), 399);
    EXPECT_EQ(decode(U"999"), 999);
}

TEST(WarnCode, IsOnlyReadFromWhatIsScanned) {
    for (auto const *text : {U"", U"a", U"39a", U"399 ", U" 399", U"+39", U"9223372036854775808"})
        EXPECT_ABORT(decode(text), "source/quill/quill_warn_code",
                     "coFormatTryDecodeIntChars( chs, length, 10, &result, &charsRead ) && charsRead == length");
}

TEST(WarnCode, MustBeValid) {
    for (int64_t const wrong : {INT64_MIN, int64_t{-1}, int64_t{1000}, INT64_MAX}) {
        EXPECT_ABORT(quillWarnCodeToString(wrong), "source/quill/quill_warn_code", "quillWarnCodeOk( warnCode )");
        EXPECT_ABORT(quill___WarnCodeEncode(wrong), "source/quill/quill_warn_code", "quillWarnCodeOk( warnCode )");
    }
}
