// quill-inspect and the sample messages.

#include "inspect_run.hpp"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <regex>

namespace {

using test::contents;
using test::Directory;
using test::inspect;
using test::lines;
using test::Result;
using test::Sink;
using test::Words;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;
using Json = nlohmann::ordered_json;
namespace fs = std::filesystem;

constexpr char const *unmarked = "MESSAGE sip:bob@example.org SIP/2.0\r\nCall-ID: unmarked\r\n";

/// A small request with a body.
std::string request(std::string const &body = {}, std::string const &callId = "a") {
    return "MESSAGE sip:bob@example.org SIP/2.0\r\nCall-ID: " + callId +
           "\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
}

/// What --json says of it.
std::string requestLine(int index, size_t bodyLength = 0, std::string const &callId = "a",
                        std::string const &file = "-") {
    return R"({"file":")" + file + R"(","index":)" + std::to_string(index) +
           R"(,"ok":true,"kind":"request","method":"MESSAGE","request_iri":"sip:bob@example.org","version":"SIP/2.0",)"
           R"("headers":[{"name":"Call-Id","lines":[")" +
           callId + R"("],"typed":true,"value":{"call_id":")" + callId + R"("}},{"name":"Content-Length","lines":[")" +
           std::to_string(bodyLength) + R"("],"typed":null}],"body_length":)" + std::to_string(bodyLength) + "}";
}

std::string failureLine(int index, std::string const &file = "-") {
    return R"({"file":")" + file + R"(","index":)" + std::to_string(index) + R"(,"ok":false})";
}

/// A request with one header, and what --json says of that header.
Json header(std::string const &lines) {
    Result const result = inspect({"--json"}, "MESSAGE sip:bob@example.org SIP/2.0\r\n" + lines + "\r\n\r\n");
    EXPECT_EQ(result.status, 0) << lines;
    return Json::parse(result.out).at("headers").at(0);
}

/// What stands in the people's view below the lines of a request's only header, without the indentation.
Words detailsOf(std::string const &headerLines) {
    Words const all = lines(inspect({"-"}, "MESSAGE sip:bob@example.org SIP/2.0\r\n" + headerLines + "\r\n\r\n").out);
    size_t const nameColumn = std::max(headerLines.find(':'), std::string("request IRI").size());
    auto const count = 1 + std::count(headerLines.begin(), headerLines.end(), '\n');
    Words details(all.begin() + 4 + count, all.end() - 1); // between title and start line, and body
    for (std::string &detail : details) {
        EXPECT_EQ(detail.find_first_not_of(' ') >= nameColumn + 4, true) << detail;
        detail.erase(0, nameColumn + 4);
    }
    return details;
}

/// The names of the headers that have a type.
Words typedNames() {
    Words names;
    for (std::string const &line : lines(inspect({"--headers", "--json"}).out))
        names.push_back(Json::parse(line).at("name"));
    return names;
}

std::string lowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char ch) { return std::tolower(ch); });
    return text;
}

/// A message as --json shows it, as --raw would have it.
Json withoutTypes(Json json) {
    if (json.contains("headers")) {
        for (Json &each : json["headers"]) {
            each.erase("typed");
            each.erase("value");
        }
    }
    return json;
}

bool isStream(std::string const &sample) { return fs::path(sample).extension() == ".stream"; }

bool isBad(std::string const &sample) { return sample.rfind("bad_", 0) == 0; }

