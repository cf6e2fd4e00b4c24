/// @file
/// Strings: sequences of Unicode code points (UTF-32), of known length; U+0000 is a code point like any other.
///
/// Texts come in as UTF-8 (`…Cstr`) or wide characters (`…Wcstr`), a length of -1 meaning up to the terminator. What is
/// not valid UTF-8 in them comes in as U+FFFD, one for each maximal ill-formed piece.
#ifndef CO_CO_STRING_H
#define CO_CO_STRING_H

#include <co/co_types.h>
#include <stdarg.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
CO_API struct coSort const *coStringSort(void);
CO_API void coStringRetain(struct coString *obj);
CO_API void coStringRelease(struct coString *obj);
CO_API struct coObj *coStringObj(struct coString const *obj);
CO_API struct coString *coStringFrom(struct coObj const *obj);
CO_API struct coString *coStringToString(struct coString const *obj);
/// Code point by code point; a beginning comes before the whole.
CO_API int coStringCompare(struct coString const *objA, struct coString const *objB);
CO_API bool coStringEquals(struct coString const *objA, struct coString const *objB);
/// @}

/// @name Creation
/// @{
CO_API struct coString *coStringCreate(void);
CO_API struct coString *coStringCreateFromCstr(char const *text, int64_t length);
CO_API struct coString *coStringCreateFromWcstr(wchar_t const *text, int64_t length);
CO_API struct coString *coStringCreateFromCharsCopy(coChar const *chars, int64_t count);
/// The @p count code points from @p start, which must lie within the string.
CO_API struct coString *coStringCreateFromInner(struct coString const *string, int64_t start, int64_t count);
/// @}

/// @name Formatting
/// Directives: `%s` a string object; `%~s` a string object whose reference is taken over; `%i` an int64_t, in decimal,
/// with a width (`%3i` pads with blanks, `%03i` with zeros) and another base (`%!16i`, `%^!16i` in upper case);
/// `%.*A` two int64_t, the highest index of a sequence and an index, as the index padded to the width of the highest
/// one; `%%` a percent sign. Anything else is a broken precondition.
/// @{
CO_API struct coString *coStringCreateFromFormatCstr(char const *format, int64_t length, ...);
CO_API struct coString *coStringCreateFromFormatCstrArgList(char const *format, int64_t length, va_list args);
CO_API struct coString *coStringCreateFromFormatWcstrArgList(wchar_t const *format, int64_t length, va_list args);
CO_API struct coString *coStringCreateFromFormatArgList(struct coString const *format, va_list args);
CO_API void coStringAppendFormatCstr(struct coString **string, char const *format, int64_t length, ...);
/// @}

/// @name Reading
/// @{
CO_API int64_t coStringLength(struct coString const *string);
/// The code points, valid while the string lives and is unchanged.
CO_API coChar const *coStringBacking(struct coString const *string);
CO_API coChar coStringCharAt(struct coString const *string, int64_t index);
CO_API bool coStringEqualsChars(struct coString const *string, coChar const *chars, int64_t count);
CO_API bool coStringBeginsWithChar(struct coString const *string, coChar ch);
/// Where @p chars occur first at or after @p start, or -1. No code points at all occur everywhere.
CO_API int64_t coStringFindChars(struct coString const *string, int64_t start, coChar const *chars, int64_t count);
/// The pieces between the delimiters, at most @p maxPieces (-1: any number), the last one keeping the rest, delimiters
/// included. An empty string is one empty piece.
CO_API struct coVector *coStringSplitChar(struct coString const *string, coChar ch, int64_t maxPieces);
CO_API struct coVector *coStringSplitChars(struct coString const *string, coChar const *chars, int64_t count,
                                           int64_t maxPieces);
/// Reads an integer of base 2 to 36 at @p start, within @p length code points (-1: to the end): an optional minus and
/// one or more digits. False, and nothing written, when there is none or it does not fit.
CO_API bool coStringScanInt(struct coString const *string, int64_t start, int64_t length, int64_t base, int64_t *value,
                            int64_t *consumed);
/// @}

/// @name Changing
/// Copy on write; appending is amortised constant.
/// @{
CO_API void coStringAppend(struct coString **string, struct coString const *other);
CO_API void coStringAppendChar(struct coString **string, coChar ch);
CO_API void coStringAppendChars(struct coString **string, coChar const *chars, int64_t count);
CO_API void coStringAppendCstr(struct coString **string, char const *text, int64_t length);
/// Appends @p other, with @p ch in between when the string is not empty.
CO_API void coStringDelimitedAppendCharDelimiter(struct coString **string, struct coString const *other, coChar ch);
CO_API void coStringSetCharAt(struct coString **string, int64_t index, coChar ch);
/// Unicode's simple mappings, code point by code point.
CO_API void coStringToLower(struct coString **string);
CO_API void coStringToUpper(struct coString **string);
/// @}

CO_EXTERN_C_END

#endif
