// What holds for every scanner over any text: it stays within the text, answers the same each time, looks no further
// than it must, and takes time in proportion.

#include "scanners.hpp"

#include <algorithm>
#include <chrono>
#include <random>
#include <support/text.hpp>
#include <sys/mman.h>
#include <unistd.h>

namespace {

using test::ScannerRow;

// Memory between two pages that fault on any access.
class Fenced {
public:
    Fenced() {
        begin = static_cast<char *>(mmap(nullptr, 4 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
        if (begin == MAP_FAILED || mprotect(begin + page, 2 * page, PROT_READ | PROT_WRITE) != 0) std::abort();
    }
    ~Fenced() { munmap(begin, 4 * page); }
    Fenced(Fenced const &) = delete;
    Fenced &operator=(Fenced const &) = delete;

    // A copy of the text that begins at the first fence or ends at the second.
    coChar const *atBegin(std::u32string_view text) { return copy(begin + page, text); }
    coChar const *atEnd(std::u32string_view text) {
        return copy(begin + 3 * page - text.size() * sizeof(coChar), text);
    }

private:
    static coChar const *copy(char *place, std::u32string_view text) {
        auto *const chars = reinterpret_cast<coChar *>(place);
        text.copy(chars, text.size());
        return chars;
    }

    size_t const page = static_cast<size_t>(sysconf(_SC_PAGESIZE));
    char *begin;
};

// Random texts: pieces of the grammars, whole samples that were damaged, and any code points.
class Texts {
public:
    explicit Texts(unsigned seed) : random(seed) {}

    std::u32string next() {
        switch (below(4)) {
        case 0:
            return anything();
        case 1:
            return damaged(sample());
        case 2:
            return sample() + pieces(4);
        default:
            return pieces(12);
        }
    }
    std::u32string pieces(size_t most) {
        static constexpr std::string_view all[] = {"a",           "Z",          "0",          "1",
                                                   "9",           "ab",         "007",        "255",
                                                   "sip:",        "SIPS:",      "http://",    "urn:",
                                                   "SIP/2.0/UDP", "h.example",  "[",          "]",
                                                   "[::1]",       "::1",        "2001:db8::", "1.2.3.4",
                                                   "1.2.3",       ":5060",      "@",          ";",
                                                   "=",           ",",          ".",          "..",
                                                   "-",           "--",         "*",          "/",
                                                   "//",          "\\",         "\"",         "\"\"",
                                                   "\"x\"",       "\\\"",       "(",          ")",
                                                   "(c)",         "(c) ",       "<",          ">",
                                                   "<sip:a@b>",   " ",          "  ",         "\t",
                                                   "\r",          "\n",         "\r\n ",      "\x7F",
                                                   "\x01",        "%",          "%4",         "%41",
                                                   "%c3%a9",      "#",          "?",          "received",
                                                   "REceived=",   "uac",        "UAS",        "Mon",
                                                   "Jan",         "301 ",       "301",        "0.5",
                                                   "1.000",       "1.5",        "q=",         "+",
                                                   "'",           "`",          "{",          "}",
                                                   "|",           "^",          "~",          "!",
                                                   "\u00E9",      "\u0661",     "\u202E",     "\uE000",
                                                   "\uFFFD",      "\U0001F4DE", "\U0010FFFF", "zzzzzzzzzzzzzzzz"};
        std::u32string text;
        for (size_t count = below(most + 1); count > 0; count--) text += test::wide(all[below(std::size(all))]);
        return text;
    }

private:
    size_t below(size_t count) { return static_cast<size_t>(random() % count); }
    coChar anyChar() {
        switch (below(4)) {
        case 0:
            return static_cast<coChar>(random());
        case 1:
            return static_cast<coChar>(below(0x300));
        default:
            return static_cast<coChar>(below(128));
        }
    }
    std::u32string anything() {
        std::u32string text(below(24), U' ');
        for (coChar &ch : text) ch = anyChar();
        return text;
    }
    std::u32string sample() { return test::wide(test::scanners()[below(test::scanners().size())].sample); }
    std::u32string damaged(std::u32string text) {
        for (size_t count = 1 + below(3); count > 0 && !text.empty(); count--) {
            size_t const at = below(text.size());
            switch (below(4)) {
            case 0:
                text.erase(at, 1 + below(3));
                break;
            case 1:
                text.insert(at, pieces(2));
                break;
            case 2:
                text.insert(at, text.substr(below(text.size())));
                break;
            default:
                text[at] = anyChar();
            }
        }
        return text;
    }

    std::mt19937 random;
};

std::string shown(std::u32string_view text) {
    std::string all;
    for (coChar const ch : text) {
        all += ch > 31 && ch < 127 ? std::string(1, static_cast<char>(ch))
                                   : "{" + std::to_string(static_cast<uint32_t>(ch)) + "}";
    }
    return "\"" + all + "\"";
}

int64_t lengthOf(std::u32string_view text) { return static_cast<int64_t>(text.size()); }

// Accept's scanner doesn't count its whole match.
bool countsItsMatch(ScannerRow const &row) { return row.name != "Accept"; }

} // namespace

TEST(QuillSkipProperty, NoneLeavesItsText) {
    Fenced fenced;
    Texts texts(1);
    for (int i = 0; i < 10000; i++) {
        std::u32string const text = texts.next();
        for (ScannerRow const &row : test::scanners()) {
            int64_t const first = row.scan(fenced.atEnd(text), lengthOf(text));
            int64_t const again = row.scan(fenced.atEnd(text), lengthOf(text));
            int64_t const elsewhere = row.scan(fenced.atBegin(text), lengthOf(text));
            ASSERT_TRUE(first >= 0 && first <= lengthOf(text)) << row.name << " of " << shown(text) << ": " << first;
            ASSERT_EQ(again, first) << row.name << " of " << shown(text);
            ASSERT_EQ(elsewhere, first) << row.name << " of " << shown(text);
        }
    }
}

TEST(QuillSkipProperty, EveryBeginningIsAText) {
    Fenced fenced;
    for (ScannerRow const &from : test::scanners()) {
        std::u32string const sample = test::wide(from.sample);
        for (size_t length = 0; length <= sample.size(); length++) {
            std::u32string_view const text = std::u32string_view(sample).substr(0, length);
            for (ScannerRow const &row : test::scanners()) {
                int64_t const found = row.scan(fenced.atEnd(text), lengthOf(text));
                ASSERT_TRUE(found >= 0 && found <= lengthOf(text))
                    << row.name << " of " << shown(text) << ": " << found;
            }
        }
    }
}

TEST(QuillSkipProperty, AMatchAloneIsAMatch) {
    Texts texts(2);
    for (int i = 0; i < 10000; i++) {
        std::u32string const text = texts.next();
        for (ScannerRow const &row : test::scanners()) {
            int64_t const length = row.scan(text.data(), lengthOf(text));
            if (!countsItsMatch(row)) continue;
            EXPECT_EQ(row.scan(text.data(), length), length) << row.name << " of " << shown(text);
        }
    }
}

TEST(QuillSkipProperty, WhatFollowsTheLookAheadDoesNotMatter) {
    Texts texts(3);
    int64_t compared = 0;
    for (int i = 0; i < 10000; i++) {
        std::u32string const text = texts.next();
        std::u32string const rest = texts.next();
        for (ScannerRow const &row : test::scanners()) {
            int64_t const length = row.scan(text.data(), lengthOf(text));
            if (length == 0 || row.lookAhead == test::everything) continue;
            if (length + row.lookAhead > lengthOf(text)) continue;
            std::u32string const other = text.substr(0, static_cast<size_t>(length + row.lookAhead)) + rest;
            EXPECT_EQ(row.scan(other.data(), lengthOf(other)), length)
                << row.name << " of " << shown(text) << " and " << shown(other);
            compared++;
        }
    }
    EXPECT_GT(compared, 10000);
}

// Cost

namespace {

std::u32string repeat(std::string_view head, std::string_view piece, std::string_view tail, size_t size) {
    std::u32string text = test::wide(head);
    std::u32string const wide = test::wide(piece);
    while (text.size() < size) text += wide;
    return text + test::wide(tail);
}

struct Shape {
    std::string_view head, piece, tail;
};

constexpr Shape shapes[] = {
    {"", "(", ""},
    {"a ", "(", ")"},
    {"", "( ", ""},
    {"(", "\\)", ""},
    {"(", "a ", ""},
    {"", "(a) ", "("},
    {"a", " (b)", " ,"},
    {"", "a/1 ", ""},
    {"a", ";b=c", ""},
    {"a", ";b", ";"},
    {"<sip:a@b>", " ; b = c", "="},
    {"sip:a@b", ";b=\"c\"", ";\""},
    {";a", ";b=[::1]", ";c=["},
    {"\"", "\\\"", ""},
    {"\"", "\\\"", "\""},
    {"", "\"\"", ""},
    {"", " ", ""},
    {"", " \t", "<"},
    {"a", " ", "b"},
    {"a ;", " ", ""},
    {"", "a ", ""},
    {"", "a ", "<sip:a"},
    {"", "a ", "\r"},
    {"", ",", ""},
    {"sip:", ",", ""},
    {"sip:", "a,", "@h"},
    {"", "sip:a,", ""},
    {"", "sip:a@h,", ""},
    {"", ".", ""},
    {"a", ".a", ""},
    {"a", ".", "a"},
    {"a", "-", ""},
    {"a", "-a.", "-"},
    {"", "a=", ""},
    {"", "[", ""},
    {"", "[::1]", ""},
    {"", "[:", ""},
    {"", "]", ""},
    {"sip:", "a", ""},
    {"sip:", "a", "@h"},
    {"<sip:", "a", ">"},
    {"<sip:", "a", ""},
    {"http://", "u@", "[::1]"},
    {"http://", "u@[", ""},
    {"http://", "a;", ""},
    {"", "%41", ""},
    {"", "%4", ""},
    {"", "1.", ""},
    {"", "1:", ""},
    {"::", "1", ""},
    {"1", "0", ""},
    {"1", ".1", "."},
    {"1.", "0", ""},
    {"", "\u00E9", ""},
    {"urn:", "\u00E9", ""},
    {"SIP/2.0/UDP h", ";a", ";"},
    {"SIP/2.0/UDP h", ";received=::1", ";="},
    {"SIP", " ", "/2.0/UDP h"},
    {"", "Mon", ""},
    {"", "/", ""},
    {"", "<", ""},
    {"", ">", ""},
    {"", "@", ""},
    {"a@", "b.", "@"},
    {"", ":", ""},
    {"", "#", ""},
    {"urn:", "?", "#"},
    {"301 ", "a.", " \"x\""},
    {"54", " 5", ""},
};

using Clock = std::chrono::steady_clock;

template <class Work> double seconds(Work const &work) {
    auto const begin = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

template <class Work> double best(Work const &work) {
    double least = seconds(work);
    for (int i = 0; i < 4; i++) least = std::min(least, seconds(work));
    return least;
}

// Whether twice the text takes no more than about twice the time. Times too short to compare pass: over these texts,
// anything that is not linear takes seconds.
template <class Once, class Twice> void expectLinear(Once const &once, Twice const &twice, std::string const &what) {
    constexpr double tooShort = 0.020;
    if (seconds(twice) < tooShort) return;
    EXPECT_LT(best(twice), std::max(tooShort, 3.5 * best(once))) << what;
}

} // namespace

TEST(QuillSkipCost, EveryScannerIsLinear) {
    for (Shape const &shape : shapes) {
        std::u32string const once = repeat(shape.head, shape.piece, shape.tail, 32000);
        std::u32string const twice = repeat(shape.head, shape.piece, shape.tail, 64000);
        for (ScannerRow const &row : test::scanners()) {
            expectLinear(
                [&] { row.scan(once.data(), lengthOf(once)); }, [&] { row.scan(twice.data(), lengthOf(twice)); },
                std::string(row.name) + " of " + std::string(shape.head) + "(" + std::string(shape.piece) + ")*");
        }
    }
}

// A list's elements are scanned one after the other: none may look far beyond itself.
TEST(QuillSkipCost, ListsAreLinear) {
    std::string_view const elements[] = {"sip:a@h,",    "sip:a,",           "sip:a:b,",    "sip:a;x,",
                                         "http://h;x,", "<sip:a@h>,",       "<sip:a>;x ,", "\"a\" <sip:a> ,",
                                         "a <urn:b>,",  "sip:a@h;x=\"y\",", "sip:[::1],",  "sip:a?b,"};
    auto const scanList = [](std::u32string_view text) {
        int64_t at = 0, count = 0;
        for (;; count++) {
            int64_t const element = quill___SkipContact(text.data() + at, lengthOf(text) - at);
            if (element == 0) return count;
            at += element;
            int64_t const comma = quill___SkipComma(text.data() + at, lengthOf(text) - at);
            if (comma == 0) return count + 1;
            at += comma;
        }
    };
    for (std::string_view const element : elements) {
        std::u32string const once = repeat("", element, "", 32000);
        std::u32string const twice = repeat("", element, "", 64000);
        EXPECT_GT(scanList(twice), 2000) << element;
        expectLinear([&] { scanList(once); }, [&] { scanList(twice); }, std::string(element));
    }
}
