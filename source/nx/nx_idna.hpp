// Labels of internationalised domain names (IDNA2008, RFC 5890 to 5893) and the mapping before it (RFC 5895).
#pragma once

#include <nx/nx_bounded.hpp>

namespace nx {

// What a user wrote as IDNA2008 wants it (RFC 5895, 2, steps 1 to 3): in lower case, without wide and narrow forms, in
// Unicode's Normalization Form C. What IDNA2008 permits as it is keeps its case. False when the result is longer than
// any label.
bool mapLabel(co::Chars text, Label &mapped);

// Whether a label with non-ASCII characters is a U-label: of characters that are permitted where they are, in form C,
// without hyphens and combining marks where none may be (RFC 5891, 4.2; RFC 5892). The length of its A-label and the
// Bidi rule are other matters.
bool isULabel(co::Chars label);

// RFC 5893, 1.4: whether it has a character of the classes R, AL and AN.
bool isRightToLeftLabel(co::Chars label);
// RFC 5893, 2. Every label of a name has to satisfy it when one of them is a right-to-left label.
bool satisfiesBidiRule(co::Chars label);

} // namespace nx
