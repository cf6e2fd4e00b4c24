#include "objects.hpp"

#include <random>
#include <support/cost.hpp>

using namespace test;
using namespace std::string_view_literals;

namespace {

constexpr char unit[] = "source/quill/quill_message_fragment_encode";

TEST(QuillMessageFragmentEncode, WritesCanonicalBytes) {
    struct {
        std::string_view bytes;    // read
        std::string_view expected; // and written
        char const *why;
    } const rows[] = {
        {"", "Content-Length: 0\r\n\r\n", "nothing"},
        {"INVITE sip:10.0.0.1 SIP/2.0\r\nv: SIP/2.0/UDP h\r\nl: 0\r\n\r\n",
         "INVITE sip:10.0.0.1 SIP/2.0\r\nVia: SIP/2.0/UDP h\r\nContent-Length: 0\r\n\r\n",
         "names in their normal form"},
        {"sip/2.0 200\r\n\r\n", "SIP/2.0 200 \r\nContent-Length: 0\r\n\r\n", "an empty phrase keeps its space"},
        {"SIP/2.0 0200 100%25 \u20AC\r\n\r\n", "SIP/2.0 200 100%25 \u20AC\r\nContent-Length: 0\r\n\r\n", "a phrase"},
        {"INVITE sip:\u00E4@b SIP/2.0\r\n\r\n", "INVITE sip:%C3%A4@b SIP/2.0\r\nContent-Length: 0\r\n\r\n", "a URI"},
        {"INVITE sip:%c3%a4%41@b SIP/2.0\r\n\r\n", "INVITE sip:%C3%A4%41@b SIP/2.0\r\nContent-Length: 0\r\n\r\n",
         "escapes"},
        {"Route: a\r\nv: x\r\nRoute: b\r\n\r\n", "Route: a\r\nRoute: b\r\nVia: x\r\nContent-Length: 0\r\n\r\n",
         "several lines"},
        {"s: a\r\n b\r\n\r\n", "Subject: a b\r\nContent-Length: 0\r\n\r\n", "no folding"},
        {"s:\r\n\r\n", "Subject: \r\nContent-Length: 0\r\n\r\n", "an empty line"},
        {"s: \u20AC\r\n\r\n", "Subject: \u20AC\r\nContent-Length: 0\r\n\r\n", "UTF-8"},
        {"a: b\r\n\r\nabc", "Accept-Contact: b\r\nContent-Length: 3\r\n\r\nabc", "the length at the end"},
        {"a: b\r\nl: 3\r\nv: c\r\n\r\nabcd", "Accept-Contact: b\r\nContent-Length: 3\r\nVia: c\r\n\r\nabc",
         "the length in its place"},
        {"l: 9\r\nv: c\r\nl: 3\r\n\r\nabc", "Content-Length: 3\r\nVia: c\r\n\r\nabc", "once"},
        {"v: c\r\n\r\n\0\xFF"sv, "Via: c\r\nContent-Length: 2\r\n\r\n\0\xFF"sv, "bytes"},
    };
    for (auto const &row : rows) {
        auto const frag = own(quillMessageFragmentTryDecode(buffer(row.bytes).get()));
        ASSERT_TRUE(frag) << row.bytes;
        EXPECT_EQ(encoded(frag.get()), row.expected) << row.why;
        EXPECT_EQ(describe(frag.get()), decoded(row.bytes)) << "the fragment is unchanged";
    }
    EXPECT_ABORT(quillMessageFragmentEncode(nullptr), unit, "frag");
}

TEST(QuillMessageFragmentEncode, RunsOfLinesAreTheirNormalForm) {
    struct {
        std::string_view headers;  // read, without the empty line
        std::string_view expected; // and written, without it
        char const *why;
    } const rows[] = {
        {"Via: a\r\nTo: b\r\nFrom: c\r\n", "Via: a\r\nTo: b\r\nFrom: c\r\nContent-Length: 2\r\n", "a run"},
        {"Via: a\r\nCall-ID: b\r\nCSeq: 1 A\r\nMin-SE: 9\r\nTo: c\r\n",
         "Via: a\r\nCall-Id: b\r\nCseq: 1 A\r\nMin-Se: 9\r\nTo: c\r\nContent-Length: 2\r\n", "another letter case"},
        {"VIA: a\r\nto: b\r\nx-NOTE: c\r\nX-note: d\r\n",
         "Via: a\r\nTo: b\r\nX-Note: c\r\nX-Note: d\r\nContent-Length: 2\r\n", "of a first, a last and unknown names"},
        {"v: a\r\nMax-Forwards: 7\r\ni: b\r\nd: c\r\nTo: d\r\n",
         "Via: a\r\nMax-Forwards: 7\r\nCall-Id: b\r\nRequest-Disposition: c\r\nTo: d\r\nContent-Length: 2\r\n",
         "compact names"},
        {"V: a\r\nVia: b\r\nvIA: c\r\nTo: d\r\n", "Via: a\r\nVia: b\r\nVia: c\r\nTo: d\r\nContent-Length: 2\r\n",
         "one name in three forms"},
        {"To: a\r\nSubject:b\r\nFrom:  c\r\nVia : d\r\nCseq:\te\r\nDate: f \r\nServer: g\r\n",
         "To: a\r\nSubject: b\r\nFrom: c\r\nVia: d\r\nCseq: e\r\nDate: f\r\nServer: g\r\nContent-Length: 2\r\n",
         "blanks around the colon and behind the value"},
        {"To: a\r\nSubject: b\r\n c\r\nFrom: d\r\n", "To: a\r\nSubject: b c\r\nFrom: d\r\nContent-Length: 2\r\n",
         "a folded line between others"},
        {"To: a\r\nSubject: b\r\n \r\n\tc \r\nFrom: d\r\ns:\r\n e\r\n",
         "To: a\r\nSubject: b c\r\nSubject: e\r\nFrom: d\r\nContent-Length: 2\r\n", "folds with nothing in them"},
        {"To: a\r\nSubject\r\n : b\r\nFrom: c\r\n", "To: a\r\nSubject: b\r\nFrom: c\r\nContent-Length: 2\r\n",
         "a fold before the colon"},
        {"To: a\r\nSubject:\r\nFrom: \r\nVia: b\r\n", "To: a\r\nSubject: \r\nFrom: \r\nVia: b\r\nContent-Length: 2\r\n",
         "nothing"},
        {"To: \u00E4\r\nSubject: \u20AC\r\n \U0001F600\r\nf: \u00F6\r\n",
         "To: \u00E4\r\nSubject: \u20AC \U0001F600\r\nFrom: \u00F6\r\nContent-Length: 2\r\n", "beyond ASCII"},
        {"To: a\rb\nc: d\r\nVia: e\r\n", "To: a\rb\nc: d\r\nVia: e\r\nContent-Length: 2\r\n", "single CR and LF"},
        {"Via: a\r\nRoute: b\r\nVia: c\r\nTo: d\r\n", "Via: a\r\nVia: c\r\nRoute: b\r\nTo: d\r\nContent-Length: 2\r\n",
         "lines of one name come together"},
        {"To: a", "To: a\r\nContent-Length: 2\r\n", "a last line without an end"},
        {"Call-ID: a", "Call-Id: a\r\nContent-Length: 2\r\n", "in another letter case"},
        {"  To: a\r\nVia: b\r\n", "To: a\r\nVia: b\r\nContent-Length: 2\r\n", "blanks before the first line"},
        {"To: a\r\nContent-Length: 2\r\nVia: b\r\n", "To: a\r\nContent-Length: 2\r\nVia: b\r\n", "the length as it is"},
        {"Content-Length: 2", "Content-Length: 2\r\n", "at the end"},
        {"To: a\r\nContent-Length: 1\r\nVia: b\r\n", "To: a\r\nContent-Length: 1\r\nVia: b\r\n", "less than there is"},
        {"To: a\r\nContent-Length: 02\r\nVia: b\r\n", "To: a\r\nContent-Length: 2\r\nVia: b\r\n", "with a zero"},
        {"To: a\r\nContent-Length: 2 \r\nVia: b\r\n", "To: a\r\nContent-Length: 2\r\nVia: b\r\n",
         "with a blank behind"},
        {"To: a\r\nContent-Length:2\r\nVia: b\r\n", "To: a\r\nContent-Length: 2\r\nVia: b\r\n", "without a blank"},
        {"To: a\r\nContent-Length:\r\n 2\r\nVia: b\r\n", "To: a\r\nContent-Length: 2\r\nVia: b\r\n", "folded"},
        {"To: a\r\nCONTENT-length: 2\r\nVia: b\r\n", "To: a\r\nContent-Length: 2\r\nVia: b\r\n", "in another case"},
        {"To: a\r\nl: 2\r\nVia: b\r\n", "To: a\r\nContent-Length: 2\r\nVia: b\r\n", "compact"},
        {"To: a\r\nContent-Length: 2\r\nContent-Length: 2\r\nVia: b\r\n", "To: a\r\nContent-Length: 2\r\nVia: b\r\n",
         "twice"},
        {"Content-Length: 2\r\nTo: a\r\nContent-Length: 1\r\nVia: b\r\n", "Content-Length: 1\r\nTo: a\r\nVia: b\r\n",
         "twice, and the last one counts"},
    };
    for (auto const &row : rows) {
        std::string const wire = std::string(row.headers) + (row.headers.ends_with('\n') ? "" : "\r\n") + "\r\nxy";
        auto const frag = own(quillMessageFragmentTryDecode(buffer(wire).get()));
        ASSERT_TRUE(frag) << row.why;
        std::string const body = row.expected.find("Length: 1") == std::string_view::npos ? "xy" : "x";
        EXPECT_EQ(encoded(frag.get()), std::string(row.expected) + "\r\n" + body) << row.why;
    }
    auto const open = own(quillMessageFragmentTryDecode(buffer("To: a\r\nCall-ID: b").get()));
    EXPECT_EQ(encoded(open.get()), "To: a\r\nCall-Id: b\r\nContent-Length: 0\r\n\r\n") << "no end at all";
}

// The same by the slow way: raw headers are made of all lines and written one by one.
std::string linesOf(Fragment const *frag) {
    auto const body = own(quillMessageFragmentBody(frag));
    std::string const length =
        "Content-Length: " + std::to_string(body ? coBufferLength(body.get()) : int64_t{0}) + "\r\n";
    auto const headers = own(quillMessageFragmentHeadersVector(frag));
    std::string text;
    bool hasLength = false;
    for (int64_t i = 0; i < coVectorLength(headers.get()); i++) {
        auto const header = own(quillMessageHeaderFrom(coVectorObjAt(headers.get(), i)));
        std::string const name = utf8(own(quillMessageHeaderName(header.get())).get());
        if (name == "Content-Length") {
            text += length;
            hasLength = true;
            continue;
        }
        for (int64_t k = 0; k < quillMessageHeaderLinesLength(header.get()); k++)
            text += name + ": " + utf8(own(quillMessageHeaderLineAt(header.get(), k)).get()) + "\r\n";
    }
    return hasLength ? text : text + length;
}

// Header lines of all forms in any order, changed while others hold them.
TEST(QuillMessageFragmentEncode, RunsAgreeWithTheSlowWay) {
    constexpr std::string_view names[] = {"Via",    "VIA",    "v",  "Call-ID", "Call-Id",        "i", "CSeq",   "Cseq",
                                          "X-Note", "x-nOTE", "To", "t",       "Content-Length", "l", "Min-SE", "Route",
                                          "From"};
    constexpr std::string_view colons[] = {": ", ": ", ": ", ": ", ":", " : ", ":  ", ":\t", ":\r\n "};
    constexpr std::string_view values[] = {
        "a",  "b c", "", "1\r\n 2", "\u00E4\u20AC", "a\r\n\t", "2", "02", "a longer value, <sip:a@b>;tag=1",
        "2 ", "a\rb"};
    std::minstd_rand random(20);
    auto const any = [&](auto const &texts) { return std::string(texts[random() % std::size(texts)]); };
    auto const check = [](Fragment const *frag) {
        std::string const wire = encoded(frag);
        EXPECT_EQ(wire.substr(0, wire.find("\r\n\r\n") + 2), linesOf(frag));
    };
    int runs = 0;
    for (int round = 0; round < 4000; round++) {
        std::string wire = "To: first\r\n";
        for (size_t i = random() % 12; i > 0; i--) wire += any(names) + any(colons) + any(values) + "\r\n";
        auto const read = own(quillMessageFragmentTryDecodeHeaders(buffer(wire).get(), nullptr));
        if (!read) continue;
        runs++;
        check(read.get());
        std::string const before = encoded(read.get());
        auto changed = own(co::retained(read.get()));
        for (size_t i = random() % 5; i > 0; i--) {
            std::string const name = any(names);
            switch (random() % 4) {
            case 0:
                quillMessageFragmentDelHeaderCstr(changed.address(), name.c_str(), -1);
                break;
            case 1:
                quillMessageFragmentSetHeader(changed.address(), header(name, {"set", "\u00E4 twice"}).get());
                break;
            case 2:
                if (auto const same = own(quillMessageFragmentHeaderCstr(changed.get(), name.c_str(), -1)))
                    quillMessageFragmentSetHeader(changed.address(), same.get());
                break;
            default:
                quillMessageFragmentSetBody(changed.address(), buffer(std::string(random() % 20, 'x')).get());
                break;
            }
            check(changed.get());
        }
        EXPECT_EQ(encoded(read.get()), before) << "what others hold does not change";
    }
    EXPECT_GT(runs, 1000);
}

TEST(QuillMessageFragmentEncode, TheRealLengthIsWritten) {
    auto frag = own(quillMessageFragmentCreate());
    quillMessageFragmentSetHeader(frag.address(), header("l", {"99"}).get());
    EXPECT_EQ(encoded(frag.get()), "Content-Length: 0\r\n\r\n");
    quillMessageFragmentSetBody(frag.address(), buffer("abc").get());
    EXPECT_EQ(encoded(frag.get()), "Content-Length: 3\r\n\r\nabc");
    quillMessageFragmentSetHeader(frag.address(), header("l", {}).get());
    quillMessageFragmentSetHeader(frag.address(), header("v", {}).get());
    quillMessageFragmentSetHeader(frag.address(), header("t", {"x"}).get());
    EXPECT_EQ(encoded(frag.get()), "Content-Length: 3\r\nTo: x\r\n\r\nabc") << "a header without lines writes nothing";
    quillMessageFragmentSetHeader(frag.address(), header("l", {"1", "x", "3"}).get());
    EXPECT_EQ(encoded(frag.get()), "Content-Length: 3\r\nTo: x\r\n\r\nabc");
    quillMessageFragmentSetBody(frag.address(), buffer("").get());
    EXPECT_EQ(encoded(frag.get()), "Content-Length: 0\r\nTo: x\r\n\r\n");
    for (size_t length : {1u, 9u, 10u, 511u, 512u, 513u, 100000u}) {
        std::string const body(length, 'x');
        quillMessageFragmentSetBody(frag.address(), buffer(body).get());
        EXPECT_EQ(encoded(frag.get()), "Content-Length: " + std::to_string(length) + "\r\nTo: x\r\n\r\n" + body);
    }
}

TEST(QuillMessageFragmentEncode, ContentLengthLine) {
    for (auto [length, expected] : {std::pair<int64_t, char const *>{0, "xContent-Length: 0\r\n"},
                                    {1, "xContent-Length: 1\r\n"},
                                    {1234567890123, "xContent-Length: 1234567890123\r\n"},
                                    {INT64_MAX, "xContent-Length: 9223372036854775807\r\n"}}) {
        auto written = buffer("x");
        quill___MessageFragmentEncodeContentLength(written.address(), length);
        EXPECT_EQ(bytes(written.get()), expected);
    }
    auto written = buffer("");
    EXPECT_ABORT(quill___MessageFragmentEncodeContentLength(written.address(), -1), unit, "contentLength >= 0");
    EXPECT_EQ(std::string_view(reinterpret_cast<char const *>(quill___BytesCrLf), 2), "\r\n");
    EXPECT_EQ(std::string_view(reinterpret_cast<char const *>(quill___BytesColonSpace), 2), ": ");
}

TEST(QuillMessageFragmentEncode, AppendsUtf8) {
    for (std::string_view piece : {"a"sv, "\u00E4"sv, "\u20AC"sv, "\U0001F600"sv, "\0"sv})
        for (size_t count : {0u, 1u, 127u, 128u, 129u, 170u, 171u, 255u, 256u, 257u, 511u, 512u, 513u, 5000u}) {
            std::string const text = repeated(piece, count);
            auto written = buffer("x");
            quill___MessageFragmentEncodeAppendUtf8(written.address(), str(text));
            EXPECT_EQ(bytes(written.get()), "x" + text) << piece << count;
        }
    auto written = buffer("");
    EXPECT_ABORT(quill___MessageFragmentEncodeAppendUtf8(written.address(), nullptr), unit, "cos");
}

TEST(QuillMessageFragmentEncode, LongLines) {
    for (size_t length : {500u, 511u, 512u, 513u, 70000u}) {
        std::string const line = repeated("\u20AC", length / 3) + std::string(length % 3, 'x');
        auto frag = own(quillMessageFragmentCreate());
        quillMessageFragmentSetHeader(frag.address(), header("s", {line, line}).get());
        EXPECT_EQ(encoded(frag.get()), "Subject: " + line + "\r\nSubject: " + line + "\r\nContent-Length: 0\r\n\r\n");
    }
}

// A fragment of any contents that can be read back as they are.
class Builder {
public:
    explicit Builder(uint32_t seed) : random(seed) {}

