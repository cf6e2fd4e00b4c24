/// @file
/// Character sets: UTF-8 to strings and back, strict both ways (RFC 3629).
#ifndef CO_CO_CHARSET_H
#define CO_CO_CHARSET_H

#include <co/co_types.h>

CO_EXTERN_C_BEGIN

/// Writes the UTF-8 of @p count code points to @p dest, as many whole code points as fit into @p capacity bytes, and
/// returns the bytes that all of them need. A code point that is no scalar value is written as U+FFFD. No @p flags.
CO_API int64_t coCharsConvertToUtf8(uint8_t *dest, int64_t capacity, coChar const *chars, int64_t count, int64_t flags);

/// The text of a buffer's bytes. The only charset is 44, UTF-8. With flag 1 (strict) anything that is not valid UTF-8
/// gives null; with flag 0 U+FFFD stands for each maximal ill-formed piece. A byte order mark is a code point like any
/// other.
CO_API struct coString *coCharsetBufferToStringWithFlags(int64_t charset, struct coBuffer const *buffer, int64_t flags);

CO_EXTERN_C_END

#endif
