// The values that are integers within a range: the range, their decimal text, and back.
#include <ostream>
#include <quill/quill_cseq.h>
#include <quill/quill_delta_seconds.h>
#include <quill/quill_diversion_counter.h>
#include <quill/quill_diversion_limit.h>
#include <quill/quill_internal.h>
#include <quill/quill_max_forwards.h>
#include <quill/quill_port.h>
#include <quill/quill_qvalue.h>
#include <quill/quill_response_num.h>
#include <quill/quill_status_code.h>
#include <quill/quill_ttl.h>
#include <quill/quill_warn_code.h>
#include <support/text.hpp>
#include <vector>

namespace {

struct Value {
    std::string unit;
    bool (*ok)(int64_t);
    int64_t least;
    int64_t most;
    std::string condition = {};
    coString *(*encode)(int64_t) = nullptr;
    int64_t (*decode)(coChar const *, int64_t) = nullptr;
};

void PrintTo(Value const &value, std::ostream *out) { *out << value.unit; }

std::vector<Value> ranges() {
    return {
        {"cseq", quillCseqOk, 0, 2147483647},
        {"max_forwards", quillMaxForwardsOk, 0, 255},
        {"response_num", quillResponseNumOk, 1, 4294967295},
        {"qvalue", quillQvalueOk, 0, 1000},
        {"status_code", quillStatusCodeOk, 100, 999},
        {"warn_code", quillWarnCodeOk, 0, 999},
    };
}

std::vector<Value> decimals() {
    return {
        {"ttl", quillTtlOk, 0, 255, "quillTtlOk( ttl )", quill___TtlEncode, quill___TtlTryDecode},
        {"port", quillPortOk, 0, INT64_MAX, "quillPortOk( port )", quill___PortEncode, quill___PortTryDecode},
        {"delta_seconds", quillDeltaSecondsOk, 0, INT64_MAX, "quillDeltaSecondsOk( deltaSeconds )",
         quill___DeltaSecondsEncode, quill___DeltaSecondsTryDecode},
        {"diversion_counter", quillDiversionCounterOk, 0, 99, "quillDiversionCounterOk( diversionCounter )",
         quill___DiversionCounterEncode, quill___DiversionCounterTryDecode},
        {"diversion_limit", quillDiversionLimitOk, 0, 99, "quillDiversionLimitOk( diversionLimit )",
         quill___DiversionLimitEncode, quill___DiversionLimitTryDecode},
    };
}

std::vector<Value> all() {
    std::vector<Value> values = ranges();
    for (Value const &value : decimals()) values.push_back(value);
    return values;
}

class IntegerValue : public testing::TestWithParam<Value> {};
class DecimalValue : public testing::TestWithParam<Value> {
protected:
    int64_t decode(std::string const &text) const {
        std::u32string const chars = test::wide(text);
        return GetParam().decode(chars.data(), static_cast<int64_t>(chars.size()));
    }
    std::string source() const { return "source/quill/quill_" + GetParam().unit; }
};

auto const nameOf = [](auto const &each) { return each.param.unit; };
INSTANTIATE_TEST_SUITE_P(Each, IntegerValue, testing::ValuesIn(all()), nameOf);
INSTANTIATE_TEST_SUITE_P(Each, DecimalValue, testing::ValuesIn(decimals()), nameOf);

} // namespace

TEST_P(IntegerValue, HasItsRange) {
    auto const &[unit, ok, least, most, condition, encode, decode] = GetParam();
    EXPECT_TRUE(ok(least));
    EXPECT_TRUE(ok(least + 1));
    EXPECT_TRUE(ok(most - 1));
    EXPECT_TRUE(ok(most));
    EXPECT_FALSE(ok(least - 1));
    EXPECT_FALSE(ok(-1));
    EXPECT_FALSE(ok(INT64_MIN));
    EXPECT_FALSE(ok(INT64_MIN + 1));
    EXPECT_EQ(ok(INT64_MAX), most == INT64_MAX);
    if (most < INT64_MAX) {
        EXPECT_FALSE(ok(most + 1));
        EXPECT_FALSE(ok(INT64_MIN + most)) << "the high bit counts";
        EXPECT_FALSE(ok((int64_t{1} << 32) + most));
    }
}

TEST(Port, HasNoUpperBound) {
    EXPECT_TRUE(quillPortOk(65536));
    EXPECT_TRUE(quillPortOk(70000));
    EXPECT_FALSE(quillPortOk(-1));
}

