// Header lines as the decoder finds and names them, beside a plain reading of the same text.

#include "objects.hpp"

#include <algorithm>
#include <memory>
#include <quill/quill_field_name.hpp>
#include <quill/quill_typed_headers.hpp>
#include <random>
#include <set>

using namespace test;

namespace {

using Text = std::string_view;

// The plain reading: as the conventions say it, one step after the other.

std::vector<Text> splitLines(Text text) {
    std::vector<Text> lines;
    for (size_t end; (end = text.find("\r\n")) != Text::npos; text.remove_prefix(end + 2))
        lines.push_back(text.substr(0, end));
    lines.push_back(text);
    return lines;
}

Text trimmed(Text text) {
    size_t const first = text.find_first_not_of(" \t");
    return first == Text::npos ? Text() : text.substr(first, text.find_last_not_of(" \t") + 1 - first);
}

// The pieces of a folded text that have something in them.
std::vector<Text> pieces(Text folded) {
    std::vector<Text> found;
    for (Text line : splitLines(folded))
        if (Text const piece = trimmed(line); !piece.empty()) found.push_back(piece);
    return found;
}

std::string normalName(Text name) {
    if (name.size() == 1 && (name[0] == 'v' || name[0] == 'V')) return "Via";
    std::string normal(name);
    for (size_t i = 0; i < normal.size(); i++) {
        auto const letter = static_cast<unsigned char>(name[i]);
        normal[i] = static_cast<char>(i == 0 || name[i - 1] == '-' ? std::toupper(letter) : std::tolower(letter));
    }
    return normal;
}

bool isToken(Text text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char ch) {
        return std::isalnum(static_cast<unsigned char>(ch)) || (ch && std::strchr("-.!%*_+`'~", ch));
    });
}

struct Plain {
    std::string startLine;
    std::vector<std::pair<std::string, std::vector<std::string>>> headers;
    std::string body;

    bool add(Text whole) {
        size_t const colon = whole.find(':');
        if (colon == Text::npos) return false;
        std::vector<Text> const name = pieces(whole.substr(0, colon));
        if (name.size() != 1 || !isToken(name[0])) return false;
        std::string value;
        for (Text piece : pieces(whole.substr(colon + 1))) value += (value.empty() ? "" : " ") + std::string(piece);
        std::string const normal = normalName(name[0]);
        auto const known =
            std::find_if(headers.begin(), headers.end(), [&](auto const &h) { return h.first == normal; });
        if (known == headers.end())
            headers.push_back({normal, {value}});
        else
            known->second.push_back(value);
        return true;
    }

    // What follows a start line, which does not count as the line before an empty one where there is none.
    bool read(Text whole, Text start) {
        size_t const end = whole.find("\r\n\r\n");
        Text const head = whole.substr(0, end);
        if (head.find('\xFF') != Text::npos) return false;
        body = end == Text::npos ? Text() : whole.substr(end + 4);
        startLine = start;
        std::string header;
        for (Text line : splitLines(head.substr(std::min(start.empty() ? 0 : start.size() + 2, head.size())))) {
            bool const goesOn = !trimmed(header).empty() && !line.empty() && (line[0] == ' ' || line[0] == '\t');
            if (!goesOn && !trimmed(header).empty() && !add(header)) return false;
            header = goesOn ? header + "\r\n" + std::string(line) : line;
        }
        return trimmed(header).empty() || add(header);
    }

    std::string described() const {
        std::string text = startLine.empty() ? "-" : startLine;
        for (auto const &[name, lines] : headers) {
            text += "\n" + name + "=";
            for (std::string const &line : lines) text += "[" + line + "]";
        }
        return body.empty() ? text : text + "\nbody=[" + body + "]";
    }

    std::string encoded() const {
        std::string text = startLine.empty() ? "" : startLine + "\r\n";
        for (auto const &[name, lines] : headers)
            for (std::string const &line : lines) text += name + ": " + line + "\r\n";
        return text + "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
    }
};

