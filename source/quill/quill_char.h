/// @file
/// The character classes of SIP's grammar (RFC 3261, 25.1; separators as in RFC 2616, 2.2).
///
/// All are sets of US-ASCII characters, whatever the locale: no code point above 127 is a member of any, and any value
/// may be asked about.
#ifndef QUILL_QUILL_CHAR_H
#define QUILL_QUILL_CHAR_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// `A`-`Z`, `a`-`z`
QUILL_API bool quill___CharIsAlpha(coChar ch);
/// `0`-`9`
QUILL_API bool quill___CharIsDigit(coChar ch);
/// ALPHA / DIGIT
QUILL_API bool quill___CharIsAlphanum(coChar ch);
/// A token's character without the dot: what dots join to a dot-atom (RFC 2822, 3.2.4).
QUILL_API bool quill___CharIsAtom(coChar ch);
/// token-nodot (RFC 6665, 8.4): the same set as the atom's
QUILL_API bool quill___CharIsTokenNodot(coChar ch);
/// alphanum / "-" / "." / "!" / "%" / "*" / "_" / "+" / "`" / "'" / "~"
QUILL_API bool quill___CharIsToken(coChar ch);
/// HEXDIG, in lower case too. The digit's value is stored where @p value is given: -1 for what is no digit.
QUILL_API bool quill___CharIsHexdig(coChar ch, int64_t *value);
/// hnv-unreserved = "[" / "]" / "/" / "?" / ":" / "+" / "$"
QUILL_API bool quill___CharIsHnvUnreserved(coChar ch);
/// WSP: SP and HTAB. CR and LF are none.
QUILL_API bool quill___CharIsLws(coChar ch);
/// mark = "-" / "_" / "." / "!" / "~" / "*" / "'" / "(" / ")"
QUILL_API bool quill___CharIsMark(coChar ch);
/// reserved = ";" / "/" / "?" / ":" / "@" / "&" / "=" / "+" / "$" / ","
QUILL_API bool quill___CharIsReserved(coChar ch);
/// separators (RFC 2616, 2.2), SP and HTAB among them
QUILL_API bool quill___CharIsSeparator(coChar ch);
/// unreserved = alphanum / mark
QUILL_API bool quill___CharIsUnreserved(coChar ch);
/// paramchar = param-unreserved / unreserved / the "%" of an escape, whose digits are not looked at
QUILL_API bool quill___CharIsParamChar(coChar ch);
/// user-unreserved = "&" / "=" / "+" / "$" / "," / ";" / "?" / "/"
QUILL_API bool quill___CharIsUserUnreserved(coChar ch);
/// A character of word: a token's, and "(" / ")" / "<" / ">" / ":" / "\" / DQUOTE / "/" / "[" / "]" / "?" / "{" / "}"
QUILL_API bool quill___CharIsWord(coChar ch);

CO_EXTERN_C_END

#endif
