#include <loc/loc_skip.h>
#include <loc/loc_skip.hpp>
#include <memory>
#include <random>
#include <support/text.hpp>

using namespace std::literals;

namespace {

using Scanner = int64_t (*)(coChar const *chs, int64_t length);

struct Case {
    std::string_view text;
    int64_t expected;
    std::string_view why;
};

// Over a copy that ends where its memory does.
int64_t scan(Scanner scanner, std::u32string_view text) {
    auto const copy = std::make_unique<coChar[]>(text.size());
    text.copy(copy.get(), text.size());
    return scanner(copy.get(), static_cast<int64_t>(text.size()));
}

void check(Scanner scanner, std::initializer_list<Case> cases) {
    for (Case const &item : cases) {
        EXPECT_EQ(scan(scanner, test::wide(item.text)), item.expected) << "\"" << item.text << "\": " << item.why;
    }
}

// The whole text.
constexpr int64_t whole = -1;

void checkIris(std::initializer_list<Case> cases) {
    for (Case const &item : cases) {
        std::u32string const text = test::wide(item.text);
        int64_t const expected = item.expected == whole ? static_cast<int64_t>(text.size()) : item.expected;
        EXPECT_EQ(scan(loc___SkipIri, text), expected) << "\"" << item.text << "\": " << item.why;
    }
}

} // namespace

TEST(LocSkipDeathTest, Preconditions) {
    for (Scanner const scanner : {loc___SkipIri, loc___SkipIpV4Address, loc___SkipIpV6Address, loc___SkipPort}) {
        EXPECT_EQ(scanner(nullptr, 0), 0);
        EXPECT_ABORT(scanner(U"a", -1), "source/loc/loc_skip", "length >= 0");
        EXPECT_ABORT(scanner(nullptr, 1), "source/loc/loc_skip", "chs || length == 0");
    }
}

TEST(LocSkip, IriSchemes) {
    checkIris({{"a:b", whole, "one letter"},
               {"a+b-c.9:d", whole, "a scheme's characters"},
               {"9a:b", 0, "a digit first"},
               {"+a:b", 0, "a plus sign first"},
               {":b", 0, "no scheme"},
               {"b", 0, "no colon"},
               {"a_b:c", 0, "no character of a scheme"},
               {"\u00E9:b", 0, "schemes are ASCII"},
               {"//host/path", 0, "a relative reference"},
               {"sip:", 0, "nothing behind the colon"},
               {"SIPS:", 0, "nothing behind the colon"},
               {"http:", 0, "nothing behind the colon"},
               {"http: ", 0, "nor what can't be in an IRI"},
               {"http:\"", 0, "nor what can't be in an IRI"},
               {"http:?q", whole, "a query"},
               {"http:#f", whole, "a fragment"},
               {"http:/", whole, "a path"},
               {"http://", whole, "an empty authority"}});
}

TEST(LocSkip, IrisOfManySchemes) {
    checkIris({{"http://user:pw@example.com:8080/a/b;c=d?e=f/?g#h/?i", whole, "all parts"},
               {"ftp://ftp.is.co.za/rfc/rfc1808.txt", whole, "as RFC 3986 shows it"},
               {"ldap://[2001:db8::7]/c=GB?objectClass?one", whole, "as RFC 3986 shows it"},
               {"mailto:John.Doe@example.com,x@y?subject=a%20b", whole, "as RFC 6068 has it"},
               {"news:comp.infosystems.www.servers.unix", whole, "as RFC 3986 shows it"},
               {"tel:+1-816-555-1212;phone-context=example.com", whole, "as RFC 3966 shows it"},
               {"telnet://192.0.2.16:80/", whole, "as RFC 3986 shows it"},
               {"urn:oasis:names:specification:docbook:dtd:xml:4.1.2", whole, "as RFC 3986 shows it"},
               {"cid:12345.67890@example.com", whole, "a content identifier"},
               {"data:,a%20brief%20note", whole, "as RFC 2397 shows it"},
               {"urn:a,urn:b", whole, "a comma is a character like any other"},
               {"a:-._~!$&'()*+,;=:@/", whole, "unreserved and sub-delims"}});
}

