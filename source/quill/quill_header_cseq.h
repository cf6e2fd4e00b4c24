/// @file
/// The CSeq header field: a request's place within its dialog (RFC 3261, 20.16).
///
///     CSeq = "CSeq" HCOLON 1*DIGIT LWS Method
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_CSEQ_H
#define QUILL_QUILL_HEADER_CSEQ_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by number, then method.
/// @{
QUILL_API struct coSort const *quillHeaderCseqSort(void);
QUILL_API void quillHeaderCseqRetain(struct quillHeaderCseq *obj);
QUILL_API void quillHeaderCseqRelease(struct quillHeaderCseq *obj);
QUILL_API struct coObj *quillHeaderCseqObj(struct quillHeaderCseq const *hdr);
QUILL_API struct quillHeaderCseq *quillHeaderCseqFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderCseqToString(struct quillHeaderCseq const *obj);
QUILL_API int quillHeaderCseqCompare(struct quillHeaderCseq const *objA, struct quillHeaderCseq const *objB);
QUILL_API bool quillHeaderCseqEquals(struct quillHeaderCseq const *objA, struct quillHeaderCseq const *objB);
QUILL_API struct quillHeaderCseq *quillHeaderCseqCreateFrom(struct quillHeaderCseq const *source);
/// @}

QUILL_API struct quillHeaderCseq *quillHeaderCseqCreate(int64_t cseq, struct coString *method);

/// @name Sequence number: 0 to 2^31 - 1
/// @{
QUILL_API int64_t quillHeaderCseqCseq(struct quillHeaderCseq const *hdr);
QUILL_API void quillHeaderCseqSetCseq(struct quillHeaderCseq **hdr, int64_t cseq);
/// @}

/// @name Method: a token, compared with its letter case
/// @{
QUILL_API struct coString *quillHeaderCseqMethod(struct quillHeaderCseq const *hdr);
QUILL_API void quillHeaderCseqSetMethod(struct quillHeaderCseq **hdr, struct coString *method);
QUILL_API void quillHeaderCseqSetMethodCstr(struct quillHeaderCseq **hdr, char const *method, int64_t length);
QUILL_API void quillHeaderCseqSetMethodWcstr(struct quillHeaderCseq **hdr, wchar_t const *method, int64_t length);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderCseqEncode(struct quillHeaderCseq const *hdr);
QUILL_API struct quillHeaderCseq *quillHeaderCseqTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderCseqStore(struct quillHeaderCseq const *hdr);
QUILL_API struct quillHeaderCseq *quillHeaderCseqTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderCseqPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderCseqEncodeToMessage(struct quillHeaderCseq const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderCseq *quillHeaderCseqTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderCseqRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