std::vector<std::string> samples() {
    std::vector<std::string> names;
    for (fs::directory_entry const &entry : fs::directory_iterator(QUILL_SAMPLES))
        if (entry.path().extension() != ".md") names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

fs::path golden(std::string const &sample) { return fs::path(QUILL_GOLDEN) / fs::path(sample).stem().concat(".json"); }

Words arguments(std::string const &mode, std::string const &sample, std::string const &file) {
    return isStream(sample) ? Words{mode, "--stream", file} : Words{mode, file};
}

/// Whether a text has control characters (C0 but line feed and tab, DEL, C1 in UTF-8).
bool hasControls(std::string const &text) {
    for (size_t i = 0; i < text.size(); i++) {
        auto const byte = static_cast<unsigned char>(text[i]);
        if ((byte < 0x20 && byte != '\n' && byte != '\t') || byte == 0x7F) return true;
        if (byte == 0xC2 && i + 1 < text.size() && static_cast<unsigned char>(text[i + 1]) < 0xA0) return true;
    }
    return false;
}

std::string withoutColors(std::string const &text) {
    return std::regex_replace(text, std::regex("\x1b\\[[0-9;]*m"), "");
}

// The samples

class Sample : public testing::TestWithParam<std::string> {};

TEST_P(Sample, IsSeenAsItsGoldenSays) {
    Result const result = inspect(arguments("--json", GetParam(), GetParam()));
    EXPECT_EQ(lines(result.out), lines(contents(golden(GetParam()))));
    EXPECT_EQ(result.status, isBad(GetParam()) ? 1 : 0);
    EXPECT_EQ(result.err, isBad(GetParam()) ? "quill-inspect: " + GetParam() + ": message 0: does not decode\n" : "");
}

TEST_P(Sample, SaysTheSameWhenEncoded) {
    Result const encoded = inspect(arguments("--encode", GetParam(), GetParam()));
    if (isBad(GetParam())) {
        EXPECT_EQ(encoded.status, 1);
        EXPECT_EQ(encoded.out, "");
        return;
    }
    EXPECT_EQ(encoded.status, 0);
    EXPECT_EQ(encoded.err, "");
    Words expected;
    for (std::string const &line : lines(contents(golden(GetParam())))) {
        Json json = Json::parse(line);
        json["file"] = "-";
        expected.push_back(json.dump());
    }
    Words seen;
    for (std::string const &line : lines(inspect(arguments("--json", GetParam(), "-"), encoded.out).out))
        seen.push_back(Json::parse(line).dump());
    EXPECT_EQ(seen, expected);
    EXPECT_EQ(inspect(arguments("--encode", GetParam(), "-"), encoded.out).out, encoded.out) << "canonical bytes stay";
}

TEST_P(Sample, IsShownWithoutControlCharacters) {
    Result const result = inspect(arguments("--encode", GetParam(), GetParam()));
    Words const plain = isStream(GetParam()) ? Words{"--stream", GetParam()} : Words{GetParam()};
    Result const shown = inspect(plain);
    EXPECT_EQ(shown.status, result.status);
    EXPECT_FALSE(hasControls(shown.out)) << shown.out;
    EXPECT_FALSE(hasControls(inspect(arguments("--json", GetParam(), GetParam())).out));
    EXPECT_FALSE(hasControls(inspect(arguments("--raw", GetParam(), GetParam())).out));
}

TEST_P(Sample, IsLeftAsItIsByRaw) {
    Words options = arguments("--raw", GetParam(), GetParam());
    Words const text = lines(inspect(options).out);
    Words const typed = lines(inspect(isStream(GetParam()) ? Words{"--stream", GetParam()} : Words{GetParam()}).out);
    size_t next = 0; // the lines without types are a part of those with types, in the same order
    for (std::string const &line : typed)
        if (next < text.size() && line == text[next]) next++;
    EXPECT_EQ(next, text.size());

    options.push_back("--json");
    Words expected;
    for (std::string const &line : lines(contents(golden(GetParam()))))
        expected.push_back(withoutTypes(Json::parse(line)).dump());
    Words seen;
    for (std::string const &line : lines(inspect(options).out)) seen.push_back(Json::parse(line).dump());
    EXPECT_EQ(seen, expected);
}

INSTANTIATE_TEST_SUITE_P(All, Sample, testing::ValuesIn(samples()), [](auto const &sample) {
    return std::regex_replace(sample.param, std::regex("[^A-Za-z0-9]"), "_");
});

TEST(Samples, HaveAGoldenAndALineInTheReadme) {
    std::string const readme = contents(fs::path(QUILL_SAMPLES) / "README.md");
    std::vector<std::string> const names = samples();
    EXPECT_GE(names.size(), 16u);
    for (std::string const &name : names) {
        EXPECT_TRUE(fs::exists(golden(name))) << name;
        EXPECT_THAT(readme, HasSubstr("\n| `" + name + "` |"));
    }
    size_t goldens = 0;
    for (fs::directory_entry const &entry : fs::directory_iterator(QUILL_GOLDEN)) {
        if (entry.path().extension() == ".json") goldens++;
        EXPECT_THAT(readme, HasSubstr("`" + entry.path().stem().string() + "."));
    }
    EXPECT_EQ(goldens, names.size());
}

TEST(Samples, TheBenchmarksMessageHasSixteenHeaderLines) {
    std::string const bytes = contents(fs::path(QUILL_SAMPLES) / "invite_16.sip");
    EXPECT_NEAR(static_cast<double>(bytes.size()), 1300, 50);
    std::string const head = bytes.substr(0, bytes.find("\r\n\r\n") + 2);
    EXPECT_EQ(lines(head).size(), 1u + 16u);
}

TEST(Samples, HaveEachTypedHeaderAtLeastOnce) {
    std::vector<std::string> seen;
    for (std::string const &sample : samples()) {
        if (isBad(sample) || sample == "odd_headers.sip") continue;
        for (std::string const &line : lines(contents(golden(sample)))) {
            Json const message = Json::parse(line);
            for (Json const &each : message.at("headers")) {
                if (each.at("typed") != Json(true)) continue;
                seen.push_back(lowerCase(each.at("name")));
                for (Json const &element : each.at("value").value("elements", Json::array()))
                    EXPECT_FALSE(element.is_null()) << sample << ": " << each;
            }
        }
    }
    EXPECT_EQ(typedNames().size(), 58u);
    for (std::string const &name : typedNames()) EXPECT_THAT(seen, testing::Contains(lowerCase(name)));
}

// The headers that have a type

TEST(InspectHeaders, AreListed) {
    Result const text = inspect({"--headers"}), json = inspect({"--json", "--headers"});
    for (Result const *result : {&text, &json}) {
        EXPECT_EQ(result->status, 0);
        EXPECT_EQ(result->err, "");
        EXPECT_EQ(lines(result->out).size(), 58u);
    }
    EXPECT_THAT(lines(text.out), testing::IsSupersetOf({"Via                       list   RFC 3261, 20.42",
                                                        "Accept-Resource-Priority  list   RFC 4412, 3.2",
                                                        "Supported                 set    RFC 3261, 20.37",
                                                        "Call-Id                   value  RFC 3261, 20.8"}));
    EXPECT_THAT(lines(json.out),
                testing::IsSupersetOf({R"({"name":"Via","shape":"list","definition":"RFC 3261, 20.42"})",
                                       R"({"name":"Privacy","shape":"set","definition":"RFC 3323, 4.2"})",
                                       R"({"name":"User-to-User","shape":"list","definition":"RFC 7433, 4"})"}));
    Words const textLines = lines(text.out), jsonLines = lines(json.out);
    for (size_t i = 0; i < jsonLines.size(); i++) {
        Json const object = Json::parse(jsonLines[i]);
        std::string const name = object.at("name"), shape = object.at("shape"), definition = object.at("definition");
        std::string const spaced = std::regex_replace(textLines[i], std::regex("  +"), "|");
        EXPECT_EQ(spaced, name + '|' + shape + '|' + definition);
    }
}

// JSON

TEST(InspectJson, TellsWhetherAHeaderIsTypedAndDecodes) {
    struct {
        std::string lines, said;
        char const *why;
    } const cases[] = {
        {"X-Odd: 1", R"({"name":"X-Odd","lines":["1"],"typed":null})", "no such type"},
        {"Cseq: 1 BYE", R"({"name":"Cseq","lines":["1 BYE"],"typed":true,"value":{"number":1,"method":"BYE"}})",
         "one value"},
        {"Cseq: 1BYE", R"({"name":"Cseq","lines":["1BYE"],"typed":false})", "no blank, no value"},
        {"Expires: x\r\nExpires: 9", R"({"name":"Expires","lines":["x","9"],"typed":true,"value":{"delta_seconds":9}})",
         "the last line counts"},
        {"Allow: A, B\r\nAllow: A,c",
         R"({"name":"Allow","lines":["A, B","A,c"],"typed":true,"value":{"tokens":["A","B","c"]}})", "a set"},
        {"Allow:", R"({"name":"Allow","lines":[""],"typed":true,"value":{"tokens":[]}})", "an empty set"},
        {"Route:", R"({"name":"Route","lines":[""],"typed":true,"value":{"elements":[]}})", "an empty list"},
        {"Resource-Priority: a.b",
         R"({"name":"Resource-Priority","lines":["a.b"],"typed":true,"value":{"elements":["a.b"]}})", "scalars"},
        {"Diversion: <sip:a@b>;counter=100, <sip:c@d>",
         R"({"name":"Diversion","lines":["<sip:a@b>;counter=100, <sip:c@d>"],"typed":true,)"
         R"("value":{"elements":[null,{"iri":"sip:c@d"}]}})",
         "an element whose value does not decode"},
        {"Contact: *", R"({"name":"Contact","lines":["*"],"typed":true,"value":{"star":true}})", "the star"},
        {"Contact: *\r\nContact: <sip:a@b>", R"({"name":"Contact","lines":["*","<sip:a@b>"],"typed":false})",
         "the star stands alone"},
        {"Route: <sip:a>;lr;B=C;d=\"E\";f=[::1]",
         R"({"name":"Route","lines":["<sip:a>;lr;B=C;d=\"E\";f=[::1]"],"typed":true,"value":{"elements":[)"
         R"({"iri":"sip:a","parameters":[{"name":"lr","type":null},{"name":"b","type":"token","value":"C"},)"
         R"({"name":"d","type":"quoted","value":"E"},{"name":"f","type":"host","value":"[::1]"}]}]}})",
         "parameters of each type"},
        {"Contact: <sip:a@b>;q=1;expires=0",
         R"({"name":"Contact","lines":["<sip:a@b>;q=1;expires=0"],"typed":true,)"
         R"("value":{"elements":[{"iri":"sip:a@b","q":1.0,"expires":0}]}})",
         "nought is not absent"},
        {"Date: Sat, 31 Dec 2016 23:59:60 GMT",
         R"({"name":"Date","lines":["Sat, 31 Dec 2016 23:59:60 GMT"],"typed":true,)"
         R"("value":{"date":"2016-12-31T23:59:60Z"}})",
         "a leap second"},
        {"From: \"\" <sip:a@b>",
         R"({"name":"From","lines":["\"\" <sip:a@b>"],"typed":true,)"
         R"("value":{"iri":"sip:a@b","display_name":""}})",
         "empty is not absent"},
    };
    for (auto const &[text, said, why] : cases) {
        SCOPED_TRACE(why);
        EXPECT_EQ(header(text).dump(), said);
    }
}

