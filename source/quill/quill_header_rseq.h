/// @file
/// The RSeq header field: the number of a reliable provisional response (RFC 3262, 7.1).
///
///     RSeq = "RSeq" HCOLON response-num
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_RSEQ_H
#define QUILL_QUILL_HEADER_RSEQ_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderRseqSort(void);
QUILL_API void quillHeaderRseqRetain(struct quillHeaderRseq *obj);
QUILL_API void quillHeaderRseqRelease(struct quillHeaderRseq *obj);
QUILL_API struct coObj *quillHeaderRseqObj(struct quillHeaderRseq const *hdr);
QUILL_API struct quillHeaderRseq *quillHeaderRseqFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderRseqToString(struct quillHeaderRseq const *obj);
QUILL_API int quillHeaderRseqCompare(struct quillHeaderRseq const *objA, struct quillHeaderRseq const *objB);
QUILL_API bool quillHeaderRseqEquals(struct quillHeaderRseq const *objA, struct quillHeaderRseq const *objB);
QUILL_API struct quillHeaderRseq *quillHeaderRseqCreateFrom(struct quillHeaderRseq const *source);
/// @}

QUILL_API struct quillHeaderRseq *quillHeaderRseqCreate(int64_t responseNum);

/// @name Response number: 1 to 2^32 - 1
/// @{
QUILL_API int64_t quillHeaderRseqResponseNum(struct quillHeaderRseq const *hdr);
QUILL_API void quillHeaderRseqSetResponseNum(struct quillHeaderRseq **hdr, int64_t responseNum);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderRseqEncode(struct quillHeaderRseq const *hdr);
QUILL_API struct quillHeaderRseq *quillHeaderRseqTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderRseqStore(struct quillHeaderRseq const *hdr);
QUILL_API struct quillHeaderRseq *quillHeaderRseqTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderRseqPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderRseqEncodeToMessage(struct quillHeaderRseq const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderRseq *quillHeaderRseqTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderRseqRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
