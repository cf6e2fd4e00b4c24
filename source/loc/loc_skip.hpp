// The scanners of loc_skip.h for the library's own units, without checks.
#pragma once

#include <co/co_string.hpp>

namespace loc {

// What no code point equals.
inline constexpr coChar noChar = ~coChar{0};

// The IRI at the start of the text before the first `end`, which is not searched for beyond the IRI.
int64_t iriLength(co::Chars text, coChar end = noChar);

// The same of an address, where a SIP URI often has parameters. `hasNoEscapes`: whether it was seen on the way that no "%"
// is in it.
int64_t iriLengthInAddress(co::Chars text, coChar end, bool *hasNoEscapes);

// The code points outside US-ASCII that may stand in an IRI's every part, and those that may stand in its query alone
// (RFC 3987, 2.2).
bool isUcschar(coChar ch);
bool isIprivate(coChar ch);

} // namespace loc
