/// @file
/// The Reason header field: why a request was sent or a call was cleared (RFC 3326, 2).
///
///     Reason = "Reason" HCOLON reason-value *( COMMA reason-value )
///
/// A list of quillReason.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_REASON_H
#define QUILL_QUILL_HEADER_REASON_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderReasonSort(void);
QUILL_API void quillHeaderReasonRetain(struct quillHeaderReason *obj);
QUILL_API void quillHeaderReasonRelease(struct quillHeaderReason *obj);
QUILL_API struct coObj *quillHeaderReasonObj(struct quillHeaderReason const *hdr);
QUILL_API struct quillHeaderReason *quillHeaderReasonFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderReasonToString(struct quillHeaderReason const *obj);
QUILL_API int quillHeaderReasonCompare(struct quillHeaderReason const *objA, struct quillHeaderReason const *objB);
QUILL_API bool quillHeaderReasonEquals(struct quillHeaderReason const *objA, struct quillHeaderReason const *objB);
QUILL_API struct quillHeaderReason *quillHeaderReasonCreateFrom(struct quillHeaderReason const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderReason *quillHeaderReasonCreate(void);

/// @name Elements
/// @{
QUILL_API void quillHeaderReasonClearReasons(struct quillHeaderReason **hdr);
QUILL_API int64_t quillHeaderReasonReasonsLength(struct quillHeaderReason const *hdr);
QUILL_API struct quillReason *quillHeaderReasonTryDecodeReasonAt(struct quillHeaderReason const *hdr, int64_t index);
QUILL_API void quillHeaderReasonSetReasonAt(struct quillHeaderReason **hdr, int64_t index,
                                            struct quillReason const *reason);
QUILL_API void quillHeaderReasonDelReasonAt(struct quillHeaderReason **hdr, int64_t index);
QUILL_API void quillHeaderReasonPrependReason(struct quillHeaderReason **hdr, struct quillReason const *reason);
QUILL_API void quillHeaderReasonAppendReason(struct quillHeaderReason **hdr, struct quillReason const *reason);
QUILL_API void quillHeaderReasonInsertReason(struct quillHeaderReason **hdr, int64_t index,
                                             struct quillReason const *reason);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderReasonEncode(struct quillHeaderReason const *hdr);
QUILL_API struct quillHeaderReason *quillHeaderReasonTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderReasonStore(struct quillHeaderReason const *hdr);
QUILL_API struct quillHeaderReason *quillHeaderReasonTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderReasonPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderReasonEncodeToMessage(struct quillHeaderReason const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderReason *quillHeaderReasonTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderReasonRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
