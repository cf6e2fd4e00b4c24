// Names of hosts for the library's own units.
#pragma once

#include <co/co_string.hpp>

namespace nx {

// Whether a text that is an address or a domain name is its own ASCII and its own Unicode form.
bool isPlain(co::Chars name);

// The Unicode form of a name that passes nxDnsIdnaDomainNameOk, or null for any other text.
coString *tryToUnicode(co::Chars name);

} // namespace nx
