/// @file
/// The RAck header field: the provisional response that a PRACK request acknowledges (RFC 3262, 7.2).
///
///     RAck         = "RAck" HCOLON response-num LWS CSeq-num LWS Method
///     response-num = 1*DIGIT
///     CSeq-num     = 1*DIGIT
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_RACK_H
#define QUILL_QUILL_HEADER_RACK_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by response number, sequence number, then method.
/// @{
QUILL_API struct coSort const *quillHeaderRackSort(void);
QUILL_API void quillHeaderRackRetain(struct quillHeaderRack *obj);
QUILL_API void quillHeaderRackRelease(struct quillHeaderRack *obj);
QUILL_API struct coObj *quillHeaderRackObj(struct quillHeaderRack const *hdr);
QUILL_API struct quillHeaderRack *quillHeaderRackFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderRackToString(struct quillHeaderRack const *obj);
QUILL_API int quillHeaderRackCompare(struct quillHeaderRack const *objA, struct quillHeaderRack const *objB);
QUILL_API bool quillHeaderRackEquals(struct quillHeaderRack const *objA, struct quillHeaderRack const *objB);
QUILL_API struct quillHeaderRack *quillHeaderRackCreateFrom(struct quillHeaderRack const *source);
/// @}

QUILL_API struct quillHeaderRack *quillHeaderRackCreate(int64_t responseNum, int64_t cseq, struct coString *method);

/// @name Response number: 1 to 2^32 - 1, of the response's RSeq
/// @{
QUILL_API int64_t quillHeaderRackResponseNum(struct quillHeaderRack const *hdr);
QUILL_API void quillHeaderRackSetResponseNum(struct quillHeaderRack **hdr, int64_t responseNum);
/// @}

/// @name Sequence number: 0 to 2^31 - 1, of the response's CSeq
/// @{
QUILL_API int64_t quillHeaderRackCseq(struct quillHeaderRack const *hdr);
QUILL_API void quillHeaderRackSetCseq(struct quillHeaderRack **hdr, int64_t cseq);
/// @}

/// @name Method: a token, of the response's CSeq
/// @{
QUILL_API struct coString *quillHeaderRackMethod(struct quillHeaderRack const *hdr);
QUILL_API void quillHeaderRackSetMethod(struct quillHeaderRack **hdr, struct coString *method);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderRackEncode(struct quillHeaderRack const *hdr);
QUILL_API struct quillHeaderRack *quillHeaderRackTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderRackStore(struct quillHeaderRack const *hdr);
QUILL_API struct quillHeaderRack *quillHeaderRackTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderRackPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderRackEncodeToMessage(struct quillHeaderRack const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderRack *quillHeaderRackTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderRackRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
