#include "objects.hpp"

#include <support/cost.hpp>

using namespace test;
using namespace std::string_view_literals;

namespace {

constexpr char unit[] = "source/quill/quill_message_fragment_decode";

struct Row {
    std::string_view bytes;
    std::string_view expected; // what describe() says
    char const *why;
};

void expectDecoded(std::initializer_list<Row> rows) {
    for (Row const &row : rows) EXPECT_EQ(decoded(row.bytes), row.expected) << row.bytes << "\n" << row.why;
}

// Of start line and headers alone.
std::string decodedHeaders(std::string_view bytes, int64_t *contentLength) {
    return describe(own(quillMessageFragmentTryDecodeHeaders(buffer(bytes).get(), contentLength)).get());
}

TEST(QuillMessageFragmentDecode, StatusLines) {
    expectDecoded({
        {"SIP/2.0 200 OK\r\n\r\n", "SIP/2.0 200 [OK]", ""},
        {"SIP/2.0 200\r\n\r\n", "SIP/2.0 200 []", "no phrase and no space"},
        {"SIP/2.0 200 \r\n\r\n", "SIP/2.0 200 []", "no phrase"},
        {"SIP/2.0 200  OK \r\n\r\n", "SIP/2.0 200 [ OK ]", "further spaces are the phrase's"},
        {"SIP/2.0 404 Not found here\r\n\r\n", "SIP/2.0 404 [Not found here]", "a phrase of words"},
        {"sip/2.0 200 OK\r\n\r\n", "SIP/2.0 200 [OK]", "the version is normalised"},
        {"SIP\t/\t2.0 200 OK\r\n\r\n", "SIP/2.0 200 [OK]", "tabs around the slash split nothing"},
        {"SIP / 2.0 200 OK\r\n\r\n", "(null)", "the first word is a method then, the second one no URI"},
        {"HTTP/1.1 200 OK\r\n\r\n", "HTTP/1.1 200 [OK]", "any protocol"},
        {"SIP/2.0 100 a\r\n\r\n", "SIP/2.0 100 [a]", "the lowest"},
        {"SIP/2.0 999 a\r\n\r\n", "SIP/2.0 999 [a]", "the highest"},
        {"SIP/2.0 0200 a\r\n\r\n", "SIP/2.0 200 [a]", "a leading zero"},
        {"SIP/2.0 099 a\r\n\r\n", "(null)", "too low"},
        {"SIP/2.0 1000 a\r\n\r\n", "(null)", "too high"},
        {"SIP/2.0 -1 a\r\n\r\n", "(null)", "negative: not even as the absent code"},
        {"SIP/2.0 -200 a\r\n\r\n", "(null)", "negative"},
        {"SIP/2.0 +200 a\r\n\r\n", "(null)", "a plus"},
        {"SIP/2.0 abc a\r\n\r\n", "(null)", "no number"},
        {"SIP/2.0 200a\r\n\r\n", "(null)", "more than a number"},
        {"SIP/2.0 20\t0 a\r\n\r\n", "(null)", "a tab in it"},
        {"SIP/2.0  200 a\r\n\r\n", "(null)", "two spaces: the second piece is empty"},
        {"SIP/2.0 \r\n\r\n", "(null)", "no code"},
        {"SIP/2.0 99999999999999999999 a\r\n\r\n", "(null)", "beyond 64 bits"},
        {"SIP/2.0 18446744073709551816 a\r\n\r\n", "(null)", "200 modulo 2^64"},
        {"SIP/2.0\r\n\r\n", "(null)", "one piece: a header line without colon"},
        {"SIP/2.0 200 100%25%20sure\r\n\r\n", "SIP/2.0 200 [100% sure]", "escapes"},
        {"SIP/2.0 200 50% %4 %zz\r\n\r\n", "SIP/2.0 200 [50% %4 %zz]", "what is no escape"},
        {"SIP/2.0 200 a%0D%0Ab\r\n\r\n", "SIP/2.0 200 [a\r\nb]", "an escaped line end"},
        {"SIP/2.0 200 \u20AC\u00E4\r\n\r\n", "SIP/2.0 200 [\u20AC\u00E4]", "UTF-8"},
        {"SIP/2.0 200 a\nb\rc\r\n\r\n", "SIP/2.0 200 [a\nb\rc]", "lone line ends"},
        {" SIP/2.0 200 OK\r\n\r\n", "(null)", "begins with a space"},
        {"SIP/2.0\t200 OK\r\n\r\n", "(null)", "only spaces split"},
    });
}

TEST(QuillMessageFragmentDecode, RequestLines) {
    expectDecoded({
        {"INVITE sip:a@b SIP/2.0\r\n\r\n", "INVITE sip:a@b SIP/2.0", ""},
        {"iNVITE sip:a@b SIP/2.0\r\n\r\n", "iNVITE sip:a@b SIP/2.0", "methods keep their case"},
        {"X-y.z!%*_+`'~ tel:+1-2 SIP/2.0\r\n\r\n", "X-y.z!%*_+`'~ tel:+1-2 SIP/2.0", "any token"},
        {"INVITE sip:%C3%A4@b SIP/2.0\r\n\r\n", "INVITE sip:\u00E4@b SIP/2.0", "the URI is kept as an IRI"},
        {"INVITE sip:\u00E4@b SIP/2.0\r\n\r\n", "INVITE sip:\u00E4@b SIP/2.0", "raw UTF-8"},
        {"INVITE sip:a%20b%41@c SIP/2.0\r\n\r\n", "INVITE sip:a%20b%41@c SIP/2.0", "ASCII escapes stay"},
        {"INVITE sip:a@[::1]:5060;p=q?h=[i] SIP/2.0\r\n\r\n", "INVITE sip:a@[::1]:5060;p=q?h=[i] SIP/2.0", "brackets"},
        {"INVITE sip:a@b sip/2.0\r\n\r\n", "INVITE sip:a@b SIP/2.0", "the version is normalised"},
        {"INVITE sip:a@b SIP / 2.0\r\n\r\n", "INVITE sip:a@b SIP/2.0", "the third piece keeps further spaces"},
        {"INVITE sip:a@b HTTP/1.1\r\n\r\n", "INVITE sip:a@b HTTP/1.1", "any protocol"},
        {"INVITE a SIP/2.0\r\n\r\n", "(null)", "no scheme"},
        {"INVITE sip: SIP/2.0\r\n\r\n", "(null)", "nothing behind the scheme"},
        {"INVITE sip:a%4@b SIP/2.0\r\n\r\n", "(null)", "half an escape"},
        {"INVITE <sip:a@b> SIP/2.0\r\n\r\n", "(null)", "angle brackets"},
        {"INVITE sip:a@b SIP/2.0 \r\n\r\n", "(null)", "a space behind the version"},
        {"INVITE sip:a@b  SIP/2.0\r\n\r\n", "(null)", "two spaces: one belongs to the third piece"},
        {"INVITE  sip:a@b SIP/2.0\r\n\r\n", "(null)", "two spaces: the URI is empty"},
        {"INVITE sip:a@b SIP2.0\r\n\r\n", "(null)", "no version"},
        {"INVITE sip:a@b x\r\n\r\n", "(null)", "no version"},
        {"INVITE sip:a@b \r\n\r\n", "(null)", "an empty one"},
        {"INVITE sip:a@b\r\n\r\n", "(null)", "two pieces: a header line, whose name is no token"},
        {"INVITE\tsip:a@b\tSIP/2.0\r\n\r\n", "(null)", "only spaces split"},
        {"IN(VITE sip:a@b SIP/2.0\r\n\r\n", "(null)", "no method: a header line, whose name is no token"},
        {"Subject: a SIP/2.0\r\n\r\n", "-\nSubject=[a SIP/2.0]", "no method: a header line"},
        {"S : a SIP/2.0\r\n\r\n", "(null)", "a token, three pieces, but the second is no URI"},
        {"S: : SIP/2.0\r\n\r\n", "-\nSubject=[: SIP/2.0]", "no method"},
    });
}

TEST(QuillMessageFragmentDecode, WithoutStartLine) {
    expectDecoded({
        {"From: a\r\n\r\n", "-\nFrom=[a]", "the first line is a header"},
        {"Foo: bar\r\n\r\n", "-\nFoo=[bar]", "the same"},
        {"Foo bar\r\n\r\n", "(null)", "no colon"},
        {"", "-", "nothing"},
        {"\r\n", "-", "an empty line"},
        {"\r\n\r\n", "-", "the end of the headers"},
        {"\r\n\r\nabc", "-\nbody=[abc]", "a body alone"},
        {" \r\n\t\r\n\r\n", "-", "blank lines"},
        {"a", "(null)", "one byte"},
        {"\r", "(null)", "a lone CR"},
        {"\n", "(null)", "a lone LF"},
        {":", "(null)", "no name"},
        {"a:", "-\nAccept-Contact=[]", "two bytes"},
        {"a: ", "-\nAccept-Contact=[]", "three"},
        {"a:\r\n", "-\nAccept-Contact=[]", "four"},
        {"a:b\r", "-\nAccept-Contact=[b\r]", "a lone CR at the end"},
        {"\r\nINVITE sip:a@b SIP/2.0\r\n\r\n", "(null)", "an empty line in front: the request line is a header then"},
        {"\r\nVia: a\r\n\r\n", "-\nVia=[a]", "an empty line in front of headers"},
    });
}

TEST(QuillMessageFragmentDecode, StartLineAlone) {
    expectDecoded({
        {"INVITE sip:a@b SIP/2.0", "INVITE sip:a@b SIP/2.0", "no line end"},
        {"INVITE sip:a@b SIP/2.0\r\n", "INVITE sip:a@b SIP/2.0", "one"},
        {"SIP/2.0 200", "SIP/2.0 200 []", ""},
        {"SIP/2.0 200 OK\r\n \r\n", "SIP/2.0 200 [OK]", "a blank line"},
        {"SIP/2.0 200 OK\r\n more\r\n", "(null)", "the start line is not continued: a header line without colon"},
        {"SIP/2.0 200 OK\r\n a: b\r\n", "SIP/2.0 200 [OK]\nAccept-Contact=[b]", "a first header line may be indented"},
    });
}

TEST(QuillMessageFragmentDecode, Headers) {
    expectDecoded({
        {"X-A: b\r\nx-a: c\r\nX-a:d\r\n\r\n", "-\nX-A=[b][c][d]", "the occurrences of a name are lines"},
        {"Route: a\r\nVia: b\r\nroute: c\r\n\r\n", "-\nRoute=[a][c]\nVia=[b]",
         "in the order of their first occurrence"},
        {"v: a\r\nVIA: b\r\nvia: c, d\r\n\r\n", "-\nVia=[a][b][c, d]", "compact and long; lists stay one line"},
        {"U: a\r\nUser-to-User: b\r\nuser-TO-user: c\r\n\r\n", "-\nAllow-Events=[a]\nUser-To-User=[b][c]", ""},
        {"g: a\r\n\r\n", "-\nG=[a]", "one letter, not compact"},
        {"Subject\t :\t a \t\r\n\r\n", "-\nSubject=[a]", "blanks around name and value"},
        {"Subject:a:b: c\r\n\r\n", "-\nSubject=[a:b: c]", "the first colon counts"},
        {"Subject:\r\n\r\n", "-\nSubject=[]", "an empty value"},
        {"Subject: \t \r\n\r\n", "-\nSubject=[]", "blanks only"},
        {"Subject::\r\n\r\n", "-\nSubject=[:]", "a colon"},
        {": a\r\n\r\n", "(null)", "no name"},
        {" \t: a\r\n\r\n", "(null)", "a blank name"},
        {"Sub ject: a\r\n\r\n", "(null)", "a blank in the name"},
        {"Sub\u00E4: a\r\n\r\n", "(null)", "not ASCII"},
        {"Sub(: a\r\n\r\n", "(null)", "no token"},
        {"Subject\r\n\r\n", "(null)", "no colon"},
        {"a: b\r\nSubject\r\nc: d\r\n\r\n", "(null)", "no colon in between"},
        {"a: b\r\nc: d", "-\nAccept-Contact=[b]\nContent-Type=[d]", "no line end at the end"},
        {"a: b\r\nc: d\r\n", "-\nAccept-Contact=[b]\nContent-Type=[d]", "one"},
        {"a: b\nc: d\r\n\r\n", "-\nAccept-Contact=[b\nc: d]", "a lone LF ends no line"},
        {"a: b\rc: d\r\n\r\n", "-\nAccept-Contact=[b\rc: d]", "nor does a lone CR"},
        {"a: b\r\r\n\r\n", "-\nAccept-Contact=[b\r]", "CR CR LF"},
        {"a: \n b\r\n\r\n", "-\nAccept-Contact=[\n b]", "a lone LF is no blank"},
        {"a: \u00E4\u20AC\U0001F600\r\n\r\n", "-\nAccept-Contact=[\u00E4\u20AC\U0001F600]", "UTF-8"},
        {"a: \u00A0b\r\n\r\n", "-\nAccept-Contact=[\u00A0b]", "a no-break space is no blank"},
        {"a: b\0c\r\n\r\n"sv, "-\nAccept-Contact=[b\0c]"sv, "U+0000"},
        {"a\0: b\r\n\r\n"sv, "(null)", "U+0000 in a name"},
        {"\0\0\0\0"sv, "(null)", "U+0000 alone"},
    });
}

TEST(QuillMessageFragmentDecode, Folding) {
    expectDecoded({
        {"s: a\r\n b\r\n\r\n", "-\nSubject=[a b]", "continued by a space"},
        {"s: a\r\n\tb\r\n\r\n", "-\nSubject=[a b]", "by a tab"},
        {"s: a \t \r\n \t  b \r\n\r\n", "-\nSubject=[a b]", "exactly one space, whatever stood there"},
        {"s: a\r\n b\r\n\tc\r\n d\r\n\r\n", "-\nSubject=[a b c d]", "several times"},
        {"s: a\r\n \r\n b\r\n\r\n", "-\nSubject=[a b]", "white space alone adds nothing"},
        {"s: a\r\n \r\n\t\r\n\r\n", "-\nSubject=[a]", "nor at the end"},
        {"s:\r\n a\r\n\r\n", "-\nSubject=[a]", "the value on the next line"},
        {"s:\r\n \r\n\r\n", "-\nSubject=[]", "no value at all"},
        {"s\r\n : a\r\n\r\n", "-\nSubject=[a]", "the colon on the next line"},
        {"s\r\n :\r\n a\r\n\r\n", "-\nSubject=[a]", "alone there"},
        {"Sub\r\n ject: a\r\n\r\n", "(null)", "a folded name has a space in it"},
        {"s\r\n a\r\n\r\n", "(null)", "no colon on either line"},
        {"s: a\r\n b: c\r\n\r\n", "-\nSubject=[a b: c]", "no header of its own"},
        {" s: a\r\n b\r\n\r\n", "-\nSubject=[a b]", "nothing to continue at first"},
        {"\t\r\n s: a\r\n\r\n", "-\nSubject=[a]", "nor behind a blank line"},
        {"s: a\r\n b\r\ns: c\r\n d\r\n\r\n", "-\nSubject=[a b][c d]", "two folded lines of one name"},
        {"s: a\r\n b", "-\nSubject=[a b]", "no line end at the end"},
        {"s: a\r\n ", "-\nSubject=[a]", "the same"},
        {"s: \"a\r\n  b\"\r\n\r\n", "-\nSubject=[\"a b\"]", "in quotes, too"},
        {"s: a\r\n \u20AC\r\n\r\n", "-\nSubject=[a \u20AC]", "UTF-8"},
        {"l: 1\r\n 2\r\n\r\n123456789012", "(null)", "the joined value is no number"},
        {"l:\r\n\t3\r\n\r\nabcd", "-\nContent-Length=[3]\nbody=[abc]", "a folded number"},
    });
    int64_t contentLength = 0;
    EXPECT_EQ(decodedHeaders("a: b\r\n\r\nc: d", &contentLength), "-\nAccept-Contact=[b]\nContent-Type=[d]")
        << "an empty line ends a header, not the headers";
    EXPECT_EQ(decodedHeaders("a: b\r\n\r\n c: d", &contentLength), "-\nAccept-Contact=[b]\nContent-Type=[d]")
        << "behind it nothing is continued";
}

TEST(QuillMessageFragmentDecode, ContentLengthAndBody) {
    expectDecoded({
        {"l: 2\r\n\r\nabc", "-\nContent-Length=[2]\nbody=[ab]", "the excess is dropped"},
        {"l: 3\r\n\r\nabc", "-\nContent-Length=[3]\nbody=[abc]", ""},
        {"l: 5\r\n\r\nabc", "(null)", "truncated"},
        {"l: 4\r\n\r\nabc", "(null)", "by one"},
        {"l: 0\r\n\r\nabc", "-\nContent-Length=[0]", "no body"},
        {"a: b\r\n\r\nabc", "-\nAccept-Contact=[b]\nbody=[abc]", "no length: all of it"},
        {"l: 0\r\n\r\n", "-\nContent-Length=[0]", ""},
        {"l: 1\r\n\r\n", "(null)", "no body"},
        {"l: 1\r\n", "(null)", "no empty line"},
        {"l: 10", "(null)", "no empty line"},
        {"l: 0", "-\nContent-Length=[0]", "no empty line"},
        {"Content-Length: 9\r\nl: 1\r\n\r\nabc", "-\nContent-Length=[9][1]\nbody=[a]", "the last line counts"},
        {"l: x\r\nl: 1\r\n\r\nabc", "-\nContent-Length=[x][1]\nbody=[a]", "and no other is read"},
        {"l: 1\r\nl: x\r\n\r\nabc", "(null)", ""},
        {"l: 1\r\nl:\r\n\r\nabc", "(null)", "empty"},
        {"l:\r\n\r\nabc", "(null)", "empty"},
        {"l: 1e3\r\n\r\nabc", "(null)", "no decimal number"},
        {"l: +1\r\n\r\nabc", "(null)", "a plus"},
        {"l: -1\r\n\r\nabc", "(null)", "negative, not absent"},
        {"l: -0\r\n\r\nabc", "-\nContent-Length=[-0]", "zero"},
        {"l: 0x1\r\n\r\nabc", "(null)", "hexadecimal"},
        {"l: 1.0\r\n\r\nabc", "(null)", "a point"},
        {"l: 1 1\r\n\r\nabc", "(null)", "two numbers"},
        {"l: 1,1\r\n\r\nabc", "(null)", "a list"},
        {"l: 001\r\n\r\nabc", "-\nContent-Length=[001]\nbody=[a]", "leading zeros"},
        {"l: \t1 \r\n\r\nabc", "-\nContent-Length=[1]\nbody=[a]", "blanks"},
        {"l: 1;a\r\n\r\nabc", "(null)", "a parameter"},
        {"l: \u0661\r\n\r\nabc", "(null)", "another script's digit"},
        {"l: 9223372036854775807\r\n\r\nabc", "(null)", "the largest number"},
        {"l: 9223372036854775808\r\n\r\nabc", "(null)", "beyond 64 bits"},
        {"l: 18446744073709551617\r\n\r\nabc", "(null)", "1 modulo 2^64"},
        {"l: 99999999999999999999999999\r\n\r\nabc", "(null)", "far beyond"},
        {"a: b\r\n\r\n\r\n\r\nabc", "-\nAccept-Contact=[b]\nbody=[\r\n\r\nabc]", "the first empty line counts"},
        {"a: b\r\n\r\n\0\xFF\xFE"sv, "-\nAccept-Contact=[b]\nbody=[\0\xFF\xFE]"sv, "bodies are bytes"},
    });
}

TEST(QuillMessageFragmentDecode, TextIsUtf8) {
    for (std::string_view bad : {"\xFF"sv, "\xC0\x80"sv, "\xC1\xBF"sv, "\xE0\x80\x80"sv, "\xED\xA0\x80"sv,
                                 "\xF4\x90\x80\x80"sv, "\xF8\x88\x80\x80\x80"sv, "\xE2\x82"sv, "\xC3"sv, "\x80"sv}) {
        std::string const text(bad);
        EXPECT_EQ(decoded("s: a" + text + "\r\n\r\n"), "(null)");
        EXPECT_EQ(decoded("s: a" + text), "(null)");
        EXPECT_EQ(decoded("SIP/2.0 200 " + text + "\r\n\r\n"), "(null)");
        EXPECT_EQ(decoded("INVITE sip:" + text + "@b SIP/2.0\r\n\r\n"), "(null)");
        EXPECT_EQ(decoded("s: a\r\n\r\n" + text), "-\nSubject=[a]\nbody=[" + text + "]");
    }
    EXPECT_EQ(decoded("s: \xEF\xBB\xBF"), "-\nSubject=[\uFEFF]") << "a byte order mark is a character";
    EXPECT_EQ(decoded("\xEF\xBB\xBFs: a"), "(null)");
}

TEST(QuillMessageFragmentDecode, HeadersAlone) {
    struct {
        std::string_view bytes;
        char const *expected;
        int64_t contentLength;
    } const rows[] = {
        {"", "-", -1},
        {"a: b", "-\nAccept-Contact=[b]", -1},
        {"l: 12\r\n", "-\nContent-Length=[12]", 12},
        {"l: 0", "-\nContent-Length=[0]", 0},
        {"l: 9223372036854775807", "-\nContent-Length=[9223372036854775807]", INT64_MAX},
        {"INVITE sip:a SIP/2.0\r\nl: 1\r\nl: 2\r\n", "INVITE sip:a SIP/2.0\nContent-Length=[1][2]", 2},
    };
    for (auto const &row : rows) {
        int64_t contentLength = 77;
        EXPECT_EQ(decodedHeaders(row.bytes, &contentLength), row.expected);
        EXPECT_EQ(contentLength, row.contentLength) << row.bytes;
        EXPECT_EQ(decodedHeaders(row.bytes, nullptr), row.expected);
    }
    for (std::string_view bad : {"l: x"sv, "l: -1"sv, "l: 9223372036854775808"sv, "l:"sv}) {
        int64_t contentLength = 77;
        EXPECT_EQ(decodedHeaders(bad, &contentLength), "(null)") << bad;
        EXPECT_EQ(contentLength, -1);
        EXPECT_NE(decodedHeaders(bad, nullptr), "(null)") << "not read without being asked for";
    }
    int64_t contentLength = 77;
    EXPECT_EQ(decodedHeaders("x\xFF", &contentLength), "(null)");
    EXPECT_EQ(contentLength, -1);
    EXPECT_ABORT(quillMessageFragmentTryDecodeHeaders(nullptr, nullptr), unit, "buf");
    EXPECT_ABORT(quillMessageFragmentTryDecode(nullptr), unit, "buf");
}

TEST(QuillMessageFragmentDecode, LeavesTheBufferAlone) {
    auto const bytes = buffer("SIP/2.0 200 OK\r\nl: 2\r\n\r\nabc");
    auto const frag = own(quillMessageFragmentTryDecode(bytes.get()));
    EXPECT_EQ(count(bytes.get()), 1);
    EXPECT_EQ(coBufferLength(bytes.get()), 27);
    EXPECT_EQ(count(frag.get()), 1);
    EXPECT_EQ(own(quillMessageFragmentVersion(frag.get())).get(), quill___VersionSip20) << "the shared one";
}

TEST(QuillMessageFragmentDecode, Trims) {
    struct {
        char const *text;
        char const *expected;
    } const rows[] = {
        {"", "(null)"},     {" ", "(null)"},  {" \t ", "(null)"}, {"a", "a"},           {" a ", "a"},
        {"\ta b\t", "a b"}, {"\r\n", "\r\n"}, {" \r\n ", "\r\n"}, {"\u00A0", "\u00A0"},
    };
    for (auto const &row : rows) {
        Str const text = str(row.text);
        EXPECT_EQ(taken(quill___MessageFragmentDecodeTrim(text)), row.expected) << row.text;
        EXPECT_EQ(count(text.get()), 1) << "a new string";
    }
    EXPECT_ABORT(quill___MessageFragmentDecodeTrim(nullptr), unit, "cos");
}

TEST(QuillMessageFragmentDecode, OneHeaderText) {
    auto frag = own(quillMessageFragmentCreate());
    EXPECT_TRUE(quill___MessageFragmentDecodeHeader(frag.address(), str(" v \t:  a ")));
    EXPECT_TRUE(quill___MessageFragmentDecodeHeader(frag.address(), str("Via:")));
    EXPECT_TRUE(quill___MessageFragmentDecodeHeader(frag.address(), str("t::")));
    for (char const *text : {"", " ", "a", ":a", " :a", "a b:c", "\u00E4:a"})
        EXPECT_FALSE(quill___MessageFragmentDecodeHeader(frag.address(), str(text))) << text;
    EXPECT_EQ(describe(frag.get()), "-\nVia=[a][]\nTo=[:]");
    co::Ref<Fragment> const other(co::retained(frag.get()));
    EXPECT_TRUE(quill___MessageFragmentDecodeHeader(frag.address(), str("v: b")));
    EXPECT_EQ(describe(frag.get()), "-\nVia=[a][][b]\nTo=[:]");
    EXPECT_EQ(describe(other.get()), "-\nVia=[a][]\nTo=[:]");
    Fragment *null = nullptr;
    EXPECT_ABORT(quill___MessageFragmentDecodeHeader(nullptr, nullptr), unit, "frag");
    EXPECT_ABORT(quill___MessageFragmentDecodeHeader(&null, nullptr), unit, "*frag");
    EXPECT_ABORT(quill___MessageFragmentDecodeHeader(frag.address(), nullptr), unit, "cos");
}

TEST(QuillMessageFragmentDecode, EveryBeginningOfAMessageIsBorne) {
    std::string const bytes = "INVITE sip:\u00E4@b SIP/2.0\r\nv: a\r\n b\r\nl: 3\r\n\r\nabc";
    for (size_t length = 0; length <= bytes.size(); length++) {
        bool const isWhole = length == bytes.size();
        std::string const text = decoded(std::string_view(bytes).substr(0, length));
        EXPECT_EQ(text.find("body=[abc]") != std::string::npos, isWhole) << length;
    }
}

TEST(QuillMessageFragmentDecode, CostIsLinear) {
    struct {
        char const *why;
        std::string_view first;
        std::string_view piece;
    } const rows[] = {
        {"lines of one name", "", "v: a\r\n"},
        {"empty lines of one name", "", "v:\r\n"},
        {"one line folded many times", "s: a\r\n", " b\r\n"},
        {"white space alone", "s: a\r\n", " \r\n"},
        {"blank lines in front", "", " \r\n"},
        {"colons", "s", ":"},
        {"blanks in front", "s:", " "},
        {"blanks", "s: a", " "},
        {"CR", "s: a", "\r"},
        {"LF", "s: a", "\n"},
        {"CR CR LF", "s: a", "\r\r\n "},
        {"a long name", "", "a"},
        {"a long method", "A", "A"},
        {"slashes", "A", "/"},
        {"spaces", "A ", " "},
        {"a long URI", "A sip:", "a"},
        {"escapes in a URI", "A sip:", "%C3%A4"},
        {"bad escapes in a URI", "A sip:", "%C3"},
        {"escapes in a phrase", "SIP/2.0 200 ", "%20"},
        {"no escapes in a phrase", "SIP/2.0 200 ", "%"},
        {"digits", "SIP/2.0 ", "1"},
        {"a long length", "l: ", "1"},
        {"lengths", "", "l: 1\r\n"},
        {"UTF-8", "s: ", "\u20AC"},
        {"a body", "s: \r\n\r\n", "\r\n\r\n"},
    };
    for (auto const &row : rows)
        expectLinear(row.why, 4000, [&](size_t n) {
            return [bytes = buffer(std::string(row.first) + repeated(row.piece, n))] {
                own(quillMessageFragmentTryDecode(bytes.get()));
            };
        });
    expectLinear("names", 2000, [](size_t n) {
        std::string text;
        for (size_t i = 0; i < n; i++) text += "x-" + std::to_string(i) + ": a\r\n";
        return [bytes = buffer(text)] { own(quillMessageFragmentTryDecode(bytes.get())); };
    });
    expectLinear("two names in turns, folded", 1000, [](size_t n) {
        return [bytes = buffer(repeated("v: a\r\n b\r\nx-y: c\r\n\td\r\n", n))] {
            own(quillMessageFragmentTryDecode(bytes.get()));
        };
    });
}

} // namespace
