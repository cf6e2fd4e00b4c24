/// @file
/// The Expires header field: after how many seconds a message or its content expires (RFC 3261, 20.19).
///
///     Expires = "Expires" HCOLON delta-seconds
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_EXPIRES_H
#define QUILL_QUILL_HEADER_EXPIRES_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderExpiresSort(void);
QUILL_API void quillHeaderExpiresRetain(struct quillHeaderExpires *obj);
QUILL_API void quillHeaderExpiresRelease(struct quillHeaderExpires *obj);
QUILL_API struct coObj *quillHeaderExpiresObj(struct quillHeaderExpires const *hdr);
QUILL_API struct quillHeaderExpires *quillHeaderExpiresFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderExpiresToString(struct quillHeaderExpires const *obj);
QUILL_API int quillHeaderExpiresCompare(struct quillHeaderExpires const *objA, struct quillHeaderExpires const *objB);
QUILL_API bool quillHeaderExpiresEquals(struct quillHeaderExpires const *objA, struct quillHeaderExpires const *objB);
QUILL_API struct quillHeaderExpires *quillHeaderExpiresCreateFrom(struct quillHeaderExpires const *source);
/// @}

QUILL_API struct quillHeaderExpires *quillHeaderExpiresCreate(int64_t deltaSeconds);

/// @name Seconds: from 0
/// @{
QUILL_API int64_t quillHeaderExpiresDeltaSeconds(struct quillHeaderExpires const *hdr);
QUILL_API void quillHeaderExpiresSetDeltaSeconds(struct quillHeaderExpires **hdr, int64_t deltaSeconds);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderExpiresEncode(struct quillHeaderExpires const *hdr);
QUILL_API struct quillHeaderExpires *quillHeaderExpiresTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderExpiresStore(struct quillHeaderExpires const *hdr);
QUILL_API struct quillHeaderExpires *quillHeaderExpiresTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderExpiresPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderExpiresEncodeToMessage(struct quillHeaderExpires const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderExpires *quillHeaderExpiresTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderExpiresRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
