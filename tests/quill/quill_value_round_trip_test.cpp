// What is read is written so that it reads the same, over texts made from the grammar; and whatever else the bytes are,
// nothing aborts, nothing leaks and the cost is linear.

#include "values.hpp"

#include <algorithm>
#include <co/co_string.hpp>
#include <random>
#include <support/cost.hpp>

using namespace test;

namespace {

// Texts of the grammar with odd but legal blanks, letter case, quotes, escapes and UTF-8; the same for the same seed.
class Grammar {
public:
    explicit Grammar(uint32_t seed) : random(seed) {}

    int below(int bound) { return std::uniform_int_distribution(0, bound - 1)(random); }
    bool maybe(int percent = 50) { return below(100) < percent; }
    std::string oneOf(std::initializer_list<char const *> texts) {
        return texts.begin()[below(static_cast<int>(texts.size()))];
    }
    template <class Piece> std::string some(int least, int most, Piece const &piece) {
        std::string all;
        for (int i = least + below(most - least + 1); i > 0; i--) all += piece();
        return all;
    }

    std::string lws() {
        return some(1, 3, [&] { return oneOf({" ", "\t"}); });
    }
    std::string sws() { return maybe(20) ? lws() : ""; }
    std::string around(std::string_view separator) { return sws() + std::string(separator) + sws(); }

    std::string anyCase(std::string_view name) {
        std::string mixed(name);
        for (char &c : mixed)
            if (c >= 'a' && c <= 'z' && maybe(25)) c = static_cast<char>(c - 'a' + 'A');
        return mixed;
    }
    std::string of(std::string_view alphabet, int least, int most) {
        return some(least, most,
                    [&] { return alphabet[static_cast<size_t>(below(static_cast<int>(alphabet.size())))]; });
    }
    std::string digits(int least, int most) { return of("0123456789", least, most); }
    std::string token() { return of("abcXYZ019-.!%*_+`'~", 1, 8); }
    std::string name() { return "x" + token(); } // of no lifted parameter
    std::string quoted() {
        return "\"" +
               some(0, 6,
                    [&] {
                        return oneOf({"a",      "Z",        "0",          " ",      "  ",   "\t",  ";",   ",",
                                      "<",      ">",        "=",          "\\\"",   "\\\\", "\\a", "\\ ", "\\\t",
                                      "\u00E9", "\\\u00E9", "\U0001F600", "\\\x01", "\x7F", "%41", "'"});
                    }) +
               "\"";
    }
    std::string ipV6() { return oneOf({"::", "::1", "2001:DB8::1", "fe80:0:0:0:1:2:3:4", "::ffff:1.2.3.4"}); }
    std::string ipV4() { return oneOf({"0.0.0.0", "192.0.2.1", "255.255.255.255"}); }
    std::string host() {
        return maybe(25) ? ipV4()
                         : oneOf({"h", "Example.COM", "a-b.c-d.", "1.example", "xn--bcher-kva.example", "[::1]",
                                  "[2001:DB8::1]", "[::FFFF:1.2.3.4]"});
    }
    std::string number(int most) {
        return std::string(static_cast<size_t>(below(3)), '0') + std::to_string(below(most));
    }
    std::string index() {
        std::string all = std::to_string(below(30));
        return all + some(0, 3, [&] { return "." + std::to_string(below(30)); });
    }
    std::string qvalue() {
        return maybe(80) ? "0" + (maybe() ? "." + digits(0, 3) : "") : oneOf({"1", "1.", "1.0", "1.000"});
    }
    std::string uri() {
        std::string const user = some(1, 4, [&] {
            return oneOf({"a", "B", "0", "%41", "%c3%a9", "%00", "%20", "\u00E9", "-", "%E2%82%AC", ";", "&", "+"});
        });
        std::string const rest = some(0, 2, [&] { return oneOf({";transport=tcp", ";lr", ";x=%22", ";maddr=[::1]"}); });
        switch (below(4)) {
        case 0:
            return "tel:+" + digits(1, 9);
        case 1:
            return "http://" + host() + "/" + user + "?a=b&c=\u00E9#d";
        case 2:
            return anyCase("sip:") + host() + rest;
        default:
            return anyCase("sips:") + user + "@" + host() + (maybe() ? ":5060" : "") + rest + (maybe(20) ? "?a=b" : "");
        }
    }
    std::string inBrackets() { return sws() + "<" + uri() + ">" + sws(); }
    std::string displayName() {
        if (maybe()) return sws() + quoted();
        std::string const first = token();
        return first + some(0, 2, [&] { return lws() + token(); }) + sws();
    }
    std::string nameAddr() { return maybe(40) ? inBrackets() : displayName() + inBrackets(); }
    std::string address() {
        return maybe(80) ? nameAddr() : oneOf({"sip:h", "sips:a@[::1]:1", "tel:1", "SIP:a%c3%a9@h"});
    }

