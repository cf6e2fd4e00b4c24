// Formatting, as the forms of co_string.h use it.
#pragma once

#include <co/co_format.h>
#include <co/co_string.hpp>
#include <cstdarg>

namespace co {

// Appends what the format makes of the arguments.
void appendFormat(coString **string, Chars format, va_list args);

// Appends an integer; `digits` are those of lower or upper case.
enum class Case { lower, upper };
void appendInt(coString **string, int64_t value, int64_t base, int64_t width, bool zeros, Case digits);

// coFormatTryDecodeIntChars on code points or on bytes.
bool tryDecodeInt(Chars text, int64_t base, int64_t *value, int64_t *end);
bool tryDecodeInt(std::string_view text, int64_t base, int64_t *value, int64_t *end);

} // namespace co
