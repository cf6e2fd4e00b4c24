/// @file
/// IRIs and URIs: validity, and conversion both ways (RFC 3987, 3). What counts as an IRI is told in loc_skip.h.
#ifndef LOC_LOC_IRI_H
#define LOC_LOC_IRI_H

#include <co/co_types.h>

CO_EXTERN_C_BEGIN

/// The IRI that a URI stands for, or null when @p uri is not one whole IRI. Raw characters outside US-ASCII are taken
/// as they are.
///
/// Only escape sequences that together are the UTF-8 of one character that is allowed at that place of an IRI, and is
/// neither US-ASCII nor a bidirectional formatting character (RFC 3987, 4.1), become that character. All others stay as
/// they came: a URI that is converted here and back again is the same text, but for the letter case of the escapes that
/// were decoded.
CO_API struct coString *locTryConvertFromUri(struct coString const *uri);

/// The URI form: every character outside US-ASCII as the escape sequences of its UTF-8, in upper case. Null when @p iri
/// is not one whole IRI.
CO_API struct coString *locTryConvertToUri(struct coString const *iri);

/// Whether the whole text is the given part of an IRI. The one part there is is 0, the IRI itself; nothing is valid as
/// another.
CO_API bool locGensValidatePart(int64_t part, struct coString const *text);

CO_EXTERN_C_END

#endif
