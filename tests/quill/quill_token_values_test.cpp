// The values that are texts by one scanner each: which texts they are, and their canonical forms.
#include <ostream>
#include <quill/quill_branch.h>
#include <quill/quill_call_id.h>
#include <quill/quill_content_coding.h>
#include <quill/quill_disposition_type.h>
#include <quill/quill_diversion_privacy.h>
#include <quill/quill_diversion_reason.h>
#include <quill/quill_diversion_screen.h>
#include <quill/quill_em_param.h>
#include <quill/quill_epid.h>
#include <quill/quill_event_reason_value.h>
#include <quill/quill_event_type.h>
#include <quill/quill_handling.h>
#include <quill/quill_history_info_index.h>
#include <quill/quill_iri.h>
#include <quill/quill_media_subtype.h>
#include <quill/quill_media_type.h>
#include <quill/quill_method.h>
#include <quill/quill_option_tag.h>
#include <quill/quill_priority_value.h>
#include <quill/quill_priv_value.h>
#include <quill/quill_protocol_name.h>
#include <quill/quill_protocol_version.h>
#include <quill/quill_purpose.h>
#include <quill/quill_reason_cause.h>
#include <quill/quill_reason_protocol.h>
#include <quill/quill_refresher.h>
#include <quill/quill_rvalue.h>
#include <quill/quill_server.h>
#include <quill/quill_sess_uuid.h>
#include <quill/quill_sip_clean_msg_id.h>
#include <quill/quill_sip_instance.h>
#include <quill/quill_substate_value.h>
#include <quill/quill_tag.h>
#include <quill/quill_timestamp_value.h>
#include <quill/quill_token.h>
#include <quill/quill_token_nodot.h>
#include <quill/quill_transport.h>
#include <quill/quill_user_agent.h>
#include <quill/quill_warn_agent.h>
#include <support/text.hpp>
#include <vector>

using test::str;

