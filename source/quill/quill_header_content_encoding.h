/// @file
/// The Content-Encoding header field: how the body was coded, the first coding first (RFC 3261, 20.12).
///
///     Content-Encoding = ( "Content-Encoding" / "e" ) HCOLON content-coding *( COMMA content-coding )
///
/// A list of content codings, kept in lower case. Unlike other lists it is written on one line.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_CONTENT_ENCODING_H
#define QUILL_QUILL_HEADER_CONTENT_ENCODING_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderContentEncodingSort(void);
QUILL_API void quillHeaderContentEncodingRetain(struct quillHeaderContentEncoding *obj);
QUILL_API void quillHeaderContentEncodingRelease(struct quillHeaderContentEncoding *obj);
QUILL_API struct coObj *quillHeaderContentEncodingObj(struct quillHeaderContentEncoding const *hdr);
QUILL_API struct quillHeaderContentEncoding *quillHeaderContentEncodingFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderContentEncodingToString(struct quillHeaderContentEncoding const *obj);
QUILL_API int quillHeaderContentEncodingCompare(struct quillHeaderContentEncoding const *objA,
                                                struct quillHeaderContentEncoding const *objB);
QUILL_API bool quillHeaderContentEncodingEquals(struct quillHeaderContentEncoding const *objA,
                                                struct quillHeaderContentEncoding const *objB);
QUILL_API struct quillHeaderContentEncoding *
quillHeaderContentEncodingCreateFrom(struct quillHeaderContentEncoding const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderContentEncoding *quillHeaderContentEncodingCreate(void);

/// @name Elements
/// @{
QUILL_API void quillHeaderContentEncodingClearContentCodings(struct quillHeaderContentEncoding **hdr);
QUILL_API int64_t quillHeaderContentEncodingContentCodingsLength(struct quillHeaderContentEncoding const *hdr);
QUILL_API struct coString *quillHeaderContentEncodingContentCodingAt(struct quillHeaderContentEncoding const *hdr,
                                                                     int64_t index);
QUILL_API void quillHeaderContentEncodingSetContentCodingAt(struct quillHeaderContentEncoding **hdr, int64_t index,
                                                            struct coString *contentCoding);
QUILL_API void quillHeaderContentEncodingDelContentCodingAt(struct quillHeaderContentEncoding **hdr, int64_t index);
QUILL_API void quillHeaderContentEncodingPrependContentCoding(struct quillHeaderContentEncoding **hdr,
                                                              struct coString *contentCoding);
QUILL_API void quillHeaderContentEncodingAppendContentCoding(struct quillHeaderContentEncoding **hdr,
                                                             struct coString *contentCoding);
QUILL_API void quillHeaderContentEncodingInsertContentCoding(struct quillHeaderContentEncoding **hdr, int64_t index,
                                                             struct coString *contentCoding);
/// @}

/// @name All at once
/// @{
QUILL_API struct coVector *quillHeaderContentEncodingContentCodingsVector(struct quillHeaderContentEncoding const *hdr);
/// Replaces the whole list; the texts of the vector's objects must be content codings.
QUILL_API void quillHeaderContentEncodingSetContentCodingsVector(struct quillHeaderContentEncoding **hdr,
                                                                 struct coVector const *vec);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderContentEncodingEncode(struct quillHeaderContentEncoding const *hdr);
QUILL_API struct quillHeaderContentEncoding *
quillHeaderContentEncodingTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderContentEncodingStore(struct quillHeaderContentEncoding const *hdr);
QUILL_API struct quillHeaderContentEncoding *quillHeaderContentEncodingTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderContentEncodingPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderContentEncodingEncodeToMessage(struct quillHeaderContentEncoding const *hdr,
                                                         struct quillMessage **msg);
QUILL_API struct quillHeaderContentEncoding *
quillHeaderContentEncodingTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderContentEncodingRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
