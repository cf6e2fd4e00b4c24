/// @file
/// The Session-ID header field: the identifier of a session from end to end (RFC 7989, 5).
///
///     Session-ID    = "Session-ID" HCOLON local-uuid *( SEMI sess-id-param )
///     local-uuid    = sess-uuid / null
///     sess-id-param = remote-param / generic-param
///     remote-param  = "remote" EQUAL remote-uuid
///     remote-uuid   = sess-uuid / null
///     sess-uuid     = 32( DIGIT / %x61-7A )
///     null          = 32( "0" )
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_SESSION_ID_H
#define QUILL_QUILL_HEADER_SESSION_ID_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by local identifier, remote identifier, then parameters.
/// @{
QUILL_API struct coSort const *quillHeaderSessionIdSort(void);
QUILL_API void quillHeaderSessionIdRetain(struct quillHeaderSessionId *obj);
QUILL_API void quillHeaderSessionIdRelease(struct quillHeaderSessionId *obj);
QUILL_API struct coObj *quillHeaderSessionIdObj(struct quillHeaderSessionId const *hdr);
QUILL_API struct quillHeaderSessionId *quillHeaderSessionIdFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderSessionIdToString(struct quillHeaderSessionId const *obj);
QUILL_API int quillHeaderSessionIdCompare(struct quillHeaderSessionId const *objA,
                                          struct quillHeaderSessionId const *objB);
QUILL_API bool quillHeaderSessionIdEquals(struct quillHeaderSessionId const *objA,
                                          struct quillHeaderSessionId const *objB);
QUILL_API struct quillHeaderSessionId *quillHeaderSessionIdCreateFrom(struct quillHeaderSessionId const *source);
/// @}

QUILL_API struct quillHeaderSessionId *quillHeaderSessionIdCreate(struct coString *localUuid);

/// @name Local identifier: the sender's
/// @{
QUILL_API struct coString *quillHeaderSessionIdLocalUuid(struct quillHeaderSessionId const *hdr);
QUILL_API void quillHeaderSessionIdSetLocalUuid(struct quillHeaderSessionId **hdr, struct coString *localUuid);
/// @}

/// @name Remote identifier; optional
/// @{
QUILL_API struct coString *quillHeaderSessionIdRemoteUuid(struct quillHeaderSessionId const *hdr);
QUILL_API bool quillHeaderSessionIdHasRemoteUuid(struct quillHeaderSessionId const *hdr);
QUILL_API void quillHeaderSessionIdSetRemoteUuid(struct quillHeaderSessionId **hdr, struct coString *remoteUuid);
QUILL_API void quillHeaderSessionIdDelRemoteUuid(struct quillHeaderSessionId **hdr);
/// @}

/// @name Other parameters; never null
/// @{
QUILL_API struct quillGenericParams *quillHeaderSessionIdGenericParams(struct quillHeaderSessionId const *hdr);
QUILL_API void quillHeaderSessionIdSetGenericParams(struct quillHeaderSessionId **hdr,
                                                    struct quillGenericParams *genericParams);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderSessionIdEncode(struct quillHeaderSessionId const *hdr);
QUILL_API struct quillHeaderSessionId *quillHeaderSessionIdTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderSessionIdStore(struct quillHeaderSessionId const *hdr);
QUILL_API struct quillHeaderSessionId *quillHeaderSessionIdTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderSessionIdPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderSessionIdEncodeToMessage(struct quillHeaderSessionId const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderSessionId *quillHeaderSessionIdTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderSessionIdRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