TEST_P(DecimalValue, IsWrittenInDecimal) {
    auto const &[unit, ok, least, most, condition, encode, decode] = GetParam();
    EXPECT_EQ(test::taken(encode(0)), "0");
    EXPECT_EQ(test::taken(encode(7)), "7");
    EXPECT_EQ(test::taken(encode(42)), "42");
    EXPECT_EQ(test::taken(encode(most)), std::to_string(most));
}

TEST_P(DecimalValue, IsReadBack) {
    int64_t const most = GetParam().most;
    for (int64_t const value : {int64_t{0}, int64_t{1}, int64_t{9}, int64_t{10}, int64_t{99}, most / 2, most - 1, most})
        EXPECT_EQ(decode(test::taken(GetParam().encode(value))), value);
}

TEST_P(DecimalValue, IsReadFromDigitsAlone) {
    struct {
        std::string text;
        int64_t expected;
        char const *why;
    } const rows[] = {
        {"", -1, "no digit"},
        {"00", 0, "leading zeros are fine"},
        {"007", 7, "leading zeros are fine"},
        {"00000000000000000000000000000000000000000042", 42, "any number of them"},
        {"-0", 0, "minus zero is zero"},
        {"-1", -1, "negative"},
        {"-7", -1, "negative"},
        {"-", -1, "no digit"},
        {"--7", -1, "one sign"},
        {"+7", -1, "no plus"},
        {" 7", -1, "no blanks"},
        {"7 ", -1, "no blanks"},
        {"7\t", -1, "no blanks"},
        {"7a", -1, "no letters"},
        {"a", -1, "no letters"},
        {"0x7", -1, "decimal"},
        {"7.0", -1, "an integer"},
        {"7,", -1, "nothing behind"},
        {std::string("7\0", 2), -1, "no terminator either"},
        {"\u0667", -1, "no other digits"},
        {"\uff17", -1, "no other digits"},
        {"9223372036854775808", -1, "beyond 64 bits"},
        {"-9223372036854775808", -1, "the least of 64 bits"},
        {"-9223372036854775809", -1, "below 64 bits"},
        {"18446744073709551616", -1, "would wrap to 0"},
        {"18446744073709551623", -1, "would wrap to 7"},
        {std::string(1000, '9'), -1, "far beyond"},
    };
    for (auto const &[text, expected, why] : rows) EXPECT_EQ(decode(text), expected) << text << ": " << why;
}

TEST_P(DecimalValue, IsReadWithinItsRangeOnly) {
    int64_t const most = GetParam().most;
    EXPECT_EQ(decode(std::to_string(most)), most);
    EXPECT_EQ(decode(std::to_string(static_cast<uint64_t>(most) + 1)), -1);
}

TEST_P(DecimalValue, TakesNoTextAtAllAsNone) { EXPECT_EQ(GetParam().decode(nullptr, 0), -1); }

TEST_P(DecimalValue, MustBeValidToBeWritten) {
    EXPECT_ABORT(GetParam().encode(-1), source(), GetParam().condition);
    EXPECT_ABORT(GetParam().encode(INT64_MIN), source(), GetParam().condition);
    if (GetParam().most < INT64_MAX) {
        EXPECT_ABORT(GetParam().encode(GetParam().most + 1), source(), GetParam().condition);
    }
}

TEST_P(DecimalValue, IsReadFromATextThatIsThere) {
    EXPECT_ABORT(GetParam().decode(U"1", -1), source(), "length >= 0");
    EXPECT_ABORT(GetParam().decode(nullptr, 1), source(), "chs || length == 0");
}

TEST(ResponseNum, CanBeIncrementedUpToTheLast) {
    EXPECT_TRUE(quillResponseNumIncrementOk(1));
    EXPECT_TRUE(quillResponseNumIncrementOk(4294967293));
    EXPECT_TRUE(quillResponseNumIncrementOk(4294967294));
    EXPECT_FALSE(quillResponseNumIncrementOk(4294967295));
    for (int64_t const wrong : {INT64_MIN, int64_t{-1}, int64_t{0}, int64_t{4294967296}, INT64_MAX})
        EXPECT_ABORT(quillResponseNumIncrementOk(wrong), "source/quill/quill_response_num",
                     "quillResponseNumOk( responseNum )");
}
