#include <algorithm>
#include <co/co_string.hpp>
#include <gtest/gtest.h>
#include <idn2.h>
#include <nx/nx_dns.h>
#include <nx/nx_idna.hpp>
#include <random>
#include <string>
#include <support/text.hpp>

namespace {

using Text = std::u32string;

bool ok(std::u32string_view name) { return nxDnsIdnaDomainNameOk(test::str(name)); }

std::string toAscii(std::u32string_view name) {
    return ok(name) ? test::taken(nxDnsIdnaDomainNameToAscii(test::str(name))) : "(not ok)";
}

std::string toUnicode(std::u32string_view name) {
    return ok(name) ? test::taken(nxDnsIdnaDomainNameToUnicode(test::str(name))) : "(not ok)";
}

std::string utf8(std::u32string_view text) { return test::utf8(test::str(text).get()); }

// What holds of every name that is Ok.
void expectStable(std::u32string_view name) {
    std::string const ascii = toAscii(name);
    std::string const unicode = toUnicode(name);
    ASSERT_EQ(toAscii(test::wide(ascii)), ascii) << utf8(name);
    ASSERT_EQ(toUnicode(test::wide(unicode)), unicode) << utf8(name);
    ASSERT_EQ(toUnicode(test::wide(ascii)), unicode) << utf8(name);
    ASSERT_TRUE(std::all_of(ascii.begin(), ascii.end(), [](char byte) { return byte > ' ' && byte <= '~'; })) << ascii;
    ASSERT_LE(ascii.size(), 254U) << ascii;
}

TEST(DomainName, Conversions) {
    struct {
        std::u32string_view name;
        std::u32string_view ascii;
        std::u32string_view unicode;
        char const *why;
    } const rows[] = {
        {U"BÜCHER.example", U"xn--bcher-kva.example", U"bücher.example", "mapped and encoded"},
        {U"bücher", U"xn--bcher-kva", U"bücher", "encoded"},
        {U"xn--bcher-kva.example", U"xn--bcher-kva.example", U"bücher.example", "decoded"},
        {U"XN--BCHER-KVA.Example", U"XN--BCHER-KVA.Example", U"bücher.Example", "ASCII labels keep their letter case"},
        {U"bu\u0308cher", U"xn--bcher-kva", U"bücher", "composed"},
        {U"ｂüｃｈｅｒ", U"xn--bcher-kva", U"bücher", "wide letters"},
        {U"ＡＢＣ.Example", U"abc.Example", U"abc.Example", "wide letters, then ASCII"},
        {U"xn--ｂcher-kva", U"xn--bcher-kva", U"bücher", "a wide letter in an A-label"},
        {U"faß.de", U"xn--fa-hia.de", U"faß.de", "sharp s is a letter of its own"},
        {U"βόλος.com", U"xn--nxasmm1c.com", U"βόλος.com", "final sigma is a letter of its own"},
        {U"日本語。jp", U"xn--wgv71a119e.jp", U"日本語.jp", "an ideographic full stop"},
        {U"日本語．jp", U"xn--wgv71a119e.jp", U"日本語.jp", "a wide full stop"},
        {U"日本語｡jp", U"xn--wgv71a119e.jp", U"日本語.jp", "a narrow ideographic full stop"},
        {U"a。b", U"a.b", U"a.b", "an ideographic full stop between letters"},
        {U"bücher.", U"xn--bcher-kva.", U"bücher.", "a final dot"},
        {U"bücher。", U"xn--bcher-kva.", U"bücher.", "an ideographic final dot"},
        {U"پاکستان.pk", U"xn--mgbai9azgqp6j.pk", U"پاکستان.pk", "right to left"},
        {U"نامه\u200Cای.com", U"xn--mgba3gch31f060k.com", U"نامه\u200Cای.com", "a non-joiner"},
        {U"ශ්\u200Dරී.com", U"xn--10cl1a0b660p.com", U"ශ්\u200Dරී.com", "a joiner"},
        {U"Ꭰ", U"xn--58d", U"Ꭰ", "a capital letter that is permitted"},
        {U"example.com", U"example.com", U"example.com", "plain"},
        {U"Example.COM.", U"Example.COM.", U"Example.COM.", "plain"},
        {U"1.2.3.4.5", U"1.2.3.4.5", U"1.2.3.4.5", "labels of digits"},
        {U"1.2.3.256", U"1.2.3.256", U"1.2.3.256", "no address, but labels of digits"},
        {U"ab--cd", U"ab--cd", U"ab--cd", "hyphens in third and fourth place without xn"},
        {U"192.0.2.1", U"192.0.2.1", U"192.0.2.1", "an IPv4 address"},
        {U"[::1]", U"[::1]", U"[::1]", "an IPv6 reference"},
        {U"[2001:DB8::192.0.2.1]", U"[2001:DB8::192.0.2.1]", U"[2001:DB8::192.0.2.1]", "an IPv6 reference"},
    };
    for (auto const &row : rows) {
        EXPECT_EQ(toAscii(row.name), utf8(row.ascii)) << utf8(row.name) << ": " << row.why;
        EXPECT_EQ(toUnicode(row.name), utf8(row.unicode)) << utf8(row.name) << ": " << row.why;
    }
}

TEST(DomainName, NotOk) {
    struct {
        std::u32string_view name;
        char const *why;
    } const rows[] = {
        {U"", "empty"},
        {U".", "an empty label"},
        {U".a", "an empty label"},
        {U"a..b", "an empty label"},
        {U"a..", "an empty label"},
        {U"ü..", "an empty label"},
        {U"。", "an empty label"},
        {U"-a", "a hyphen first"},
        {U"a-", "a hyphen last"},
        {U"a.-.b", "a hyphen alone"},
        {U"-ü", "a hyphen first"},
        {U"ü-", "a hyphen last"},
        {U"a_b", "an underscore"},
        {U"_sip._tcp.example.com", "underscores"},
        {U"a b", "a blank"},
        {U" a", "a blank"},
        {U"a\n", "a line feed"},
        {U"a@b", "an at sign"},
        {U"a:5060", "a port"},
        {U"[::1", "half a reference"},
        {U"::1]", "half a reference"},
        {U"::1", "an IPv6 address without brackets"},
        {U"[]", "brackets only"},
        {U"[", "a bracket only"},
        {U"]", "a bracket only"},
        {U"[192.0.2.1]", "brackets around an IPv4 address"},
        {U"[::1%eth0]", "a zone"},
        {U"[::1].", "something behind a reference"},
        {U"[::1]a", "something behind a reference"},
        {U"[::1]]", "something behind a reference"},
        {U"xn--", "nothing behind the prefix"},
        {U"xn--abc-", "an A-label of ASCII alone would end with a hyphen"},
        {U"xn--x", "an integer without end"},
        {U"xn--99999999", "an integer without end"},
        {U"xn--bcher-k\u0105a", "non-ASCII in an A-label"},
        {U"xn--a", "an A-label of a control character"},
        {U"xn--n3h", "an A-label of a symbol"},
        {U"xn--bcher-kva8445foa", "an A-label with quotation marks"},
        {U"xn--BCHER-2pa", "an A-label with a capital letter"},
        {U"xn--bucher-xyd", "an A-label with a decomposed letter"},
        {U"xn--a-pib", "an A-label with an unassigned code point"},
        {U"xn--a-so7g", "an A-label with a private character"},
        {U"xn--ypd", "an A-label of an old Hangul jamo"},
        {U"xn----eha", "an A-label with a hyphen first"},
        {U"xn--tda74h", "an A-label with a mark first"},
        {U"xn--xn---3ra", "an A-label of what looks like one"},
        {U"xn--a-0hc", "an A-label that mixes directions"},
        {U"xn--bcher-kva.xn--x", "the second label is none"},
        {U"üa--b", "hyphens in third and fourth place"},
        {U"☃", "a symbol"},
        {U"a\u0378", "unassigned"},
        {U"\u0301a", "a mark first"},
        {U"ａ＿ｂ", "a wide underscore"},
        {U"ب\u200C", "a non-joiner that joins nothing"},
        {U"a·b", "a middle dot that is not between two l"},
        {U"אa", "a label that mixes directions"},
        {U"1a.אב", "a digit first, beside a right-to-left label"},
        {U"אב.1a", "a digit first, beside a right-to-left label"},
        {U"1.xn--4dbrk0ce", "a digit first, beside the A-label of one"},
    };
    for (auto const &row : rows) {
        EXPECT_FALSE(ok(row.name)) << utf8(row.name) << ": " << row.why;
        if (row.name.empty()) continue; // then the dot behind the first label is a final one
        EXPECT_FALSE(ok(U"bücher." + Text(row.name))) << utf8(row.name) << ": " << row.why;
    }
    EXPECT_FALSE(ok({U"a\0b", 3})) << "a null character";
    coChar const beyond[] = {U'a', 0x110000, 0xFFFFFFFF, 0xD800};
    for (size_t i = 1; i < 4; i++) EXPECT_FALSE(ok({beyond + i, 1})) << i;
}

TEST(DomainName, BidiOverTheWholeName) {
    EXPECT_TRUE(ok(U"1a.example"));
    EXPECT_TRUE(ok(U"a1.אב"));
    EXPECT_TRUE(ok(U"אב.example"));
    EXPECT_TRUE(ok(U"xn--4dbrk0ce.example"));
    EXPECT_FALSE(ok(U"1a.example.אב")) << "begins with a number";
    EXPECT_TRUE(ok(U"ü1.אב"));
    EXPECT_FALSE(ok(U"1ü.אב")) << "begins with a number";
}

Text repeated(std::u32string_view text, size_t count) {
    Text result;
    while (count--) result += text;
    return result;
}

TEST(DomainName, Lengths) {
    EXPECT_TRUE(ok(Text(63, U'a')));
    EXPECT_FALSE(ok(Text(64, U'a')));
    EXPECT_TRUE(ok(U"b." + Text(63, U'a') + U"."));
    EXPECT_FALSE(ok(U"b." + Text(64, U'a') + U"."));

    Text const label63 = Text(63, U'a') + U".";
    Text const name253 = repeated(label63, 3) + Text(61, U'a');
    EXPECT_TRUE(ok(name253));
    EXPECT_TRUE(ok(name253 + U".")) << "the final dot is not counted";
    EXPECT_FALSE(ok(name253 + U"a"));
    EXPECT_FALSE(ok(name253 + U"a."));
    EXPECT_TRUE(ok(repeated(U"a.", 127))) << "127 labels and the final dot";
    EXPECT_FALSE(ok(repeated(U"a.", 128)));

    // Of a U-label, the A-label is counted.
    Text longest;
    for (Text label = U"ü"; ok(label); label += U"ü") longest = label;
    EXPECT_EQ(toAscii(longest).size(), 63U);
    EXPECT_EQ(longest.size(), 57U);
    EXPECT_TRUE(ok(repeated(U"u\u0308", longest.size()))) << "decomposed, twice as long";
    EXPECT_FALSE(ok(repeated(U"u\u0308", longest.size() + 1)));
    EXPECT_EQ(toUnicode(repeated(U"a\u0302\u0301", 20)), utf8(Text(20, U'\u1EA5'))) << "three for one";

    Text const name = repeated(longest + U".", 3) + Text(61, U'a');
    EXPECT_TRUE(ok(name));
    EXPECT_TRUE(ok(name + U"."));
    EXPECT_TRUE(ok(name + U"。"));
    EXPECT_FALSE(ok(name + U"a"));
    EXPECT_FALSE(ok(name + U"a."));
}

TEST(DomainName, LongTextsAreRefusedAtOnce) {
    for (std::u32string_view piece : {U"a", U".", U"a.", U"ü", U"u\u0308", U"\u0301", U"ü.", U"。", U"xn--", U"9"}) {
        Text const text = repeated(piece, 1'000'000);
        EXPECT_FALSE(ok(text)) << utf8(piece);
        EXPECT_FALSE(ok(U"xn--" + text)) << utf8(piece);
        EXPECT_FALSE(ok(U"ü." + text)) << utf8(piece);
        EXPECT_FALSE(ok(U"[" + text + U"]")) << utf8(piece);
    }
}

TEST(DomainName, WhatNeedsNoConversionIsShared) {
    for (std::string_view text : {"example.com", "192.0.2.1", "[::1]"}) {
        test::Str const name = test::str(text);
        co::Ref<coString> const ascii(nxDnsIdnaDomainNameToAscii(name));
        co::Ref<coString> const unicode(nxDnsIdnaDomainNameToUnicode(name));
        EXPECT_EQ(ascii.get(), name.get());
        EXPECT_EQ(unicode.get(), name.get());
        EXPECT_EQ(test::count(name.get()), 3);
    }
}

TEST(DomainNameDeathTest, Preconditions) {
    char const *const unit = "source/nx/nx_dns";
    EXPECT_ABORT(nxDnsIdnaDomainNameOk(nullptr), unit, "name");
    EXPECT_ABORT(nxDnsIdnaDomainNameToAscii(nullptr), unit, "name");
    EXPECT_ABORT(nxDnsIdnaDomainNameToUnicode(nullptr), unit, "name");
    for (std::string_view text : {"", "a_b", "xn--a", "ü☃"}) {
        EXPECT_ABORT(nxDnsIdnaDomainNameToAscii(test::str(text)), unit, "nxDnsIdnaDomainNameOk( name )");
        EXPECT_ABORT(nxDnsIdnaDomainNameToUnicode(test::str(text)), unit, "nxDnsIdnaDomainNameOk( name )");
    }
}

// libidn2, label by label: what is not ASCII is mapped first, and then what it registers is Ok.
std::string idn2Ascii(Text const &label) {
    nx::Label mapped;
    if (!nx::mapLabel(label, mapped)) return "(not ok)";
    std::string const text = utf8(mapped.view());
    uint8_t *aLabel = nullptr;
    if (idn2_register_u8(reinterpret_cast<uint8_t const *>(text.c_str()), nullptr, &aLabel, 0) != IDN2_OK)
        return "(not ok)";
    std::string const ascii = reinterpret_cast<char const *>(aLabel);
    idn2_free(aLabel);
    return ascii;
}

TEST(DomainName, RandomNamesOfLeftToRightScripts) {
    constexpr std::u32string_view alphabet = U"abcxyzABC019-éüßÉÜΑΒΓαβςабвАБ漢字かなカナｶﾞ한\u0301\u0308ＡＢ１☃_";
    std::mt19937 random(5890);
    int good = 0;
    for (int i = 0; i < 30'000; i++) {
        Text name;
        std::string expected;
        bool isOk = true;
        for (size_t labels = 1 + random() % 3; labels; labels--) {
            Text label(1, U'é'); // not of ASCII alone, whatever follows
            size_t const most = 1 + random() % 8;
            for (size_t count = random() % most; count; count--) label += alphabet[random() % alphabet.size()];
            std::string const ascii = idn2Ascii(label);
            isOk = isOk && ascii != "(not ok)";
            name += label + U".";
            expected += ascii + ".";
        }
        ASSERT_EQ(toAscii(name), isOk ? expected : "(not ok)") << utf8(name);
        if (!isOk) continue;
        good++;
        ASSERT_NO_FATAL_FAILURE(expectStable(name));
    }
    EXPECT_GT(good, 5'000);
}

// A-labels with changes: what is Ok is what libidn2 makes of its U-label.
TEST(DomainName, MutatedALabels) {
    constexpr std::string_view samples[] = {"xn--bcher-kva",     "xn--fa-hia",   "xn--nxasmm1c", "xn--wgv71a119e",
                                            "xn--mgbai9azgqp6j", "xn--4dbrk0ce", "xn--58d"};
    constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz0123456789-A";
    std::mt19937 random(3492);
    int good = 0;
    for (int i = 0; i < 50'000; i++) {
        std::string label(samples[random() % std::size(samples)]);
        for (size_t changes = 1 + random() % 2; changes; changes--) {
            size_t const place = 4 + random() % (label.size() - 4);
            char const letter = letters[random() % letters.size()];
            if (random() % 2) {
                label[place] = letter;
            } else {
                label.insert(place, 1, letter);
            }
        }
        Text const name = test::wide(label);
        std::string const unicode = toUnicode(name);
        if (unicode == "(not ok)") continue;
        good++;
        std::string lower = label;
        std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) { return c == 'A' ? 'a' : c; });
        ASSERT_EQ(toAscii(test::wide(unicode)), lower);
        ASSERT_NE(unicode, label);
        ASSERT_NO_FATAL_FAILURE(expectStable(name));
        uint8_t *aLabel = nullptr;
        int const result = idn2_register_u8(reinterpret_cast<uint8_t const *>(unicode.c_str()), nullptr, &aLabel,
                                            IDN2_ALLOW_UNASSIGNED);
        ASSERT_TRUE(result == IDN2_OK || result == IDN2_UNASSIGNED) << unicode << idn2_strerror_name(result);
        if (aLabel) {
            ASSERT_EQ(lower, reinterpret_cast<char const *>(aLabel));
            idn2_free(aLabel);
        }
    }
    EXPECT_GT(good, 5'000);
}

TEST(DomainName, AsciiRoundTrips) {
    constexpr std::u32string_view alphabet = U"abzABZ019-.";
    std::mt19937 random(1123);
    int good = 0;
    for (int i = 0; i < 30'000; i++) {
        Text name;
        for (size_t count = 1 + random() % 12; count; count--) name += alphabet[random() % alphabet.size()];
        bool const hasEmpty = name.starts_with(U".") || name.find(U"..") != Text::npos;
        bool const hasHyphen = name.starts_with(U"-") || name.ends_with(U"-") || name.find(U".-") != Text::npos ||
                               name.find(U"-.") != Text::npos;
        ASSERT_EQ(ok(name), !hasEmpty && !hasHyphen) << utf8(name);
        if (!ok(name)) continue;
        good++;
        ASSERT_EQ(toAscii(name), utf8(name));
        ASSERT_EQ(toUnicode(name), utf8(name));
    }
    EXPECT_GT(good, 10'000);
}

} // namespace
