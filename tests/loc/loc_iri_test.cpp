#include <loc/loc_iri.h>
#include <loc/loc_skip.h>
#include <random>
#include <support/text.hpp>

using namespace std::literals;
using test::str;
using test::taken;

namespace {

std::string fromUri(std::string_view uri) { return taken(locTryConvertFromUri(str(uri))); }
std::string toUri(std::string_view iri) { return taken(locTryConvertToUri(str(iri))); }

struct Pair {
    std::string_view text, expected, why;
};

std::string lower(std::string text) {
    for (char &ch : text) ch = ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch + 32) : ch;
    return text;
}

constexpr std::string_view null = "(null)";

} // namespace

TEST(LocIriDeathTest, Preconditions) {
    EXPECT_ABORT(locTryConvertFromUri(nullptr), "source/loc/loc_iri", "uri");
    EXPECT_ABORT(locTryConvertToUri(nullptr), "source/loc/loc_iri", "iri");
    EXPECT_ABORT(locGensValidatePart(0, nullptr), "source/loc/loc_iri", "text");
}

TEST(LocIri, FromUri) {
    Pair const cases[] = {
        {"sip:alice@example.com", "sip:alice@example.com", "nothing to decode"},
        {"sip:%c3%a9@h", "sip:\u00E9@h", "two octets, lower case"},
        {"sip:%C3%A9@h", "sip:\u00E9@h", "two octets, upper case"},
        {"urn:%E6%97%A5%E6%9C%AC", "urn:\u65E5\u672C", "three octets, twice"},
        {"urn:%F0%90%80%80", "urn:\U00010000", "four octets"},
        {"urn:a%C3%A9b%C3%A8c", "urn:a\u00E9b\u00E8c", "between other characters"},
        {"urn:%41%00%20%40%2f%25", "urn:%41%00%20%40%2f%25", "ASCII stays, in its letter case"},
        {"urn:%C3", "urn:%C3", "a sequence cut short"},
        {"urn:%C3%41", "urn:%C3%41", "no continuation"},
        {"urn:%C3a", "urn:%C3a", "no escape behind"},
        {"urn:%C3\u00A9", "urn:%C3\u00A9", "a raw character is no continuation"},
        {"urn:%A9", "urn:%A9", "a continuation alone"},
        {"urn:%C3%C3%A9", "urn:%C3\u00E9", "a lead octet, and a sequence"},
        {"urn:%E6%97%C3%A9", "urn:%E6%97\u00E9", "a sequence cut short by another"},
        {"urn:%C0%AF", "urn:%C0%AF", "overlong"},
        {"urn:%E0%80%AF", "urn:%E0%80%AF", "overlong"},
        {"urn:%F0%80%80%AF", "urn:%F0%80%80%AF", "overlong"},
        {"urn:%ED%A0%80", "urn:%ED%A0%80", "a surrogate"},
        {"urn:%F4%90%80%80", "urn:%F4%90%80%80", "beyond Unicode"},
        {"urn:%F5%80%80%80", "urn:%F5%80%80%80", "beyond Unicode"},
        {"urn:%FF%FE", "urn:%FF%FE", "no UTF-8"},
        {"urn:%C2%80", "urn:%C2%80", "a control beyond ASCII"},
        {"urn:%C2%A0", "urn:\u00A0", "the first one allowed"},
        {"urn:%EF%BF%BD", "urn:%EF%BF%BD", "the replacement character"},
        {"urn:%EF%B7%90", "urn:%EF%B7%90", "a noncharacter"},
        {"urn:%EE%80%80", "urn:%EE%80%80", "for private use, not in a query"},
        {"urn:a?%EE%80%80", "urn:a?\uE000", "for private use, in a query"},
        {"urn:a?b?%EE%80%80", "urn:a?b?\uE000", "a question mark in the query"},
        {"urn:a?b#%EE%80%80", "urn:a?b#%EE%80%80", "behind the query"},
        {"urn:a#b?%EE%80%80", "urn:a#b?%EE%80%80", "a question mark in the fragment"},
        {"urn:%E2%80%8E%E2%80%8F", "urn:%E2%80%8E%E2%80%8F", "LRM and RLM"},
        {"urn:%E2%80%AA%E2%80%AB%E2%80%AC%E2%80%AD%E2%80%AE", "urn:%E2%80%AA%E2%80%AB%E2%80%AC%E2%80%AD%E2%80%AE",
         "LRE, RLE, PDF, LRO and RLO"},
        {"urn:%E2%80%8D%E2%80%A9", "urn:\u200D\u2029", "their neighbours"},
        {"sip:\u00E9@caf\u00E9.example", "sip:\u00E9@caf\u00E9.example", "raw characters"},
        {"urn:\u202E", "urn:\u202E", "raw formatting characters"},
        {"sip:a,%C3%A9@h", "sip:a,\u00E9@h", "a comma in the user part"},
        {"sip:a@[::1];x=[%C3%A9]", "sip:a@[::1];x=[\u00E9]", "brackets"},
        {"sip:", null, "no IRI"},
        {"", null, "nothing"},
        {"alice@example.com", null, "no scheme"},
        {"sip:a b", null, "a blank"},
        {"sip:a@h>", null, "not the whole text"},
        {"sip:a@h,sip:b@h", null, "two"},
        {"sip:%zz@h", null, "no escape"},
        {"sip:a%", null, "no escape"},
        {"urn:%C3%A", null, "half an escape"},
        {"urn:a\uE000", null, "raw, for private use"},
        {"urn:a\0"sv, null, "a control"},
        {" sip:a@h", null, "a blank first"},
    };
    for (Pair const &item : cases) EXPECT_EQ(fromUri(item.text), item.expected) << item.text << ": " << item.why;
}

