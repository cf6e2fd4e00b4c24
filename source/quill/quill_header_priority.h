/// @file
/// The Priority header field: how urgent a request is to its sender (RFC 3261, 20.26).
///
///     Priority       = "Priority" HCOLON priority-value
///     priority-value = "emergency" / "urgent" / "normal" / "non-urgent" / other-priority
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_PRIORITY_H
#define QUILL_QUILL_HEADER_PRIORITY_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderPrioritySort(void);
QUILL_API void quillHeaderPriorityRetain(struct quillHeaderPriority *obj);
QUILL_API void quillHeaderPriorityRelease(struct quillHeaderPriority *obj);
QUILL_API struct coObj *quillHeaderPriorityObj(struct quillHeaderPriority const *hdr);
QUILL_API struct quillHeaderPriority *quillHeaderPriorityFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderPriorityToString(struct quillHeaderPriority const *obj);
QUILL_API int quillHeaderPriorityCompare(struct quillHeaderPriority const *objA,
                                         struct quillHeaderPriority const *objB);
QUILL_API bool quillHeaderPriorityEquals(struct quillHeaderPriority const *objA,
                                         struct quillHeaderPriority const *objB);
QUILL_API struct quillHeaderPriority *quillHeaderPriorityCreateFrom(struct quillHeaderPriority const *source);
/// @}

/// @name Creation
/// @{
QUILL_API struct quillHeaderPriority *quillHeaderPriorityCreate(struct coString *priorityValue);
QUILL_API struct quillHeaderPriority *quillHeaderPriorityCreateEmergency(void);
QUILL_API struct quillHeaderPriority *quillHeaderPriorityCreateUrgent(void);
QUILL_API struct quillHeaderPriority *quillHeaderPriorityCreateNormal(void);
QUILL_API struct quillHeaderPriority *quillHeaderPriorityCreateNonUrgent(void);
/// @}

/// @name Priority: a token, kept in lower case
/// @{
QUILL_API struct coString *quillHeaderPriorityPriorityValue(struct quillHeaderPriority const *hdr);
QUILL_API void quillHeaderPrioritySetPriorityValue(struct quillHeaderPriority **hdr, struct coString *priorityValue);
/// @}

/// @name The values that the RFC names
/// @{
QUILL_API bool quillHeaderPriorityIsEmergency(struct quillHeaderPriority const *hdr);
QUILL_API bool quillHeaderPriorityIsUrgent(struct quillHeaderPriority const *hdr);
QUILL_API bool quillHeaderPriorityIsNormal(struct quillHeaderPriority const *hdr);
QUILL_API bool quillHeaderPriorityIsNonUrgent(struct quillHeaderPriority const *hdr);
QUILL_API void quillHeaderPrioritySetEmergency(struct quillHeaderPriority **hdr);
QUILL_API void quillHeaderPrioritySetUrgent(struct quillHeaderPriority **hdr);
QUILL_API void quillHeaderPrioritySetNormal(struct quillHeaderPriority **hdr);
QUILL_API void quillHeaderPrioritySetNonUrgent(struct quillHeaderPriority **hdr);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderPriorityEncode(struct quillHeaderPriority const *hdr);
QUILL_API struct quillHeaderPriority *quillHeaderPriorityTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderPriorityStore(struct quillHeaderPriority const *hdr);
QUILL_API struct quillHeaderPriority *quillHeaderPriorityTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderPriorityPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderPriorityEncodeToMessage(struct quillHeaderPriority const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderPriority *quillHeaderPriorityTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderPriorityRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
