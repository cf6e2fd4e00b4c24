// Case mappings of code points.
// Made by tools/unicode/generate.py from the Unicode Character Database, version 15.0.0.
#pragma once

#include <co/co_types.h>

namespace co::unicode {

// What to add to a code point for its simple mappings.
struct SimpleCase {
    int32_t toUpper;
    int32_t toLower;
};

// Which of the records below a code point has: 0 is the one without mappings.
constexpr coChar simpleCaseEnd = 0x1e980;
constexpr coChar simpleCaseShift = 6;
extern uint8_t const simpleCaseBlocks[1958];
extern uint8_t const simpleCaseValues[4224];
extern SimpleCase const simpleCases[179];

// Every simple upper-case mapping once, ascending.
extern coChar const upperCases[1396];

struct FullUpperCase {
    coChar from;
    int32_t count;
    coChar to[3];
};

// The upper-case mappings to several code points, ascending.
extern FullUpperCase const fullUpperCases[102];

} // namespace co::unicode