void expectAsPlain(Text whole, Text startLine) {
    SCOPED_TRACE(testing::PrintToString(std::string(whole)));
    Plain plain;
    bool const ok = plain.read(whole, startLine);
    auto const frag = own(quillMessageFragmentTryDecode(buffer(whole).get()));
    ASSERT_EQ(static_cast<bool>(frag), ok);
    if (!ok) return;
    ASSERT_EQ(describe(frag.get()), plain.described());
    ASSERT_EQ(encoded(frag.get()), plain.encoded());
}

constexpr Text bye = "BYE sip:a@b SIP/2.0";

std::string withNames(std::string text, Text first, Text second) {
    for (auto [letters, name] : {std::pair(Text("a0"), first), std::pair(Text("c0"), second)})
        for (size_t at; (at = text.find(letters)) != text.npos;) text.replace(at, letters.size(), name);
    return text;
}

// Headers of any text, of unknown names and of known ones, behind a filler that moves them over the borders of what is
// searched at once.
void expectAsPlainAtAllOffsets(Text text) {
    for (size_t filler = 0; filler < 70; filler++) {
        std::string const start = std::string(bye) + "\r\nZ:" + std::string(filler, 'z') + "\r\n";
        expectAsPlain(start + std::string(text), bye);
        expectAsPlain(start + withNames(std::string(text), "To", "v"), bye);
        expectAsPlain(start + withNames(std::string(text), "Record-Route", "Accept-Resource-Priority"), bye);
        if (testing::Test::HasFatalFailure()) return;
    }
}

TEST(HeaderLines, EndAtAnyOffset) {
    for (Text text : {
             "a0: b\r\n",
             "a0: b\r\n\r\n",
             "a0: b\r\n\r\nc0: d\r\n\r\n",
             "a0: b\r\nc0: d\r\n",
             "a0: b\rc\r\n",
             "a0: b\nc\r\n",
             "a0: b\r\r\nc0: d\n\r\n",
             "a0: b\r",
             "a0: b\n",
             "a0: b\r\n\r",
             "a0: b\r\n\n",
             "a0: b\n\r\nc0: d",
             "a0: b\r\n c\r\n\td\r\n",
             "a0: b\r\n \r\n",
             "a0: b\r\n \r\n c\r\n",
             "a0:\r\n b\r\n",
             "a0:\r\n \t \r\n",
             "a0\r\n : b\r\n",
             "a0\r\n :b\r\n c\r\n",
             "a0\r\n b: c\r\n",
             "a0\r\n b\r\n",
             "a0:b\r\n  \r\n\r\n  c",
             "a0 : b\r\n",
             "a0\t:\tb\t\r\n",
             " a0: b\r\n",
             "a0: b \r\n",
             "a0:  b\r\n",
             "a0: \r\n",
             "a0:\r\n",
             "a0:",
             "a0",
             ": b\r\n",
             " : b\r\n",
             ":",
             "\xC3\xA4: b\r\n",
             "a0: \xC3\xA4\xE2\x82\xAC\r\n",
             "a0: \xFF\r\n",
             "a0: b\r\n\r\n\xFF",
             "a0:: b\r\n",
             "a0: b: c\r\n",
         })
        expectAsPlainAtAllOffsets(text);
}

TEST(HeaderLines, ColonAtEachPlace) {
    for (size_t size = 1; size <= 80; size++)
        for (size_t colon = 0; colon < size; colon++) {
            std::string line(size, 'q');
            line[colon] = ':';
            expectAsPlain(std::string(bye) + "\r\n" + line, bye); // the text ends with the line
            expectAsPlain(std::string(bye) + "\r\n" + line + "\r\n\r\n", bye);
            if (HasFatalFailure()) return;
        }
}

