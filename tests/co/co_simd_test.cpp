// Vector code beside its plain twin: all lengths around a few blocks, all alignments, each interesting place. Texts end
// where their memory does, so that a sanitizer sees what reads or writes beyond them.

#include <co/co_simd.hpp>
#include <memory>
#include <random>
#include <support/text.hpp>

namespace {

constexpr size_t longest = 200;
constexpr size_t alignments = 16;
constexpr size_t wordSize = 8;

// A text in memory of its own that begins some elements behind an aligned address, and ends with it.
template <class Char> class Placed {
public:
    Placed(size_t alignment, std::basic_string_view<Char> text)
        : memory(new Char[alignment + text.size()]), start(memory.get() + alignment), size(text.size()) {
        std::copy(text.begin(), text.end(), start);
    }
    std::basic_string_view<Char> view() const { return {start, size}; }
    Char &operator[](size_t at) { return start[at]; }

private:
    std::unique_ptr<Char[]> memory;
    Char *start;
    size_t size;
};

template <class Finder> bool seesAsciiAlone(std::string_view text, char wanted) {
    Finder finder(text, wanted);
    while (finder.next() < text.size()) {
    }
    return finder.sawAsciiAlone();
}

std::vector<size_t> places(auto finder) {
    std::vector<size_t> all;
    do all.push_back(finder.next());
    while (all.size() < longest + 2 && (all.size() < 2 || all.back() != all[all.size() - 2]));
    return all;
}

void expectSameOfBytes(std::string_view text) {
    for (char wanted : {'\r', ':', '\0', '\x7F', '\x80', '\xFF'}) {
        ASSERT_EQ(co::simd::find(text, wanted), co::scalar::find(text, wanted));
        ASSERT_EQ(places(co::simd::Places(text, wanted)), places(co::scalar::Places(text, wanted)));
        if (static_cast<unsigned char>(wanted) >= 0x80) continue;
        bool const isAscii = co::scalar::asciiRun(text) == text.size();
        ASSERT_EQ(seesAsciiAlone<co::simd::Places>(text, wanted), isAscii);
        ASSERT_EQ(seesAsciiAlone<co::scalar::Places>(text, wanted), isAscii);
    }
    ASSERT_EQ(co::simd::asciiRun(text), co::scalar::asciiRun(text));
    size_t const lineEnd = text.find("\r\n");
    ASSERT_EQ(co::findLineEnd(text), std::min(lineEnd, text.size()));
    ASSERT_EQ(co::simd::findEmptyLine(text, 0), std::min(text.find("\r\n\r\n"), text.size()));
}

void expectSameOfChars(std::u32string_view text) {
    ASSERT_EQ(co::simd::asciiRun(text), co::scalar::asciiRun(text));
    size_t const count = co::scalar::asciiRun(text);
    Placed<uint8_t> expected(0, std::basic_string<uint8_t>(count, 0xEE));
    Placed<uint8_t> narrowed(0, std::basic_string<uint8_t>(count, 0xEE));
    ASSERT_EQ(co::scalar::narrow(&expected[0], text), count);
    ASSERT_EQ(co::simd::narrow(&narrowed[0], text), count);
    ASSERT_EQ(narrowed.view(), expected.view());
    for (coChar wanted : {U'%', U'\x80', U'\x10FFFF', U'\0'})
        ASSERT_EQ(co::simd::contains(text, wanted), co::scalar::contains(text, wanted));
    ASSERT_EQ(co::simd::run<co::UriChars>(text), co::scalar::run<co::UriChars>(text));
    ASSERT_EQ(co::simd::run<co::HostportChars>(text), co::scalar::run<co::HostportChars>(text));
    ASSERT_EQ(co::simd::run<co::TokenChars>(text), co::scalar::run<co::TokenChars>(text));
    Placed<char32_t> copied(1, std::u32string(text.size() + 2, U'#'));
    co::simd::copy(&copied[1], text);
    ASSERT_EQ(copied.view(), U'#' + std::u32string(text) + U'#');
}

// Of texts of one block, and of two halves that overlap; whatever a code point's higher bits are.
template <class Set> void expectMembersAlone(std::u32string_view members, bool orAllOthers = false) {
    for (coChar low = 0; low < 0x200; low++)
        for (coChar high :
             {0u, 0x7E00u, 0x7F00u, 0x8000u, 0xFF00u, 0x10000u, 0x10FF00u, 0x7FFF0000u, 0x80000000u, ~0x1FFu})
            for (size_t size : {size_t{7}, size_t{8}, size_t{11}, size_t{16}}) {
                coChar const ch = high | low;
                bool const isMember = (members.find(ch) != members.npos) != orAllOthers;
                std::u32string text(size, U'a');
                text[5] = ch;
                ASSERT_EQ(co::simd::run<Set>(text), isMember ? size : 5) << static_cast<uint32_t>(ch);
                ASSERT_EQ(co::scalar::run<Set>(text), isMember ? size : 5) << static_cast<uint32_t>(ch);
            }
}

TEST(Simd, RunsHaveTheirMembersAlone) {
    std::u32string const alphanum = U"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    expectMembersAlone<co::UriChars>(alphanum + U"-./:@");
    expectMembersAlone<co::UriWithParamsChars>(alphanum + U"-./:;=@");
    expectMembersAlone<co::HostportChars>(alphanum + U"-./:");
    expectMembersAlone<co::TokenChars>(alphanum + U"-._`");
    using Others = co::RangesOf<co::Range{'"', '"'}, co::Range{'0', '9'}>;
    expectMembersAlone<co::AllBut<Others>>(U"\"0123456789", true);
}

TEST(Simd, RunsEndAtEachPlaceOfEachLength) {
    for (size_t size = 0; size <= 70; size++)
        for (size_t alignment = 0; alignment < 4; alignment++) {
            Placed<coChar> text(alignment, std::u32string(size, U'z'));
            ASSERT_EQ(co::simd::run<co::UriChars>(text.view()), size);
            for (size_t at = 0; at < size; at++) {
                text[at] = U'>';
                ASSERT_EQ(co::simd::run<co::UriChars>(text.view()), at) << size;
                text[at] = U'@';
            }
        }
}

size_t dottedRun(std::u32string_view text) {
    Placed<coChar> const placed(1, text);
    size_t const found = co::simd::dottedRun<co::AlphanumChars>(placed.view());
    EXPECT_EQ(found, co::scalar::dottedRun<co::AlphanumChars>(placed.view()));
    return found;
}

// In one block, from one block to the next, and in what is shorter than a block.
TEST(Simd, DottedRunsHaveNoTwoDotsTogether) {
    for (size_t size = 0; size <= 70; size++) {
        ASSERT_EQ(dottedRun(std::u32string(size, U'9')), size);
        for (size_t at = 0; at < size; at++) {
            std::u32string text(size, U'a');
            text[at] = U'.';
            ASSERT_EQ(dottedRun(text), at > 0 ? size : 0) << size << " " << at;
            if (at + 1 == size) continue;
            text[at + 1] = U'.';
            ASSERT_EQ(dottedRun(text), 0) << size << " " << at;
            text[at + 1] = U':';
            ASSERT_EQ(dottedRun(text), at > 0 ? at + 1 : 0) << size << " " << at;
        }
    }
}

TEST(Simd, DottedRunsEndBeforeAnythingElse) {
    for (size_t size = 3; size <= 70; size++)
        for (size_t at = 0; at + 2 < size; at++)
            for (coChar ch : {0x0u, 0x2Cu, 0x2Du, 0x2Fu, 0x3Au, 0x5Fu, 0xAEu, 0x12Eu, 0x1002Eu, 0x8000002Eu}) {
                std::u32string text(size, U'Z');
                text[at] = ch;
                text[at + 1] = text[at + 2] = U'.'; // does not count any more
                ASSERT_EQ(dottedRun(text), at) << size << " " << static_cast<uint32_t>(ch);
            }
}

TEST(Simd, ContainsACodePointAtEachPlaceOfEachLength) {
    for (size_t size = 0; size <= 70; size++)
        for (size_t alignment = 0; alignment < 4; alignment++) {
            Placed<coChar> text(alignment, std::u32string(size, U'a'));
            ASSERT_FALSE(co::simd::contains(text.view(), U'%'));
            for (size_t at = 0; at < size; at++) {
                text[at] = U'%';
                ASSERT_TRUE(co::simd::contains(text.view(), U'%')) << size << ' ' << at;
                ASSERT_FALSE(co::simd::contains(text.view(), U'%' | 0x100)) << "all of its bits count";
                text[at] = U'a';
            }
        }
}

TEST(Simd, FindsNothingWhereNothingIs) {
    for (size_t size = 0; size <= longest; size++)
        for (size_t alignment = 0; alignment < alignments; alignment++) {
            Placed<char> const text(alignment, std::string(size, 'a'));
            ASSERT_EQ(co::simd::find(text.view(), ':'), size);
            ASSERT_EQ(co::simd::Places(text.view(), ':').next(), size);
            ASSERT_EQ(co::simd::asciiRun(text.view()), size);
            ASSERT_EQ(co::findLineEnd(text.view()), size);
        }
}

TEST(Simd, FindsOneByteAtEachPlaceOfEachLength) {
    for (size_t size = 1; size <= longest; size++)
        for (size_t at = 0; at < size; at++) {
            Placed<char> text(at % alignments, std::string(size, 'a'));
            text[at] = ':';
            ASSERT_EQ(co::simd::find(text.view(), ':'), at) << size;
            co::simd::Places colons(text.view(), ':');
            ASSERT_EQ(colons.next(), at) << size;
            ASSERT_EQ(colons.next(), size);
            ASSERT_EQ(colons.next(), size) << "still";
            ASSERT_TRUE(colons.sawAsciiAlone());
            text[at] = '\x80';
            ASSERT_EQ(co::simd::asciiRun(text.view()), at) << size;
            ASSERT_FALSE(seesAsciiAlone<co::simd::Places>(text.view(), ':')) << size;
        }
}

TEST(Simd, FindsLineEndsAtEachPlace) {
    for (size_t size = 2; size <= longest; size++)
        for (size_t at = 0; at + 2 <= size; at++) {
            std::string text(size, 'a');
            text.replace(at, 2, "\r\n");
            ASSERT_EQ(co::findLineEnd(Placed<char>(at % alignments, text).view()), at) << size;
            text[at] = '\n'; // LF LF
            ASSERT_EQ(co::findLineEnd(Placed<char>(0, text).view()), size);
            text[at + 1] = '\r'; // LF CR, a CR at the end among them
            ASSERT_EQ(co::findLineEnd(Placed<char>(0, text).view()), size);
        }
}

TEST(Simd, ClearsWordsAndNoMore) {
    for (size_t count = 0; count < 20; count++) {
        std::string bytes(count * wordSize + 1, '#');
        co::simd::clearWords(bytes.data(), count);
        ASSERT_EQ(bytes, std::string(count * wordSize, '\0') + '#');
    }
}

// Wherever the search begins. One that begins behind the empty line's last byte doesn't find it.
TEST(Simd, FindsAnEmptyLineAtEachPlace) {
    for (size_t size = 4; size <= longest; size++)
        for (size_t at = 0; at + 4 <= size; at++) {
            std::string text(size, '\n');
            text.replace(at, 4, "\r\n\r\n");
            Placed<char> const placed(at % alignments, text);
            for (size_t from : {size_t{0}, at / 2, at, at + 3}) {
                ASSERT_EQ(co::simd::findEmptyLine(placed.view(), from), at) << size << ' ' << from;
                ASSERT_EQ(co::scalar::findEmptyLine(placed.view(), from), at) << size << ' ' << from;
            }
            ASSERT_EQ(co::simd::findEmptyLine(placed.view(), at + 4), size);
            ASSERT_EQ(co::scalar::findEmptyLine(placed.view(), at + 4), size);
            text[at + at % 4] = 'a';
            ASSERT_EQ(co::simd::findEmptyLine(Placed<char>(0, text).view(), 0), size);
        }
}

// Bytes that searches look for stand close together: a later one must not hide an earlier one.
TEST(Simd, AgreesWithItsTwinOnRandomBytes) {
    constexpr std::string_view bytes("a:\r\n\0\x7F\x80\xFF", 8);
    std::mt19937 random(1);
    for (int round = 0; round < 20000; round++) {
        std::string text(random() % (longest + 1), 'a');
        for (size_t i = random() % 8; i-- > 0 && !text.empty();)
            text[random() % text.size()] = bytes[random() % bytes.size()];
        expectSameOfBytes(Placed<char>(random() % alignments, text).view());
        if (HasFatalFailure()) FAIL() << testing::PrintToString(text);
    }
    for (size_t size = 0; size <= longest; size++)
        for (char byte : bytes) expectSameOfBytes(Placed<char>(size % alignments, std::string(size, byte)).view());
}

TEST(Simd, WidensEveryAsciiTextOfEachLength) {
    for (size_t size = 0; size <= longest; size++)
        for (size_t alignment = 0; alignment < alignments; alignment++) {
            std::string ascii(size, '\0');
            for (size_t i = 0; i < size; i++) ascii[i] = static_cast<char>((i * 7 + size + alignment) % 128);
            Placed<char> const text(alignment, ascii);
            Placed<char32_t> expected(0, std::u32string(size, U'?'));
            Placed<char32_t> widened(alignment % 4, std::u32string(size, U'?'));
            co::scalar::widen(&expected[0], text.view());
            co::simd::widen(&widened[0], text.view());
            ASSERT_EQ(widened.view(), expected.view()) << size;
            ASSERT_EQ(expected.view(), std::u32string(ascii.begin(), ascii.end()));
        }
}

TEST(Simd, NarrowsUpToTheFirstCharacterBeyondAsciiAtEachPlace) {
    for (size_t size = 0; size <= longest; size++) {
        std::u32string text(size, U'a');
        for (size_t i = 0; i < size; i++) text[i] = static_cast<char32_t>((i * 11 + size) % 128);
        expectSameOfChars(Placed<char32_t>(size % 4, text).view());
        for (size_t at = 0; at < size; at++) {
            for (char32_t beyond :
                 {U'\x80', U'\xFF', U'\x100', U'\x8000', U'\x10000', char32_t{0x80000000}, char32_t{0xFFFFFFFF}}) {
                Placed<char32_t> placed(at % 4, text);
                placed[at] = beyond;
                ASSERT_EQ(co::simd::asciiRun(placed.view()), at);
                expectSameOfChars(placed.view());
            }
            if (HasFatalFailure()) return;
        }
    }
}

} // namespace
