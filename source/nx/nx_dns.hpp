// Names of hosts for the library's own units.
#pragma once

#include <co/co_string.hpp>

namespace nx {

// The Unicode form of a name that passes nxDnsIdnaDomainNameOk, or null for any other text.
coString *tryToUnicode(co::Chars name);

} // namespace nx
