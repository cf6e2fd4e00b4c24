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
