// Properties of code points for internationalised domain names.
// Made by tools/unicode/generate.py from the Unicode Character Database, version 15.0.0.
#pragma once

#include <co/co_types.h>

namespace nx::unicode {

// RFC 5892, 1.
enum class Derived : uint8_t { unassigned, disallowed, pvalid, contextJ, contextO };

enum class Joining : uint8_t { U, C, D, L, R, T };

// The classes that RFC 5893 names.
enum class Bidi : uint8_t { other, L, R, AL, AN, EN, ES, CS, ET, ON, BN, NSM };

// The scripts that RFC 5892, appendix A, names.
enum class Script : uint8_t { other, Greek, Hebrew, Hiragana, Katakana, Han };

struct Properties {
    Derived derived;
    Joining joining;
    Bidi bidi;
    Script script;
    uint8_t combiningClass;
    bool mark; // General_Category M
};

// Which of the records below a code point has: 0 is the one of no character.
constexpr coChar propertiesEnd = 0x110000;
constexpr coChar propertiesShift = 7;
extern uint8_t const propertiesBlocks[8704];
extern uint8_t const propertiesValues[32768];
extern Properties const properties[134];

// Where in the array below the mapping of a code point is, or 0.
constexpr coChar mappingEnd = 0x2fa20;
constexpr coChar mappingShift = 5;
extern uint8_t const mappingBlocks[6097];
extern uint16_t const mappingValues[5792];

// A count and that many code points: lower case, then the decomposition of wide and narrow forms, then the
// canonical one, but for Hangul syllables. What is permitted as it is keeps its case.
extern coChar const mappings[6181];
constexpr coChar longestMapping = 4;

struct Composition {
    coChar first;
    coChar second;
    coChar composite;
};

// The primary composites but for Hangul syllables, ascending by what they are composed of.
extern Composition const compositions[941];

} // namespace nx::unicode
