/// @file
/// Internationalised resource identifiers (RFC 3987), as all addresses are stored.
#ifndef QUILL_QUILL_IRI_H
#define QUILL_QUILL_IRI_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// The whole text is one IRI, scheme included.
QUILL_API bool quillIriOk(struct coString const *iri);

CO_EXTERN_C_END

#endif
