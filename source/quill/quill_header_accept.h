/// @file
/// The Accept header field: which media types may come back (RFC 3261, 20.1).
///
///     Accept = "Accept" HCOLON [ accept-range *( COMMA accept-range ) ]
///
/// A list of quillAccept.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_ACCEPT_H
#define QUILL_QUILL_HEADER_ACCEPT_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderAcceptSort(void);
QUILL_API void quillHeaderAcceptRetain(struct quillHeaderAccept *obj);
QUILL_API void quillHeaderAcceptRelease(struct quillHeaderAccept *obj);
QUILL_API struct coObj *quillHeaderAcceptObj(struct quillHeaderAccept const *hdr);
QUILL_API struct quillHeaderAccept *quillHeaderAcceptFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderAcceptToString(struct quillHeaderAccept const *obj);
QUILL_API int quillHeaderAcceptCompare(struct quillHeaderAccept const *objA, struct quillHeaderAccept const *objB);
QUILL_API bool quillHeaderAcceptEquals(struct quillHeaderAccept const *objA, struct quillHeaderAccept const *objB);
QUILL_API struct quillHeaderAccept *quillHeaderAcceptCreateFrom(struct quillHeaderAccept const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderAccept *quillHeaderAcceptCreate(void);

/// @name Elements
/// @{
QUILL_API void quillHeaderAcceptClearAccepts(struct quillHeaderAccept **hdr);
QUILL_API int64_t quillHeaderAcceptAcceptsLength(struct quillHeaderAccept const *hdr);
QUILL_API struct quillAccept *quillHeaderAcceptTryDecodeAcceptAt(struct quillHeaderAccept const *hdr, int64_t index);
QUILL_API void quillHeaderAcceptSetAcceptAt(struct quillHeaderAccept **hdr, int64_t index,
                                            struct quillAccept const *accept);
QUILL_API void quillHeaderAcceptDelAcceptAt(struct quillHeaderAccept **hdr, int64_t index);
QUILL_API void quillHeaderAcceptPrependAccept(struct quillHeaderAccept **hdr, struct quillAccept const *accept);
QUILL_API void quillHeaderAcceptAppendAccept(struct quillHeaderAccept **hdr, struct quillAccept const *accept);
QUILL_API void quillHeaderAcceptInsertAccept(struct quillHeaderAccept **hdr, int64_t index,
                                             struct quillAccept const *accept);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderAcceptEncode(struct quillHeaderAccept const *hdr);
QUILL_API struct quillHeaderAccept *quillHeaderAcceptTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderAcceptStore(struct quillHeaderAccept const *hdr);
QUILL_API struct quillHeaderAccept *quillHeaderAcceptTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderAcceptPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderAcceptEncodeToMessage(struct quillHeaderAccept const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderAccept *quillHeaderAcceptTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderAcceptRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
