/// @file
/// Hosts (RFC 3261, 25.1), internationalised domain names (RFC 5890) included.
///
///     host = hostname / IPv4address / IPv6reference
#ifndef QUILL_QUILL_HOST_H
#define QUILL_QUILL_HOST_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// A host by the grammar, or a domain name whose ASCII form is one.
QUILL_API bool quillHostOk(struct coString const *host);

CO_EXTERN_C_END

#endif