TEST(InspectJson, EscapesWhatPartsHold) {
    std::string const out =
        inspect({"--json"}, "MESSAGE sip:b@c SIP/2.0\r\nTo: \"\x1b[2J\xC2\x9B\" <sip:a@b>;x=\"\xE2\x80\xAE\"\r\n\r\n")
            .out;
    EXPECT_FALSE(hasControls(out));
    EXPECT_THAT(out, HasSubstr(R"("display_name":"\u001b[2J\u009b","parameters":[{"name":"x","type":"quoted",)"
                               R"("value":"\u202e"}])"));
}

TEST(InspectJson, GoesOnAfterWhatDoesNotDecode) {
    Result const result = inspect({"--json", "bad_utf8.sip", "bye.sip", "bad_no_colon.sip", "ack.sip"});
    EXPECT_EQ(lines(result.out), lines(contents(golden("bad_utf8.sip")) + contents(golden("bye.sip")) +
                                       contents(golden("bad_no_colon.sip")) + contents(golden("ack.sip"))));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "quill-inspect: bad_utf8.sip: message 0: does not decode\n"
                          "quill-inspect: bad_no_colon.sip: message 0: does not decode\n");
}

TEST(InspectJson, EscapesTheFilesName) {
    Directory const directory;
    std::string const path = directory.file("a\x1b[2J\"\xff.sip", "no message");
    Result const result = inspect({"--json", path});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, R"({"file":")" + directory.path() + R"(/a\u001b[2J\")" + "\xEF\xBF\xBD" +
                              R"(.sip","index":0,"ok":false})" + "\n");
    EXPECT_THAT(result.err, HasSubstr("a\\u{1B}[2J\""));
    EXPECT_FALSE(hasControls(result.err));
}

