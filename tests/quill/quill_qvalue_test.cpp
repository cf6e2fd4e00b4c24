// Weights in thousandths, as text and back.
#include <quill/quill_internal.h>
#include <quill/quill_qvalue.h>
#include <support/text.hpp>

static int64_t decode(std::string const &text) {
    std::u32string const chars = test::wide(text);
    return quill___QvalueTryDecode(chars.data(), static_cast<int64_t>(chars.size()));
}

TEST(Qvalue, IsWrittenWithThreeDecimals) {
    struct {
        int64_t qvalue;
        char const *expected;
    } const rows[] = {{0, "0.000"},   {1, "0.001"},   {7, "0.007"},   {10, "0.010"},  {99, "0.099"},
                      {100, "0.100"}, {123, "0.123"}, {500, "0.500"}, {999, "0.999"}, {1000, "1.000"}};
    for (auto const &[qvalue, expected] : rows) EXPECT_EQ(test::taken(quill___QvalueEncode(qvalue)), expected);
}

TEST(Qvalue, IsRead) {
    struct {
        std::string text;
        int64_t expected;
        char const *why;
    } const rows[] = {
        {"", 0, "no text counts as zero"},
        {"0", 0, ""},
        {"1", 1000, ""},
        {"0.", 0, "decimals may be missing"},
        {"1.", 1000, "decimals may be missing"},
        {"0.5", 500, ""},
        {"0.05", 50, ""},
        {"0.005", 5, ""},
        {"0.50", 500, ""},
        {"0.500", 500, ""},
        {"0.123", 123, ""},
        {"0.999", 999, ""},
        {"0.000", 0, ""},
        {"1.0", 1000, ""},
        {"1.00", 1000, ""},
        {"1.000", 1000, ""},
        {"1.5", -1, "more than one"},
        {"1.001", -1, "more than one"},
        {"1.01", -1, "more than one"},
        {"0.1234", -1, "a fourth decimal"},
        {"0.0000", -1, "a fourth decimal"},
        {"1.0000", -1, "a fourth decimal"},
        {"2", -1, "more than one"},
        {"9", -1, "more than one"},
        {"00", -1, "one digit before the dot"},
        {"01", -1, "one digit before the dot"},
        {"10", -1, "one digit before the dot"},
        {"00.5", -1, "one digit before the dot"},
        {".", -1, "a digit before the dot"},
        {".5", -1, "a digit before the dot"},
        {"0,5", -1, "a dot"},
        {"0.5 ", -1, "no blanks"},
        {" 0.5", -1, "no blanks"},
        {"-0.5", -1, "no sign"},
        {"+1", -1, "no sign"},
        {"0.a", -1, "digits"},
        {"0.5a", -1, "digits"},
        {"0..5", -1, "digits"},
        {"0.:", -1, "the neighbour of 9"},
        {"0./", -1, "the neighbour of 0"},
        {"1./", -1, "the neighbour of 0"},
        {"\u0660", -1, "no other digits"},
        {"0.\u0665", -1, "no other digits"},
        {std::string("0\0", 2), -1, "no terminator either"},
        {std::string("0.5\0", 4), -1, "no terminator either"},
    };
    for (auto const &[text, expected, why] : rows) EXPECT_EQ(decode(text), expected) << text << ": " << why;
    EXPECT_EQ(quill___QvalueTryDecode(nullptr, 0), 0);
}

TEST(Qvalue, IsReadBackEachOfThem) {
    for (int64_t qvalue = 0; qvalue <= 1000; qvalue++)
        EXPECT_EQ(decode(test::taken(quill___QvalueEncode(qvalue))), qvalue);
}

TEST(Qvalue, MustBeValidToBeWritten) {
    for (int64_t const wrong : {INT64_MIN, int64_t{-1}, int64_t{1001}, INT64_MAX})
        EXPECT_ABORT(quill___QvalueEncode(wrong), "source/quill/quill_qvalue", "quillQvalueOk( qvalue )");
}

TEST(Qvalue, IsReadFromATextThatIsThere) {
    EXPECT_ABORT(quill___QvalueTryDecode(U"1", -1), "source/quill/quill_qvalue", "length >= 0");
    EXPECT_ABORT(quill___QvalueTryDecode(nullptr, 1), "source/quill/quill_qvalue", "chs || length == 0");
}