TEST(HeaderLines, NamesOfAllLengthsInOddCase) {
    for (size_t size = 1; size <= 40; size++)
        for (unsigned pattern = 0; pattern < 8; pattern++) {
            std::string name;
            for (size_t i = 0; i < size; i++)
                name += (i * 5 + pattern) % 7 == 0 && i > 0 ? '-' : (i + pattern) % 3 ? 'q' : 'Q';
            for (Text between : {":", ": ", " : ", ":\t"})
                expectAsPlain(std::string(bye) + "\r\n" + name + std::string(between) + "b\r\n" + name + ":c\r\n\r\n",
                              bye);
            if (HasFatalFailure()) return;
        }
}

// The empty line that ends the headers follows a line, be it the start line or an empty first one.
TEST(HeaderLines, EndAtAnEmptyLine) {
    for (Text text : {"\r\n", "\r\n\r\n", "\r\n\r\nbody", "\r\na0: b\r\n\r\nbody", "\r\n\r\n\r\nbody", "\r\r\n\r\nbody",
                      " \r\n\r\nbody", "a0:b\r\n\r\nbody", "a0:b\r\n\r\n\r\n\r\n", "a0:b\r\n\r\nc0:d\r\n\r\n", ""})
        expectAsPlain(text, "");
    for (Text text :
         {"", "\r\n", "\r\n\r\n", "\r\n\r\nbody", "\r\na0: b\r\n\r\nbody", "\r\n\r\n\r\n", "\r\n \r\n\r\n body"})
        expectAsPlain(std::string(bye) + std::string(text), bye);
}

TEST(HeaderLines, AgreeWithThePlainReadingOfRandomTexts) {
    constexpr Text parts[] = {"Via",
                              "v",
                              "V",
                              "vIA",
                              "Call-ID",
                              "Call-Id",
                              "x-Foo",
                              "X-foo",
                              "Accept-Resource-Priority",
                              "0",
                              "yy",
                              ":",
                              ":",
                              ": ",
                              ": ",
                              " ",
                              "\t",
                              "\r\n",
                              "\r\n",
                              "\r\n",
                              "\r\n ",
                              "\r\n\t",
                              "\r",
                              "\n",
                              "value",
                              "a longer value; of=some length, 0123456789",
                              "é€",
                              "\xFF",
                              "\r\n\r\n",
                              "User-Agent: x\r\n"};
    constexpr Text starts[] = {bye, "", ""};
    std::mt19937 random(1);
    int decodedTexts = 0;
    for (int round = 0; round < 60000; round++) {
        Text const start = starts[random() % std::size(starts)];
        std::string text = start.empty() ? (random() % 2 ? "W:y\r\n" : "\r\n") : std::string(start) + "\r\n";
        for (size_t i = random() % 12; i-- > 0;) {
            // most headers have a name and a colon, or hardly any text would decode
            if (random() % 2)
                text += std::string(parts[random() % 10]) + ": " + std::string(parts[random() % 11]) + "\r\n";
            else if (random() % 3 == 0)
                text += parts[random() % std::size(parts)];
        }
        expectAsPlain(text, start);
        if (HasFatalFailure()) return;
        decodedTexts += Plain().read(text, start);
    }
    EXPECT_GT(decodedTexts, 10000);
}