namespace {

using Texts = std::vector<std::string>;

struct Abort {
    std::string unit;
    std::string condition;
};

struct Value {
    std::string unit;
    std::string parameter;
    bool (*ok)(coString const *);
    Texts accepted;
    Texts refused;
    coString *(*normalize)(coString const *) = nullptr;
    std::vector<std::pair<std::string, std::string>> normalForms = {};
    Abort invalid = {}; // what the canonical form of a refused text ends in
};

void PrintTo(Value const &value, std::ostream *out) { *out << value.unit; }

Texts operator+(Texts texts, Texts const &more) {
    texts.insert(texts.end(), more.begin(), more.end());
    return texts;
}

std::string source(std::string const &unit) { return "source/quill/quill_" + unit; }

std::string repeated(std::string const &text, int times) {
    std::string result;
    for (int i = 0; i < times; i++) result += text;
    return result;
}

Texts const tokens = {"a", "INVITE", "z9hG4bK-1.2", "-.!%*_+`'~", "0", "100rel", repeated("long", 1000)};
Texts const noTokens = {
    "a b",  " a",  "a ",    "a\t", "\ta", "a\r\n", "a,b",  "a;b",    "a=b",     "a/b",
    "a@b",  "a:b", "\"a\"", "(a)", "<a>", "a{b}",  "a\\b", "\u00e9", "a\u00e9", std::string("a\0b", 3),
    "a[0]", "a?",  "\x7f",  "a#",  "a$"};
std::vector<std::pair<std::string, std::string>> const lowerForms = {
    {"INVITE", "invite"}, {"Text", "text"}, {"plain", "plain"}, {"X-A.b`Z", "x-a.b`z"}, {"AZaz09", "azaz09"}};

// A token whose letter case has no meaning.
Value lowered(std::string unit, std::string parameter, bool (*ok)(coString const *),
              coString *(*normalize)(coString const *), Abort invalid, Texts const &alsoRefused = {}) {
    return {std::move(unit), std::move(parameter), ok, tokens, noTokens + alsoRefused, normalize,
            lowerForms,      std::move(invalid)};
}

Texts const products = {"a", "a/1", "a / 1", "a/1 b", "a/1 b/2 c", "(a)", "a (b (c)) d", "(a) (b)", "A/1.0\t(\u00e9)"};
Texts const noProducts = {"a/", "/1", "a/1 ", " a", "a/1 ,", "a (b", "a,b", "\"a\"", "a)", "a/1\r\n b"};

Texts const quotables = {"full", "FULL", "x.y", "\"\"", "\"a b\"", "\"a\\\"b\"", "\"\u00e9\"", " \"a\""};
Texts const noQuotables = {"a b", "\"a", "a\"", "\"a\" ", "\"a\"b", "\"a\rb\"", "\u00e9", "\"a\\\"", " a"};
std::vector<std::pair<std::string, std::string>> const quotableForms = {{"FULL", "full"},
                                                                        {"off", "off"},
                                                                        {"\"A B\"", "\"a b\""},
                                                                        {"\"\u00c9\"", "\"\u00e9\""},
                                                                        {"not one at all", "not one at all"},
                                                                        {"A b,C", "a b,c"},
                                                                        {"", ""}};

std::vector<Value> values() {
    return {
        lowered("token", "token", quillTokenOk, quillTokenNormalize, {"token", "quillTokenOk( token )"}),
        {"token_nodot",
         "tokenNodot",
         quillTokenNodotOk,
         {"a", "presence", "-!%*_+`'~"},
         noTokens + Texts{"a.b", ".", "a."},
         quillTokenNodotNormalize,
         {{"Presence", "presence"}, {"a", "a"}},
         {"token_nodot", "quillTokenNodotOk( tokenNodot )"}},
        {"branch", "branch", quillBranchOk, tokens, noTokens},
        {"call_id",
         "callId",
         quillCallIdOk,
         {"a", "a@b", "f81d4fae@10.0.0.1", "(<a>:\\\"/[]?{}", "a.b%c@[::1]"},
         {"@", "a@", "@a", "a@b@c", "a b", " a", "a ", "a;b", "a,b", "a=b", "\u00e9", "a$", "a&b", "a#b"}},
        {"tag", "tag", quillTagOk, tokens, noTokens},
        {"method", "method", quillMethodOk, tokens, noTokens},
        {"epid",
         "epid",
         quillEpidOk,
         {"a", "0123456789abcdef", "01234567.9ABCDE~"},
         {"0123456789abcdefg", "a b", "a;b", "\u00e9", repeated("a", 32)}},
        lowered("content_coding", "contentCoding", quillContentCodingOk, quillContentCodingNormalize,
                {"content_coding", "quillContentCodingOk( contentCoding )"}),
        lowered("disposition_type", "dispositionType", quillDispositionTypeOk, quillDispositionTypeNormalize,
                {"disposition_type", "quillDispositionTypeOk( dispositionType )"}),
        lowered("handling", "handling", quillHandlingOk, quillHandlingNormalize,
                {"handling", "quillHandlingOk( handling )"}),
        lowered("media_type", "mediaType", quillMediaTypeOk, quillMediaTypeNormalize,
                {"media_type", "quillMediaTypeOk( mediaType )"}, {"*", "text/plain"}),
        lowered("media_subtype", "mediaSubtype", quillMediaSubtypeOk, quillMediaSubtypeNormalize,
                {"media_subtype", "quillMediaSubtypeOk( mediaSubtype )"}, {"*", "text/plain"}),
        lowered("option_tag", "optionTag", quillOptionTagOk, quillOptionTagNormalize,
                {"option_tag", "quillOptionTagOk( optionTag )"}),
        lowered("priv_value", "privValue", quillPrivValueOk, quillPrivValueNormalize,
                {"priv_value", "quillPrivValueOk( privValue )"}),
        {"protocol_name",
         "protocolName",
         quillProtocolNameOk,
         tokens,
         noTokens,
         quillProtocolNameNormalize,
         {{"sip", "SIP"}, {"Sip", "SIP"}, {"SIP", "SIP"}, {"x-a.b`z", "X-A.B`Z"}, {"0", "0"}},
         {"protocol_name", "quillProtocolNameOk( protocolName )"}},
        lowered("protocol_version", "protocolVersion", quillProtocolVersionOk, quillProtocolVersionNormalize,
                {"protocol_version", "quillProtocolVersionOk( protocolVersion )"}),
        lowered("purpose", "purpose", quillPurposeOk, quillPurposeNormalize,
                {"purpose", "quillPurposeOk( optionTag )"}),
        {"refresher",
         "refresher",
         quillRefresherOk,
         {"uac", "uas", "UAC", "uAs"},
         {"ua", "uax", "uacx", "uac ", " uac", "proxy", "u\u00e4c"},
         quillRefresherNormalize,
         {{"UAC", "uac"}, {"Uas", "uas"}, {"uas", "uas"}},
         {"refresher", "quillRefresherOk( refresher )"}},
        lowered("transport", "transport", quillTransportOk, quillTransportNormalize,
                {"transport", "quillTransportOk( transport )"}),
        lowered("priority_value", "priorityValue", quillPriorityValueOk, quillPriorityValueNormalize,
                {"priority_value", "quillPriorityValueOk( priority )"}),
        lowered("event_reason_value", "eventReasonValue", quillEventReasonValueOk, quillEventReasonValueNormalize,
                {"token", "quillTokenOk( token )"}),
        lowered("substate_value", "substateValue", quillSubstateValueOk, quillSubstateValueNormalize,
                {"token", "quillTokenOk( token )"}),
        {"em_param", "emParam", quillEmParamOk, tokens, noTokens},
        {"event_type",
         "eventType",
         quillEventTypeOk,
         {"presence", "presence.winfo", "a.b.c", "Presence"},
         {".", "a.", ".a", "a..b", "a b", "a;b", "\u00e9"}},
        {"rvalue",
         "rvalue",
         quillRvalueOk,
         {"a.b", "dsn.flash-override", "Q735.0"},
         {"a", "a.", ".b", "a.b.c", "a.b.", "a .b", "a.b "}},
        {"server", "server", quillServerOk, products, noProducts},
        {"user_agent", "userAgent", quillUserAgentOk, products, noProducts},
        {"sess_uuid",
         "sessUuid",
         quillSessUuidOk,
         {repeated("0", 32), repeated("z", 32), "0123456789abcdefghijklmnopqrstuv"},
         {repeated("0", 31), repeated("0", 33), repeated("A", 32), repeated("0", 31) + "-", repeated("\u00e9", 32)}},
        {"sip_clean_msg_id",
         "sipCleanMsgId",
         quillSipCleanMsgIdOk,
         {"a@b", "a.b@c.d", "20398823.2UWQFN309shb3@referrer.example", "a@[::1]", "a@10.0.0.1"},
         {"a", "a@", "@b", "a@b@c", "a.@b", "\"a@b\"", "a b@c", "a@b "}},
        {"sip_instance",
         "sipInstance",
         quillSipInstanceOk,
         {"<urn:uuid:00000000-0000-1000-8000-AABBCCDDEEFF>", "<a>", "<%41>", "<;/?:@&=+$,>"},
         {"<>", "a", "<a", "a>", " <a>", "<a> ", "< a>", "<a >", "<%4>", "<<a>>", "<\u00e9>", "\"<a>\""}},
        {"timestamp_value",
         "timestampValue",
         quillTimestampValueOk,
         {"5", "5.", "54.321", "5 1", "5. 1.", "5 1.25", "5 ", "5\t1", "123456789012345678901234567890"},
         {".5", "a", " 5", "5a", "5 a", "5.1.2", "5 1 ", "-5", "5,1"}},
        {"history_info_index",
         "historyInfoIndex",
         quillHistoryInfoIndexOk,
         {"1", "0", "1.2", "1.0.10", "10.20.30"},
         {"01", "1.01", "1.", ".1", "1..2", "a", "1.a", "1 ", " 1", "-1", "00"}},
        {"diversion_privacy", "diversionPrivacy", quillDiversionPrivacyOk, quotables, noQuotables,
         quillDiversionPrivacyNormalize, quotableForms},
        {"diversion_reason", "diversionReason", quillDiversionReasonOk, quotables, noQuotables,
         quillDiversionReasonNormalize, quotableForms},
        {"diversion_screen", "diversionScreen", quillDiversionScreenOk, quotables, noQuotables,
         quillDiversionScreenNormalize, quotableForms},
        {"iri",
         "iri",
         quillIriOk,
         {"sip:alice@example.com", "sips:bob@[2001:db8::1]:5061;transport=tls?subject=x", "tel:+1-201-555-0123",
          "http://example.com/\u00e9?q#f", "SIP:a,b@h", "urn:a:b"},
         {"alice", "sip:", ":a", "1sip:a@h", "sip:a b", " sip:a@h", "sip:a@h ", "<sip:a@h>", "sip:a@h,sip:b@h",
          "sip:a%zz@h", "sip:a@h\r\n"}},
        {"reason_protocol", "reasonProtocol", quillReasonProtocolOk, tokens + Texts{"SIP", "Q.850"}, noTokens},
        {"reason_cause",
         "reasonCause",
         quillReasonCauseOk,
         {"0", "16", "486", "007", "123456789012345678901234567890"},
         {"-1", "+1", "1 ", " 1", "1.0", "a", "1a", "0x1", "\u0661"}},
        {"warn_agent", // a pseudonym that begins like a host is not tried as one
         "warnAgent",
         quillWarnAgentOk,
         {"10.0.0.1:5060", "token", "proxy.example.com", "[::1]:5060", "[::1]", "_a", "*"},
         {"a b", "a:", "a:b", "\"a\"", " a", "a ", "\u00e9", "[::1", "a,b", "a_b"}},
    };
}

template <class Predicate> std::vector<Value> valuesWhere(Predicate predicate) {
    std::vector<Value> some;
    for (Value const &value : values())
        if (predicate(value)) some.push_back(value);
    return some;
}

bool hasCanonicalForm(Value const &value) { return value.normalize; }
bool mustBeValidForIt(Value const &value) { return !value.invalid.unit.empty(); }

class TextValue : public testing::TestWithParam<Value> {};
class CanonicalText : public TextValue {};
class ValidatedText : public TextValue {};

auto const nameOf = [](auto const &each) { return each.param.unit; };
INSTANTIATE_TEST_SUITE_P(Each, TextValue, testing::ValuesIn(values()), nameOf);
INSTANTIATE_TEST_SUITE_P(Each, CanonicalText, testing::ValuesIn(valuesWhere(hasCanonicalForm)), nameOf);
INSTANTIATE_TEST_SUITE_P(Each, ValidatedText, testing::ValuesIn(valuesWhere(mustBeValidForIt)), nameOf);

} // namespace