TEST(LocSkip, IrisEndAtWhatTheyMayNotHold) {
    checkIris({{"http://a b", 8, "a blank"},
               {"http://a\tb", 8, "a tab"},
               {"http://a\rb", 8, "a line end"},
               {"http://a\0b"sv, 8, "a control"},
               {"http://a\x7F", 8, "DEL"},
               {"http://a>b", 8, "a bracket"},
               {"http://a<b", 8, "a bracket"},
               {"http://a\"b", 8, "a quote"},
               {"http://a\\b", 8, "a backslash"},
               {"http://a^b", 8, "a caret"},
               {"http://a`b", 8, "a backquote"},
               {"http://a{b}", 8, "braces"},
               {"http://a|b", 8, "a bar"},
               {"http://a#b#c", 10, "a second number sign"},
               {"http://a%zz", 8, "no escape"},
               {"http://a%4", 8, "half an escape"},
               {"http://a%", 8, "a percent sign"},
               {"http://a%41%", 11, "an escape and a percent sign"},
               {"sip:a@b>;x", 7, "a bracket"},
               {"sip:a b@c", 5, "a blank"},
               {"sip:%", 0, "a percent sign at once"},
               {"sip:%4g", 0, "no escape at once"}});
}

TEST(LocSkip, IrisBeyondAscii) {
    checkIris({{"http://caf\u00E9.example/\u65E5\u672C?\u8A9E#\u00FC", whole, "in every part"},
               {"sip:\u00E9@\u00E9;\u00E9=\u00E9?\u00E9=\u00E9", whole, "in every part"},
               {"urn:\u00A0", whole, "the first one allowed"},
               {"urn:a\u009F", 5, "the last control"},
               {"urn:\uD7FF\uF900\uFDCF\uFDF0\uFFEF", whole, "the ends of the ranges"},
               {"urn:a\uFDD0", 5, "a noncharacter"},
               {"urn:a\uFDEF", 5, "a noncharacter"},
               {"urn:a\uFFF0", 5, "a special"},
               {"urn:a\uFFFD", 5, "the replacement character"},
               {"urn:\U00010000\U0001FFFD\U00020000\U000DFFFD\U000E1000\U000EFFFD", whole, "the ends of the ranges"},
               {"urn:a\U0001FFFE", 5, "a noncharacter"},
               {"urn:a\U000EFFFF", 5, "a noncharacter"},
               {"urn:a\U000E0FFF", 5, "a tag"},
               {"urn:a\uE000", 5, "for private use, not in a path"},
               {"urn:a?\uE000\uF8FF\U000F0000\U000FFFFD\U00100000\U0010FFFD", whole, "but in a query"},
               {"urn:a?\U0010FFFE", 6, "a noncharacter in a query"},
               {"urn:a?b#\uE000", 8, "for private use, not in a fragment"},
               {"urn:a#b?\uE000", 8, "nor behind a question mark there"},
               {"urn:\u200E\u202E", whole, "formatting characters as they come"}});
    std::u32string_view const beyond[] = {U"urn:a\x110000"sv, U"urn:a\xFFFFFFFF"sv, U"urn:a\xD800"sv,
                                          U"urn:a?\xDFFF"sv};
    int64_t const expected[] = {5, 5, 5, 6};
    for (size_t i = 0; i < 4; i++) EXPECT_EQ(scan(loc___SkipIri, beyond[i]), expected[i]);
}

