/// @file
/// The Record-Route header field: the proxies that want to stay on the way (RFC 3261, 20.30).
///
///     Record-Route = "Record-Route" HCOLON rec-route *( COMMA rec-route )
///
/// A list of quillRoute.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_RECORD_ROUTE_H
#define QUILL_QUILL_HEADER_RECORD_ROUTE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderRecordRouteSort(void);
QUILL_API void quillHeaderRecordRouteRetain(struct quillHeaderRecordRoute *obj);
QUILL_API void quillHeaderRecordRouteRelease(struct quillHeaderRecordRoute *obj);
QUILL_API struct coObj *quillHeaderRecordRouteObj(struct quillHeaderRecordRoute const *hdr);
QUILL_API struct quillHeaderRecordRoute *quillHeaderRecordRouteFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderRecordRouteToString(struct quillHeaderRecordRoute const *obj);
QUILL_API int quillHeaderRecordRouteCompare(struct quillHeaderRecordRoute const *objA,
                                            struct quillHeaderRecordRoute const *objB);
QUILL_API bool quillHeaderRecordRouteEquals(struct quillHeaderRecordRoute const *objA,
                                            struct quillHeaderRecordRoute const *objB);
QUILL_API struct quillHeaderRecordRoute *quillHeaderRecordRouteCreateFrom(struct quillHeaderRecordRoute const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderRecordRoute *quillHeaderRecordRouteCreate(void);

/// @name Elements
/// @{
QUILL_API void quillHeaderRecordRouteClearRoutes(struct quillHeaderRecordRoute **hdr);
QUILL_API int64_t quillHeaderRecordRouteRoutesLength(struct quillHeaderRecordRoute const *hdr);
QUILL_API struct quillRoute *quillHeaderRecordRouteTryDecodeRouteAt(struct quillHeaderRecordRoute const *hdr,
                                                                    int64_t index);
QUILL_API void quillHeaderRecordRouteSetRouteAt(struct quillHeaderRecordRoute **hdr, int64_t index,
                                                struct quillRoute const *route);
QUILL_API void quillHeaderRecordRouteDelRouteAt(struct quillHeaderRecordRoute **hdr, int64_t index);
QUILL_API void quillHeaderRecordRoutePrependRoute(struct quillHeaderRecordRoute **hdr, struct quillRoute const *route);
QUILL_API void quillHeaderRecordRouteAppendRoute(struct quillHeaderRecordRoute **hdr, struct quillRoute const *route);
QUILL_API void quillHeaderRecordRouteInsertRoute(struct quillHeaderRecordRoute **hdr, int64_t index,
                                                 struct quillRoute const *route);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderRecordRouteEncode(struct quillHeaderRecordRoute const *hdr);
QUILL_API struct quillHeaderRecordRoute *quillHeaderRecordRouteTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderRecordRouteStore(struct quillHeaderRecordRoute const *hdr);
QUILL_API struct quillHeaderRecordRoute *quillHeaderRecordRouteTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderRecordRoutePresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderRecordRouteEncodeToMessage(struct quillHeaderRecordRoute const *hdr,
                                                     struct quillMessage **msg);
QUILL_API struct quillHeaderRecordRoute *quillHeaderRecordRouteTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderRecordRouteRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
