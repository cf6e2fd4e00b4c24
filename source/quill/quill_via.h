/// @file
/// One value of a Via header field: a hop that a request went through (RFC 3261, 20.42; RFC 3581).
///
///     via-parm      = sent-protocol LWS sent-by *( SEMI via-params )
///     sent-protocol = protocol-name SLASH protocol-version SLASH transport
///     sent-by       = host [ COLON port ]
///     via-params    = via-ttl / via-maddr / via-received / via-branch / response-port / via-extension
///     via-ttl       = "ttl" EQUAL ttl
///     via-maddr     = "maddr" EQUAL host
///     via-received  = "received" EQUAL ( IPv4address / IPv6address )
///     via-branch    = "branch" EQUAL token
///     response-port = "rport" [ EQUAL 1*DIGIT ]
///     via-extension = generic-param
///
/// Object family, members, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_VIA_H
#define QUILL_QUILL_VIA_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by version, transport, host, port, ttl, maddr, received, branch, then parameters. Values that differ in
/// rport alone are equal.
/// @{
QUILL_API struct coSort const *quillViaSort(void);
QUILL_API void quillViaRetain(struct quillVia *obj);
QUILL_API void quillViaRelease(struct quillVia *obj);
QUILL_API struct coObj *quillViaObj(struct quillVia const *via);
QUILL_API struct quillVia *quillViaFrom(struct coObj const *obj);
QUILL_API struct coString *quillViaToString(struct quillVia const *obj);
QUILL_API int quillViaCompare(struct quillVia const *objA, struct quillVia const *objB);
QUILL_API bool quillViaEquals(struct quillVia const *objA, struct quillVia const *objB);
QUILL_API struct quillVia *quillViaCreateFrom(struct quillVia const *source);
/// @}

/// A new value without parameters. @p host: the name or address that was sent by.
QUILL_API struct quillVia *quillViaCreate(struct quillVersion *version, struct coString *transport,
                                          struct coString *host);

QUILL_API struct quillVia *quillViaCreateWithPort(struct quillVersion *version, struct coString *transport,
                                                  struct coString *host, int64_t port);

/// "UDP localhost", for who has nothing to say yet.
QUILL_API struct quillVia *quillViaCreateDummy(struct quillVersion *version);

/// @name Protocol name and version; never null
/// @{
QUILL_API struct quillVersion *quillViaVersion(struct quillVia const *via);
QUILL_API void quillViaSetVersion(struct quillVia **via, struct quillVersion *version);
/// @}

/// @name Transport: a token, kept in lower case and written in upper case
/// @{
QUILL_API struct coString *quillViaTransport(struct quillVia const *via);
QUILL_API void quillViaSetTransport(struct quillVia **via, struct coString *transport);
/// @}

/// @name Host that was sent by: a domain name, an IPv4 address or a bracketed IPv6 address, as given
/// @{
QUILL_API struct coString *quillViaHost(struct quillVia const *via);
QUILL_API void quillViaSetHost(struct quillVia **via, struct coString *host);
/// @}

/// @name Port that was sent by: not negative; optional
/// @{
QUILL_API int64_t quillViaPort(struct quillVia const *via);
QUILL_API bool quillViaHasPort(struct quillVia const *via);
QUILL_API void quillViaSetPort(struct quillVia **via, int64_t port);
QUILL_API void quillViaDelPort(struct quillVia **via);
/// @}

/// @name ttl: 0 to 255; optional
/// @{
QUILL_API int64_t quillViaTtl(struct quillVia const *via);
QUILL_API bool quillViaHasTtl(struct quillVia const *via);
QUILL_API void quillViaSetTtl(struct quillVia **via, int64_t ttl);
QUILL_API void quillViaDelTtl(struct quillVia **via);
/// @}

/// @name maddr: a host, as given; optional
/// @{
QUILL_API struct coString *quillViaMaddr(struct quillVia const *via);
QUILL_API bool quillViaHasMaddr(struct quillVia const *via);
QUILL_API void quillViaSetMaddr(struct quillVia **via, struct coString *maddr);
QUILL_API void quillViaDelMaddr(struct quillVia **via);
/// @}

/// @name received: the address that the request came from; optional
/// @{
QUILL_API struct nxAddress *quillViaReceived(struct quillVia const *via);
QUILL_API bool quillViaHasReceived(struct quillVia const *via);
QUILL_API void quillViaSetReceived(struct quillVia **via, struct nxAddress *received);
QUILL_API void quillViaDelReceived(struct quillVia **via);
/// @}

/// @name rport: empty, or a port; optional (RFC 3581)
/// A number is given by the setter only: "rport" with a value is read as a generic parameter.
/// @{
/// The port, -1 where there is none.
QUILL_API int64_t quillViaRportNumeric(struct quillVia const *via);
/// Whether it is there, empty or with a port.
QUILL_API bool quillViaHasRport(struct quillVia const *via);
QUILL_API bool quillViaHasRportNumeric(struct quillVia const *via);
QUILL_API bool quillViaHasRportEmpty(struct quillVia const *via);
QUILL_API void quillViaSetRportNumeric(struct quillVia **via, int64_t rport);
QUILL_API void quillViaSetRportEmpty(struct quillVia **via);
/// Takes it away in either form.
QUILL_API void quillViaDelRport(struct quillVia **via);
/// @}

/// @name branch: a token, as given, with or without the cookie "z9hG4bK"; optional
/// @{
QUILL_API struct coString *quillViaBranch(struct quillVia const *via);
QUILL_API bool quillViaHasBranch(struct quillVia const *via);
QUILL_API void quillViaSetBranch(struct quillVia **via, struct coString *branch);
QUILL_API void quillViaDelBranch(struct quillVia **via);
/// @}

/// @name Parameters other than these; never null
/// @{
QUILL_API struct quillGenericParams *quillViaGenericParams(struct quillVia const *via);
QUILL_API void quillViaSetGenericParams(struct quillVia **via, struct quillGenericParams *genericParams);
/// @}

CO_EXTERN_C_END

#endif