// Datagrams

TEST(InspectDatagram, Decodes) {
    struct {
        std::string bytes;
        std::string said;
        char const *why;
    } const cases[] = {
        {request(), requestLine(0), "the whole of it"},
        {request("abc"), requestLine(0, 3), "with a body"},
        {request("abc") + "def", requestLine(0, 3), "what follows the body is no part of the message"},
        {request().substr(0, request().size() - 2), requestLine(0), "the empty line may lack when there is no body"},
        {request() + request(), requestLine(0), "a datagram is one message"},
        {"\r\n" + request(), failureLine(0), "keep-alives belong to connections"},
        {"", failureLine(0), "nothing is no message"},
        {"Call-ID: a\r\n\r\n", failureLine(0), "headers alone are no message"},
        {request("abc").substr(0, request("abc").size() - 1), failureLine(0), "a truncated body"},
    };
    for (auto const &[bytes, said, why] : cases) {
        SCOPED_TRACE(why);
        Result const result = inspect({"--json"}, bytes);
        EXPECT_EQ(result.out, said + '\n');
        EXPECT_EQ(result.status, said == failureLine(0) ? 1 : 0);
    }
}

TEST(InspectDatagram, ReadsLargeInputWhole) {
    std::string const body(3'000'001, 'x');
    Result const result = inspect({"--json"}, request(body));
    EXPECT_EQ(result.out, requestLine(0, body.size()) + '\n');
    EXPECT_EQ(result.status, 0);
}

TEST(InspectDatagram, StandardInputIsTheDefault) {
    for (Words const &words : {Words{"--json"}, Words{"--json", "-"}}) {
        Result const result = inspect(words, request());
        EXPECT_EQ(result.out, requestLine(0) + '\n');
        EXPECT_EQ(result.err, "");
        EXPECT_EQ(result.status, 0);
    }
    Result const mixed = inspect({"--json", "ack.sip", "-"}, request());
    EXPECT_EQ(mixed.out, contents(golden("ack.sip")) + requestLine(0) + '\n');
}

// Encoding

TEST(InspectEncode, WritesCanonicalBytes) {
    struct {
        char const *input, *canonical, *why;
    } const cases[] = {
        {"BYE sip:a@example.com sip/2.0\r\ni:1\r\nv:x\r\n ;y\r\nVIA: z\r\nl: 0\r\n\r\n",
         "BYE sip:a@example.com SIP/2.0\r\nCall-Id: 1\r\nVia: x ;y\r\nVia: z\r\nContent-Length: 0\r\n\r\n",
         "full names in the library's capitals, no folds, the lines of a name together"},
        {"BYE sip:j\xC3\xBCrgen@example.com SIP/2.0\r\nl: 00\r\nTo: b\r\n\r\n",
         "BYE sip:j%C3%BCrgen@example.com SIP/2.0\r\nContent-Length: 0\r\nTo: b\r\n\r\n",
         "a URI on the wire; the length in its place"},
        {"SIP/2.0 200\r\nTo: b\r\n\r\nbody", "SIP/2.0 200 \r\nTo: b\r\nContent-Length: 4\r\n\r\nbody",
         "an empty reason phrase; the missing length comes last"},
        {"SIP/2.0 200 50% of %5B\r\nl: 9\r\nl: 0\r\n\r\n", "SIP/2.0 200 50%25 of %5B\r\nContent-Length: 0\r\n\r\n",
         "escapes where they are needed; one length"},
    };
    for (auto const &[input, canonical, why] : cases) {
        SCOPED_TRACE(why);
        Result const result = inspect({"--encode"}, input);
        EXPECT_EQ(result.out, canonical);
        EXPECT_EQ(result.err, "");
        EXPECT_EQ(result.status, 0);
    }
}