    co::Ref<Fragment> make() {
        auto frag = own(quillMessageFragmentCreate());
        switch (upTo(3)) {
        case 0:
            quillMessageFragmentSetRequest(frag.address(), version().get(), str(token()), str(iri()));
            break;
        case 1:
            quillMessageFragmentSetResponseWithReasonPhrase(frag.address(), version().get(),
                                                            100 + static_cast<int64_t>(upTo(900)), str(text(true)));
            break;
        default:
            break;
        }
        for (size_t i = upTo(8); i > 0; i--) {
            auto made = header(token(), {});
            for (size_t k = 1 + upTo(3); k > 0; k--) quillMessageHeaderAppendLine(made.address(), str(text(false)));
            if (!quillMessageHeaderNameEquals(made.get(), str("l")))
                quillMessageFragmentSetHeader(frag.address(), made.get());
        }
        if (upTo(2) == 0) {
            std::string body;
            for (size_t i = 1 + upTo(300); i > 0; i--) body += static_cast<char>(upTo(256));
            quillMessageFragmentSetBody(frag.address(), buffer(body).get());
        }
        return frag;
    }

private:
    size_t upTo(size_t count) { return random() % count; }

    std::string token() {
        constexpr std::string_view chars = "abcxyzABCXYZ0189-.!%*_+`'~";
        std::string token;
        for (size_t i = 1 + upTo(12); i > 0; i--) token += chars[upTo(chars.size())];
        return token;
    }

