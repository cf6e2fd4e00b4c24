/// @file
/// The Retry-After header field: after how many seconds to try again (RFC 3261, 20.33).
///
///     Retry-After = "Retry-After" HCOLON delta-seconds [ comment ] *( SEMI retry-param )
///     retry-param = ( "duration" EQUAL delta-seconds ) / generic-param
///
/// A comment is read and not kept.
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_RETRY_AFTER_H
#define QUILL_QUILL_HEADER_RETRY_AFTER_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by seconds, duration, then parameters.
/// @{
QUILL_API struct coSort const *quillHeaderRetryAfterSort(void);
QUILL_API void quillHeaderRetryAfterRetain(struct quillHeaderRetryAfter *obj);
QUILL_API void quillHeaderRetryAfterRelease(struct quillHeaderRetryAfter *obj);
QUILL_API struct coObj *quillHeaderRetryAfterObj(struct quillHeaderRetryAfter const *hdr);
QUILL_API struct quillHeaderRetryAfter *quillHeaderRetryAfterFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderRetryAfterToString(struct quillHeaderRetryAfter const *obj);
QUILL_API int quillHeaderRetryAfterCompare(struct quillHeaderRetryAfter const *objA,
                                           struct quillHeaderRetryAfter const *objB);
QUILL_API bool quillHeaderRetryAfterEquals(struct quillHeaderRetryAfter const *objA,
                                           struct quillHeaderRetryAfter const *objB);
QUILL_API struct quillHeaderRetryAfter *quillHeaderRetryAfterCreateFrom(struct quillHeaderRetryAfter const *source);
/// @}

QUILL_API struct quillHeaderRetryAfter *quillHeaderRetryAfterCreate(int64_t deltaSeconds);

/// @name Seconds: from 0
/// @{
QUILL_API int64_t quillHeaderRetryAfterDeltaSeconds(struct quillHeaderRetryAfter const *hdr);
QUILL_API void quillHeaderRetryAfterSetDeltaSeconds(struct quillHeaderRetryAfter **hdr, int64_t deltaSeconds);
/// @}

/// @name Duration in seconds of being reachable then: from 0; optional
/// @{
QUILL_API int64_t quillHeaderRetryAfterDuration(struct quillHeaderRetryAfter const *hdr);
QUILL_API bool quillHeaderRetryAfterHasDuration(struct quillHeaderRetryAfter const *hdr);
QUILL_API void quillHeaderRetryAfterSetDuration(struct quillHeaderRetryAfter **hdr, int64_t duration);
QUILL_API void quillHeaderRetryAfterDelDuration(struct quillHeaderRetryAfter **hdr);
/// @}

/// @name Other parameters; never null
/// @{
QUILL_API struct quillGenericParams *quillHeaderRetryAfterGenericParams(struct quillHeaderRetryAfter const *hdr);
QUILL_API void quillHeaderRetryAfterSetGenericParams(struct quillHeaderRetryAfter **hdr,
                                                     struct quillGenericParams *genericParams);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderRetryAfterEncode(struct quillHeaderRetryAfter const *hdr);
QUILL_API struct quillHeaderRetryAfter *quillHeaderRetryAfterTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderRetryAfterStore(struct quillHeaderRetryAfter const *hdr);
QUILL_API struct quillHeaderRetryAfter *quillHeaderRetryAfterTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderRetryAfterPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderRetryAfterEncodeToMessage(struct quillHeaderRetryAfter const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderRetryAfter *quillHeaderRetryAfterTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderRetryAfterRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