TEST(LocSkip, IriAuthorities) {
    checkIris({{"http://[::1]", whole, "an IPv6 reference"},
               {"http://[2001:db8::192.0.2.1]:80/a", whole, "and a port"},
               {"http://u@[::1]/", whole, "and a user"},
               {"http://[::1", 7, "not closed"},
               {"http://[1.2.3.4]", 7, "no IPv6 address"},
               {"http://[::1%25eth0]", 7, "no zone"},
               {"http://[v1.x]", 7, "no address of a version to come"},
               {"http://a[::1]", 8, "not where the host begins"},
               {"http://a/u@[::1]", 11, "not in a path"},
               {"http://a?u@[::1]", 11, "not in a query"},
               {"http:[::1]", 0, "no authority"},
               {"http:/[::1]", 6, "no authority"},
               {"http://h/?a[0]=1", 11, "brackets in a query"},
               {"http://:80", whole, "an empty host"},
               {"http://h:x/", whole, "ports aren't looked at"}});
}

TEST(LocSkip, SipIris) {
    checkIris({{"sip:alice@[2001:db8::1]:5060;transport=tcp?x=[y]", whole, "brackets everywhere"},
               {"sip:[::1]", whole, "a reference alone"},
               {"sip:[[]", whole, "brackets aren't looked into"},
               {"Sip:a[b]", whole, "the scheme's letter case"},
               {"sIpS:a[b]", whole, "the scheme's letter case"},
               {"sipx:a[b]", 6, "another scheme"},
               {"si:a[b]", 4, "another scheme"},
               {"tel:a[b]", 5, "another scheme"},
               {"sips:alice@atlanta.com?subject=project%20x&priority=urgent", whole, "as RFC 3261 shows it"},
               {"sip:+1-212-555-1212:1234@gateway.com;user=phone", whole, "as RFC 3261 shows it"},
               {"sip:alice;day=tuesday@atlanta.com", whole, "as RFC 3261 shows it"},
               {"sip:*21#@h", whole, "a fragment, so to speak"},
               {"sip:a?b@h", whole, "a question mark in the user part"},
               {"sip:a(b)'!*$&=+@h", whole, "marks in the user part"}});
}

TEST(LocSkip, CommasInSipIris) {
    checkIris({{"sip:a@h,sip:b@h", 7, "behind the user part"},
               {"sip:a@h, sip:b@h", 7, "behind the user part, a blank behind"},
               {"sip:a,b@h", whole, "in the user part"},
               {"sip:,@h", whole, "in the user part, alone"},
               {"sip:a,b,c;d,e:f@h,i", 17, "several, and one behind it"},
               {"sip:a:b,c@h", whole, "in the password"},
               {"sip:a,b:c@h", whole, "before the password"},
               {"sip:a,b:c:d@h", 5, "two colons are no password's"},
               {"sip:a:b,c:d@h", 7, "two colons are no password's"},
               {"sip:a:b:c,d@h", 9, "two colons are no password's"},
               {"sip:a:b:c@h", whole, "but without a comma nobody asks"},
               {"sip:h", whole, "no user part"},
               {"sip:h,i", 5, "no user part"},
               {"sip:h:5060,sip:b@h", 10, "no user part, but a port"},
               {"sip:h,i,j", 5, "no user part: the first comma ends it"},
               {"sip:h,sip:b@h", whole, "a user part of two elements, as far as one can tell"},
               {"sip:h, sip:b@h", 5, "no user part, and a blank behind"},
               {"sip:h,<sip:b@h>", 5, "no user part, and a bracket behind"},
               {"sip:[::1],sip:b@h", 9, "no user part, but a reference"},
               {"sip:a,%zz@h", 5, "no at sign that belongs to it"},
               {"sip:a,b#c@h", whole, "the at sign that it covers"},
               {"sip:a@h;x=1,2", 11, "in a parameter"},
               {"sip:a@h?x=1,2@3", 11, "in a header, an at sign behind"},
               {"sip:,a", 0, "nothing before it"},
               {"sips:a,b", 6, "the other scheme"},
               {"SIP:a,b@h", whole, "the scheme's letter case"},
               {"sipx:a@h,b", whole, "another scheme"}});
}