// Many header bytes stay in the buffer that they came in, unless it holds much else or a name is to be put into its normal
// form. The buffer is shared then: who changes it has a copy.
TEST(HeaderLines, StayInTheirBufferWhereTheyAreMany) {
    struct Row {
        size_t size; // of a value
        Text name;
        Text character;
        size_t bodySize;
        bool kept;
    };
    constexpr size_t many = 16 << 10;
    for (Row const &row : {Row{many, "Subject", "a", 0, true}, Row{many, "X-Foo", "a", 0, true},
                           Row{many, "v", "a", 0, true}, Row{many, "SUBJECT", "a", 0, true},
                           Row{many, "Subject", "\xC3\xA4", 0, true}, Row{many, "Subject", "a", many / 2, true},
                           Row{many, "Subject", "a", many + 1000, false}, Row{many, "X-foo", "a", 0, false},
                           Row{many - 500, "Subject", "a", 0, false}, Row{1, "Subject", "a", 0, false}}) {
        std::string text = std::string(bye) + "\r\n" + std::string(row.name) + ": ";
        while (text.size() < row.size) text += row.character;
        text += "\r\nv: SIP/2.0/UDP a\r\nX-Bar:\r\n b\r\n\r\n" + std::string(row.bodySize, '\xFF');
        expectAsPlain(text, bye);
        if (HasFatalFailure()) return;
        co::Ref<coBuffer> bytes(buffer(text));
        auto const frag = own(quillMessageFragmentTryDecode(bytes.get()));
        ASSERT_TRUE(frag);
        EXPECT_EQ(count(bytes.get()), row.kept ? 2 : 1) << row.name << " " << row.size << " " << row.bodySize;
        std::string const before = encoded(frag.get());
        coBufferDelLeading(bytes.address(), static_cast<int64_t>(text.size()));
        for (char ch : text) coBufferAppendByte(bytes.address(), static_cast<uint8_t>(ch ^ 1));
        EXPECT_EQ(encoded(frag.get()), before);
        bytes.reset(nullptr);
        EXPECT_EQ(encoded(frag.get()), before);
    }
    std::string wrong = std::string(bye) + "\r\nSubject: " + std::string(2 * many, 'a') + "\xC3\r\n\r\n";
    auto const bytes = buffer(wrong);
    EXPECT_FALSE(own(quillMessageFragmentTryDecode(bytes.get())));
    EXPECT_EQ(count(bytes.get()), 1) << "it is given up again";
}

// Headers of few and many other names, written in any case, beside a list of them: found, set and deleted, while others
// share the fragment or not.
class ChangedNames : public testing::TestWithParam<int> {
protected:
    std::mt19937 random{7};
    Plain plain;

    std::string anyName() { return "x-Name" + std::to_string(random() % static_cast<unsigned>(GetParam())); }
    std::string inAnyCase(std::string name) {
        for (char &ch : name) ch = static_cast<char>(random() % 2 ? std::toupper(ch) : std::tolower(ch));
        return name;
    }
    std::string anyLine() {
        constexpr Text forms[] = {": a\r\n", ":a\r\n", " : a\r\n", ":\r\n a\r\n b\r\n", "\r\n : a\r\n"};
        return inAnyCase(anyName()) + std::string(forms[random() % std::size(forms)]);
    }
    auto find(Text name) {
        return std::find_if(plain.headers.begin(), plain.headers.end(),
                            [wanted = normalName(name)](auto const &h) { return h.first == wanted; });
    }
    void change(co::Ref<struct quillMessageFragment> &frag) {
        std::string const name = inAnyCase(anyName());
        auto const there = find(name);
        bool const has = there != plain.headers.end();
        ASSERT_EQ(quillMessageFragmentHasHeaderCstr(frag.get(), name.c_str(), -1), has);
        ASSERT_EQ(quillMessageFragmentHasHeader(frag.get(), str(name)), has);
        auto const header = own(quillMessageFragmentHeaderCstr(frag.get(), name.c_str(), -1));
        ASSERT_EQ(static_cast<bool>(header), has);
        if (has) {
            EXPECT_EQ(utf8(own(quillMessageHeaderName(header.get())).get()), there->first);
            EXPECT_EQ(quillMessageHeaderLinesLength(header.get()), static_cast<int64_t>(there->second.size()));
        }
        if (random() % 2) {
            quillMessageFragmentDelHeaderCstr(frag.address(), name.c_str(), -1);
            if (has) plain.headers.erase(there);
            return;
        }
        auto set = own(quillMessageHeaderCreateCstr(name.c_str(), -1));
        quillMessageHeaderAppendLineCstr(set.address(), "set", -1);
        quillMessageFragmentSetHeader(frag.address(), set.get());
        if (has)
            there->second = {"set"};
        else
            plain.headers.push_back({normalName(name), {"set"}});
    }
};

INSTANTIATE_TEST_SUITE_P(FewAndMany, ChangedNames, testing::Values(3, 8, 12, 40, 300));

