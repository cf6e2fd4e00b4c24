// Conversions of loc_iri.h for the library's own units, of texts that are known to be whole IRIs.
#pragma once

#include <co/co_string.hpp>

namespace loc {

// The IRI form of a URI; always a string of the caller's own.
coString *makeIri(co::Chars uri);

} // namespace loc