TEST(InspectEncode, WritesNothingForWhatDoesNotDecode) {
    Result const result = inspect({"--encode", "bad_utf8.sip", "-"}, request("abc"));
    EXPECT_EQ(result.out, "MESSAGE sip:bob@example.org SIP/2.0\r\nCall-Id: a\r\nContent-Length: 3\r\n\r\nabc");
    EXPECT_EQ(result.err, "quill-inspect: bad_utf8.sip: message 0: does not decode\n");
    EXPECT_EQ(result.status, 1);
}

// Streams

TEST(InspectStream, TellsBrokenAndCutFromWhole) {
    std::string const one = request("abc"), oneLine = requestLine(0, 3) + '\n';
    struct {
        std::string bytes;
        std::string said;
        std::string complaint; // part of it; empty: none
        char const *why;
    } const cases[] = {
        {"", "", "", "a connection on which nothing came"},
        {"\r\n\r\n\r\n", "", "", "keep-alives alone"},
        {one, oneLine, "", "whole"},
        {one + "\r\n\r\n" + one, oneLine + requestLine(1, 3) + '\n', "", "whole, with a keep-alive"},
        {one + "\r\n\r\n", oneLine, "", "a keep-alive at the end is no cut"},
        {one + "\r", oneLine + failureLine(1) + '\n', "message 1: the stream is cut", "half a keep-alive is"},
        {one + one.substr(0, one.size() - 1), oneLine + failureLine(1) + '\n', "message 1: the stream is cut", "body"},
        {one + "MESS", oneLine + failureLine(1) + '\n', "message 1: the stream is cut", "start line"},
        {one.substr(0, 60), failureLine(0) + '\n', "message 0: the stream is cut", "headers of the first message"},
        {one + unmarked + "\r\n" + one, oneLine + failureLine(1) + '\n', "message 1: the stream is broken",
         "without a Content-Length nobody knows where a message ends"},
        {"Call-ID: a\r\nContent-Length: 0\r\n\r\n", failureLine(0) + '\n', "message 0: the stream is broken",
         "no start line"},
        {one + one + "MESSAGE sip:bob@example.org SIP/2.0\r\nl: x\r\n\r\n",
         oneLine + requestLine(1, 3) + '\n' + failureLine(2) + '\n', "message 2: the stream is broken",
         "a length that is no number"},
    };
    for (auto const &[bytes, said, complaint, why] : cases) {
        SCOPED_TRACE(why);
        Result const result = inspect({"--stream", "--json"}, bytes);
        EXPECT_EQ(result.out, said);
        EXPECT_EQ(result.status, complaint.empty() ? 0 : 1);
        EXPECT_THAT(result.err, complaint.empty() ? testing::Matcher<std::string>(IsEmpty())
                                                  : StartsWith("quill-inspect: -: " + complaint));
    }
}

TEST(InspectStream, CountsWhatIsLeftOver) {
    EXPECT_THAT(inspect({"--stream"}, "12345").err, HasSubstr("5 bytes are left over"));
}

TEST(InspectStream, IsReadInPiecesThatMessagesKnowNothingOf) {
    std::string bytes;
    Words expected;
    for (int i = 0; i < 60; i++) {
        auto const length = static_cast<size_t>(i * i * 7);
        bytes += request(std::string(length, '\r'), std::to_string(i)) + (i % 3 == 0 ? "\r\n\r\n" : "");
        expected.push_back(requestLine(i, length, std::to_string(i)));
    }
    Result const result = inspect({"--stream", "--json"}, bytes);
    EXPECT_EQ(lines(result.out), expected);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.status, 0);
}

TEST(InspectStream, EveryBeginningIsACut) {
    Directory const directory;
    std::string const whole = contents(fs::path(QUILL_SAMPLES) / "invite.sip");
    Words words = {"--stream", "--json"}, expected;
    for (size_t length = 1; length < whole.size(); length++) {
        words.push_back(directory.file(std::to_string(length), whole.substr(0, length)));
        expected.push_back(failureLine(0, words.back()));
    }
    Result const result = inspect(words);
    EXPECT_EQ(lines(result.out), expected);
    EXPECT_EQ(result.status, 1);
}

TEST(InspectStream, EncodesWhatCameBeforeTheBreak) {
    Result const result = inspect({"--stream", "--encode"}, "\r\n" + request("abc") + unmarked + "\r\n");
    EXPECT_EQ(result.out, "MESSAGE sip:bob@example.org SIP/2.0\r\nCall-Id: a\r\nContent-Length: 3\r\n\r\nabc");
    EXPECT_EQ(result.status, 1);
}

