/// @file
/// The Subject header field: what a call is about (RFC 3261, 20.36).
///
///     Subject = ( "Subject" / "s" ) HCOLON [ TEXT-UTF8-TRIM ]
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_SUBJECT_H
#define QUILL_QUILL_HEADER_SUBJECT_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderSubjectSort(void);
QUILL_API void quillHeaderSubjectRetain(struct quillHeaderSubject *obj);
QUILL_API void quillHeaderSubjectRelease(struct quillHeaderSubject *obj);
QUILL_API struct coObj *quillHeaderSubjectObj(struct quillHeaderSubject const *hdr);
QUILL_API struct quillHeaderSubject *quillHeaderSubjectFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderSubjectToString(struct quillHeaderSubject const *obj);
QUILL_API int quillHeaderSubjectCompare(struct quillHeaderSubject const *objA, struct quillHeaderSubject const *objB);
QUILL_API bool quillHeaderSubjectEquals(struct quillHeaderSubject const *objA, struct quillHeaderSubject const *objB);
QUILL_API struct quillHeaderSubject *quillHeaderSubjectCreateFrom(struct quillHeaderSubject const *source);
/// @}

QUILL_API struct quillHeaderSubject *quillHeaderSubjectCreate(struct coString *subject);

/// @name Subject: kept with one space for each run of blanks and none around the text; may be empty
/// @{
QUILL_API struct coString *quillHeaderSubjectSubject(struct quillHeaderSubject const *hdr);
QUILL_API void quillHeaderSubjectSetSubject(struct quillHeaderSubject **hdr, struct coString *subject);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderSubjectEncode(struct quillHeaderSubject const *hdr);
QUILL_API struct quillHeaderSubject *quillHeaderSubjectTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderSubjectStore(struct quillHeaderSubject const *hdr);
QUILL_API struct quillHeaderSubject *quillHeaderSubjectTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderSubjectPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderSubjectEncodeToMessage(struct quillHeaderSubject const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderSubject *quillHeaderSubjectTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderSubjectRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
