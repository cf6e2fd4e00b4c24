/// @file
/// The Min-Expires header field: the shortest expiration that a registrar or notifier takes (RFC 3261, 20.23).
///
///     Min-Expires = "Min-Expires" HCOLON delta-seconds
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_MIN_EXPIRES_H
#define QUILL_QUILL_HEADER_MIN_EXPIRES_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderMinExpiresSort(void);
QUILL_API void quillHeaderMinExpiresRetain(struct quillHeaderMinExpires *obj);
QUILL_API void quillHeaderMinExpiresRelease(struct quillHeaderMinExpires *obj);
QUILL_API struct coObj *quillHeaderMinExpiresObj(struct quillHeaderMinExpires const *hdr);
QUILL_API struct quillHeaderMinExpires *quillHeaderMinExpiresFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderMinExpiresToString(struct quillHeaderMinExpires const *obj);
QUILL_API int quillHeaderMinExpiresCompare(struct quillHeaderMinExpires const *objA,
                                           struct quillHeaderMinExpires const *objB);
QUILL_API bool quillHeaderMinExpiresEquals(struct quillHeaderMinExpires const *objA,
                                           struct quillHeaderMinExpires const *objB);
QUILL_API struct quillHeaderMinExpires *quillHeaderMinExpiresCreateFrom(struct quillHeaderMinExpires const *source);
/// @}

QUILL_API struct quillHeaderMinExpires *quillHeaderMinExpiresCreate(int64_t deltaSeconds);

/// @name Seconds: from 0
/// @{
QUILL_API int64_t quillHeaderMinExpiresDeltaSeconds(struct quillHeaderMinExpires const *hdr);
QUILL_API void quillHeaderMinExpiresSetDeltaSeconds(struct quillHeaderMinExpires **hdr, int64_t deltaSeconds);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderMinExpiresEncode(struct quillHeaderMinExpires const *hdr);
QUILL_API struct quillHeaderMinExpires *quillHeaderMinExpiresTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderMinExpiresStore(struct quillHeaderMinExpires const *hdr);
QUILL_API struct quillHeaderMinExpires *quillHeaderMinExpiresTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderMinExpiresPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderMinExpiresEncodeToMessage(struct quillHeaderMinExpires const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderMinExpires *quillHeaderMinExpiresTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderMinExpiresRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