TEST(LocIri, ToUri) {
    Pair const cases[] = {
        {"sip:alice@example.com", "sip:alice@example.com", "nothing to encode"},
        {"sip:\u00E9@h", "sip:%C3%A9@h", "two octets"},
        {"urn:\u65E5\u672C\U00010000", "urn:%E6%97%A5%E6%9C%AC%F0%90%80%80", "three and four octets"},
        {"http://caf\u00E9.example/", "http://caf%C3%A9.example/", "in a host, too"},
        {"urn:a?\uE000", "urn:a?%EE%80%80", "for private use"},
        {"urn:\u202E", "urn:%E2%80%AE", "a formatting character"},
        {"urn:%c3%a9\u00E9", "urn:%c3%a9%C3%A9", "escapes stay as they are"},
        {"sip:a,b@[::1]", "sip:a,b@[::1]", "brackets and a comma"},
        {"", null, "nothing"},
        {"sip:", null, "no IRI"},
        {"caf\u00E9", null, "no scheme"},
        {"sip:\u00E9 ", null, "a blank"},
        {"urn:\uFFFD", null, "the replacement character"},
        {"urn:a\uE000", null, "for private use, not in a query"},
        {"sip:\u00E9%", null, "no escape"},
    };
    for (Pair const &item : cases) EXPECT_EQ(toUri(item.text), item.expected) << item.text << ": " << item.why;
}

TEST(LocIri, ValidatePart) {
    EXPECT_TRUE(locGensValidatePart(0, str("sip:alice@example.com")));
    EXPECT_TRUE(locGensValidatePart(0, str("tel:+1")));
    EXPECT_TRUE(locGensValidatePart(0, str("sip:\u00E9@h")));
    EXPECT_FALSE(locGensValidatePart(0, str("")));
    EXPECT_FALSE(locGensValidatePart(0, str("sip:")));
    EXPECT_FALSE(locGensValidatePart(0, str("alice")));
    EXPECT_FALSE(locGensValidatePart(0, str("sip:a@h ")));
    EXPECT_FALSE(locGensValidatePart(0, str("sip:a@h,b")));
    EXPECT_FALSE(locGensValidatePart(1, str("sip:alice@example.com"))) << "there is no other part";
    EXPECT_FALSE(locGensValidatePart(-1, str("sip:alice@example.com")));
}

TEST(LocIri, TextThatStaysIsShared) {
    test::Str const ascii = str("sip:a@h");
    for (auto const convert : {locTryConvertFromUri, locTryConvertToUri}) {
        coString *const converted = convert(ascii);
        EXPECT_EQ(converted, ascii.get());
        coStringRelease(converted);
    }
    EXPECT_EQ(test::count(ascii.get()), 1);
}

// Random URIs of pieces that matter: what is read and written back is the same text, but for the letter case of what
// was decoded; and what a conversion gives is an IRI again.
TEST(LocIri, RoundTrips) {
    std::string_view const pieces[] = {
        "%C3",       "%A9",    "%c3%a9", "%E2%80", "%AE", "%8E", "%EE%80%80", "%41",    "%F0%9F%93%9E",
        "%ED%A0%80", "a",      ",",      "@",      ":",   "?",   "#",         "[",      "]",
        "/",         "\u00E9", "%",      " ",      ";",   "%FF", "%00",       "\u200E", "\uE000"};
    std::mt19937 random(1);
    auto const below = [&](size_t count) { return static_cast<size_t>(random() % count); };
    int converted = 0;
    for (int i = 0; i < 20000; i++) {
        std::string uri = i % 2 ? "sip:" : "urn:";
        for (size_t k = below(8); k > 0; k--) uri += pieces[below(std::size(pieces))];
        std::string const iri = fromUri(uri);
        ASSERT_EQ(iri != null, locGensValidatePart(0, str(uri))) << uri;
        ASSERT_EQ(toUri(uri) != null, iri != null) << uri;
        if (iri == null) continue;
        converted++;
        EXPECT_TRUE(locGensValidatePart(0, str(iri))) << uri;
        EXPECT_EQ(fromUri(iri), iri) << uri << ": nothing is left to decode";
        std::string const back = toUri(iri);
        EXPECT_EQ(fromUri(back), fromUri(toUri(uri))) << uri;
        EXPECT_EQ(lower(back), lower(toUri(uri))) << uri;
        EXPECT_EQ(toUri(back), back) << uri << ": nothing is left to encode";
    }
    EXPECT_GT(converted, 2000);
}
