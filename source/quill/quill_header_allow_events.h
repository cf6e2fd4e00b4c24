/// @file
/// The Allow-Events header field: the event packages that the sender supports (RFC 6665, 8.2.2).
///
///     Allow-Events = ( "Allow-Events" / "u" ) HCOLON event-type *( COMMA event-type )
///
/// A set of event types, stored as given: letter case matters.
///
/// Object family, sets, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_ALLOW_EVENTS_H
#define QUILL_QUILL_HEADER_ALLOW_EVENTS_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderAllowEventsSort(void);
QUILL_API void quillHeaderAllowEventsRetain(struct quillHeaderAllowEvents *obj);
QUILL_API void quillHeaderAllowEventsRelease(struct quillHeaderAllowEvents *obj);
QUILL_API struct coObj *quillHeaderAllowEventsObj(struct quillHeaderAllowEvents const *hdr);
QUILL_API struct quillHeaderAllowEvents *quillHeaderAllowEventsFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderAllowEventsToString(struct quillHeaderAllowEvents const *obj);
QUILL_API int quillHeaderAllowEventsCompare(struct quillHeaderAllowEvents const *objA,
                                            struct quillHeaderAllowEvents const *objB);
QUILL_API bool quillHeaderAllowEventsEquals(struct quillHeaderAllowEvents const *objA,
                                            struct quillHeaderAllowEvents const *objB);
QUILL_API struct quillHeaderAllowEvents *quillHeaderAllowEventsCreateFrom(struct quillHeaderAllowEvents const *source);
/// @}

/// An empty set.
QUILL_API struct quillHeaderAllowEvents *quillHeaderAllowEventsCreate(void);

/// @name Tokens
/// @{
QUILL_API void quillHeaderAllowEventsClearEventTypes(struct quillHeaderAllowEvents **hdr);
QUILL_API int64_t quillHeaderAllowEventsEventTypesLength(struct quillHeaderAllowEvents const *hdr);
QUILL_API struct coString *quillHeaderAllowEventsEventTypeAt(struct quillHeaderAllowEvents const *hdr, int64_t index);
QUILL_API struct coVector *quillHeaderAllowEventsEventTypesVector(struct quillHeaderAllowEvents const *hdr);
QUILL_API void quillHeaderAllowEventsSetEventTypesVector(struct quillHeaderAllowEvents **hdr,
                                                         struct coVector const *vec);
QUILL_API bool quillHeaderAllowEventsHasEventType(struct quillHeaderAllowEvents const *hdr,
                                                  struct coString const *eventType);
QUILL_API bool quillHeaderAllowEventsHasEventTypeCstr(struct quillHeaderAllowEvents const *hdr, char const *eventType,
                                                      int64_t length);
QUILL_API bool quillHeaderAllowEventsHasEventTypeWcstr(struct quillHeaderAllowEvents const *hdr,
                                                       wchar_t const *eventType, int64_t length);
QUILL_API void quillHeaderAllowEventsSetEventType(struct quillHeaderAllowEvents **hdr, struct coString *eventType);
QUILL_API void quillHeaderAllowEventsSetEventTypeCstr(struct quillHeaderAllowEvents **hdr, char const *eventType,
                                                      int64_t length);
QUILL_API void quillHeaderAllowEventsSetEventTypeWcstr(struct quillHeaderAllowEvents **hdr, wchar_t const *eventType,
                                                       int64_t length);
QUILL_API void quillHeaderAllowEventsDelEventType(struct quillHeaderAllowEvents **hdr,
                                                  struct coString const *eventType);
QUILL_API void quillHeaderAllowEventsDelEventTypeCstr(struct quillHeaderAllowEvents **hdr, char const *eventType,
                                                      int64_t length);
QUILL_API void quillHeaderAllowEventsDelEventTypeWcstr(struct quillHeaderAllowEvents **hdr, wchar_t const *eventType,
                                                       int64_t length);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderAllowEventsEncode(struct quillHeaderAllowEvents const *hdr);
QUILL_API struct quillHeaderAllowEvents *quillHeaderAllowEventsTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderAllowEventsStore(struct quillHeaderAllowEvents const *hdr);
QUILL_API struct quillHeaderAllowEvents *quillHeaderAllowEventsTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderAllowEventsPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderAllowEventsEncodeToMessage(struct quillHeaderAllowEvents const *hdr,
                                                     struct quillMessage **msg);
QUILL_API struct quillHeaderAllowEvents *quillHeaderAllowEventsTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderAllowEventsRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