TEST_P(ChangedNames, AreThoseOfAPlainList) {
    for (int round = 0; round < 40; round++) {
        std::string text = std::string(bye) + "\r\n";
        for (int i = 0; i < GetParam(); i++) text += anyLine();
        plain = {};
        ASSERT_TRUE(plain.read(text, bye));
        auto frag = own(quillMessageFragmentTryDecode(buffer(text).get()));
        ASSERT_EQ(encoded(frag.get()), plain.encoded());
        for (int i = 0; i < GetParam(); i++) {
            bool const isShared = random() % 2;
            co::Ref<struct quillMessageFragment> const other(isShared ? co::retained(frag.get()) : nullptr);
            std::string const before = plain.encoded();
            change(frag);
            if (HasFatalFailure()) return;
            if (isShared) {
                ASSERT_EQ(encoded(other.get()), before);
            }
            ASSERT_EQ(encoded(frag.get()), plain.encoded());
        }
    }
}

// Names that are known, whatever stands behind them.

struct Match {
    int known;
    bool normal;
};

// A name with some bytes behind it that end where their memory does.
Match match(Text name, size_t behind) {
    std::unique_ptr<char[]> const text(new char[name.size() + behind]);
    std::copy(name.begin(), name.end(), text.get());
    std::fill_n(text.get() + name.size(), behind, ':');
    Match match{};
    match.known = quill::matchFieldName({text.get(), name.size()}, text.get() + name.size() + behind, &match.normal);
    return match;
}

void expectMatch(Text name, int known, bool normal) {
    for (size_t behind = 0; behind < 30; behind++) {
        Match const field = match(name, behind);
        ASSERT_EQ(field.known, known) << name << " with " << behind;
        ASSERT_EQ(field.normal, normal) << name << " with " << behind;
    }
    ASSERT_EQ(quill::knownFieldName(name), known) << name;
    ASSERT_EQ(quill::knownFieldName(std::u32string(name.begin(), name.end())), known) << name;
}

TEST(FieldNames, MatchInAnyCase) {
    std::set<std::string> all;
    for (int i = 0; i < quill::knownFieldNameCount; i++) all.insert(std::string(quill::fieldNameText(i)));
    ASSERT_EQ(all.size(), static_cast<size_t>(quill::knownFieldNameCount));
    for (int i = 0; i < quill::knownFieldNameCount; i++) {
        std::string const name(quill::fieldNameText(i));
        expectMatch(name, i, true);
        for (size_t at = 0; at < name.size(); at++) {
            std::string other = name;
            other[at] = static_cast<char>(other[at] ^ 0x20); // the other case, or what is no hyphen
            expectMatch(other, name[at] == '-' ? -1 : i, false);
            other[at] = '\xE9';
            EXPECT_EQ(match(other, 24).known, -1);
            other[at] = '\0';
            EXPECT_EQ(match(other, 24).known, -1);
        }
        expectMatch(name + "x", -1, false);
        if (Text const shorter = Text(name).substr(0, name.size() - 1);
            !all.count(std::string(shorter)) && shorter.size() > 1)
            expectMatch(shorter, -1, false);
        if (HasFatalFailure()) return;
    }
}

TEST(FieldNames, CompactFormsAndStrangers) {
    for (char ch = 0; ch < 127; ch++) {
        bool const compact = std::strchr("auimelcofynbjdxsrktvAUIMELCOFYNBJDXSRKTV", ch) && ch;
        Match const field = match({&ch, 1}, 24);
        EXPECT_EQ(field.known >= 0, compact) << ch;
        EXPECT_FALSE(field.normal);
    }
    expectMatch("v", quill::knownFieldName("Via"), false);
    expectMatch("L", quill::contentLengthFieldName, false);
    expectMatch("", -1, false);
    for (size_t size = 2; size <= 40; size++) expectMatch(std::string(size, 'v'), -1, false);
    EXPECT_EQ(quill::knownFieldName(U"V\u0169a"), -1) << "i with 0x100 added";
    EXPECT_EQ(quill::knownFieldName(U"\U00010056ia"), -1);
}

} // namespace
