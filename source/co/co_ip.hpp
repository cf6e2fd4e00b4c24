// IP addresses as text: which part of a text is one, and its bytes. For scanners and for address objects alike.
#pragma once

#include <co/co_string.hpp>

namespace co {

// The length of the longest beginning of the text that is a complete address, 0 where none is. At most as many code
// points are read as an address can have. The bytes, in network order, are written where they are asked for and only
// when there is an address.
//
// Four decimal octets, 0 to 255, without leading zeros: "1.2.3.256" begins with the address 1.2.3.25.
int64_t ipv4Length(Chars text, uint8_t *fourBytes = nullptr);

// The text forms of RFC 4291, 2.2, an IPv4 address in the last 32 bits included; no zone, no brackets.
int64_t ipv6Length(Chars text, uint8_t *sixteenBytes = nullptr);

} // namespace co
