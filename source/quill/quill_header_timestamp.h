/// @file
/// The Timestamp header field: when a request was sent, and how long its recipient took (RFC 3261, 20.38).
///
///     Timestamp = "Timestamp" HCOLON 1*DIGIT [ "." *DIGIT ] [ LWS delay ]
///     delay     = *DIGIT [ "." *DIGIT ]
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_TIMESTAMP_H
#define QUILL_QUILL_HEADER_TIMESTAMP_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderTimestampSort(void);
QUILL_API void quillHeaderTimestampRetain(struct quillHeaderTimestamp *obj);
QUILL_API void quillHeaderTimestampRelease(struct quillHeaderTimestamp *obj);
QUILL_API struct coObj *quillHeaderTimestampObj(struct quillHeaderTimestamp const *hdr);
QUILL_API struct quillHeaderTimestamp *quillHeaderTimestampFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderTimestampToString(struct quillHeaderTimestamp const *obj);
QUILL_API int quillHeaderTimestampCompare(struct quillHeaderTimestamp const *objA,
                                          struct quillHeaderTimestamp const *objB);
QUILL_API bool quillHeaderTimestampEquals(struct quillHeaderTimestamp const *objA,
                                          struct quillHeaderTimestamp const *objB);
QUILL_API struct quillHeaderTimestamp *quillHeaderTimestampCreateFrom(struct quillHeaderTimestamp const *source);
/// @}

QUILL_API struct quillHeaderTimestamp *quillHeaderTimestampCreate(struct coString *timestampValue);

/// @name Time and delay: the text as a whole
/// @{
QUILL_API struct coString *quillHeaderTimestampTimestampValue(struct quillHeaderTimestamp const *hdr);
QUILL_API void quillHeaderTimestampSetTimestampValue(struct quillHeaderTimestamp **hdr,
                                                     struct coString *timestampValue);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderTimestampEncode(struct quillHeaderTimestamp const *hdr);
QUILL_API struct quillHeaderTimestamp *quillHeaderTimestampTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderTimestampStore(struct quillHeaderTimestamp const *hdr);
QUILL_API struct quillHeaderTimestamp *quillHeaderTimestampTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderTimestampPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderTimestampEncodeToMessage(struct quillHeaderTimestamp const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderTimestamp *quillHeaderTimestampTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderTimestampRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
