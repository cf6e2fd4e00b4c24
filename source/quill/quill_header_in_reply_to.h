/// @file
/// The In-Reply-To header field: the calls that this one answers (RFC 3261, 20.21).
///
///     In-Reply-To = "In-Reply-To" HCOLON callid *( COMMA callid )
///
/// A set of call identifiers, stored as given: letter case matters.
///
/// Object family, sets, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_IN_REPLY_TO_H
#define QUILL_QUILL_HEADER_IN_REPLY_TO_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderInReplyToSort(void);
QUILL_API void quillHeaderInReplyToRetain(struct quillHeaderInReplyTo *obj);
QUILL_API void quillHeaderInReplyToRelease(struct quillHeaderInReplyTo *obj);
QUILL_API struct coObj *quillHeaderInReplyToObj(struct quillHeaderInReplyTo const *hdr);
QUILL_API struct quillHeaderInReplyTo *quillHeaderInReplyToFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderInReplyToToString(struct quillHeaderInReplyTo const *obj);
QUILL_API int quillHeaderInReplyToCompare(struct quillHeaderInReplyTo const *objA,
                                          struct quillHeaderInReplyTo const *objB);
QUILL_API bool quillHeaderInReplyToEquals(struct quillHeaderInReplyTo const *objA,
                                          struct quillHeaderInReplyTo const *objB);
QUILL_API struct quillHeaderInReplyTo *quillHeaderInReplyToCreateFrom(struct quillHeaderInReplyTo const *source);
/// @}

/// An empty set.
QUILL_API struct quillHeaderInReplyTo *quillHeaderInReplyToCreate(void);

/// @name Tokens
/// @{
QUILL_API void quillHeaderInReplyToClearCallIds(struct quillHeaderInReplyTo **hdr);
QUILL_API int64_t quillHeaderInReplyToCallIdsLength(struct quillHeaderInReplyTo const *hdr);
QUILL_API struct coString *quillHeaderInReplyToCallIdAt(struct quillHeaderInReplyTo const *hdr, int64_t index);
QUILL_API struct coVector *quillHeaderInReplyToCallIdsVector(struct quillHeaderInReplyTo const *hdr);
QUILL_API void quillHeaderInReplyToSetCallIdsVector(struct quillHeaderInReplyTo **hdr, struct coVector const *vec);
QUILL_API bool quillHeaderInReplyToHasCallId(struct quillHeaderInReplyTo const *hdr, struct coString const *callId);
QUILL_API void quillHeaderInReplyToSetCallId(struct quillHeaderInReplyTo **hdr, struct coString *callId);
QUILL_API void quillHeaderInReplyToDelCallId(struct quillHeaderInReplyTo **hdr, struct coString const *callId);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderInReplyToEncode(struct quillHeaderInReplyTo const *hdr);
QUILL_API struct quillHeaderInReplyTo *quillHeaderInReplyToTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderInReplyToStore(struct quillHeaderInReplyTo const *hdr);
QUILL_API struct quillHeaderInReplyTo *quillHeaderInReplyToTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderInReplyToPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderInReplyToEncodeToMessage(struct quillHeaderInReplyTo const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderInReplyTo *quillHeaderInReplyToTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderInReplyToRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