    std::string param(std::string_view name, std::string const &value) {
        return around(";") + anyCase(name) + around("=") + value;
    }
    std::string flag(std::string_view name) { return around(";") + anyCase(name); }
    std::string genericParam() {
        std::string const start = around(";") + anyCase(name());
        switch (below(4)) {
        case 0:
            return start;
        case 1:
            return start + around("=") + token();
        case 2:
            return start + around("=") + oneOf({"[::1]", "[2001:DB8::1]"});
        default:
            return start + around("=") + quoted();
        }
    }
    std::string genericParams() {
        return some(0, 3, [&] { return genericParam(); });
    }
    // Each now and then, in any order, with generic ones between them.
    std::string params(std::vector<std::string> lifted) {
        std::shuffle(lifted.begin(), lifted.end(), random);
        std::string all = genericParams();
        for (std::string const &one : lifted)
            if (maybe(40)) all += one + (maybe(30) ? genericParam() : "");
        return all;
    }

    // A text with something changed in its bytes.
    std::string mutated(std::string text) {
        for (int changes = 1 + below(3); changes > 0; changes--) {
            size_t const at = text.empty() ? 0 : static_cast<size_t>(below(static_cast<int>(text.size())));
            size_t const count = static_cast<size_t>(1 + below(6));
            switch (below(6)) {
            case 0:
                if (!text.empty()) text[at] = static_cast<char>(text[at] ^ (1 << below(8)));
                break;
            case 1:
                text.erase(at, count);
                break;
            case 2:
                text.insert(at, text.substr(at, count));
                break;
            case 3:
                text.resize(at);
                break;
            case 4:
                text.insert(at,
                            oneOf({";", "=",  "\"", "\\", "<", ">",  ",",     ":",      "@",    "%",      " ",     "[",
                                   "]", "\r", "\n", "*",  ".", "q=", "rport", "\u00E9", "\xFF", "\u200E", "\uFFFD"}));
                break;
            default:
                text.insert(at, 1, static_cast<char>(below(256)));
                break;
            }
        }
        return text;
    }

private:
    std::mt19937 random;
};

// A text of each type.

std::string textOf(Grammar &g, quillVia *) {
    std::string const sentBy = g.host() + (g.maybe() ? g.around(":") + g.number(65536) : "");
    return g.anyCase("sip") + g.around("/") + "2.0" + g.around("/") + g.anyCase("udp") + g.lws() + sentBy +
           g.params({g.param("ttl", g.number(256)), g.param("maddr", g.host()), g.param("received", g.ipV6()),
                     g.param("received", g.ipV4()), g.flag("rport"), g.param("branch", "z9hG4bK" + g.token())}) +
           (g.maybe(10) ? g.genericParam() : "");
}
std::string textOf(Grammar &g, quillRoute *) { return g.address() + g.genericParams(); }
std::string textOf(Grammar &g, quillContact *) {
    return g.address() + g.params({g.param("q", g.qvalue()), g.param("expires", g.number(100000)),
                                   g.param("rc", g.index()), g.param("mp", g.index()), g.param("np", g.index()),
                                   g.param("+sip.instance", "\"<urn:uuid:" + g.of("0aF-", 1, 9) + ">\""),
                                   g.flag("+sip.src"), g.flag("+sip.srs")});
}
std::string textOf(Grammar &g, quillReason *) {
    return g.token() + g.params({g.param("cause", g.digits(1, 4)), g.param("text", g.quoted())});
}
std::string textOf(Grammar &g, quillWarningValue *) {
    std::string const agent = g.maybe() ? g.host() : "_" + g.token();
    return std::to_string(100 + g.below(900)) + g.lws() + agent + g.lws() + g.quoted();
}
std::string textOf(Grammar &g, quillAlertInfo *) { return g.inBrackets() + g.genericParams(); }
std::string textOf(Grammar &g, quillErrorInfo *) { return g.inBrackets() + g.genericParams(); }
std::string textOf(Grammar &g, quillCallInfo *) {
    return g.inBrackets() + g.params({g.param("purpose", g.token()), g.param("purpose", g.token())});
}
std::string textOf(Grammar &g, quillIdentityValue *) { return g.address(); }
std::string textOf(Grammar &g, quillDiversion *) {
    auto const value = [&] { return g.maybe() ? g.token() : g.quoted(); };
    return g.address() +
           g.params({g.param("reason", value()), g.param("counter", g.digits(1, 2)), g.param("limit", g.digits(1, 2)),
                     g.param("privacy", value()), g.param("screen", value())});
}
std::string textOf(Grammar &g, quillHistoryInfo *) {
    return g.nameAddr() + g.params({g.param("rc", g.index()), g.param("mp", g.index()), g.param("np", g.index())}) +
           g.param("index", g.index()) + g.genericParams();
}
std::string textOf(Grammar &g, quillAcceptEncoding *) {
    return (g.maybe(20) ? "*" : g.token()) + g.params({g.param("q", g.qvalue())});
}
std::string textOf(Grammar &g, quillUuiValue *) {
    return (g.maybe(60) ? g.token() : g.sws() + g.quoted()) +
           g.params({g.param("encoding", g.token()), g.param("purpose", g.token()), g.param("content", g.token())});
}

// Values that are not written so that they can be read back.

template <class T> bool isLost(T const *) { return false; }

// Data that is no token is left out.
bool isLost(quillUuiValue const *uui) { return !quillTokenOk(own(quillUuiValueUuiData(uui)).get()); }

// Codes are written without leading zeros, and read with three digits.
bool isLost(quillWarningValue const *warning) { return quillWarningValueWarnCode(warning) < 100; }

// A text that has quotes around it already gets no others, and loses them when it is read.
bool isLost(quillDiversion const *diversion) {
    for (auto get : {quillDiversionReason, quillDiversionPrivacy, quillDiversionScreen}) {
        auto const text = own(get(diversion));
        if (text && quillDiversionReasonOk(text.get()) && !quillTokenOk(text.get())) return true;
    }
    return false;
}

template <class T> class RoundTrip : public testing::Test {
protected:
    static constexpr uint32_t seed = 20261120;
};

using Types =
    testing::Types<ValueFunctions<quillAcceptEncoding>, ValueFunctions<quillAlertInfo>, ValueFunctions<quillCallInfo>,
                   ValueFunctions<quillContact>, ValueFunctions<quillDiversion>, ValueFunctions<quillErrorInfo>,
                   ValueFunctions<quillHistoryInfo>, ValueFunctions<quillIdentityValue>, ValueFunctions<quillReason>,
                   ValueFunctions<quillRoute>, ValueFunctions<quillUuiValue>, ValueFunctions<quillVia>,
                   ValueFunctions<quillWarningValue>>;

struct TypeNames {
    template <class Functions> static std::string GetName(int) { return Functions::name; }
};

TYPED_TEST_SUITE(RoundTrip, Types, TypeNames);

TYPED_TEST(RoundTrip, TextsOfTheGrammarReadTheSameAgain) {
    Grammar grammar(this->seed);
    int lost = 0;
    for (int i = 0; i < 1000; i++) {
        std::string const original = textOf(grammar, static_cast<typename TypeParam::Value *>(nullptr));
        SCOPED_TRACE(original);
        auto const value = decode<typename TypeParam::Value>(original);
        ASSERT_TRUE(value);
        if (isLost(value.get())) {
            lost++;
            continue;
        }
        std::string const written = text(value);
        auto const again = decode<typename TypeParam::Value>(written);
        ASSERT_TRUE(again) << written;
        EXPECT_EQ(TypeParam::compare(value.get(), again.get()), 0) << written;
        EXPECT_EQ(text(again), written);
    }
    EXPECT_LT(lost, 500) << "most are compared";
}

// The same for whatever else is a value: what is written of it reads the same ever after. Its own text may be another
// one, for a member wins over a parameter of its name, and an IRI may hold a character that it is not given back.
template <class T> bool expectStable(co::Ref<T> const &value) {
    if (!value || isLost(value.get())) return false;
    auto const again = decode<T>(text(value));
    EXPECT_TRUE(again) << text(value);
    if (!again || isLost(again.get())) return false;
    auto const third = decode<T>(text(again));
    EXPECT_TRUE(third) << text(again);
    if (!third) return false;
    EXPECT_EQ(text(third), text(again));
    EXPECT_EQ(ValueFunctions<T>::compare(again.get(), third.get()), 0) << text(again);
    return true;
}

TYPED_TEST(RoundTrip, DamagedTextsDoNoHarm) {
    Grammar grammar(this->seed);
    int stable = 0;
    for (int i = 0; i < 5000; i++) {
        std::string const damaged = grammar.mutated(textOf(grammar, static_cast<typename TypeParam::Value *>(nullptr)));
        co::Ref<coString> const chars(coStringCreateFromCstr(damaged.data(), static_cast<int64_t>(damaged.size())));
        SCOPED_TRACE(damaged);
        stable += expectStable(decode<typename TypeParam::Value>(chars->view()));
    }
    EXPECT_GT(stable, 300) << "enough of them are values still";
    EXPECT_LT(stable, 4700) << "and enough are not";
}

TYPED_TEST(RoundTrip, PrefixesDoNoHarm) {
    Grammar grammar(this->seed);
    for (int i = 0; i < 100; i++) {
        std::u32string const whole = wide(textOf(grammar, static_cast<typename TypeParam::Value *>(nullptr)));
        for (size_t length = 0; length <= whole.size(); length++)
            expectStable(decode<typename TypeParam::Value>(std::u32string_view(whole).substr(0, length)));
    }
}

TYPED_TEST(RoundTrip, CostIsLinear) {
    Grammar grammar(this->seed);
    std::string const start = textOf(grammar, static_cast<typename TypeParam::Value *>(nullptr));
    for (std::string_view piece : {";a=1", ";q=1", ";cause=1;text=\"a\"", "; ", ";q=", "\\", " ", ";reason=\"a\\b\"",
                                   ";index=1.1", "%41", "\"a\"", "<sip:h>", "a.", "[::1]"})
        expectLinear(std::string(piece), 1000, [&](size_t n) {
            return [chars = wide(start + repeated(piece, n))] {
                if (auto const value = decode<typename TypeParam::Value>(chars)) text(value);
            };
        });
    expectLinear("parameters of many names", 1000, [&](size_t n) {
        std::string params;
        for (size_t i = 0; i < n; i++) params += ";x" + std::to_string(i) + "=\"a b\"";
        return [chars = wide(start + params)] {
            if (auto const value = decode<typename TypeParam::Value>(chars)) text(value);
        };
    });
    expectLinear("one long name", 2000, [&](size_t n) {
        return [chars = wide(repeated("a ", n) + "<sip:h>;index=1;" + repeated("a", n))] {
            if (auto const value = decode<typename TypeParam::Value>(chars)) text(value);
        };
    });
}

// Conditions that decoders assert of what the scanners took. All texts of a few characters, behind what leads there.
template <class T>
void expectNoAbort(std::string_view before, std::u32string_view alphabet, size_t most, std::string_view after = "") {
    std::u32string const head = wide(before), tail = wide(after);
    std::vector<size_t> digits;
    int values = 0, others = 0;
    while (digits.size() <= most) {
        std::u32string chars = head;
        for (size_t digit : digits) chars += alphabet[digit];
        (decode<T>(chars + tail) ? values : others)++;
        size_t i = 0;
        while (i < digits.size() && ++digits[i] == alphabet.size()) digits[i++] = 0;
        if (i == digits.size()) digits.push_back(0);
    }
    EXPECT_GT(values, 0);
    EXPECT_GT(others, 0);
}

TEST(ScannedText, IsAnAddressToVia) {
    expectNoAbort<quillVia>("SIP/2.0/UDP h;received=", U"012:.f", 6);
    expectNoAbort<quillVia>("SIP/2.0/UDP h;received=1.2.", U"02.59:", 6);
    expectNoAbort<quillVia>("SIP/2.0/UDP h;received=1:2:3:4:5:6", U"01:.a", 6);
    expectNoAbort<quillVia>("SIP/2.0/UDP h;received=::ffff:1.2", U"0.35:g", 6);
}

TEST(ScannedText, IsAHostToVia) {
    expectNoAbort<quillVia>("SIP/2.0/UDP ", U"a1-.%[:", 6);
    expectNoAbort<quillVia>("SIP/2.0/UDP xn--", U"a9-.Z", 6);
    expectNoAbort<quillVia>("SIP/2.0/UDP h;maddr=[:", U":1.]f", 6);
}

TEST(ScannedText, IsADisplayName) {
    std::u32string_view const alphabet = U"\"\\ \tA\u00E9<";
    expectNoAbort<quillRoute>("", alphabet, 5, "<sip:h>");
    expectNoAbort<quillContact>("\"", alphabet, 5, "\"<sip:h>");
    expectNoAbort<quillIdentityValue>("", U"\"\\a\x00\r ", 5, "\" <sip:h>");
    expectNoAbort<quillDiversion>("", U"a \t.!<", 5, "<sip:h>");
    expectNoAbort<quillHistoryInfo>("", U"\" \\a\n", 5, "<sip:h>;index=1");
}

TEST(ScannedText, IsATextToReasonWarningAndUserToUser) {
    std::u32string_view const alphabet = U"\"\\ a\n\u00E9;";
    expectNoAbort<quillReason>("SIP;text=", alphabet, 6);
    expectNoAbort<quillWarningValue>("301 h ", alphabet, 6);
    expectNoAbort<quillUuiValue>("", alphabet, 6);
    expectNoAbort<quillDiversion>("<sip:h>;reason=", alphabet, 5);
}

TEST(ScannedText, IsParametersToInfos) {
    expectNoAbort<quillAlertInfo>("<sip:h>", U";=a\"\\ [", 6);
    expectNoAbort<quillErrorInfo>("<sip:h>;a=", U":]1[;\".", 6);
}

TEST(ScannedText, IsAnIri) {
    expectNoAbort<quillRoute>("<sip:", U"a%c3@,", 6, ">");
    expectNoAbort<quillRoute>("<sip:a%", U"eE28f9%", 6, ">");
    expectNoAbort<quillRoute>("<a:", U"/?#[]%\u00E9", 6, ">");
}

} // namespace
