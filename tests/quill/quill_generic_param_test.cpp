#include "objects.hpp"

#include <quill/quill_generic_param_name.h>
#include <support/cost.hpp>

using namespace test;

namespace {

constexpr char unit[] = "source/quill/quill_generic_param";
constexpr char valueUnit[] = "source/quill/quill_generic_param_value";

constexpr int64_t token = QUILL_GENERIC_PARAM_VALUE_TYPE_TOKEN;
constexpr int64_t host = QUILL_GENERIC_PARAM_VALUE_TYPE_HOST;
constexpr int64_t quoted = QUILL_GENERIC_PARAM_VALUE_TYPE_QUOTED_STRING;

co::Ref<quillGenericParam> param(std::string_view name) { return own(quillGenericParamCreate(str(name))); }

co::Ref<quillGenericParam> param(std::string_view name, int64_t type, std::string_view value) {
    return own(quillGenericParamCreateWithValue(str(name), type, str(value)));
}

std::string text(quillGenericParam const *param) { return taken(quillGenericParamToString(param)); }
std::string value(quillGenericParam const *param) { return taken(quillGenericParamValueNonNormalized(param)); }

co::Ref<quillGenericParam> decodedParam(std::string_view utf8) {
    std::u32string const chars = wide(utf8);
    return own(quill___GenericParamTryDecode(chars.data(), static_cast<int64_t>(chars.size())));
}

TEST(QuillGenericParam, ValueTypes) {
    EXPECT_EQ(token, 0);
    EXPECT_EQ(host, 1);
    EXPECT_EQ(quoted, 2);
    EXPECT_FALSE(QUILL_GENERIC_PARAM_VALUE_TYPE_OK(-1));
    EXPECT_FALSE(QUILL_GENERIC_PARAM_VALUE_TYPE_OK(3));
}

TEST(QuillGenericParam, Names) {
    for (char const *name : {"a", "A", "a-b.c!%*_+`'~", "0"}) EXPECT_TRUE(quillGenericParamNameOk(str(name))) << name;
    for (char const *name : {"", " ", "a b", "a=b", "a;", "\"a\"", "\u00E4"})
        EXPECT_FALSE(quillGenericParamNameOk(str(name))) << name;
    EXPECT_EQ(taken(quillGenericParamNameNormalize(str("MiXed-1"))), "mixed-1");
    EXPECT_TRUE(quillGenericParamNameOkCstr("a b", 1));
    EXPECT_FALSE(quillGenericParamNameOkCstr("a b", -1));
    EXPECT_TRUE(quillGenericParamNameOkWcstr(L"a b", 1));
    EXPECT_FALSE(quillGenericParamNameOkWcstr(L"a b", -1));
    EXPECT_EQ(taken(quillGenericParamNameNormalizeCstr("AB", 1)), "a");
    EXPECT_EQ(taken(quillGenericParamNameNormalizeWcstr(L"AB", -1)), "ab");
    EXPECT_ABORT(quillGenericParamNameOk(nullptr), "source/quill/quill_generic_param_name", "name");
    EXPECT_ABORT(quillGenericParamNameNormalize(str("")), "source/quill/quill_token", "quillTokenOk( token )");
}

TEST(QuillGenericParam, Values) {
    struct {
        int64_t type;
        char const *value;
        bool ok;
        char const *normal;
    } const rows[] = {
        {token, "TCP", true, "tcp"},
        {token, "1.5", true, "1.5"},
        {token, "", false, ""},
        {token, "a b", false, ""},
        {token, "[::1]", false, ""},
        {host, "Example.COM", true, "Example.COM"},
        {host, "192.0.2.1", true, "192.0.2.1"},
        {host, "[2001:DB8::1]", true, "[2001:DB8::1]"},
        {host, "a b", false, ""},
        {host, "", false, ""},
        {quoted, "", true, ""},
        {quoted, "A b \"c\" \\", true, "A b \"c\" \\"},
        {quoted, "a\rb", false, ""},
        {quoted, "a\nb", false, ""},
    };
    for (auto const &row : rows) {
        EXPECT_EQ(quillGenericParamValueOk(row.type, str(row.value)), row.ok) << row.type << row.value;
        EXPECT_EQ(quillGenericParamValueOkCstr(row.type, row.value, -1), row.ok) << row.type << row.value;
        if (!row.ok) continue;
        EXPECT_EQ(taken(quillGenericParamValueNormalize(row.type, str(row.value))), row.normal);
    }
    Str const same = str("A b");
    co::Ref<coString> const normal(quillGenericParamValueNormalize(quoted, same));
    EXPECT_EQ(normal.get(), same.get());
    EXPECT_TRUE(quillGenericParamValueOkWcstr(token, L"a b", 1));
    EXPECT_EQ(taken(quillGenericParamValueNormalizeCstr(token, "AB", 1)), "a");
    EXPECT_EQ(taken(quillGenericParamValueNormalizeWcstr(token, L"AB", -1)), "ab");
    for (int64_t type : {-1, 3}) {
        EXPECT_ABORT(quillGenericParamValueOk(type, nullptr), valueUnit, "QUILL_GENERIC_PARAM_VALUE_TYPE_OK( type )");
        EXPECT_ABORT(quillGenericParamValueNormalize(type, str("a")), valueUnit,
                     "QUILL_GENERIC_PARAM_VALUE_TYPE_OK( type )");
    }
    EXPECT_ABORT(quillGenericParamValueOk(token, nullptr), valueUnit, "value");
    EXPECT_ABORT(quillGenericParamValueNormalize(quoted, nullptr), valueUnit, "value");
    EXPECT_ABORT(quillGenericParamValueNormalize(token, str("")), "source/quill/quill_token", "quillTokenOk( token )");
}

TEST(QuillGenericParam, Creates) {
    auto const bare = param("LR");
    EXPECT_EQ(taken(quillGenericParamName(bare.get())), "lr");
    EXPECT_FALSE(quillGenericParamHasValue(bare.get()));
    EXPECT_EQ(quillGenericParamValueType(bare.get()), -1);
    EXPECT_EQ(quillGenericParamValueNormalized(bare.get()), nullptr);
    EXPECT_EQ(quillGenericParamValueNonNormalized(bare.get()), nullptr);
    EXPECT_EQ(text(bare.get()), "lr");

    auto const valued = param("Transport", token, "TCP");
    EXPECT_TRUE(quillGenericParamHasValue(valued.get()));
    EXPECT_EQ(quillGenericParamValueType(valued.get()), token);
    EXPECT_EQ(value(valued.get()), "TCP");
    EXPECT_EQ(taken(quillGenericParamValueNormalized(valued.get())), "tcp");
    EXPECT_EQ(text(valued.get()), "transport=TCP");

    EXPECT_EQ(text(own(quillGenericParamCreateCstr("AB", 1)).get()), "a");
    EXPECT_EQ(text(own(quillGenericParamCreateWcstr(L"AB", -1)).get()), "ab");
    EXPECT_EQ(text(own(quillGenericParamCreateWithValueCstr("AB", 1, quoted, "x yz", 3)).get()), "a=\"x y\"");
    EXPECT_EQ(text(own(quillGenericParamCreateWithValueWcstr(L"AB", -1, token, L"XY", 1)).get()), "ab=X");
}

TEST(QuillGenericParam, Encodes) {
    EXPECT_EQ(text(param("a", host, "[::1]").get()), "a=[::1]");
    EXPECT_EQ(text(param("a", host, "b\u00FCcher.example").get()), "a=xn--bcher-kva.example");
    EXPECT_EQ(text(param("a", quoted, "").get()), "a=\"\"");
    EXPECT_EQ(text(param("a", quoted, "x \"y\"\\").get()), "a=\"x \\\"y\\\"\\\\\"");
    EXPECT_ABORT(quill___GenericParamEncode(nullptr), unit, "genericParam");
}

TEST(QuillGenericParam, Decodes) {
    struct {
        std::string_view text;
        char const *name;
        int64_t type;
        char const *value;
        char const *why;
    } const rows[] = {
        {"LR", "lr", -1, "(null)", ""},
        {"Transport=TCP", "transport", token, "TCP", "the value stays as given"},
        {"a = b", "a", token, "b", "blanks around the sign"},
        {"a\t=\t b", "a", token, "b", "tabs, too"},
        {"maddr=10.0.0.1", "maddr", token, "10.0.0.1", "a token is tried first"},
        {"maddr=[::1]", "maddr", host, "[::1]", "what is no token"},
        {"a=\"\"", "a", quoted, "", "empty"},
        {"a=\"X y\"", "a", quoted, "X y", ""},
        {"a= \"\\\"\\\\\"", "a", quoted, "\"\\", "escapes"},
        {"a=\"\u00E4\"", "a", quoted, "\u00E4", ""},
    };
    for (auto const &row : rows) {
        auto const decoded = decodedParam(row.text);
        ASSERT_TRUE(decoded) << row.text;
        EXPECT_EQ(taken(quillGenericParamName(decoded.get())), row.name);
        EXPECT_EQ(quillGenericParamValueType(decoded.get()), row.type) << row.text;
        EXPECT_EQ(value(decoded.get()), row.value) << row.text << row.why;
    }
    for (std::string_view text :
         {"",         " a",     "a ",       "=",           "a=",      "a==b",     "=b",       "a=b c",
          "a=b;c",    "a b",    "a=[::1",   "a=[::1]x",    "a=\"b",   "a=\"b\"c", "a=\"b\" ", "a=b\"c\"",
          "a=\r\n b", "\u00E4", "a=\u00E4", "a=[1.2.3.4]", "a=[:::]", "a=\"b\\",  "a=\"b\\\""})
        EXPECT_FALSE(decodedParam(text)) << text;
    EXPECT_ABORT(quill___GenericParamTryDecode(U"a", -1), unit, "length >= 0");
    EXPECT_ABORT(quill___GenericParamTryDecode(nullptr, 1), unit, "chs || length == 0");
    EXPECT_EQ(quill___GenericParamTryDecode(nullptr, 0), nullptr);
}

TEST(QuillGenericParam, SettersCopyOnWrite) {
    struct {
        char const *why;
        void (*change)(quillGenericParam **);
        char const *expected;
    } const rows[] = {
        {"name", [](quillGenericParam **p) { quillGenericParamSetName(p, str("NEW")); }, "new=Old"},
        {"name, UTF-8", [](quillGenericParam **p) { quillGenericParamSetNameCstr(p, "NEWER", 3); }, "new=Old"},
        {"name, wide", [](quillGenericParam **p) { quillGenericParamSetNameWcstr(p, L"NEW", -1); }, "new=Old"},
        {"value", [](quillGenericParam **p) { quillGenericParamSetValue(p, host, str("[::1]")); }, "a=[::1]"},
        {"value, UTF-8", [](quillGenericParam **p) { quillGenericParamSetValueCstr(p, quoted, "x", -1); }, "a=\"x\""},
        {"value, wide", [](quillGenericParam **p) { quillGenericParamSetValueWcstr(p, token, L"xyz", 2); }, "a=xy"},
        {"no value", [](quillGenericParam **p) { quillGenericParamDelValue(p); }, "a"},
        {"normal value", [](quillGenericParam **p) { quillGenericParamNormalizeValue(p); }, "a=old"},
    };
    for (auto const &row : rows) {
        auto alone = param("a", token, "Old");
        quillGenericParam const *before = alone.get();
        row.change(alone.address());
        EXPECT_EQ(alone.get(), before) << row.why;
        EXPECT_EQ(text(alone.get()), row.expected) << row.why;

        auto mine = param("a", token, "Old");
        co::Ref<quillGenericParam> const other(co::retained(mine.get()));
        row.change(mine.address());
        EXPECT_NE(mine.get(), other.get()) << row.why;
        EXPECT_EQ(count(other.get()), 1) << row.why;
        EXPECT_EQ(text(mine.get()), row.expected) << row.why;
        EXPECT_EQ(text(other.get()), "a=Old") << row.why;
    }
}

TEST(QuillGenericParam, WithoutValueThereIsNothingToDeleteOrNormalize) {
    auto mine = param("a");
    co::Ref<quillGenericParam> const other(co::retained(mine.get()));
    quillGenericParamNormalizeValue(mine.address());
    EXPECT_EQ(mine.get(), other.get()) << "no effect at all";
    quillGenericParamDelValue(mine.address());
    EXPECT_NE(mine.get(), other.get()) << "the copy is made all the same";
    EXPECT_EQ(text(mine.get()), "a");
}

TEST(QuillGenericParam, Compares) {
    auto const none = param("b");
    auto const small = param("b", token, "x");
    auto const large = param("B", token, "X");
    EXPECT_TRUE(quillGenericParamEquals(small.get(), large.get())) << "letter case of tokens does not count";
    EXPECT_FALSE(quillGenericParamEquals(param("b", quoted, "x").get(), param("b", quoted, "X").get()));
    EXPECT_FALSE(quillGenericParamEquals(param("b", host, "x").get(), param("b", host, "X").get()));
    EXPECT_TRUE(quillGenericParamEquals(none.get(), param("B").get()));

    co::Ref<quillGenericParam> const ascending[] = {
        param("a", quoted, "z"), param("b"),
        param("b", token, "x"),  param("b", token, "Y"),
        param("b", host, "a"),   param("b", host, "b"),
        param("b", quoted, ""),  param("b", quoted, "A"),
        param("b", quoted, "a"), param("c"),
    };
    for (auto const &a : ascending)
        for (auto const &b : ascending) {
            int const order = quillGenericParamCompare(a.get(), b.get());
            EXPECT_EQ((order > 0) - (order < 0), (&a > &b) - (&a < &b)) << text(a.get()) << " " << text(b.get());
        }
    coObj const *obj = quillGenericParamObj(none.get());
    EXPECT_ABORT(quill___GenericParamCompareFunc(nullptr, obj), unit, "genericParamA");
    EXPECT_ABORT(quill___GenericParamCompareFunc(obj, nullptr), unit, "genericParamB");
}

TEST(QuillGenericParam, Asserts) {
    std::string const name = "quillGenericParamNameOk( name )";
    std::string const ok = "quillGenericParamValueOk( type, value )";
    EXPECT_ABORT(quillGenericParamCreate(str("")), unit, name);
    EXPECT_ABORT(quillGenericParamCreate(nullptr), "source/quill/quill_generic_param_name", "name");
    EXPECT_ABORT(quillGenericParamCreateWithValue(str("a b"), 9, str("")), unit, name);
    EXPECT_ABORT(quillGenericParamCreateWithValue(str("a"), token, str("")), unit, ok);
    EXPECT_ABORT(quillGenericParamCreateWithValue(str("a"), 9, str("a")), valueUnit,
                 "QUILL_GENERIC_PARAM_VALUE_TYPE_OK( type )");
    EXPECT_ABORT(quillGenericParamCreateWithValue(str("a"), token, nullptr), valueUnit, "value");
    EXPECT_ABORT(quillGenericParamName(nullptr), unit, "param");
    EXPECT_ABORT(quillGenericParamHasValue(nullptr), unit, "param");
    EXPECT_ABORT(quillGenericParamValueType(nullptr), unit, "param");
    EXPECT_ABORT(quillGenericParamValueNormalized(nullptr), unit, "param");
    EXPECT_ABORT(quillGenericParamValueNonNormalized(nullptr), unit, "param");
    quillGenericParam *null = nullptr;
    auto made = param("a");
    EXPECT_ABORT(quillGenericParamSetName(nullptr, str("")), unit, "param");
    EXPECT_ABORT(quillGenericParamSetName(&null, str("")), unit, "*param");
    EXPECT_ABORT(quillGenericParamSetName(made.address(), str("")), unit, name);
    EXPECT_ABORT(quillGenericParamSetValue(nullptr, 9, nullptr), unit, "param");
    EXPECT_ABORT(quillGenericParamSetValue(&null, 9, nullptr), unit, "*param");
    EXPECT_ABORT(quillGenericParamSetValue(made.address(), host, str("a b")), unit, ok);
    EXPECT_ABORT(quillGenericParamSetValue(made.address(), quoted, str("\n")), unit, ok);
    EXPECT_ABORT(quillGenericParamDelValue(nullptr), unit, "param");
    EXPECT_ABORT(quillGenericParamDelValue(&null), unit, "*param");
    EXPECT_ABORT(quillGenericParamNormalizeValue(nullptr), unit, "param");
    EXPECT_ABORT(quillGenericParamNormalizeValue(&null), unit, "*param");
}

// What was read stands behind the object, and a copy has its own: neither sees what becomes of the other.
TEST(QuillGenericParam, CopiesOfWhatWasReadStandAlone) {
    auto read = decodedParam("Name=Value");
    auto copy = own(quillGenericParamCreateFrom(read.get()));
    quillGenericParamSetName(read.address(), str("N"));
    quillGenericParamSetValue(read.address(), quoted, str("V"));
    EXPECT_EQ(text(read.get()), "n=\"V\"");
    EXPECT_EQ(text(copy.get()), "name=Value");
    read.reset(nullptr);
    EXPECT_EQ(text(copy.get()), "name=Value");
    quillGenericParamNormalizeValue(copy.address());
    EXPECT_EQ(text(copy.get()), "name=value");
    quillGenericParamDelValue(copy.address());
    EXPECT_EQ(text(copy.get()), "name");
}

TEST(QuillGenericParam, KeepsTheStringsThatAreSet) {
    auto const name = str("name");
    auto const text = str("A value");
    auto const created = own(quillGenericParamCreateWithValue(name, quoted, text));
    EXPECT_EQ(own(quillGenericParamName(created.get())).get(), name.get());
    EXPECT_EQ(own(quillGenericParamValueNonNormalized(created.get())).get(), text.get());
    EXPECT_EQ(own(quillGenericParamValueNormalized(created.get())).get(), text.get());
}

TEST(QuillGenericParam, CreatesOfTextsWhatItCreatesOfStrings) {
    struct {
        int64_t type;
        char const *value;
    } const rows[] = {
        {token, "A-1"}, {host, "[::1]"}, {host, "b\u00FCcher.example"}, {quoted, ""}, {quoted, "a \"b\""}};
    for (auto const &row : rows) {
        auto const of = own(quillGenericParamCreateWithValueCstr("Name", -1, row.type, row.value, -1));
        auto const same = param("Name", row.type, row.value);
        EXPECT_TRUE(quillGenericParamEquals(of.get(), same.get()));
        EXPECT_EQ(quillGenericParamValueType(of.get()), row.type);
        EXPECT_EQ(taken(quillGenericParamName(of.get())), "name");
        EXPECT_EQ(value(of.get()), row.value);
        EXPECT_EQ(text(of.get()), text(same.get()));
        EXPECT_TRUE(quillGenericParamHasValue(of.get()));
    }
    EXPECT_ABORT(quillGenericParamCreateWithValueCstr("a b", -1, 9, "", -1), unit, "quillGenericParamNameOk( name )");
    EXPECT_ABORT(quillGenericParamCreateWithValueCstr("a", -1, token, "", -1), unit,
                 "quillGenericParamValueOk( type, value )");
    EXPECT_ABORT(quillGenericParamCreateWithValueWcstr(L"a", -1, 9, L"a", -1), valueUnit,
                 "QUILL_GENERIC_PARAM_VALUE_TYPE_OK( type )");
}

TEST(QuillGenericParam, CostIsLinear) {
    for (std::string_view piece : {"a", "=", "a=", "a=\"", "a.", "\\", "[:", ":"})
        expectLinear("a=" + std::string(piece), 20000, [&](size_t n) {
            return [chars = wide("a=" + repeated(piece, n)), quoted = wide("a=\"" + repeated(piece, n) + "\"")] {
                own(quill___GenericParamTryDecode(chars.data(), static_cast<int64_t>(chars.size())));
                own(quill___GenericParamTryDecode(quoted.data(), static_cast<int64_t>(quoted.size())));
            };
        });
}

} // namespace