// Usage

TEST(InspectUsage, UnreadableFilesLeaveTheOthersReadable) {
    Directory const directory;
    Result const result = inspect({"--json", "no such file", "ack.sip", directory.path(), "bye.sip"});
    EXPECT_EQ(result.out, contents(golden("ack.sip")) + contents(golden("bye.sip")));
    EXPECT_EQ(result.err, "quill-inspect: cannot read no such file: No such file or directory\n"
                          "quill-inspect: cannot read " +
                              directory.path() + ": Is a directory\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(inspect({"no such file", "bad_utf8.sip"}).status, 2) << "the worst decides";
    EXPECT_EQ(inspect({"bad_utf8.sip", "no such file"}).status, 2);
}

TEST(InspectUsage, WrongUsageIsTold) {
    for (Words const &words :
         {Words{"--bogus"}, Words{"ack.sip", "-x"}, Words{"--json", "--encode", "ack.sip"},
          Words{"--stream=maybe", "ack.sip"}, Words{"--raw", "--encode", "ack.sip"}, Words{"--headers", "ack.sip"},
          Words{"--headers", "--raw"}, Words{"--headers", "--encode"}, Words{"--headers", "--stream"}}) {
        Result const result = inspect(words);
        EXPECT_EQ(result.status, 2) << words[0];
        EXPECT_EQ(result.out, "") << words[0];
        EXPECT_THAT(result.err, StartsWith("quill-inspect: ")) << words[0];
        EXPECT_THAT(result.err, HasSubstr("--help"));
        EXPECT_EQ(lines(result.err).size(), 1u) << result.err;
    }
}

TEST(InspectUsage, AnyFileNameWillDo) {
    Directory const directory;
    std::string const path = directory.file("-odd", request());
    EXPECT_EQ(inspect({"--json", "--", path}).out, requestLine(0, 0, "a", path) + '\n');
    EXPECT_THAT(inspect({"--", "--json"}).err, HasSubstr("cannot read --json: "));
    EXPECT_THAT(inspect({""}).err, HasSubstr("cannot read : "));
}

TEST(InspectUsage, HelpAndVersionGoToStandardOutput) {
    Result const help = inspect({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.err, "");
    for (char const *option :
         {"--stream", "--json", "--encode", "--raw", "--headers", "--version", "FILE", "Exit status"})
        EXPECT_THAT(help.out, HasSubstr(option));
    Result const version = inspect({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_THAT(version.out, testing::MatchesRegex("quill-inspect [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST(InspectUsage, OutputThatCannotBeWrittenIsTold) {
    std::string const large = request(std::string(1 << 20, 'x'));
    for (Words const &words : {Words{"-"}, Words{"--json"}, Words{"--raw"}, Words{"--encode"}, Words{"--headers"},
                               Words{"--help"}, Words{"--version"}}) {
        for (std::string const &input : {request(), large}) {
            Result const full = inspect(words, input, Sink::full);
            EXPECT_EQ(full.status, 2) << words[0];
            EXPECT_EQ(full.err, "quill-inspect: cannot write: No space left on device\n") << words[0];
            Result const closed = inspect(words, input, Sink::closedPipe);
            EXPECT_EQ(closed.status, 2) << words[0];
            EXPECT_EQ(closed.err, "quill-inspect: cannot write: Broken pipe\n") << words[0];
        }
    }
}

// For people

TEST(InspectView, IsAsItsGoldenSays) {
    int views = 0;
    for (fs::directory_entry const &entry : fs::directory_iterator(QUILL_GOLDEN)) {
        if (entry.path().extension() != ".txt") continue;
        views++;
        Result const result = inspect({entry.path().stem().concat(".sip").string()});
        EXPECT_EQ(lines(result.out), lines(contents(entry.path())));
        EXPECT_EQ(result.status, 0) << "what does not parse is no failure: the message decoded";
        EXPECT_EQ(result.err, "");
    }
    EXPECT_EQ(views, 3);
}

TEST(InspectView, ShowsPartsBelowTheLines) {
    struct {
        std::string lines;
        Words shown;
        char const *why;
    } const cases[] = {
        {"X-Odd: 1", {}, "no type"},
        {"Subject: x", {"   subject  x"}, "one part"},
        {"Cseq: 7 ACK", {"   number  7", "   method  ACK"}, "two"},
        {"Accept: a/*;q=0.005, */*;q=1.0",
         {"1  media type     a", "   media subtype  *", "   q              0.005", "2  media type     *",
          "   media subtype  *", "   q              1"},
         "elements are numbered; qualities have no noughts at the end"},
        {"P-Early-Media: a,b,c,d,e,f,g,h,i,j",
         {" 1  a", " 2  b", " 3  c", " 4  d", " 5  e", " 6  f", " 7  g", " 8  h", " 9  i", "10  j"},
         "scalars have no names; numbers end in one column"},
        {"Contact: *", {"   star  yes"}, "the star"},
        {"Route:", {"   elements  (empty)"}, "an empty list"},
        {"Allow:", {"   tokens  (empty)"}, "an empty set"},
        {"To: \"\" <sip:a@b>", {"   IRI           sip:a@b", "   display name  (empty)"}, "an empty text"},
        {"Event: a;b;c=\"d\\\"e\";f=[::1]",
         {"   event type  a", "   parameter   b", "   parameter   c=\"d\\\"e\"", "   parameter   f=[::1]"},
         "parameters as they are written"},
        {"Cseq: x", {"!  does not parse as Cseq"}, "a value"},
        {"Cseq: 1 A\r\nCseq: x", {"!  the last line does not parse as Cseq"}, "the last line counts"},
        {"Allow: a,,b", {"!  does not parse as Allow"}, "a set"},
        {"Via: x\r\nVia: SIP/2.0/UDP a\r\nVia: y", {"!  lines 1, 3 do not parse as Via"}, "lines"},
        {"Contact: <sip:a@b>\r\nContact: *", {"!  does not parse as a whole, though each line does"}, "together"},
        {"Via: SIP/2.0/UDP a;rportx, SIP/2.0/UDP b",
         {"!  element 1 does not parse as Via", "2  version    SIP/2.0", "   transport  udp", "   host       b"},
         "an element"},
    };
    for (auto const &[text, shown, why] : cases) {
        SCOPED_TRACE(why);
        EXPECT_EQ(detailsOf(text), shown);
    }
}

TEST(InspectView, AlignsNamesAndMarksFurtherLines) {
    EXPECT_EQ(inspect({"--raw", "compact_folded.sip"}).out,
              R"(compact_folded.sip, message 0: request
  method           INVITE
  request IRI      sip:bob@example.org
  version          SIP/2.0
  Via              SIP/2.0/UDP 192.0.2.2:5060;branch=z9hG4bK-cf-2
                 + SIP/2.0/UDP 192.0.2.10:5060 ;branch=z9hG4bK-cf-1 ;received=192.0.2.10
                 + SIP/2.0/TCP 192.0.2.11:5060;branch=z9hG4bK-cf-0
  Max-Forwards     68
  From             "Alice Adler"<sip:alice@example.com>;tag=a1f0
  To               <sip:bob@example.org>
  Call-Id          compact-1@192.0.2.10
  Cseq             7 INVITE
  Contact          <sip:alice@192.0.2.10>
  Route            <sip:one.example.org;lr>, <sip:two.example.org;lr>
                 + <sip:three.example.org;lr>
  Subject          a subject on three lines
)"
              "  Supported        \n"
              R"(                 + timer, 100rel
  Session-Expires  1800
  G                a compact name that nobody has registered
  X-My-Header      one
                 + two
  Content-Length   0
  body             none
)");
}

TEST(InspectView, ShowsTheBodyAsText) {
    EXPECT_EQ(inspect({"--raw", "message_utf8.sip"}).out, R"(message_utf8.sip, message 0: request
  method          MESSAGE
  request IRI     sip:bob@example.org
  version         SIP/2.0
  Via             SIP/2.0/TCP 192.0.2.10:5060;branch=z9hG4bK-msg-1
  Max-Forwards    70
  From            <sip:alice@example.com>;tag=m1
  To              <sip:bob@example.org>
  Call-Id         message-1@192.0.2.10
  Cseq            1 MESSAGE
  Content-Type    text/plain; charset=utf-8
  Content-Length  84
  body            84 bytes, text
  | Schöne Grüße, Боб!
  | )"
                                                          "\tEin Tabulator, ein Herz ♥ und 日本語.\n"
                                                          "  | \n"
                                                          "  | Bis später\n");
}

TEST(InspectView, ShowsWhatIsNoTextAsADump) {
    std::string const out = inspect({"binary_body.sip"}).out;
    std::string const body = "  body            41 bytes, binary\n"
                             "  00000000  f0 f1 f2 f3 f4 f5 f6 f7  f8 f9 fa fb fc fd fe ff  |................|\n"
                             "  00000010  00 01 02 0d 0a 0d 0a 6e  6f 74 20 c3 28 20 74 65  |.......not .( te|\n"
                             "  00000020  78 74 1b 5b 32 4a 80 fe  ff                       |xt.[2J...|\n";
    ASSERT_GE(out.size(), body.size());
    EXPECT_EQ(out.substr(out.size() - body.size()), body);
}

TEST(InspectView, TellsTextFromBytes) {
    struct {
        std::string body;
        std::string shown;
        char const *why;
    } const cases[] = {
        {"", "none\n", "no body"},
        {"a", "1 byte, text\n  | a\n", "no line end"},
        {"a\r\n", "3 bytes, text\n  | a\n", "CR LF"},
        {"a\n\nb\n", "5 bytes, text\n  | a\n  | \n  | b\n", "LF"},
        {"a\rb", "3 bytes, text\n  | a\\u{D}b\n", "a lone CR would send the cursor back"},
        {"\xE2\x80\xAEx", "4 bytes, text\n  | \\u{202E}x\n", "text, but of the kind that disguises"},
        {"a\x07", "2 bytes, binary\n  00000000  61 07                                             |a.|\n", "a control"},
        {"\xC2\x9B", "2 bytes, binary\n  00000000  c2 9b                                             |..|\n", "a C1"},
        {"\xC3", "1 byte, binary\n  00000000  c3                                                |.|\n",
         "half of UTF-8"},
    };
    for (auto const &[body, shown, why] : cases) {
        SCOPED_TRACE(why);
        std::string const out = inspect({"-"}, request(body)).out;
        size_t const at = out.find("  body            ");
        ASSERT_NE(at, std::string::npos) << out;
        EXPECT_EQ(out.substr(at + 18), shown);
    }
}

TEST(InspectView, NeverLetsSendersCommandTheTerminal) {
    for (Sink const sink : {Sink::file, Sink::terminal}) {
        std::string const out = withoutColors(inspect({"escape_sequences.sip"}, {}, sink).out);
        EXPECT_FALSE(hasControls(out)) << out;
        EXPECT_THAT(out, HasSubstr(R"("\u{1B}[31mRed\u{1B}[0m" <sip:mallory@example.com>;tag=esc)"));
        EXPECT_THAT(out, HasSubstr(R"(title \u{1B}]0;owned\u{7} bell, 8-bit \u{9B}2J, tab\u{9}inside, )"
                                   R"(delete \u{7F}, \u{202E}right to left)"));
        EXPECT_THAT(out, HasSubstr("62 65 6c 6c 20 07 20 61")) << "the body is a dump";
    }
    for (Sink const sink : {Sink::file, Sink::terminal}) {
        std::string const out = withoutColors(inspect({"odd_headers.sip"}, {}, sink).out);
        EXPECT_FALSE(hasControls(out)) << out;
        EXPECT_THAT(out, HasSubstr("display name  \\u{1B}]0;owned\\u{7} \\u{202E}ecila\n"));
        EXPECT_THAT(out, HasSubstr("parameter     x=\"\\u{9B}2J\"\n"));
        EXPECT_THAT(out, Not(HasSubstr("\u202E")));
    }
    std::string const phrase = inspect({"-"}, "SIP/2.0 200 %1B[2J%0D%0A\xC2\x9B\r\n\r\n").out;
    EXPECT_THAT(phrase, HasSubstr("reason phrase  \\u{1B}[2J\\u{D}\\u{A}\\u{9B}\n"));
}

TEST(InspectView, SeparatesMessagesByABlankLine) {
    std::string const out = inspect({"--stream", "keepalive.stream"}).out;
    Words titles;
    Words const all = lines(out);
    for (size_t i = 0; i < all.size(); i++) {
        if (!all[i].empty() && all[i][0] != ' ') {
            titles.push_back(all[i]);
            EXPECT_EQ(i == 0, titles.size() == 1);
            if (i > 0) {
                EXPECT_EQ(all[i - 1], "");
            }
        }
    }
    EXPECT_THAT(titles, ElementsAre("keepalive.stream, message 0: request", "keepalive.stream, message 1: request",
                                    "keepalive.stream, message 2: response", "keepalive.stream, message 3: request"));
    EXPECT_EQ(std::count(all.begin(), all.end(), ""), 3) << "nowhere else";
    EXPECT_THAT(out, HasSubstr("\n  status          200\n  reason phrase   OK\n  version         SIP/2.0\n"));
}

TEST(InspectView, IsColoredOnATerminalOnly) {
    Words const files = {"compact_folded.sip", "ringing.sip", "binary_body.sip", "odd_headers.sip"};
    std::string const plain = inspect(files).out;
    EXPECT_THAT(plain, Not(HasSubstr("\x1b")));
    struct {
        Words environment;
        bool colored;
    } const cases[] = {
        {{"TERM=xterm"}, true},
        {{}, true},
        {{"TERM=xterm", "NO_COLOR=1"}, false},
        {{"TERM=xterm", "NO_COLOR="}, true}, // empty: not set, by the convention
        {{"TERM=dumb"}, false},
    };
    for (auto const &[environment, colored] : cases) {
        SCOPED_TRACE(testing::PrintToString(environment));
        std::string const out = inspect(files, {}, Sink::terminal, environment).out;
        EXPECT_EQ(out.find("\x1b[") != std::string::npos, colored);
        EXPECT_EQ(withoutColors(out), plain);
    }
    EXPECT_THAT(inspect({"odd_headers.sip"}, {}, Sink::terminal).out,
                HasSubstr("\x1b[1;31m!\x1b[0m  \x1b[1;31mdoes not parse as Cseq\x1b[0m\n"));
    EXPECT_EQ(inspect({"--headers"}, {}, Sink::terminal).out, inspect({"--headers"}).out);
    std::string const json = inspect({"--json", "ack.sip"}, {}, Sink::terminal).out;
    EXPECT_EQ(json, contents(golden("ack.sip")));
}

} // namespace
