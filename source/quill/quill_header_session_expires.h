/// @file
/// The Session-Expires header field: the session interval and who refreshes the session (RFC 4028, 4).
///
///     Session-Expires = ( "Session-Expires" / "x" ) HCOLON delta-seconds *( SEMI se-params )
///     se-params       = refresher-param / generic-param
///     refresher-param = "refresher" EQUAL ( "uas" / "uac" )
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_SESSION_EXPIRES_H
#define QUILL_QUILL_HEADER_SESSION_EXPIRES_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by seconds, refresher, then parameters.
/// @{
QUILL_API struct coSort const *quillHeaderSessionExpiresSort(void);
QUILL_API void quillHeaderSessionExpiresRetain(struct quillHeaderSessionExpires *obj);
QUILL_API void quillHeaderSessionExpiresRelease(struct quillHeaderSessionExpires *obj);
QUILL_API struct coObj *quillHeaderSessionExpiresObj(struct quillHeaderSessionExpires const *hdr);
QUILL_API struct quillHeaderSessionExpires *quillHeaderSessionExpiresFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderSessionExpiresToString(struct quillHeaderSessionExpires const *obj);
QUILL_API int quillHeaderSessionExpiresCompare(struct quillHeaderSessionExpires const *objA,
                                               struct quillHeaderSessionExpires const *objB);
QUILL_API bool quillHeaderSessionExpiresEquals(struct quillHeaderSessionExpires const *objA,
                                               struct quillHeaderSessionExpires const *objB);
QUILL_API struct quillHeaderSessionExpires *
quillHeaderSessionExpiresCreateFrom(struct quillHeaderSessionExpires const *source);
/// @}

QUILL_API struct quillHeaderSessionExpires *quillHeaderSessionExpiresCreate(int64_t deltaSeconds);

/// @name Seconds: from 0
/// @{
QUILL_API int64_t quillHeaderSessionExpiresDeltaSeconds(struct quillHeaderSessionExpires const *hdr);
QUILL_API void quillHeaderSessionExpiresSetDeltaSeconds(struct quillHeaderSessionExpires **hdr, int64_t deltaSeconds);
/// @}

/// @name Refresher: "uac" or "uas", kept in lower case; optional
/// @{
QUILL_API struct coString *quillHeaderSessionExpiresRefresher(struct quillHeaderSessionExpires const *hdr);
QUILL_API bool quillHeaderSessionExpiresHasRefresher(struct quillHeaderSessionExpires const *hdr);
QUILL_API void quillHeaderSessionExpiresSetRefresher(struct quillHeaderSessionExpires **hdr,
                                                     struct coString *refresher);
QUILL_API void quillHeaderSessionExpiresDelRefresher(struct quillHeaderSessionExpires **hdr);
/// @}

/// @name Other parameters; never null
/// @{
QUILL_API struct quillGenericParams *
quillHeaderSessionExpiresGenericParams(struct quillHeaderSessionExpires const *hdr);
QUILL_API void quillHeaderSessionExpiresSetGenericParams(struct quillHeaderSessionExpires **hdr,
                                                         struct quillGenericParams *genericParams);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderSessionExpiresEncode(struct quillHeaderSessionExpires const *hdr);
QUILL_API struct quillHeaderSessionExpires *quillHeaderSessionExpiresTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderSessionExpiresStore(struct quillHeaderSessionExpires const *hdr);
QUILL_API struct quillHeaderSessionExpires *quillHeaderSessionExpiresTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderSessionExpiresPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderSessionExpiresEncodeToMessage(struct quillHeaderSessionExpires const *hdr,
                                                        struct quillMessage **msg);
QUILL_API struct quillHeaderSessionExpires *
quillHeaderSessionExpiresTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderSessionExpiresRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
