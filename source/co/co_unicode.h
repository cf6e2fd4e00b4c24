/// @file
/// Case mapping of code points, from the Unicode Character Database.
#ifndef CO_CO_UNICODE_H
#define CO_CO_UNICODE_H

#include <co/co_types.h>

CO_EXTERN_C_BEGIN

/// The full upper-case mapping of one code point, without regard to language or context: @p count code points, valid
/// for the life of the process. Null, and a count of 0, for a code point without a mapping, which is its own upper
/// case; U+00DF is mapped to two.
CO_API coChar const *co___UnicodeUpperCaseDbLookup(coChar ch, int64_t *count);

CO_EXTERN_C_END

#endif
