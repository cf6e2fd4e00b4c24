/// @file
/// The Accept-Encoding header field: which content codings may come back (RFC 3261, 20.2).
///
///     Accept-Encoding = "Accept-Encoding" HCOLON [ encoding *( COMMA encoding ) ]
///
/// A list of quillAcceptEncoding.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_ACCEPT_ENCODING_H
#define QUILL_QUILL_HEADER_ACCEPT_ENCODING_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderAcceptEncodingSort(void);
QUILL_API void quillHeaderAcceptEncodingRetain(struct quillHeaderAcceptEncoding *obj);
QUILL_API void quillHeaderAcceptEncodingRelease(struct quillHeaderAcceptEncoding *obj);
QUILL_API struct coObj *quillHeaderAcceptEncodingObj(struct quillHeaderAcceptEncoding const *hdr);
QUILL_API struct quillHeaderAcceptEncoding *quillHeaderAcceptEncodingFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderAcceptEncodingToString(struct quillHeaderAcceptEncoding const *obj);
QUILL_API int quillHeaderAcceptEncodingCompare(struct quillHeaderAcceptEncoding const *objA,
                                               struct quillHeaderAcceptEncoding const *objB);
QUILL_API bool quillHeaderAcceptEncodingEquals(struct quillHeaderAcceptEncoding const *objA,
                                               struct quillHeaderAcceptEncoding const *objB);
QUILL_API struct quillHeaderAcceptEncoding *
quillHeaderAcceptEncodingCreateFrom(struct quillHeaderAcceptEncoding const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderAcceptEncoding *quillHeaderAcceptEncodingCreate(void);

/// @name Elements
/// @{
QUILL_API void quillHeaderAcceptEncodingClearAcceptEncodings(struct quillHeaderAcceptEncoding **hdr);
QUILL_API int64_t quillHeaderAcceptEncodingAcceptEncodingsLength(struct quillHeaderAcceptEncoding const *hdr);
QUILL_API struct quillAcceptEncoding *
quillHeaderAcceptEncodingTryDecodeAcceptEncodingAt(struct quillHeaderAcceptEncoding const *hdr, int64_t index);
QUILL_API void quillHeaderAcceptEncodingSetAcceptEncodingAt(struct quillHeaderAcceptEncoding **hdr, int64_t index,
                                                            struct quillAcceptEncoding const *acceptEncoding);
QUILL_API void quillHeaderAcceptEncodingDelAcceptEncodingAt(struct quillHeaderAcceptEncoding **hdr, int64_t index);
QUILL_API void quillHeaderAcceptEncodingPrependAcceptEncoding(struct quillHeaderAcceptEncoding **hdr,
                                                              struct quillAcceptEncoding const *acceptEncoding);
QUILL_API void quillHeaderAcceptEncodingAppendAcceptEncoding(struct quillHeaderAcceptEncoding **hdr,
                                                             struct quillAcceptEncoding const *acceptEncoding);
QUILL_API void quillHeaderAcceptEncodingInsertAcceptEncoding(struct quillHeaderAcceptEncoding **hdr, int64_t index,
                                                             struct quillAcceptEncoding const *acceptEncoding);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderAcceptEncodingEncode(struct quillHeaderAcceptEncoding const *hdr);
QUILL_API struct quillHeaderAcceptEncoding *quillHeaderAcceptEncodingTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderAcceptEncodingStore(struct quillHeaderAcceptEncoding const *hdr);
QUILL_API struct quillHeaderAcceptEncoding *quillHeaderAcceptEncodingTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderAcceptEncodingPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderAcceptEncodingEncodeToMessage(struct quillHeaderAcceptEncoding const *hdr,
                                                        struct quillMessage **msg);
QUILL_API struct quillHeaderAcceptEncoding *
quillHeaderAcceptEncodingTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderAcceptEncodingRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
