/// @file
/// The Accept-Resource-Priority header field: the priorities that a server can handle (RFC 4412, 3.2).
///
///     Accept-Resource-Priority = "Accept-Resource-Priority" HCOLON [ r-value *( COMMA r-value ) ]
///
/// A list of resource priorities, stored as given.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_ACCEPT_RESOURCE_PRIORITY_H
#define QUILL_QUILL_HEADER_ACCEPT_RESOURCE_PRIORITY_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderAcceptResourcePrioritySort(void);
QUILL_API void quillHeaderAcceptResourcePriorityRetain(struct quillHeaderAcceptResourcePriority *obj);
QUILL_API void quillHeaderAcceptResourcePriorityRelease(struct quillHeaderAcceptResourcePriority *obj);
QUILL_API struct coObj *quillHeaderAcceptResourcePriorityObj(struct quillHeaderAcceptResourcePriority const *hdr);
QUILL_API struct quillHeaderAcceptResourcePriority *quillHeaderAcceptResourcePriorityFrom(struct coObj const *obj);
QUILL_API struct coString *
quillHeaderAcceptResourcePriorityToString(struct quillHeaderAcceptResourcePriority const *obj);
QUILL_API int quillHeaderAcceptResourcePriorityCompare(struct quillHeaderAcceptResourcePriority const *objA,
                                                       struct quillHeaderAcceptResourcePriority const *objB);
QUILL_API bool quillHeaderAcceptResourcePriorityEquals(struct quillHeaderAcceptResourcePriority const *objA,
                                                       struct quillHeaderAcceptResourcePriority const *objB);
QUILL_API struct quillHeaderAcceptResourcePriority *
quillHeaderAcceptResourcePriorityCreateFrom(struct quillHeaderAcceptResourcePriority const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderAcceptResourcePriority *quillHeaderAcceptResourcePriorityCreate(void);

/// @name Elements
/// @{
QUILL_API void quillHeaderAcceptResourcePriorityClearRvalues(struct quillHeaderAcceptResourcePriority **hdr);
QUILL_API int64_t quillHeaderAcceptResourcePriorityRvaluesLength(struct quillHeaderAcceptResourcePriority const *hdr);
QUILL_API struct coString *
quillHeaderAcceptResourcePriorityRvalueAt(struct quillHeaderAcceptResourcePriority const *hdr, int64_t index);
QUILL_API void quillHeaderAcceptResourcePrioritySetRvalueAt(struct quillHeaderAcceptResourcePriority **hdr,
                                                            int64_t index, struct coString *rvalue);
QUILL_API void quillHeaderAcceptResourcePriorityDelRvalueAt(struct quillHeaderAcceptResourcePriority **hdr,
                                                            int64_t index);
QUILL_API void quillHeaderAcceptResourcePriorityPrependRvalue(struct quillHeaderAcceptResourcePriority **hdr,
                                                              struct coString *rvalue);
QUILL_API void quillHeaderAcceptResourcePriorityAppendRvalue(struct quillHeaderAcceptResourcePriority **hdr,
                                                             struct coString *rvalue);
QUILL_API void quillHeaderAcceptResourcePriorityInsertRvalue(struct quillHeaderAcceptResourcePriority **hdr,
                                                             int64_t index, struct coString *rvalue);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *
quillHeaderAcceptResourcePriorityEncode(struct quillHeaderAcceptResourcePriority const *hdr);
QUILL_API struct quillHeaderAcceptResourcePriority *
quillHeaderAcceptResourcePriorityTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderAcceptResourcePriorityStore(struct quillHeaderAcceptResourcePriority const *hdr);
QUILL_API struct quillHeaderAcceptResourcePriority *
quillHeaderAcceptResourcePriorityTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderAcceptResourcePriorityPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderAcceptResourcePriorityEncodeToMessage(struct quillHeaderAcceptResourcePriority const *hdr,
                                                                struct quillMessage **msg);
QUILL_API struct quillHeaderAcceptResourcePriority *
quillHeaderAcceptResourcePriorityTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderAcceptResourcePriorityRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
