/// @file
/// One value of a Route, Record-Route or Service-Route header field: an address with parameters (RFC 3261, 20.30 and
/// 20.34; RFC 3608).
///
///     route-param = name-addr *( SEMI rr-param )
///     rr-param    = generic-param
///
/// Bare addresses are read, too; brackets are always written.
///
/// Object family, members, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_ROUTE_H
#define QUILL_QUILL_ROUTE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by identifier, display name, then parameters.
/// @{
QUILL_API struct coSort const *quillRouteSort(void);
QUILL_API void quillRouteRetain(struct quillRoute *obj);
QUILL_API void quillRouteRelease(struct quillRoute *obj);
QUILL_API struct coObj *quillRouteObj(struct quillRoute const *route);
QUILL_API struct quillRoute *quillRouteFrom(struct coObj const *obj);
QUILL_API struct coString *quillRouteToString(struct quillRoute const *obj);
QUILL_API int quillRouteCompare(struct quillRoute const *objA, struct quillRoute const *objB);
QUILL_API bool quillRouteEquals(struct quillRoute const *objA, struct quillRoute const *objB);
QUILL_API struct quillRoute *quillRouteCreateFrom(struct quillRoute const *source);
/// @}

QUILL_API struct quillRoute *quillRouteCreate(struct coString *iri);

/// @name Identifier: an IRI, which stands on the wire as a URI
/// @{
QUILL_API struct coString *quillRouteIri(struct quillRoute const *route);
QUILL_API void quillRouteSetIri(struct quillRoute **route, struct coString *iri);
/// @}

/// @name Display name: text without its quotes; optional
/// @{
QUILL_API struct coString *quillRouteDisplayName(struct quillRoute const *route);
QUILL_API bool quillRouteHasDisplayName(struct quillRoute const *route);
QUILL_API void quillRouteSetDisplayName(struct quillRoute **route, struct coString *displayName);
QUILL_API void quillRouteDelDisplayName(struct quillRoute **route);
/// @}

/// @name Parameters; never null
/// @{
QUILL_API struct quillGenericParams *quillRouteGenericParams(struct quillRoute const *route);
QUILL_API void quillRouteSetGenericParams(struct quillRoute **route, struct quillGenericParams *genericParams);
/// @}

CO_EXTERN_C_END

#endif
