/// @file
/// The Max-Forwards header field: how many hops a request may still take (RFC 3261, 20.22).
///
///     Max-Forwards = "Max-Forwards" HCOLON 1*DIGIT
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_MAX_FORWARDS_H
#define QUILL_QUILL_HEADER_MAX_FORWARDS_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderMaxForwardsSort(void);
QUILL_API void quillHeaderMaxForwardsRetain(struct quillHeaderMaxForwards *obj);
QUILL_API void quillHeaderMaxForwardsRelease(struct quillHeaderMaxForwards *obj);
QUILL_API struct coObj *quillHeaderMaxForwardsObj(struct quillHeaderMaxForwards const *hdr);
QUILL_API struct quillHeaderMaxForwards *quillHeaderMaxForwardsFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderMaxForwardsToString(struct quillHeaderMaxForwards const *obj);
QUILL_API int quillHeaderMaxForwardsCompare(struct quillHeaderMaxForwards const *objA,
                                            struct quillHeaderMaxForwards const *objB);
QUILL_API bool quillHeaderMaxForwardsEquals(struct quillHeaderMaxForwards const *objA,
                                            struct quillHeaderMaxForwards const *objB);
QUILL_API struct quillHeaderMaxForwards *quillHeaderMaxForwardsCreateFrom(struct quillHeaderMaxForwards const *source);
/// @}

QUILL_API struct quillHeaderMaxForwards *quillHeaderMaxForwardsCreate(int64_t maxForwards);

/// @name Hops: 0 to 255
/// @{
QUILL_API int64_t quillHeaderMaxForwardsMaxForwards(struct quillHeaderMaxForwards const *hdr);
QUILL_API void quillHeaderMaxForwardsSetMaxForwards(struct quillHeaderMaxForwards **hdr, int64_t maxForwards);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderMaxForwardsEncode(struct quillHeaderMaxForwards const *hdr);
QUILL_API struct quillHeaderMaxForwards *quillHeaderMaxForwardsTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderMaxForwardsStore(struct quillHeaderMaxForwards const *hdr);
QUILL_API struct quillHeaderMaxForwards *quillHeaderMaxForwardsTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderMaxForwardsPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderMaxForwardsEncodeToMessage(struct quillHeaderMaxForwards const *hdr,
                                                     struct quillMessage **msg);
QUILL_API struct quillHeaderMaxForwards *quillHeaderMaxForwardsTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderMaxForwardsRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
