#include "objects.hpp"

#include <support/cost.hpp>

using namespace test;

namespace {

constexpr char unit[] = "source/quill/quill_version";

co::Ref<quillVersion> version(std::string_view name, std::string_view number) {
    return own(quillVersionCreate(str(name), str(number)));
}

std::string text(quillVersion const *version) { return version ? taken(quillVersionToString(version)) : "(null)"; }

std::string decodedVersion(std::string_view utf8) {
    std::u32string const chars = wide(utf8);
    return text(own(quill___VersionTryDecode(chars.data(), static_cast<int64_t>(chars.size()))).get());
}

TEST(QuillVersion, Decodes) {
    struct {
        std::string_view text;
        char const *expected;
        char const *why;
    } const rows[] = {
        {"SIP/2.0", "SIP/2.0", ""},
        {"sip/2.0", "SIP/2.0", "names are kept in upper case"},
        {"SIP / 2.0", "SIP/2.0", "blanks around the slash"},
        {"SIP\t/\t 2.0", "SIP/2.0", "tabs, too"},
        {"SIP \r\n /2.0", "(null)", "texts come unfolded"},
        {"SIP/2.0-RC", "SIP/2.0-rc", "versions are kept in lower case"},
        {"http/1.1", "HTTP/1.1", "any protocol"},
        {"*/*", "*/*", "tokens"},
        {"", "(null)", "empty"},
        {"SIP", "(null)", "no slash"},
        {"SIP/", "(null)", "no version"},
        {"/2.0", "(null)", "no name"},
        {"SIP//2.0", "(null)", "two slashes"},
        {"SIP/2.0 ", "(null)", "something behind"},
        {" SIP/2.0", "(null)", "something in front"},
        {"SIP/2.0/UDP", "(null)", "of a Via value"},
        {"SIP/2,0", "(null)", "no token"},
        {"S\u00CFP/2.0", "(null)", "not ASCII"},
    };
    for (auto const &row : rows) EXPECT_EQ(decodedVersion(row.text), row.expected) << row.text << ": " << row.why;
}

TEST(QuillVersion, DecodingAssertsItsText) {
    EXPECT_ABORT(quill___VersionTryDecode(U"SIP/2.0", -1), unit, "length >= 0");
    EXPECT_ABORT(quill___VersionTryDecode(nullptr, 1), unit, "chs || length == 0");
    EXPECT_EQ(quill___VersionTryDecode(nullptr, 0), nullptr);
}

TEST(QuillVersion, TheCommonOneIsShared) {
    auto const a = sip20();
    auto const b = sip20();
    EXPECT_EQ(a.get(), b.get());
    EXPECT_EQ(a.get(), quill___VersionSip20);
    auto const decoded = own(quill___VersionTryDecode(U"SIP/2.0", 7));
    EXPECT_EQ(decoded.get(), a.get()) << "nothing is allocated";
    EXPECT_TRUE(quillVersionEquals(version("sip", "2.0").get(), a.get()));
}

TEST(QuillVersion, IsSip) {
    struct {
        char const *name;
        char const *number;
        bool isSip;
        bool isSip20;
    } const rows[] = {
        {"SIP", "2.0", true, true},  {"sIp", "2.0", true, true},    {"SIP", "2.00", true, false},
        {"SIP", "3.0", true, false}, {"SIPS", "2.0", false, false}, {"HTTP", "2.0", false, false},
        {"SI", "2.0", false, false},
    };
    for (auto const &row : rows) {
        auto const made = version(row.name, row.number);
        EXPECT_EQ(quillVersionIsSip(made.get()), row.isSip) << row.name;
        EXPECT_EQ(quillVersionIsSip20(made.get()), row.isSip20) << row.name << row.number;
    }
    EXPECT_ABORT(quillVersionIsSip(nullptr), unit, "version");
    EXPECT_ABORT(quillVersionIsSip20(nullptr), unit, "version");
}

TEST(QuillVersion, KeepsNormalForms) {
    auto const made = version("sip", "2.0-BETA");
    EXPECT_EQ(taken(quillVersionProtocolName(made.get())), "SIP");
    EXPECT_EQ(taken(quillVersionProtocolVersion(made.get())), "2.0-beta");
    EXPECT_EQ(text(made.get()), "SIP/2.0-beta");
}

TEST(QuillVersion, SettersCopyOnWrite) {
    auto mine = version("a", "1");
    quillVersion const *before = mine.get();
    quillVersionSetProtocolName(mine.address(), str("b"));
    quillVersionSetProtocolVersion(mine.address(), str("2X"));
    EXPECT_EQ(mine.get(), before) << "nobody else holds it";
    EXPECT_EQ(text(mine.get()), "B/2x");

    for (auto set : {quillVersionSetProtocolName, quillVersionSetProtocolVersion}) {
        co::Ref<quillVersion> const other(co::retained(mine.get()));
        set(mine.address(), str("c"));
        EXPECT_NE(mine.get(), other.get());
        EXPECT_EQ(count(mine.get()), 1);
        EXPECT_EQ(count(other.get()), 1);
        EXPECT_NE(text(mine.get()), text(other.get()));
    }
    EXPECT_EQ(text(mine.get()), "C/c");
    auto shared = sip20();
    quillVersionSetProtocolName(shared.address(), str("x"));
    EXPECT_EQ(text(quill___VersionSip20), "SIP/2.0");
}

TEST(QuillVersion, ComparesNamesThenVersions) {
    struct {
        char const *name;
        char const *number;
    } const ascending[] = {{"A", "1"}, {"A", "2"}, {"A", "2.0"}, {"AB", "1"}, {"B", "0"}};
    for (auto const &a : ascending)
        for (auto const &b : ascending) {
            int const expected = (&a > &b) - (&a < &b);
            int const order = quillVersionCompare(version(a.name, a.number).get(), version(b.name, b.number).get());
            EXPECT_EQ((order > 0) - (order < 0), expected) << a.name << a.number << " " << b.name << b.number;
        }
}

TEST(QuillVersion, Asserts) {
    std::string const name = "quillProtocolNameOk( protocolName )";
    std::string const number = "quillProtocolVersionOk( protocolVersion )";
    EXPECT_ABORT(quillVersionCreate(str(""), str("2.0")), unit, name);
    EXPECT_ABORT(quillVersionCreate(str("S P"), str("")), unit, name);
    EXPECT_ABORT(quillVersionCreate(str("SIP"), str("")), unit, number);
    EXPECT_ABORT(quillVersionCreate(str("SIP"), str("2/0")), unit, number);
    EXPECT_ABORT(quillVersionProtocolName(nullptr), unit, "version");
    EXPECT_ABORT(quillVersionProtocolVersion(nullptr), unit, "version");
    auto made = version("a", "1");
    quillVersion *null = nullptr;
    EXPECT_ABORT(quillVersionSetProtocolName(nullptr, str("")), unit, "version");
    EXPECT_ABORT(quillVersionSetProtocolName(&null, str("")), unit, "*version");
    EXPECT_ABORT(quillVersionSetProtocolName(made.address(), str("")), unit, name);
    EXPECT_ABORT(quillVersionSetProtocolVersion(nullptr, str("")), unit, "version");
    EXPECT_ABORT(quillVersionSetProtocolVersion(&null, str("")), unit, "*version");
    EXPECT_ABORT(quillVersionSetProtocolVersion(made.address(), str("a/b")), unit, number);
    EXPECT_ABORT(quill___VersionEncode(nullptr), unit, "version");
    EXPECT_ABORT(quill___VersionCompareFunc(nullptr, quillVersionObj(made.get())), unit, "versionA");
    EXPECT_ABORT(quill___VersionCompareFunc(quillVersionObj(made.get()), nullptr), unit, "versionB");
}

TEST(QuillVersion, CostIsLinear) {
    for (char const *format : {"A/", "/", " ", "A"})
        expectLinear(format, 20000, [&](size_t n) {
            return [chars = wide(repeated(format, n))] {
                own(quill___VersionTryDecode(chars.data(), static_cast<int64_t>(chars.size())));
            };
        });
}

} // namespace
