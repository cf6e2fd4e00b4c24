/// @file
/// Integers as text. The directives of format strings are listed in co_string.h.
#ifndef CO_CO_FORMAT_H
#define CO_CO_FORMAT_H

#include <co/co_types.h>

CO_EXTERN_C_BEGIN

/// The integer in @p base (2 to 36, lower-case digits), padded on the left to @p width code points with blanks, or with
/// zeros behind the sign when @p flags is 2.
CO_API struct coString *coFormatEncodeInt(int64_t value, int64_t base, int64_t width, int64_t flags);

/// Reads an integer at the start of @p chars: an optional minus and one or more digits of @p base (2 to 36), in either
/// letter case. @p end receives the number of code points read. False, and nothing written, when there is no digit or
/// the value does not fit into 64 bits; a value that is followed by something else is fine.
CO_API bool coFormatTryDecodeIntChars(coChar const *chars, int64_t count, int64_t base, int64_t *value, int64_t *end);

CO_EXTERN_C_END

#endif
