// Hosts: names, addresses, and internationalised names in both their forms.
#include <co/co_string.hpp>
#include <quill/quill_host.h>
#include <quill/quill_internal.h>
#include <quill/quill_skip.h>
#include <support/text.hpp>

using test::str;

static std::string decode(std::string const &text) {
    std::u32string const chars = test::wide(text);
    return test::taken(quill___HostTryDecode(chars.data(), static_cast<int64_t>(chars.size())));
}

TEST(Host, IsANameOrAnAddress) {
    for (auto const *text :
         {"a", "example.com", "Example.COM", "a.b.c.", "10.0.0.1", "1.2.3.4", "[::1]", "[2001:db8::1]", "a-b.c",
          "xn--bcher-kva.example", "[::ffff:10.0.0.1]", "1", "999.999.999.999"})
        EXPECT_TRUE(quillHostOk(str(text))) << text;
}

TEST(Host, IsAnInternationalisedName) {
    for (auto const *text : {"b\u00fccher.example", "B\u00dcCHER.example", "\u4f8b\u3048.jp", "stra\u00dfe.de"})
        EXPECT_TRUE(quillHostOk(str(text))) << text;
}

TEST(Host, IsNothingElse) {
    for (auto const *text : {"",
                             " ",
                             "a b",
                             " a",
                             "a ",
                             "-a",
                             "a-",
                             ".",
                             ".a",
                             "a..b",
                             "a:5060",
                             "::1",
                             "[::1",
                             "[::1]:5060",
                             "[a]",
                             "a@b",
                             "a;b",
                             "a,b",
                             "a\r\n",
                             "a_b",
                             "b\u00fc cher",
                             "\u2028.example",
                             "\u00fc..de"})
        EXPECT_FALSE(quillHostOk(str(text))) << text;
    EXPECT_FALSE(quillHostOk(str(std::string("a\0", 2))));
}

// All short texts of what names are made of, by the scanner.
TEST(Host, IsWhatTheScannerTakes) {
    constexpr std::string_view letters = "aZ0.-%_[";
    int hosts = 0;
    for (size_t length = 1; length <= 5; length++)
        for (size_t code = 0; code < size_t{1} << 3 * length; code++) {
            std::u32string text;
            for (size_t i = 0; i < length; i++) text += static_cast<char32_t>(letters[code >> 3 * i & 7]);
            bool const whole =
                quill___SkipHost(text.data(), static_cast<int64_t>(length)) == static_cast<int64_t>(length);
            EXPECT_EQ(quillHostOk(co::Ref<coString>(co::makeString(text)).get()), whole) << length << " " << code;
            hosts += whole;
        }
    EXPECT_GT(hosts, 1000);
}

TEST(Host, IsWrittenAsItIsWhereItIsAscii) {
    for (auto const *text : {"Example.com", "10.0.0.1", "[::1]", "a.b."}) {
        auto const host = str(text);
        co::Ref<coString> const encoded(quill___HostEncode(host));
        EXPECT_EQ(encoded.get(), host.get()) << text;
    }
}

TEST(Host, IsWrittenInItsAsciiFormWhereItIsNot) {
    EXPECT_EQ(test::taken(quill___HostEncode(str("b\u00fccher.example"))), "xn--bcher-kva.example");
    EXPECT_EQ(test::taken(quill___HostEncode(str("B\u00dcCHER.example"))), "xn--bcher-kva.example");
}

TEST(Host, IsReadIntoItsUnicodeForm) {
    EXPECT_EQ(decode("xn--bcher-kva.example"), "b\u00fccher.example");
    EXPECT_EQ(decode("example.com"), "example.com");
    EXPECT_EQ(decode("Example.COM"), "Example.COM");
    EXPECT_EQ(decode("192.0.2.1"), "192.0.2.1");
    EXPECT_EQ(decode("[::1]"), "[::1]");
    EXPECT_EQ(decode("[2001:db8::1]"), "[2001:db8::1]");
}

TEST(Host, IsNotReadFromOthers) {
    EXPECT_EQ(quill___HostTryDecode(nullptr, 0), nullptr);
    for (auto const *text : {"", "a b", "a ", " a", "a:5060", "[::1", "b\u00fccher.example", "-a", "a..b",
                             "xn--a.example", "xn--.example", "a%41"})
        EXPECT_EQ(decode(text), "(null)") << text;
    EXPECT_EQ(decode(std::string(64, 'a')), "(null)") << "a label of more than 63 octets is no domain name";
}

TEST(Host, ComesBack) {
    for (auto const *text : {"b\u00fccher.example", "example.com", "10.0.0.1", "[::1]", "\u4f8b\u3048.jp"})
        EXPECT_EQ(decode(test::taken(quill___HostEncode(str(text)))), text);
}

TEST(Host, MustBeGiven) {
    EXPECT_ABORT(quillHostOk(nullptr), "source/quill/quill_host", "host");
    EXPECT_ABORT(quill___HostEncode(nullptr), "source/quill/quill_host", "host");
}

TEST(Host, MustBeValidToBeWritten) {
    for (auto const *text : {"", "a b", "-a", "\u2028", "[::1"})
        EXPECT_ABORT(quill___HostEncode(str(text)), "source/quill/quill_host",
                     "length && length == quill___SkipHost( coStringBacking( result ), length )");
}

TEST(Host, IsReadFromATextThatIsThere) {
    EXPECT_ABORT(quill___HostTryDecode(U"a", -1), "source/quill/quill_host", "length >= 0");
    EXPECT_ABORT(quill___HostTryDecode(nullptr, 1), "source/quill/quill_host", "chs || length == 0");
}
