/// @file
/// The Event header field: what is subscribed to or notified of (RFC 6665, 8.2.1).
///
///     Event       = ( "Event" / "o" ) HCOLON event-type *( SEMI event-param )
///     event-type  = event-package *( "." event-template )
///     event-param = generic-param / ( "id" EQUAL token )
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_EVENT_H
#define QUILL_QUILL_HEADER_EVENT_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by event type, id, then parameters.
/// @{
QUILL_API struct coSort const *quillHeaderEventSort(void);
QUILL_API void quillHeaderEventRetain(struct quillHeaderEvent *obj);
QUILL_API void quillHeaderEventRelease(struct quillHeaderEvent *obj);
QUILL_API struct coObj *quillHeaderEventObj(struct quillHeaderEvent const *hdr);
QUILL_API struct quillHeaderEvent *quillHeaderEventFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderEventToString(struct quillHeaderEvent const *obj);
QUILL_API int quillHeaderEventCompare(struct quillHeaderEvent const *objA, struct quillHeaderEvent const *objB);
QUILL_API bool quillHeaderEventEquals(struct quillHeaderEvent const *objA, struct quillHeaderEvent const *objB);
QUILL_API struct quillHeaderEvent *quillHeaderEventCreateFrom(struct quillHeaderEvent const *source);
/// @}

/// @name Creation
/// @{
QUILL_API struct quillHeaderEvent *quillHeaderEventCreate(struct coString *eventType);
QUILL_API struct quillHeaderEvent *quillHeaderEventCreateCstr(char const *eventType, int64_t length);
QUILL_API struct quillHeaderEvent *quillHeaderEventCreateWcstr(wchar_t const *eventType, int64_t length);
/// @}

/// @name Event type: compared with its letter case
/// @{
QUILL_API struct coString *quillHeaderEventEventType(struct quillHeaderEvent const *hdr);
QUILL_API void quillHeaderEventSetEventType(struct quillHeaderEvent **hdr, struct coString *eventType);
QUILL_API void quillHeaderEventSetEventTypeCstr(struct quillHeaderEvent **hdr, char const *eventType, int64_t length);
QUILL_API void quillHeaderEventSetEventTypeWcstr(struct quillHeaderEvent **hdr, wchar_t const *eventType,
                                                 int64_t length);
/// @}

/// @name Id: a token; optional
/// @{
QUILL_API struct coString *quillHeaderEventId(struct quillHeaderEvent const *hdr);
QUILL_API bool quillHeaderEventHasId(struct quillHeaderEvent const *hdr);
QUILL_API void quillHeaderEventSetId(struct quillHeaderEvent **hdr, struct coString *id);
QUILL_API void quillHeaderEventDelId(struct quillHeaderEvent **hdr);
/// @}

/// @name Other parameters; never null
/// @{
QUILL_API struct quillGenericParams *quillHeaderEventGenericParams(struct quillHeaderEvent const *hdr);
QUILL_API void quillHeaderEventSetGenericParams(struct quillHeaderEvent **hdr,
                                                struct quillGenericParams *genericParams);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderEventEncode(struct quillHeaderEvent const *hdr);
QUILL_API struct quillHeaderEvent *quillHeaderEventTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderEventStore(struct quillHeaderEvent const *hdr);
QUILL_API struct quillHeaderEvent *quillHeaderEventTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderEventPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderEventEncodeToMessage(struct quillHeaderEvent const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderEvent *quillHeaderEventTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderEventRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
