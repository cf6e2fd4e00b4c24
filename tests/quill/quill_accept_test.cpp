#include "objects.hpp"

#include <quill/quill_accept.h>
#include <support/cost.hpp>

using namespace test;

namespace {

constexpr char unit[] = "source/quill/quill_accept";

co::Ref<quillAccept> accept(std::string_view utf8) {
    std::u32string const chars = wide(utf8);
    return own(quill___AcceptTryDecode(chars.data(), static_cast<int64_t>(chars.size())));
}

std::string text(quillAccept const *accept) { return accept ? taken(quillAcceptToString(accept)) : "(null)"; }

co::Ref<quillGenericParams> params(std::string_view utf8) {
    std::u32string const chars = wide(utf8);
    return own(quill___GenericParamsTryDecode(chars.data(), static_cast<int64_t>(chars.size())));
}

TEST(QuillAccept, CreatesTheWildcard) {
    auto const made = own(quillAcceptCreate());
    EXPECT_EQ(quillAcceptMediaType(made.get()), nullptr);
    EXPECT_EQ(quillAcceptMediaSubtype(made.get()), nullptr);
    EXPECT_EQ(quillAcceptQvalue(made.get()), -1);
    EXPECT_FALSE(quillAcceptHasMediaType(made.get()));
    EXPECT_FALSE(quillAcceptHasMediaSubtype(made.get()));
    EXPECT_FALSE(quillAcceptHasQvalue(made.get()));
    EXPECT_EQ(quillGenericParamsLength(own(quillAcceptGenericParams(made.get())).get()), 0);
    EXPECT_EQ(text(made.get()), "*/*");
}

TEST(QuillAccept, DecodesAndEncodes) {
    struct {
        std::string_view text;
        char const *expected;
        char const *why;
    } const rows[] = {
        {"text/plain", "text/plain", ""},
        {"TEXT/Plain", "text/plain", "lower case"},
        {"*/*", "*/*", ""},
        {"text/*", "text/*", ""},
        {"*/plain", "*/*", "the subtype is kept, but not written without a type"},
        {"text / plain", "text/plain", "blanks around the slash"},
        {"**/x", "**/x", "a token that is not just an asterisk"},
        {"text/plain;q=1", "text/plain;q=1.000", "three decimals"},
        {"text/plain;Q=0.5", "text/plain;q=0.500", "the name in any letter case"},
        {"text/plain;q=1.", "text/plain;q=1.000", "no decimal after the point"},
        {"text/plain ; q = 0.25 ; a=B", "text/plain;q=0.250;a=B", "blanks"},
        {"text/plain;a=b;q=0.1;c", "text/plain;q=0.100;a=b;c", "the q-value comes first"},
        {"text/plain;q=0.1;q=0.2", "text/plain;q=0.200", "the last one counts"},
        {"text/plain;q=2", "text/plain;q=2", "no q-value, but a generic parameter"},
        {"text/plain;q", "text/plain;q", "the same"},
        {"text/plain;q=\"1\"", "text/plain;q=\"1\"", "the same"},
        {"text/plain;q=2;q=1", "text/plain;q=1.000", "the q-value wins over a parameter of its name"},
        {"text/plain;qx=1", "text/plain;qx=1", "another name"},
        {"text/plain;level=1", "text/plain;level=1", ""},
        {"", "(null)", ""},
        {"text", "(null)", "no slash"},
        {"text/", "(null)", "no subtype"},
        {"/plain", "(null)", "no type"},
        {"*", "(null)", "no slash"},
        {"*/", "(null)", "no subtype"},
        {"text/plain;", "(null)", "a semicolon at the end"},
        {"text/plain;;a", "(null)", "two semicolons"},
        {"text/plain a", "(null)", "something behind"},
        {"text/plain ", "(null)", "a blank behind"},
        {" text/plain", "(null)", "a blank in front"},
        {"text/plain,text/html", "(null)", "two of them"},
        {"text/plain;q=1.5", "(null)", "only 1. is a q-value, which has to be followed by a semicolon"},
        {"text/plain;q=0.1234", "(null)", "four decimals"},
        {"text/plain;q=0.5 ", "(null)", "a blank behind"},
        {"text/plain;q=", "(null)", "no value"},
        {"text/plain;q=0x", "(null)", "more than a q-value"},
        {"t\u00E9xt/plain", "(null)", "not ASCII"},
    };
    for (auto const &row : rows) EXPECT_EQ(text(accept(row.text).get()), row.expected) << row.text << ": " << row.why;
    auto const star = accept("*/plain");
    EXPECT_FALSE(quillAcceptHasMediaType(star.get()));
    EXPECT_EQ(taken(quillAcceptMediaSubtype(star.get())), "plain");
    EXPECT_ABORT(quill___AcceptTryDecode(U"a", -1), unit, "length >= 0");
    EXPECT_ABORT(quill___AcceptTryDecode(nullptr, 1), unit, "chs || length == 0");
    EXPECT_EQ(quill___AcceptTryDecode(nullptr, 0), nullptr);
    EXPECT_ABORT(quill___AcceptEncode(nullptr), unit, "accept");
}

TEST(QuillAccept, EncodingLeavesTheParametersAlone) {
    auto made = accept("text/plain;q=2;a");
    quillAcceptSetQvalue(made.address(), 7);
    EXPECT_EQ(text(made.get()), "text/plain;q=0.007;a");
    EXPECT_EQ(taken(quillGenericParamsToString(own(quillAcceptGenericParams(made.get())).get())), ";q=2;a");
    quillAcceptDelQvalue(made.address());
    EXPECT_EQ(text(made.get()), "text/plain;q=2;a");
}

TEST(QuillAccept, SettersCopyOnWrite) {
    struct {
        char const *why;
        void (*change)(quillAccept **);
        char const *expected;
    } const rows[] = {
        {"type", [](quillAccept **a) { quillAcceptSetMediaType(a, str("AUDIO")); }, "audio/plain;q=0.500;a"},
        {"no type", [](quillAccept **a) { quillAcceptDelMediaType(a); }, "*/*;q=0.500;a"},
        {"subtype", [](quillAccept **a) { quillAcceptSetMediaSubtype(a, str("HTML")); }, "text/html;q=0.500;a"},
        {"no subtype", [](quillAccept **a) { quillAcceptDelMediaSubtype(a); }, "text/*;q=0.500;a"},
        {"q-value", [](quillAccept **a) { quillAcceptSetQvalue(a, 0); }, "text/plain;q=0.000;a"},
        {"no q-value", [](quillAccept **a) { quillAcceptDelQvalue(a); }, "text/plain;a"},
        {"parameters", [](quillAccept **a) { quillAcceptSetGenericParams(a, params(";b=1").get()); },
         "text/plain;q=0.500;b=1"},
    };
    for (auto const &row : rows) {
        auto alone = accept("text/plain;q=0.5;a");
        quillAccept const *before = alone.get();
        row.change(alone.address());
        EXPECT_EQ(alone.get(), before) << row.why;
        EXPECT_EQ(text(alone.get()), row.expected) << row.why;

        auto mine = accept("text/plain;q=0.5;a");
        co::Ref<quillAccept> const other(co::retained(mine.get()));
        row.change(mine.address());
        EXPECT_NE(mine.get(), other.get()) << row.why;
        EXPECT_EQ(count(other.get()), 1) << row.why;
        EXPECT_EQ(text(mine.get()), row.expected) << row.why;
        EXPECT_EQ(text(other.get()), "text/plain;q=0.500;a") << row.why;
    }
}

TEST(QuillAccept, DeletingWhatIsAbsentCopiesAllTheSame) {
    for (auto del : {quillAcceptDelMediaType, quillAcceptDelMediaSubtype, quillAcceptDelQvalue}) {
        auto mine = own(quillAcceptCreate());
        quillAccept const *before = mine.get();
        del(mine.address());
        EXPECT_EQ(mine.get(), before);
        co::Ref<quillAccept> const other(co::retained(mine.get()));
        del(mine.address());
        EXPECT_NE(mine.get(), other.get());
        EXPECT_TRUE(quillAcceptEquals(mine.get(), other.get()));
    }
}

TEST(QuillAccept, GettersGiveReferences) {
    auto made = accept("text/plain;q=1;a");
    auto const type = own(quillAcceptMediaType(made.get()));
    EXPECT_EQ(count(type.get()), 1) << "a text that was read is made for whoever asks";
    quillAcceptSetMediaType(made.address(), type.get());
    EXPECT_EQ(own(quillAcceptMediaType(made.get())).get(), type.get()) << "one that was set is kept";
    EXPECT_EQ(count(type.get()), 2);
    auto const generic = own(quillAcceptGenericParams(made.get()));
    EXPECT_EQ(count(generic.get()), 1) << "parameters that were read, too";
    quillAcceptSetGenericParams(made.address(), generic.get());
    EXPECT_EQ(own(quillAcceptGenericParams(made.get())).get(), generic.get());
    EXPECT_EQ(count(generic.get()), 2);
    EXPECT_TRUE(quillAcceptHasMediaType(made.get()));
    EXPECT_TRUE(quillAcceptHasMediaSubtype(made.get()));
    EXPECT_TRUE(quillAcceptHasQvalue(made.get()));
    EXPECT_EQ(quillAcceptQvalue(made.get()), 1000);
}

TEST(QuillAccept, ComparesTypeSubtypeQvalueParameters) {
    char const *const ascending[] = {
        "*/*",           "*/*;a",           "*/*;q=0",         "*/*;q=0.5;a",   "*/*;q=0.501", "*/x",
        "audio/*;q=1;z", "audio/basic;q=1", "audio/c;q=0.1;z", "audio/c;q=0.2", "text/*",
    };
    for (char const *const &a : ascending)
        for (char const *const &b : ascending) {
            int const order = quillAcceptCompare(accept(a).get(), accept(b).get());
            EXPECT_EQ((order > 0) - (order < 0), (&a > &b) - (&a < &b)) << a << " " << b;
        }
    auto const absent = own(quillAcceptCreate());
    auto const present = accept("a/*");
    EXPECT_EQ(quillAcceptCompare(absent.get(), present.get()), -1);
    EXPECT_EQ(quillAcceptCompare(present.get(), absent.get()), 1);
    EXPECT_TRUE(quillAcceptEquals(accept("TEXT/x;a=B").get(), accept("text/X;A=b").get()));
    EXPECT_ABORT(quill___AcceptCompareFunc(nullptr, quillAcceptObj(absent.get())), unit, "acceptA");
    EXPECT_ABORT(quill___AcceptCompareFunc(quillAcceptObj(absent.get()), nullptr), unit, "acceptB");
}

TEST(QuillAccept, Asserts) {
    quillAccept *null = nullptr;
    auto made = own(quillAcceptCreate());
    EXPECT_ABORT(quillAcceptMediaType(nullptr), unit, "accept");
    EXPECT_ABORT(quillAcceptHasMediaType(nullptr), unit, "accept");
    EXPECT_ABORT(quillAcceptMediaSubtype(nullptr), unit, "accept");
    EXPECT_ABORT(quillAcceptHasMediaSubtype(nullptr), unit, "accept");
    EXPECT_ABORT(quillAcceptGenericParams(nullptr), unit, "accept");
    EXPECT_ABORT(quillAcceptQvalue(nullptr), unit, "accept");
    EXPECT_ABORT(quillAcceptHasQvalue(nullptr), unit, "accept");
    EXPECT_ABORT(quillAcceptSetMediaType(nullptr, str("")), unit, "accept");
    EXPECT_ABORT(quillAcceptSetMediaType(&null, str("")), unit, "*accept");
    EXPECT_ABORT(quillAcceptSetMediaType(made.address(), str("*")), unit, "quillMediaTypeOk( mediaType )");
    EXPECT_ABORT(quillAcceptSetMediaSubtype(nullptr, str("")), unit, "accept");
    EXPECT_ABORT(quillAcceptSetMediaSubtype(&null, str("")), unit, "*accept");
    EXPECT_ABORT(quillAcceptSetMediaSubtype(made.address(), str("")), unit, "quillMediaSubtypeOk( mediaSubtype )");
    EXPECT_ABORT(quillAcceptSetGenericParams(nullptr, nullptr), unit, "accept");
    EXPECT_ABORT(quillAcceptSetGenericParams(&null, nullptr), unit, "*accept");
    EXPECT_ABORT(quillAcceptSetGenericParams(made.address(), nullptr), unit, "genericParams");
    EXPECT_ABORT(quillAcceptSetQvalue(nullptr, -1), unit, "accept");
    EXPECT_ABORT(quillAcceptSetQvalue(&null, -1), unit, "*accept");
    for (int64_t qvalue : {-1, 1001})
        EXPECT_ABORT(quillAcceptSetQvalue(made.address(), qvalue), unit, "quillQvalueOk( qvalue )");
    for (auto del : {quillAcceptDelMediaType, quillAcceptDelMediaSubtype, quillAcceptDelQvalue}) {
        EXPECT_ABORT(del(nullptr), unit, "accept");
        EXPECT_ABORT(del(&null), unit, "*accept");
    }
}

TEST(QuillAccept, CostIsLinear) {
    for (std::string_view piece : {";a=1", ";q=1", "; ", ";q=", ";qa", " "})
        expectLinear(std::string(piece), 8000, [&](size_t n) {
            return [chars = wide("a/b" + repeated(piece, n))] {
                own(quill___AcceptTryDecode(chars.data(), static_cast<int64_t>(chars.size())));
            };
        });
}

} // namespace
