/// @file
/// The Resource-Priority header field: the priority that a request asks for (RFC 4412, 3.1).
///
///     Resource-Priority = "Resource-Priority" HCOLON r-value *( COMMA r-value )
///
/// A list of resource priorities, stored as given.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_RESOURCE_PRIORITY_H
#define QUILL_QUILL_HEADER_RESOURCE_PRIORITY_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderResourcePrioritySort(void);
QUILL_API void quillHeaderResourcePriorityRetain(struct quillHeaderResourcePriority *obj);
QUILL_API void quillHeaderResourcePriorityRelease(struct quillHeaderResourcePriority *obj);
QUILL_API struct coObj *quillHeaderResourcePriorityObj(struct quillHeaderResourcePriority const *hdr);
QUILL_API struct quillHeaderResourcePriority *quillHeaderResourcePriorityFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderResourcePriorityToString(struct quillHeaderResourcePriority const *obj);
QUILL_API int quillHeaderResourcePriorityCompare(struct quillHeaderResourcePriority const *objA,
                                                 struct quillHeaderResourcePriority const *objB);
QUILL_API bool quillHeaderResourcePriorityEquals(struct quillHeaderResourcePriority const *objA,
                                                 struct quillHeaderResourcePriority const *objB);
QUILL_API struct quillHeaderResourcePriority *
quillHeaderResourcePriorityCreateFrom(struct quillHeaderResourcePriority const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderResourcePriority *quillHeaderResourcePriorityCreate(void);

/// @name Elements
/// @{
QUILL_API void quillHeaderResourcePriorityClearRvalues(struct quillHeaderResourcePriority **hdr);
QUILL_API int64_t quillHeaderResourcePriorityRvaluesLength(struct quillHeaderResourcePriority const *hdr);
QUILL_API struct coString *quillHeaderResourcePriorityRvalueAt(struct quillHeaderResourcePriority const *hdr,
                                                               int64_t index);
QUILL_API void quillHeaderResourcePrioritySetRvalueAt(struct quillHeaderResourcePriority **hdr, int64_t index,
                                                      struct coString *rvalue);
QUILL_API void quillHeaderResourcePriorityDelRvalueAt(struct quillHeaderResourcePriority **hdr, int64_t index);
QUILL_API void quillHeaderResourcePriorityPrependRvalue(struct quillHeaderResourcePriority **hdr,
                                                        struct coString *rvalue);
QUILL_API void quillHeaderResourcePriorityAppendRvalue(struct quillHeaderResourcePriority **hdr,
                                                       struct coString *rvalue);
QUILL_API void quillHeaderResourcePriorityInsertRvalue(struct quillHeaderResourcePriority **hdr, int64_t index,
                                                       struct coString *rvalue);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderResourcePriorityEncode(struct quillHeaderResourcePriority const *hdr);
QUILL_API struct quillHeaderResourcePriority *
quillHeaderResourcePriorityTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderResourcePriorityStore(struct quillHeaderResourcePriority const *hdr);
QUILL_API struct quillHeaderResourcePriority *quillHeaderResourcePriorityTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderResourcePriorityPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderResourcePriorityEncodeToMessage(struct quillHeaderResourcePriority const *hdr,
                                                          struct quillMessage **msg);
QUILL_API struct quillHeaderResourcePriority *
quillHeaderResourcePriorityTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderResourcePriorityRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