TEST_P(TextValue, AcceptsItsTexts) {
    for (auto const &text : GetParam().accepted) EXPECT_TRUE(GetParam().ok(str(text))) << text;
}

TEST_P(TextValue, RefusesOthers) {
    for (auto const &text : GetParam().refused) EXPECT_FALSE(GetParam().ok(str(text))) << text;
}

TEST_P(TextValue, RefusesTheEmptyText) { EXPECT_FALSE(GetParam().ok(str(""))); }

TEST_P(TextValue, RefusesTextsWithAZeroBehind) {
    for (auto const &text : GetParam().accepted) EXPECT_FALSE(GetParam().ok(str(text + std::string(1, '\0')))) << text;
}

TEST_P(TextValue, MustBeGiven) { EXPECT_ABORT(GetParam().ok(nullptr), source(GetParam().unit), GetParam().parameter); }

TEST_P(CanonicalText, IsReachedOnceAndShared) {
    ASSERT_FALSE(GetParam().normalForms.empty());
    for (auto const &[text, normal] : GetParam().normalForms) {
        auto const given = str(text);
        co::Ref<coString> const once(GetParam().normalize(given));
        EXPECT_EQ(test::utf8(once.get()), normal);
        EXPECT_EQ(test::utf8(given), text) << "the text itself stays as it is";
        co::Ref<coString> const twice(GetParam().normalize(once.get()));
        EXPECT_EQ(twice.get(), once.get()) << "a canonical text is shared, not copied: " << text;
        EXPECT_EQ(test::count(once.get()), text == normal ? 3 : 2) << text;
    }
}

