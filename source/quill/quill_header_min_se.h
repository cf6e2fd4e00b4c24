/// @file
/// The Min-SE header field: the shortest session interval (RFC 4028, 5).
///
///     Min-SE = "Min-SE" HCOLON delta-seconds *( SEMI generic-param )
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_MIN_SE_H
#define QUILL_QUILL_HEADER_MIN_SE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by seconds, then parameters.
/// @{
QUILL_API struct coSort const *quillHeaderMinSeSort(void);
QUILL_API void quillHeaderMinSeRetain(struct quillHeaderMinSe *obj);
QUILL_API void quillHeaderMinSeRelease(struct quillHeaderMinSe *obj);
QUILL_API struct coObj *quillHeaderMinSeObj(struct quillHeaderMinSe const *hdr);
QUILL_API struct quillHeaderMinSe *quillHeaderMinSeFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderMinSeToString(struct quillHeaderMinSe const *obj);
QUILL_API int quillHeaderMinSeCompare(struct quillHeaderMinSe const *objA, struct quillHeaderMinSe const *objB);
QUILL_API bool quillHeaderMinSeEquals(struct quillHeaderMinSe const *objA, struct quillHeaderMinSe const *objB);
QUILL_API struct quillHeaderMinSe *quillHeaderMinSeCreateFrom(struct quillHeaderMinSe const *source);
/// @}

QUILL_API struct quillHeaderMinSe *quillHeaderMinSeCreate(int64_t deltaSeconds);

/// @name Seconds: from 0
/// @{
QUILL_API int64_t quillHeaderMinSeDeltaSeconds(struct quillHeaderMinSe const *hdr);
QUILL_API void quillHeaderMinSeSetDeltaSeconds(struct quillHeaderMinSe **hdr, int64_t deltaSeconds);
/// @}

/// @name Parameters; never null
/// @{
QUILL_API struct quillGenericParams *quillHeaderMinSeGenericParams(struct quillHeaderMinSe const *hdr);
QUILL_API void quillHeaderMinSeSetGenericParams(struct quillHeaderMinSe **hdr,
                                                struct quillGenericParams *genericParams);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderMinSeEncode(struct quillHeaderMinSe const *hdr);
QUILL_API struct quillHeaderMinSe *quillHeaderMinSeTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderMinSeStore(struct quillHeaderMinSe const *hdr);
QUILL_API struct quillHeaderMinSe *quillHeaderMinSeTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderMinSePresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderMinSeEncodeToMessage(struct quillHeaderMinSe const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderMinSe *quillHeaderMinSeTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderMinSeRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
