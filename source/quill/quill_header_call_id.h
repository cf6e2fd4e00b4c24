/// @file
/// The Call-Id header field: which call or series of registrations a message belongs to (RFC 3261, 20.8).
///
///     Call-ID = ( "Call-ID" / "i" ) HCOLON callid
///     callid  = word [ "@" word ]
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_CALL_ID_H
#define QUILL_QUILL_HEADER_CALL_ID_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderCallIdSort(void);
QUILL_API void quillHeaderCallIdRetain(struct quillHeaderCallId *obj);
QUILL_API void quillHeaderCallIdRelease(struct quillHeaderCallId *obj);
QUILL_API struct coObj *quillHeaderCallIdObj(struct quillHeaderCallId const *hdr);
QUILL_API struct quillHeaderCallId *quillHeaderCallIdFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderCallIdToString(struct quillHeaderCallId const *obj);
QUILL_API int quillHeaderCallIdCompare(struct quillHeaderCallId const *objA, struct quillHeaderCallId const *objB);
QUILL_API bool quillHeaderCallIdEquals(struct quillHeaderCallId const *objA, struct quillHeaderCallId const *objB);
QUILL_API struct quillHeaderCallId *quillHeaderCallIdCreateFrom(struct quillHeaderCallId const *source);
/// @}

QUILL_API struct quillHeaderCallId *quillHeaderCallIdCreate(struct coString *callId);

/// @name Call identifier: compared octet by octet
/// @{
QUILL_API struct coString *quillHeaderCallIdCallId(struct quillHeaderCallId const *hdr);
QUILL_API void quillHeaderCallIdSetCallId(struct quillHeaderCallId **hdr, struct coString *callId);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderCallIdEncode(struct quillHeaderCallId const *hdr);
QUILL_API struct quillHeaderCallId *quillHeaderCallIdTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderCallIdStore(struct quillHeaderCallId const *hdr);
QUILL_API struct quillHeaderCallId *quillHeaderCallIdTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderCallIdPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderCallIdEncodeToMessage(struct quillHeaderCallId const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderCallId *quillHeaderCallIdTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderCallIdRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
