// All scanners in one table, for tests that hold for every one of them.
#pragma once

#include <quill/quill_skip.h>
#include <string>
#include <string_view>
#include <vector>

namespace test {

using Scanner = int64_t (*)(coChar const *chs, int64_t length);

// What of the text behind a match may still decide about it.
enum LookAhead : int64_t { everything = -1 };

struct ScannerRow {
    std::string_view name;
    Scanner scan;
    int64_t lookAhead;       // so many code points behind a match may matter, or everything
    std::string_view sample; // a whole match
    char const *unit = "source/quill/quill_skip";
};

// One text, what a scanner finds in it, and why.
struct ScanCase {
    std::string_view text;
    int64_t expected;
    std::string_view why;
};

std::vector<ScannerRow> const &scanners();

// The scanner's result over a copy of the text that ends where its memory does.
int64_t scan(Scanner scanner, std::string_view utf8);
int64_t scan(Scanner scanner, std::u32string_view text);

} // namespace test
