#include "objects.hpp"

#include <support/cost.hpp>

using namespace test;

namespace {

constexpr char unit[] = "source/quill/quill_generic_params";

co::Ref<quillGenericParams> params(std::string_view utf8) {
    std::u32string const chars = wide(utf8);
    return own(quill___GenericParamsTryDecode(chars.data(), static_cast<int64_t>(chars.size())));
}

std::string text(quillGenericParams const *params) {
    return params ? taken(quillGenericParamsToString(params)) : "(null)";
}

TEST(QuillGenericParams, Decodes) {
    struct {
        std::string_view text;
        char const *expected;
        char const *why;
    } const rows[] = {
        {"", "", "none at all"},
        {";LR", ";lr", ""},
        {";Transport=TCP", ";transport=TCP", ""},
        {";a=1;A=2", ";a=2", "the last occurrence counts"},
        {";a=1;b=2;A=3;c", ";a=3;b=2;c", "it takes the place of the first one"},
        {" ; a = 1 ;\tb ; c=\"x;y\"", ";a=1;b;c=\"x;y\"", "blanks are read, never written"},
        {";a\r\n ;b", "(null)", "texts come unfolded"},
        {";x=1;", ";x=1", "a semicolon at the end"},
        {";x=1 ; ", ";x=1", "the same with blanks"},
        {";", "", "a semicolon alone"},
        {";maddr=[::1];m2=10.0.0.1", ";maddr=[::1];m2=10.0.0.1", ""},
        {";a=\"\\\"\"", ";a=\"\\\"\"", ""},
        {"x=1", "(null)", "no semicolon"},
        {";x=", "(null)", "no value"},
        {";;", "(null)", "two semicolons"},
        {";;x", "(null)", "the same"},
        {";x;;y", "(null)", "the same within"},
        {";x;;", "(null)", "the same at the end"},
        {";x ", "(null)", "a blank at the end"},
        {";x,", "(null)", "another separator"},
        {";=1", "(null)", "no name"},
        {";a=1 b", "(null)", "no separator"},
        {";a=\"1", "(null)", "no end of the string"},
        {";a=[1]", "(null)", "no address"},
        {" ", "(null)", "a blank"},
    };
    for (auto const &row : rows) EXPECT_EQ(text(params(row.text).get()), row.expected) << row.text << ": " << row.why;
    EXPECT_ABORT(quill___GenericParamsTryDecode(U";", -1), unit, "length >= 0");
    EXPECT_ABORT(quill___GenericParamsTryDecode(nullptr, 1), unit, "chs || length == 0");
    EXPECT_EQ(text(own(quill___GenericParamsTryDecode(nullptr, 0)).get()), "");
    EXPECT_ABORT(quill___GenericParamsEncode(nullptr), unit, "genericParams");
}

TEST(QuillGenericParams, ByPosition) {
    auto const made = params(";B=X;a;c=\"Q\"");
    EXPECT_EQ(quillGenericParamsLength(made.get()), 3);
    EXPECT_EQ(taken(quillGenericParamToString(own(quillGenericParamsParamAt(made.get(), 1)).get())), "a");
    EXPECT_EQ(quillGenericParamsParamValueTypeAt(made.get(), 0), 0);
    EXPECT_EQ(quillGenericParamsParamValueTypeAt(made.get(), 1), -1);
    EXPECT_EQ(quillGenericParamsParamValueTypeAt(made.get(), 2), 2);
    EXPECT_EQ(taken(quillGenericParamsParamValueNormalizedAt(made.get(), 0)), "x");
    EXPECT_EQ(quillGenericParamsParamValueNormalizedAt(made.get(), 1), nullptr);
    EXPECT_EQ(taken(quillGenericParamsParamValueNormalizedAt(made.get(), 2)), "Q");
    EXPECT_EQ(taken(quillGenericParamsParamValueNonNormalizedAt(made.get(), 0)), "X");
    EXPECT_EQ(quillGenericParamsParamValueNonNormalizedAt(made.get(), 1), nullptr);
    for (int64_t index : {-1, 3})
        EXPECT_DEATH(quillGenericParamsParamAt(made.get(), index), "abort: source/co/co_dict");
}

TEST(QuillGenericParams, ByName) {
    auto const made = params(";B=X;a");
    EXPECT_TRUE(quillGenericParamsHasParam(made.get(), str("b")));
    EXPECT_TRUE(quillGenericParamsHasParam(made.get(), str("B")));
    EXPECT_TRUE(quillGenericParamsHasParamCstr(made.get(), "Bx", 1));
    EXPECT_TRUE(quillGenericParamsHasParamWcstr(made.get(), L"A", -1));
    EXPECT_FALSE(quillGenericParamsHasParam(made.get(), str("c")));
    auto const b = own(quillGenericParamsParam(made.get(), str("B")));
    EXPECT_EQ(b.get(), own(quillGenericParamsParamCstr(made.get(), "b", -1)).get());
    EXPECT_EQ(b.get(), own(quillGenericParamsParamWcstr(made.get(), L"bc", 1)).get());
    EXPECT_EQ(quillGenericParamsParam(made.get(), str("c")), nullptr);
    EXPECT_EQ(quillGenericParamsParamValueType(made.get(), str("B")), 0);
    EXPECT_EQ(quillGenericParamsParamValueTypeCstr(made.get(), "a", -1), -1);
    EXPECT_EQ(quillGenericParamsParamValueTypeWcstr(made.get(), L"bc", 1), 0);
    EXPECT_EQ(taken(quillGenericParamsParamValueNormalized(made.get(), str("b"))), "x");
    EXPECT_EQ(taken(quillGenericParamsParamValueNormalizedCstr(made.get(), "b", -1)), "x");
    EXPECT_EQ(quillGenericParamsParamValueNormalizedWcstr(made.get(), L"a", -1), nullptr);
    EXPECT_EQ(taken(quillGenericParamsParamValueNonNormalized(made.get(), str("b"))), "X");
    EXPECT_EQ(taken(quillGenericParamsParamValueNonNormalizedCstr(made.get(), "b", -1)), "X");
    EXPECT_EQ(taken(quillGenericParamsParamValueNonNormalizedWcstr(made.get(), L"b", -1)), "X");
    for (auto get : {quillGenericParamsParamValueNormalized, quillGenericParamsParamValueNonNormalized})
        EXPECT_DEATH(get(made.get(), str("c")), "abort: source/quill/quill_generic_param");
    EXPECT_DEATH(quillGenericParamsParamValueType(made.get(), str("c")), "abort: source/quill/quill_generic_param");
}

TEST(QuillGenericParams, SettersCopyOnWrite) {
    struct {
        char const *why;
        void (*change)(quillGenericParams **);
        char const *expected;
    } const rows[] = {
        {"set another",
         [](quillGenericParams **p) { quillGenericParamsSetParam(p, own(quillGenericParamCreate(str("N"))).get()); },
         ";a=1;b;n"},
        {"replace",
         [](quillGenericParams **p) { quillGenericParamsSetParam(p, own(quillGenericParamCreate(str("A"))).get()); },
         ";a;b"},
        {"set a value", [](quillGenericParams **p) { quillGenericParamsSetParamValue(p, str("B"), 0, str("X")); },
         ";a=1;b=X"},
        {"set a value, UTF-8",
         [](quillGenericParams **p) { quillGenericParamsSetParamValueCstr(p, "BC", 1, 2, "X", -1); }, ";a=1;b=\"X\""},
        {"set a value, wide",
         [](quillGenericParams **p) { quillGenericParamsSetParamValueWcstr(p, L"c", -1, 0, L"XY", 1); }, ";a=1;b;c=X"},
        {"delete", [](quillGenericParams **p) { quillGenericParamsDelParam(p, str("A")); }, ";b"},
        {"delete, UTF-8", [](quillGenericParams **p) { quillGenericParamsDelParamCstr(p, "BC", 1); }, ";a=1"},
        {"delete, wide", [](quillGenericParams **p) { quillGenericParamsDelParamWcstr(p, L"a", -1); }, ";b"},
        {"delete what is not there", [](quillGenericParams **p) { quillGenericParamsDelParam(p, str("x")); }, ";a=1;b"},
        {"all",
         [](quillGenericParams **p) {
             auto const all = own(quillGenericParamsParamsVector(params(";x=1;y;z=[::1]").get()));
             quillGenericParamsSetParamsVector(p, all.get());
         },
         ";x=1;y;z=[::1]"},
        {"all: none", [](quillGenericParams **p) { quillGenericParamsSetParamsVector(p, own(coVectorCreate()).get()); },
         ""},
    };
    for (auto const &row : rows) {
        auto alone = params(";a=1;b");
        quillGenericParams const *before = alone.get();
        row.change(alone.address());
        EXPECT_EQ(alone.get(), before) << row.why;
        EXPECT_EQ(text(alone.get()), row.expected) << row.why;

        auto mine = params(";a=1;b");
        co::Ref<quillGenericParams> const holder(co::retained(mine.get()));
        auto const copy = own(quillGenericParamsCreateFrom(mine.get()));
        row.change(mine.address());
        EXPECT_NE(mine.get(), holder.get()) << row.why;
        EXPECT_EQ(text(mine.get()), row.expected) << row.why;
        EXPECT_EQ(text(holder.get()), ";a=1;b") << row.why;
        EXPECT_EQ(text(copy.get()), ";a=1;b") << row.why << ": the shared dictionary is not changed";
    }
}

TEST(QuillGenericParams, AllAtOnce) {
    auto made = params(";b=1;a");
    auto all = own(quillGenericParamsParamsVector(made.get()));
    EXPECT_EQ(taken(coVectorToString(all.get())), "[b=1, a]");
    EXPECT_EQ(count(all.get()), 1) << "a new vector";
    coVectorAppend(all.address(), quillGenericParamObj(own(quillGenericParamCreate(str("B"))).get()));
    quillGenericParamsSetParamsVector(made.address(), all.get());
    EXPECT_EQ(text(made.get()), ";b;a") << "the later one of a name counts";
    coVectorAppendString(all.address(), str("x"));
    EXPECT_ABORT(quillGenericParamsSetParamsVector(made.address(), all.get()), unit, "gp");
}

// For as many as stand in the object, as stand beside it, and as are hashed, and one more of each.
TEST(QuillGenericParams, OfEachLength) {
    for (int64_t length : {1, 4, 5, 8, 9, 100}) {
        std::string whole;
        std::string odd;
        for (int64_t i = 0; i < length; i++) {
            std::string const piece = ";p" + std::to_string(i) + "=V" + std::to_string(i);
            whole += piece;
            if (i % 2 != 0) odd += piece;
        }
        auto mine = params(whole);
        co::Ref<quillGenericParams> const holder(co::retained(mine.get()));
        for (int64_t i = 0; i < length; i += 2) {
            auto const last = own(quillGenericParamsParamAt(holder.get(), i));
            auto const name = own(quillGenericParamName(last.get()));
            quillGenericParamsDelParam(mine.address(), name.get());
            EXPECT_FALSE(quillGenericParamsHasParam(mine.get(), name.get()));
            EXPECT_TRUE(quillGenericParamsHasParam(holder.get(), name.get()));
        }
        EXPECT_EQ(text(mine.get()), odd);
        EXPECT_EQ(text(holder.get()), whole);
        EXPECT_EQ(quillGenericParamsLength(mine.get()), length / 2);
        for (int64_t i = 0; i < length / 2; i++)
            EXPECT_EQ(taken(quillGenericParamsParamValueNonNormalizedAt(mine.get(), i)),
                      "V" + std::to_string(2 * i + 1));
        quillGenericParamsSetParamsVector(mine.address(), own(quillGenericParamsParamsVector(holder.get())).get());
        EXPECT_TRUE(quillGenericParamsEquals(mine.get(), holder.get()));
    }
}

TEST(QuillGenericParams, KeepsTheParameterThatIsSet) {
    auto made = params(";a=1");
    auto param = own(quillGenericParamCreate(str("A")));
    quillGenericParamsSetParam(made.address(), param.get());
    EXPECT_EQ(own(quillGenericParamsParamAt(made.get(), 0)).get(), param.get());
    quillGenericParamSetName(param.address(), str("b"));
    EXPECT_EQ(text(made.get()), ";a") << "what the caller makes of it later is another one";
    auto const value = str("Text");
    quillGenericParamsSetParamValue(made.address(), str("c"), 2, value);
    EXPECT_EQ(own(quillGenericParamsParamValueNonNormalized(made.get(), str("c"))).get(), value.get());
}

TEST(QuillGenericParams, Compares) {
    EXPECT_TRUE(quillGenericParamsEquals(params(";a=X;b").get(), params(";B;A=x").get()));
    EXPECT_FALSE(quillGenericParamsEquals(params(";a=\"X\"").get(), params(";a=\"x\"").get()));
    char const *const ascending[] = {"", ";a", ";a=1", ";a=2", ";a;b", ";b"};
    for (char const *const &a : ascending)
        for (char const *const &b : ascending) {
            int const order = quillGenericParamsCompare(params(a).get(), params(b).get());
            EXPECT_EQ((order > 0) - (order < 0), (&a > &b) - (&a < &b)) << a << " " << b;
        }
    auto const made = params("");
    EXPECT_ABORT(quill___GenericParamsCompareFunc(nullptr, quillGenericParamsObj(made.get())), unit, "genericParamsA");
    EXPECT_ABORT(quill___GenericParamsCompareFunc(quillGenericParamsObj(made.get()), nullptr), unit, "genericParamsB");
}

TEST(QuillGenericParams, Asserts) {
    auto made = params(";a");
    quillGenericParams *null = nullptr;
    std::string const name = "quillTokenOk( token )";
    std::string const tokenUnit = "source/quill/quill_token";
    EXPECT_ABORT(quillGenericParamsLength(nullptr), unit, "params");
    EXPECT_ABORT(quillGenericParamsParamsVector(nullptr), unit, "params");
    EXPECT_ABORT(quillGenericParamsParamAt(nullptr, 0), unit, "params");
    EXPECT_ABORT(quillGenericParamsParam(nullptr, str("a")), unit, "params");
    EXPECT_ABORT(quillGenericParamsHasParam(nullptr, str("a")), unit, "params");
    EXPECT_ABORT(quillGenericParamsParam(made.get(), str("")), tokenUnit, name);
    EXPECT_ABORT(quillGenericParamsHasParam(made.get(), str("a b")), tokenUnit, name);
    EXPECT_ABORT(quillGenericParamsDelParam(made.address(), str("a b")), tokenUnit, name);
    EXPECT_ABORT(quillGenericParamsSetParamsVector(nullptr, nullptr), unit, "params");
    EXPECT_ABORT(quillGenericParamsSetParamsVector(&null, nullptr), unit, "*params");
    EXPECT_ABORT(quillGenericParamsSetParam(nullptr, nullptr), unit, "params");
    EXPECT_ABORT(quillGenericParamsSetParam(&null, nullptr), unit, "*params");
    EXPECT_ABORT(quillGenericParamsSetParam(made.address(), nullptr), unit, "param");
    EXPECT_ABORT(quillGenericParamsDelParam(nullptr, str("a")), unit, "params");
    EXPECT_ABORT(quillGenericParamsDelParam(&null, str("a")), unit, "*params");
    EXPECT_ABORT(quillGenericParamsSetParamValue(nullptr, str("a"), 0, str("a")), unit, "params");
    EXPECT_ABORT(quillGenericParamsSetParamValue(&null, str("a"), 0, str("a")), unit, "*params");
    EXPECT_ABORT(quillGenericParamsSetParamValue(made.address(), str(""), 0, str("a")),
                 "source/quill/quill_generic_param", "quillGenericParamNameOk( name )");
    EXPECT_ABORT(quillGenericParamsSetParamValue(made.address(), str("a"), 0, str("")),
                 "source/quill/quill_generic_param", "quillGenericParamValueOk( type, value )");
}

TEST(QuillGenericParams, CostIsLinear) {
    for (std::string_view piece : {";a=1", ";", " ", ";a=\"x\"", ";a=[::1]", "; ", ";a = ", ";a=\"", "\r\n ", ";a=["})
        expectLinear(std::string(piece), 8000, [&](size_t n) {
            return [chars = wide(repeated(piece, n))] {
                own(quill___GenericParamsTryDecode(chars.data(), static_cast<int64_t>(chars.size())));
            };
        });
    expectLinear("many names", 2000, [&](size_t n) {
        std::string text;
        for (size_t i = 0; i < n; i++) text += ";p" + std::to_string(i) + "=1";
        return [chars = wide(text)] {
            auto const params = own(quill___GenericParamsTryDecode(chars.data(), static_cast<int64_t>(chars.size())));
            taken(quillGenericParamsToString(params.get()));
            EXPECT_TRUE(quillGenericParamsEquals(params.get(), own(quillGenericParamsCreateFrom(params.get())).get()));
        };
    });
}

} // namespace