// Usual texts have a short way, which the scheme in capitals never takes.
void expectAsInCapitals(std::u32string const &part) {
    auto const length = [&](coChar const *scheme, coChar end) {
        std::u32string const text = scheme + part;
        auto const copy = std::make_unique<coChar[]>(text.size());
        text.copy(copy.get(), text.size());
        return loc::iriLength({copy.get(), text.size()}, end);
    };
    for (coChar const end : {loc::noChar, U';', U':', U'@', U','})
        ASSERT_EQ(length(U"sip:", end), length(U"SIP:", end)) << testing::PrintToString(part);
}

TEST(LocSkip, SipIrisOfAllLengths) {
    for (size_t size = 0; size <= 70; size++)
        for (std::u32string_view tail :
             {U"",       U">",      U" ",          U";x", U"@h",  U"@h;x>", U",",        U",b@h",   U":1:2,b@h",
              U"?a=b>",  U"#f",     U"%41>",       U"%4", U"%zz", U"%",     U"\u00E9@h", U"\uE000", U"?\uE000",
              U"[::1]>", U"\u0100", U"\U00100061", U"^",  U"`",   U"{",     U"\x7F"}) {
            expectAsInCapitals(std::u32string(size, U'z') + std::u32string(tail));
            expectAsInCapitals(std::u32string(size, U'z') + std::u32string(tail) + std::u32string(20, U'y'));
            if (testing::Test::HasFatalFailure()) return;
        }
    std::u32string const user(40, U'u');
    EXPECT_EQ(scan(loc___SkipIri, U"sip:" + user + U"@h>" + user), 46);
}

TEST(LocSkip, SipIrisOfRandomTexts) {
    constexpr std::u32string_view chars = U"aZ09-._~!$&'()*+=/[]:;@::;;@@,,?%#41 <>\"\u00E9\uE000\uFFFD";
    std::mt19937 random(1);
    for (int round = 0; round < 50000; round++) {
        std::u32string part(random() % 20, U'x');
        for (size_t i = random() % 30; i-- > 0;)
            part.insert(random() % (part.size() + 1), 1, chars[random() % chars.size()]);
        expectAsInCapitals(part);
        if (testing::Test::HasFatalFailure()) return;
    }
}

TEST(LocSkip, IpV4Address) {
    check(loc___SkipIpV4Address, {{"0.0.0.0", 7, "the smallest"},
                                  {"255.255.255.255", 15, "the largest"},
                                  {"1.2.3.256", 8, "the longest beginning"},
                                  {"1.2.3.4:5060", 7, "up to the colon"},
                                  {"1.2.3", 0, "three octets"},
                                  {"1.2.3.04", 7, "a leading zero ends the last one"},
                                  {"1.02.3.4", 0, "a leading zero before"},
                                  {"1..2.3", 0, "an empty octet"},
                                  {" 1.2.3.4", 0, "a blank"},
                                  {"\uFF11.2.3.4", 0, "another digit"}});
}

TEST(LocSkip, IpV6Address) {
    check(loc___SkipIpV6Address, {{"::", 2, "all zeros"},
                                  {"::1", 3, "loopback"},
                                  {"2001:DB8:0:0:8:800:200C:417A", 28, "as RFC 4291 shows it"},
                                  {"::FFFF:129.144.52.38", 20, "as RFC 4291 shows it"},
                                  {"fe80::1%eth0", 7, "up to the zone"},
                                  {"::1]", 3, "up to the bracket"},
                                  {"1:2:3:4:5:6:7", 0, "seven groups"},
                                  {"[::1]", 0, "brackets"},
                                  {"12345::", 0, "five digits"}});
}

TEST(LocSkip, Port) {
    check(loc___SkipPort, {{"5060", 4, "a port"},
                           {"5060x", 4, "up to the letter"},
                           {"0", 1, "zero"},
                           {"99999999999999999999", 20, "of any value"},
                           {"", 0, "nothing"},
                           {":5060", 0, "a colon"},
                           {"-1", 0, "a sign"},
                           {"\u0661", 0, "another digit"}});
}
