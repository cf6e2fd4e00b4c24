/// @file
/// The Server header field: the software that answers (RFC 3261, 20.35).
///
///     Server          = "Server" HCOLON server-val *( LWS server-val )
///     server-val      = product / comment
///     product         = token [ SLASH product-version ]
///     product-version = token
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_SERVER_H
#define QUILL_QUILL_HEADER_SERVER_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderServerSort(void);
QUILL_API void quillHeaderServerRetain(struct quillHeaderServer *obj);
QUILL_API void quillHeaderServerRelease(struct quillHeaderServer *obj);
QUILL_API struct coObj *quillHeaderServerObj(struct quillHeaderServer const *hdr);
QUILL_API struct quillHeaderServer *quillHeaderServerFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderServerToString(struct quillHeaderServer const *obj);
QUILL_API int quillHeaderServerCompare(struct quillHeaderServer const *objA, struct quillHeaderServer const *objB);
QUILL_API bool quillHeaderServerEquals(struct quillHeaderServer const *objA, struct quillHeaderServer const *objB);
QUILL_API struct quillHeaderServer *quillHeaderServerCreateFrom(struct quillHeaderServer const *source);
/// @}

QUILL_API struct quillHeaderServer *quillHeaderServerCreate(struct coString *server);

/// @name Server: the text as a whole
/// @{
QUILL_API struct coString *quillHeaderServerServer(struct quillHeaderServer const *hdr);
QUILL_API void quillHeaderServerSetServer(struct quillHeaderServer **hdr, struct coString *server);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderServerEncode(struct quillHeaderServer const *hdr);
QUILL_API struct quillHeaderServer *quillHeaderServerTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderServerStore(struct quillHeaderServer const *hdr);
QUILL_API struct quillHeaderServer *quillHeaderServerTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderServerPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderServerEncodeToMessage(struct quillHeaderServer const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderServer *quillHeaderServerTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderServerRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
