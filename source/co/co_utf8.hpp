// UTF-8, both ways (RFC 3629): no overlong forms, no surrogates, nothing above U+10FFFF.
#pragma once

#include <co/co_types.h>
#include <string_view>

namespace co {

struct Utf8Count {
    bool valid;
    int64_t chars; // code points
};

// Whether the bytes are UTF-8, and how many code points they are.
Utf8Count countUtf8(std::string_view bytes);

// Writes the code points of valid UTF-8 to `chars`; returns the end of what it wrote.
coChar *widenUtf8(coChar *chars, std::string_view valid);

// The same for bytes that are known to be US-ASCII.
coChar *widenAscii(coChar *chars, std::string_view ascii);

// The same for any bytes: U+FFFD stands for each maximal ill-formed piece (Unicode, 3.9). Nothing is written where
// `chars` is null; returns the count of code points.
int64_t widenAnyBytes(coChar *chars, std::string_view bytes);

// Whether all code points are US-ASCII.
bool isAscii(std::u32string_view chars);

// The bytes that code points take as UTF-8, and their writing; returns the end of what it wrote. What is no scalar
// value (a surrogate, or above U+10FFFF) is written as U+FFFD.
int64_t utf8Length(std::u32string_view chars);
uint8_t *narrowToUtf8(uint8_t *bytes, std::u32string_view chars);

// The same for code points that are known to be US-ASCII.
uint8_t *narrowAscii(uint8_t *bytes, std::u32string_view ascii);

} // namespace co
