// Punycode (RFC 3492), for texts as long as a label may be.
#pragma once

#include <nx/nx_bounded.hpp>

namespace nx {

// Append what the text encodes to, or decodes to. Decoding reads lower-case letters only, and what it appends need not
// be what encodes to the same text. False when there is no result or it is longer than a label; then something may
// have been appended.
bool encodePunycode(co::Chars text, Label &encoded);
bool decodePunycode(co::Chars text, Label &decoded);

} // namespace nx
