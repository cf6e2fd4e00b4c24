/// @file
/// Internet addresses, IPv4 and IPv6, without zone and port.
#ifndef NX_NX_ADDRESS_H
#define NX_NX_ADDRESS_H

#include <co/co_types.h>

struct nxAddress;

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
CO_API struct coSort const *nxAddressSort(void);
CO_API void nxAddressRetain(struct nxAddress *obj);
CO_API void nxAddressRelease(struct nxAddress *obj);
CO_API struct coObj *nxAddressObj(struct nxAddress const *obj);
CO_API struct nxAddress *nxAddressFrom(struct coObj const *obj);
/// What nxAddressToStringShrink returns.
CO_API struct coString *nxAddressToString(struct nxAddress const *obj);
/// IPv4 before IPv6, then byte by byte in network order.
CO_API int nxAddressCompare(struct nxAddress const *objA, struct nxAddress const *objB);
CO_API bool nxAddressEquals(struct nxAddress const *objA, struct nxAddress const *objB);
/// @}

/// From the whole text: four decimal octets without leading zeros, or a text form of RFC 4291, 2.2, in either letter
/// case, without brackets. Null for anything else.
CO_API struct nxAddress *nxAddressTryCreateFromChars(coChar const *chars, int64_t count);

/// The recommended text (RFC 5952), without brackets: lower case, the first of the longest runs of two or more zero
/// groups left out, an IPv4-mapped address with its last 32 bits as an IPv4 address.
CO_API struct coString *nxAddressToStringShrink(struct nxAddress const *address);

CO_EXTERN_C_END

#endif
