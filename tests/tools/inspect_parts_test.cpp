// How quill-inspect takes typed headers apart.

#include "../../tools/inspect/parts.hpp"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <quill/quill_generic_param_value.h>
#include <regex>

namespace {

using namespace inspect;
using testing::ElementsAre;
using testing::IsEmpty;

class InspectParts : public testing::Test {
    Library const library;
};

Header rawHeader(char const *name, std::vector<char const *> const &lines) {
    RawHeader *header = quillMessageHeaderCreateCstr(name, -1);
    for (char const *line : lines) quillMessageHeaderAppendLineCstr(&header, line, -1);
    return Header(header);
}

Typed read(char const *name, std::vector<char const *> const &lines) { return readTyped(rawHeader(name, lines).get()); }

/// One legal line of each typed header that has as many parts as it can have.
std::map<std::string, char const *> const fullLines = {
    {"Accept", "text/plain;q=0.5;a=b"},
    {"AcceptEncoding", "gzip;q=0.5;a=b"},
    {"AcceptResourcePriority", "wps.3"},
    {"AlertInfo", "<sip:a@b>;a=b"},
    {"Allow", "INVITE"},
    {"AllowEvents", "presence"},
    {"CallId", "a@b"},
    {"CallInfo", "<sip:a@b>;purpose=icon;a=b"},
    {"Contact", "A <sip:a@b>;q=0.5;expires=1;rc=1;mp=1;np=1;+sip.instance=\"<urn:a>\";+sip.src;+sip.srs;a=b"},
    {"ContentDisposition", "session;handling=optional;a=b"},
    {"ContentEncoding", "gzip"},
    {"Cseq", "1 INVITE"},
    {"Date", "Mon, 01 Jan 2024 00:00:00 GMT"},
    {"Diversion", "A <sip:a@b>;reason=away;counter=1;limit=2;privacy=off;screen=yes;a=b"},
    {"ErrorInfo", "<sip:a@b>;a=b"},
    {"Event", "dialog;id=1;a=b"},
    {"Expires", "1"},
    {"From", "A <sip:a@b>;tag=1;epid=2;a=b"},
    {"HistoryInfo", "A <sip:a@b>;index=1.1;rc=1;mp=1;np=1;a=b"},
    {"InReplyTo", "a@b"},
    {"MaxForwards", "70"},
    {"MinExpires", "1"},
    {"MinSe", "90;a=b"},
    {"Organization", "Example"},
    {"PAssertedIdentity", "A <sip:a@b>"},
    {"PCalledPartyId", "A <sip:a@b>;a=b"},
    {"PEarlyMedia", "sendrecv"},
    {"PPreferredIdentity", "A <sip:a@b>"},
    {"Priority", "urgent"},
    {"Privacy", "id"},
    {"ProxyRequire", "sec-agree"},
    {"Rack", "1 2 INVITE"},
    {"Reason", "SIP;cause=200;text=\"A\";a=b"},
    {"RecordRoute", "A <sip:a@b>;a=b"},
    {"ReferTo", "A <sip:a@b>;a=b"},
    {"ReferredBy", "A <sip:a@b>;cid=\"1@b\";a=b"},
    {"RemotePartyId", "A <sip:a@b>;a=b"},
    {"Replaces", "a@b;from-tag=1;to-tag=2;early-only;a=b"},
    {"ReplyTo", "A <sip:a@b>;a=b"},
    {"Require", "100rel"},
    {"ResourcePriority", "wps.3"},
    {"RetryAfter", "1;duration=2;a=b"},
    {"Route", "A <sip:a@b>;a=b"},
    {"Rseq", "1"},
    {"Server", "Example/1"},
    {"ServiceRoute", "A <sip:a@b>;a=b"},
    {"SessionExpires", "90;refresher=uas;a=b"},
    {"SessionId", "0123456789abcdef0123456789abcdef;remote=0123456789abcdef0123456789abcdef;a=b"},
    {"Subject", "a"},
    {"SubscriptionState", "active;reason=noresource;expires=1;retry-after=2;a=b"},
    {"Supported", "100rel"},
    {"Timestamp", "1.5"},
    {"To", "A <sip:a@b>;tag=1;epid=2;a=b"},
    {"Unsupported", "100rel"},
    {"UserAgent", "Example/1"},
    {"UserToUser", "56a3;encoding=hex;purpose=isdn;content=isdn;a=b"},
    {"Via", "SIP/2.0/UDP h:1;ttl=2;maddr=m;received=192.0.2.1;rport;branch=3;a=b"},
    {"Warning", "399 h \"a\""},
};

/// The number of parts of each: those of its getters, all generic parameters counted as one; 0 for plain strings.
std::map<std::string, size_t> const partCounts = {
    {"Accept", 4},
    {"AcceptEncoding", 3},
    {"AlertInfo", 2},
    {"CallId", 1},
    {"CallInfo", 3},
    {"Contact", 11},
    {"ContentDisposition", 3},
    {"Cseq", 2},
    {"Date", 1},
    {"Diversion", 8},
    {"ErrorInfo", 2},
    {"Event", 3},
    {"Expires", 1},
    {"From", 5},
    {"HistoryInfo", 7},
    {"MaxForwards", 1},
    {"MinExpires", 1},
    {"MinSe", 2},
    {"Organization", 1},
    {"PAssertedIdentity", 2},
    {"PCalledPartyId", 3},
    {"PPreferredIdentity", 2},
    {"Priority", 1},
    {"Rack", 3},
    {"Reason", 4},
    {"RecordRoute", 3},
    {"ReferTo", 3},
    {"ReferredBy", 4},
    {"RemotePartyId", 3},
    {"Replaces", 5},
    {"ReplyTo", 3},
    {"RetryAfter", 3},
    {"Route", 3},
    {"Rseq", 1},
    {"Server", 1},
    {"ServiceRoute", 3},
    {"SessionExpires", 3},
    {"SessionId", 3},
    {"Subject", 1},
    {"SubscriptionState", 5},
    {"Timestamp", 1},
    {"To", 5},
    {"UserAgent", 1},
    {"UserToUser", 5},
    {"Via", 10},
    {"Warning", 3},
};

TEST_F(InspectParts, AreReadForExactlyTheTypedHeaders) {
    std::vector<std::string> known, read;
    for (int64_t i = 0; i < quillTypedHeadersLength(); i++) known.push_back(quillTypedHeaderAt(i)->type);
    for (Reader const &reader : readers()) read.emplace_back(reader.type);
    EXPECT_EQ(known.size(), 58u);
    EXPECT_THAT(read, testing::UnorderedElementsAreArray(known));
}

TEST_F(InspectParts, AreAllReadInTheShapeOfTheHeader) {
    std::regex const snakeCase("[a-z]+(_[a-z]+)*");
    for (int64_t i = 0; i < quillTypedHeadersLength(); i++) {
        quillTypedHeader const *kind = quillTypedHeaderAt(i);
        SCOPED_TRACE(kind->type);
        ASSERT_EQ(fullLines.count(kind->type), 1u);
        Typed const typed = read(kind->name, {fullLines.at(kind->type)});
        ASSERT_EQ(typed.kind, kind);
        ASSERT_TRUE(typed.value) << typed.problem;

        Parts parts;
        if (kind->shape == QUILL_TYPED_HEADER_SET) {
            ASSERT_TRUE(std::holds_alternative<Tokens>(*typed.value));
            std::string const line = fullLines.at(kind->type);
            std::string token = std::get<Tokens>(*typed.value).all.at(0);
            EXPECT_EQ(token, line);
        } else if (kind->shape == QUILL_TYPED_HEADER_LIST) {
            ASSERT_TRUE(std::holds_alternative<Elements>(*typed.value));
            Elements const &elements = std::get<Elements>(*typed.value);
            ASSERT_EQ(elements.size(), 1u);
            if (auto const *scalar = std::get_if<std::string>(&elements[0]))
                EXPECT_EQ(*scalar, fullLines.at(kind->type));
            else
                parts = std::get<Parts>(elements[0]);
        } else {
            ASSERT_EQ(kind->shape, QUILL_TYPED_HEADER_VALUE);
            ASSERT_TRUE(std::holds_alternative<Parts>(*typed.value));
            parts = std::get<Parts>(*typed.value);
        }
        auto const count = partCounts.find(kind->type);
        EXPECT_EQ(parts.size(), count == partCounts.end() ? 0 : count->second);
        std::vector<std::string> names;
        for (Part const &part : parts) {
            EXPECT_TRUE(std::regex_match(part.name, snakeCase)) << part.name;
            EXPECT_THAT(names, testing::Not(testing::Contains(part.name)));
            names.push_back(part.name);
        }
    }
}

TEST_F(InspectParts, LeaveOutWhatIsAbsent) {
    auto const names = [](char const *name, char const *line) {
        Typed const typed = read(name, {line});
        std::vector<std::string> found;
        if (!typed.value) return found;
        Parts const *parts = std::get_if<Parts>(&*typed.value);
        if (!parts) parts = &std::get<Parts>(std::get<Elements>(*typed.value).at(0));
        for (Part const &part : *parts) found.emplace_back(part.name);
        return found;
    };
    EXPECT_THAT(names("Via", "SIP/2.0/UDP h"), ElementsAre("version", "transport", "host"));
    EXPECT_THAT(names("Via", "SIP/2.0/UDP h;rport=5"), ElementsAre("version", "transport", "host", "parameters"));
    EXPECT_THAT(names("Contact", "<sip:a@b>"), ElementsAre("iri"));
    EXPECT_THAT(names("Contact", "*"), ElementsAre("star"));
    EXPECT_THAT(names("Replaces", "a"), ElementsAre("call_id"));
    EXPECT_THAT(names("Retry-After", "0"), ElementsAre("delta_seconds"));
    EXPECT_THAT(names("Accept", "*/*"), ElementsAre("media_type", "media_subtype")) << "a star is something";
    EXPECT_THAT(names("Accept-Encoding", "*"), ElementsAre("content_coding"));
}

TEST_F(InspectParts, ParametersKeepNameTypeValueAndWireForm) {
    Typed const typed = read("Event", {"dialog;LR;A=B;c=\"d \\\"e\";f=[2001:DB8::1]"});
    ASSERT_TRUE(typed.value);
    auto const &parts = std::get<Parts>(*typed.value);
    auto const &parameters = std::get<std::vector<Parameter>>(parts.at(1).content);
    struct {
        char const *name;
        int64_t type;
        char const *value, *wire;
    } const expected[] = {
        {"lr", -1, "", "lr"},
        {"a", QUILL_GENERIC_PARAM_VALUE_TYPE_TOKEN, "B", "a=B"},
        {"c", QUILL_GENERIC_PARAM_VALUE_TYPE_QUOTED_STRING, "d \"e", "c=\"d \\\"e\""},
        {"f", QUILL_GENERIC_PARAM_VALUE_TYPE_HOST, "[2001:DB8::1]", "f=[2001:DB8::1]"},
    };
    ASSERT_EQ(parameters.size(), std::size(expected));
    for (size_t i = 0; i < parameters.size(); i++) {
        EXPECT_EQ(parameters[i].name, expected[i].name);
        EXPECT_EQ(parameters[i].type, expected[i].type);
        EXPECT_EQ(parameters[i].value, expected[i].value);
        EXPECT_EQ(parameters[i].wire, expected[i].wire);
    }
}

TEST_F(InspectParts, TellWhyTheyAreNotThere) {
    struct {
        char const *name;
        std::vector<char const *> lines;
        char const *problem, *why;
    } const cases[] = {
        {"Via", {}, "has no lines", "as no message can have it"},
        {"Via", {"x"}, "does not parse as Via", "one line"},
        {"Via", {"SIP/2.0/UDP a", "x", "SIP/2.0/UDP b"}, "line 2 does not parse as Via", "one of them"},
        {"Via", {"x", "SIP/2.0/UDP a", "y"}, "lines 1, 3 do not parse as Via", "some of them"},
        {"allow", {"A", "b c"}, "line 2 does not parse as Allow", "a set"},
        {"m", {"*", "<sip:a@b>"}, "does not parse as a whole, though each line does", "the star stands alone"},
        {"expires", {"1", "x"}, "the last line does not parse as Expires", "of one value the last line counts"},
    };
    for (auto const &[name, lines, problem, why] : cases) {
        SCOPED_TRACE(why);
        Typed const typed = read(name, lines);
        EXPECT_NE(typed.kind, nullptr);
        EXPECT_FALSE(typed.value);
        EXPECT_EQ(typed.problem, problem);
    }
    Typed const untyped = read("X-Odd", {"x"});
    EXPECT_EQ(untyped.kind, nullptr);
    EXPECT_FALSE(untyped.value);
    EXPECT_THAT(untyped.problem, IsEmpty());
}

} // namespace
