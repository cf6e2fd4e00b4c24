/// @file
/// The Service-Route header field: the way to the services of the registrar (RFC 3608, 5).
///
///     Service-Route = "Service-Route" HCOLON sr-value *( COMMA sr-value )
///
/// A list of quillRoute.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_SERVICE_ROUTE_H
#define QUILL_QUILL_HEADER_SERVICE_ROUTE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderServiceRouteSort(void);
QUILL_API void quillHeaderServiceRouteRetain(struct quillHeaderServiceRoute *obj);
QUILL_API void quillHeaderServiceRouteRelease(struct quillHeaderServiceRoute *obj);
QUILL_API struct coObj *quillHeaderServiceRouteObj(struct quillHeaderServiceRoute const *hdr);
QUILL_API struct quillHeaderServiceRoute *quillHeaderServiceRouteFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderServiceRouteToString(struct quillHeaderServiceRoute const *obj);
QUILL_API int quillHeaderServiceRouteCompare(struct quillHeaderServiceRoute const *objA,
                                             struct quillHeaderServiceRoute const *objB);
QUILL_API bool quillHeaderServiceRouteEquals(struct quillHeaderServiceRoute const *objA,
                                             struct quillHeaderServiceRoute const *objB);
QUILL_API struct quillHeaderServiceRoute *
quillHeaderServiceRouteCreateFrom(struct quillHeaderServiceRoute const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderServiceRoute *quillHeaderServiceRouteCreate(void);

/// @name Elements
/// @{
QUILL_API void quillHeaderServiceRouteClearRoutes(struct quillHeaderServiceRoute **hdr);
QUILL_API int64_t quillHeaderServiceRouteRoutesLength(struct quillHeaderServiceRoute const *hdr);
QUILL_API struct quillRoute *quillHeaderServiceRouteTryDecodeRouteAt(struct quillHeaderServiceRoute const *hdr,
                                                                     int64_t index);
QUILL_API void quillHeaderServiceRouteSetRouteAt(struct quillHeaderServiceRoute **hdr, int64_t index,
                                                 struct quillRoute const *route);
QUILL_API void quillHeaderServiceRouteDelRouteAt(struct quillHeaderServiceRoute **hdr, int64_t index);
QUILL_API void quillHeaderServiceRoutePrependRoute(struct quillHeaderServiceRoute **hdr,
                                                   struct quillRoute const *route);
QUILL_API void quillHeaderServiceRouteAppendRoute(struct quillHeaderServiceRoute **hdr, struct quillRoute const *route);
QUILL_API void quillHeaderServiceRouteInsertRoute(struct quillHeaderServiceRoute **hdr, int64_t index,
                                                  struct quillRoute const *route);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderServiceRouteEncode(struct quillHeaderServiceRoute const *hdr);
QUILL_API struct quillHeaderServiceRoute *quillHeaderServiceRouteTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderServiceRouteStore(struct quillHeaderServiceRoute const *hdr);
QUILL_API struct quillHeaderServiceRoute *quillHeaderServiceRouteTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderServiceRoutePresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderServiceRouteEncodeToMessage(struct quillHeaderServiceRoute const *hdr,
                                                      struct quillMessage **msg);
QUILL_API struct quillHeaderServiceRoute *quillHeaderServiceRouteTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderServiceRouteRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
