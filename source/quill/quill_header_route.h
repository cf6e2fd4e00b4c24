/// @file
/// The Route header field: the proxies that a request has to pass (RFC 3261, 20.34).
///
///     Route = "Route" HCOLON route-param *( COMMA route-param )
///
/// A list of quillRoute.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_ROUTE_H
#define QUILL_QUILL_HEADER_ROUTE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderRouteSort(void);
QUILL_API void quillHeaderRouteRetain(struct quillHeaderRoute *obj);
QUILL_API void quillHeaderRouteRelease(struct quillHeaderRoute *obj);
QUILL_API struct coObj *quillHeaderRouteObj(struct quillHeaderRoute const *hdr);
QUILL_API struct quillHeaderRoute *quillHeaderRouteFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderRouteToString(struct quillHeaderRoute const *obj);
QUILL_API int quillHeaderRouteCompare(struct quillHeaderRoute const *objA, struct quillHeaderRoute const *objB);
QUILL_API bool quillHeaderRouteEquals(struct quillHeaderRoute const *objA, struct quillHeaderRoute const *objB);
QUILL_API struct quillHeaderRoute *quillHeaderRouteCreateFrom(struct quillHeaderRoute const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderRoute *quillHeaderRouteCreate(void);

/// @name Elements
/// @{
QUILL_API void quillHeaderRouteClearRoutes(struct quillHeaderRoute **hdr);
QUILL_API int64_t quillHeaderRouteRoutesLength(struct quillHeaderRoute const *hdr);
QUILL_API struct quillRoute *quillHeaderRouteTryDecodeRouteAt(struct quillHeaderRoute const *hdr, int64_t index);
QUILL_API void quillHeaderRouteSetRouteAt(struct quillHeaderRoute **hdr, int64_t index, struct quillRoute const *route);
QUILL_API void quillHeaderRouteDelRouteAt(struct quillHeaderRoute **hdr, int64_t index);
QUILL_API void quillHeaderRoutePrependRoute(struct quillHeaderRoute **hdr, struct quillRoute const *route);
QUILL_API void quillHeaderRouteAppendRoute(struct quillHeaderRoute **hdr, struct quillRoute const *route);
QUILL_API void quillHeaderRouteInsertRoute(struct quillHeaderRoute **hdr, int64_t index,
                                           struct quillRoute const *route);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderRouteEncode(struct quillHeaderRoute const *hdr);
QUILL_API struct quillHeaderRoute *quillHeaderRouteTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderRouteStore(struct quillHeaderRoute const *hdr);
QUILL_API struct quillHeaderRoute *quillHeaderRouteTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderRoutePresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderRouteEncodeToMessage(struct quillHeaderRoute const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderRoute *quillHeaderRouteTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderRouteRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