    std::string iri() {
        constexpr std::string_view pieces[] = {"@h", ";p=q", "\u00E4", "%20", "\u20AC", "/", "?a=b", "\U00020000", "&"};
        std::string iri = "sip:x";
        for (size_t i = upTo(4); i > 0; i--) iri += pieces[upTo(std::size(pieces))];
        return iri;
    }

    // No blanks at the ends, and no CR LF unless it is escaped on the wire.
    std::string text(bool mayHoldLineEnds) {
        constexpr std::string_view pieces[] = {"a", "Z",  ":", "%",    "\"",     "\\",         "\u00E4", "\u20AC",
                                               " ", "\t", ",", "\x01", "\u0085", "\U0010FFFF", "%41",    "x"};
        std::string text;
        for (size_t i = upTo(20); i > 0; i--) text += pieces[upTo(std::size(pieces))];
        if (mayHoldLineEnds) return upTo(4) == 0 ? text + "\r\n" : text;
        return text.empty() ? text : "<" + text + ">";
    }

    co::Ref<quillVersion> version() {
        return upTo(4) == 0 ? own(quillVersionCreate(str(token()), str(token()))) : sip20();
    }

    std::minstd_rand random;
};

// Without the Content-Length header, which encoding adds.
std::string withoutLength(std::string text) {
    size_t const at = text.find("\nContent-Length=");
    if (at != std::string::npos) text.erase(at, text.find('\n', at + 1) - at);
    return text;
}

TEST(QuillMessageFragmentEncode, WhatIsWrittenReadsBack) {
    int started = 0;
    for (uint32_t seed = 1; seed <= 3000; seed++) {
        auto const frag = Builder(seed).make();
        std::string const wire = encoded(frag.get());
        auto const back = own(quillMessageFragmentTryDecode(buffer(wire).get()));
        ASSERT_TRUE(back) << seed << "\n" << wire;
        EXPECT_EQ(withoutLength(describe(back.get())), describe(frag.get())) << seed;
        EXPECT_EQ(encoded(back.get()), wire) << seed;
        started += !quillMessageFragmentIsNeitherRequestNorResponse(frag.get());
    }
    EXPECT_GT(started, 1000);
}

TEST(QuillMessageFragmentEncode, CostIsLinear) {
    expectLinear("lines of one name", 4000, [](size_t n) {
        auto made = header("v", {});
        for (size_t i = 0; i < n; i++) quillMessageHeaderAppendLineCstr(made.address(), "a", -1);
        auto frag = own(quillMessageFragmentCreate());
        quillMessageFragmentSetHeader(frag.address(), made.get());
        return [frag = std::move(frag)] { own(quillMessageFragmentEncode(frag.get())); };
    });
    expectLinear("names", 4000, [](size_t n) {
        auto frag = own(quillMessageFragmentCreate());
        for (size_t i = 0; i < n; i++)
            quillMessageFragmentSetHeader(frag.address(), header("x-" + std::to_string(i), {"a"}).get());
        return [frag = std::move(frag)] { own(quillMessageFragmentEncode(frag.get())); };
    });
    expectLinear("one long line, a long phrase and a long body", 20000, [](size_t n) {
        auto frag = own(quillMessageFragmentCreateResponseWithReasonPhrase(sip20().get(), 200, str(repeated("%", n))));
        quillMessageFragmentSetHeader(frag.address(), header("s", {repeated("\u20AC", n)}).get());
        quillMessageFragmentSetBody(frag.address(), buffer(std::string(n, 'x')).get());
        return [frag = std::move(frag)] { own(quillMessageFragmentEncode(frag.get())); };
    });
    expectLinear("a long IRI", 20000, [](size_t n) {
        auto frag =
            own(quillMessageFragmentCreateRequest(sip20().get(), str("A"), str("sip:" + repeated("\u00E4", n))));
        return [frag = std::move(frag)] { own(quillMessageFragmentEncode(frag.get())); };
    });
}

} // namespace
