/// @file
/// Names of hosts: internationalised domain names (IDNA2008, RFC 5890 to 5893) and IP addresses in their place.
///
/// A domain name is one or more labels with dots between them, and optionally a final dot. Each label is one of
///
/// - 1 to 63 letters, digits and hyphens, no hyphen first or last, not beginning with `xn--`;
/// - an A-label, `xn--` in either letter case and what a U-label is encoded to;
/// - what becomes one of these, or a U-label with an A-label of at most 63 octets, by the mapping of RFC 5895: lower
///   case, no wide and narrow forms, Normalization Form C. A wide, an ideographic and a narrow ideographic full stop
///   are dots.
///
/// The ASCII form has at most 253 octets, a final dot not counted. When there is a right-to-left label, all labels
/// satisfy the Bidi rule (RFC 5893, 2). In place of a name an IPv4 address or an IPv6 address in brackets may stand.
#ifndef NX_NX_DNS_H
#define NX_NX_DNS_H

#include <co/co_types.h>

CO_EXTERN_C_BEGIN

CO_API bool nxDnsIdnaDomainNameOk(struct coString const *name);

/// The name with A-labels, or with U-labels. Labels of ASCII characters keep their letter case, addresses are returned
/// as they are. The name must be Ok, and so is the result.
/// @{
CO_API struct coString *nxDnsIdnaDomainNameToAscii(struct coString *name);
CO_API struct coString *nxDnsIdnaDomainNameToUnicode(struct coString *name);
/// @}

CO_EXTERN_C_END

#endif
