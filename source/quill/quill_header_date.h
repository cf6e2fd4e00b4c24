/// @file
/// The Date header field: when a message was first sent (RFC 3261, 20.17).
///
///     Date         = "Date" HCOLON SIP-date
///     SIP-date     = rfc1123-date
///     rfc1123-date = wkday "," SP date1 SP time SP "GMT"
///     date1        = 2DIGIT SP month SP 4DIGIT
///     time         = 2DIGIT ":" 2DIGIT ":" 2DIGIT
///
/// A date whose weekday is wrong does not decode.
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_DATE_H
#define QUILL_QUILL_HEADER_DATE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by time.
/// @{
QUILL_API struct coSort const *quillHeaderDateSort(void);
QUILL_API void quillHeaderDateRetain(struct quillHeaderDate *obj);
QUILL_API void quillHeaderDateRelease(struct quillHeaderDate *obj);
QUILL_API struct coObj *quillHeaderDateObj(struct quillHeaderDate const *hdr);
QUILL_API struct quillHeaderDate *quillHeaderDateFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderDateToString(struct quillHeaderDate const *obj);
QUILL_API int quillHeaderDateCompare(struct quillHeaderDate const *objA, struct quillHeaderDate const *objB);
QUILL_API bool quillHeaderDateEquals(struct quillHeaderDate const *objA, struct quillHeaderDate const *objB);
QUILL_API struct quillHeaderDate *quillHeaderDateCreateFrom(struct quillHeaderDate const *source);
/// @}

/// @name Creation
/// @{
QUILL_API struct quillHeaderDate *quillHeaderDateCreate(struct coTime *tm);
/// The present, to the second.
QUILL_API struct quillHeaderDate *quillHeaderDateCreateFromCurrentTime(void);
/// @}

/// @name Time: in UTC. One that is no date of the calendar cannot be encoded
/// @{
QUILL_API struct coTime *quillHeaderDateTime(struct quillHeaderDate const *hdr);
QUILL_API void quillHeaderDateSetTime(struct quillHeaderDate **hdr, struct coTime *time);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderDateEncode(struct quillHeaderDate const *hdr);
QUILL_API struct quillHeaderDate *quillHeaderDateTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderDateStore(struct quillHeaderDate const *hdr);
QUILL_API struct quillHeaderDate *quillHeaderDateTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderDatePresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderDateEncodeToMessage(struct quillHeaderDate const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderDate *quillHeaderDateTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderDateRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