TEST_P(ValidatedText, HasItsCanonicalFormOnlyWhereItIsValid) {
    Abort const &abort = GetParam().invalid;
    EXPECT_ABORT(GetParam().normalize(str("")), source(abort.unit), abort.condition);
    EXPECT_ABORT(GetParam().normalize(str(GetParam().refused.front())), source(abort.unit), abort.condition);
}

TEST_P(CanonicalText, IsThatOfATextThatIsThere) {
    EXPECT_ABORT(GetParam().normalize(nullptr), source(GetParam().unit), GetParam().parameter);
}

TEST(TextValues, AreAllThere) {
    EXPECT_EQ(values().size(), 39u);
    EXPECT_EQ(valuesWhere(hasCanonicalForm).size(), 20u);
    EXPECT_EQ(valuesWhere(mustBeValidForIt).size(), 17u);
}

// Lengths that are no multiple of anything, and letters at both ends.
TEST(Token, IsLoweredFromTheFirstToTheLastLetter) {
    for (int length = 1; length < 40; length++) {
        for (int at = 0; at < length; at++) {
            std::string text(static_cast<size_t>(length), 'a');
            text[static_cast<size_t>(at)] = 'Z';
            std::string expected = text;
            expected[static_cast<size_t>(at)] = 'z';
            EXPECT_EQ(test::taken(quillTokenNormalize(str(text))), expected);
        }
    }
}
