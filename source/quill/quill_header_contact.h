/// @file
/// The Contact header field: where its sender wants to be reached (RFC 3261, 20.10).
///
///     Contact = ( "Contact" / "m" ) HCOLON ( STAR / ( contact-param *( COMMA contact-param ) ) )
///
/// A list of quillContact, or the star form, which has none: "*", with which a REGISTER takes all bindings back (RFC 3261,
/// 10.2.2). A star among contacts, or two of them, does not decode.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_CONTACT_H
#define QUILL_QUILL_HEADER_CONTACT_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderContactSort(void);
QUILL_API void quillHeaderContactRetain(struct quillHeaderContact *obj);
QUILL_API void quillHeaderContactRelease(struct quillHeaderContact *obj);
QUILL_API struct coObj *quillHeaderContactObj(struct quillHeaderContact const *hdr);
QUILL_API struct quillHeaderContact *quillHeaderContactFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderContactToString(struct quillHeaderContact const *obj);
QUILL_API int quillHeaderContactCompare(struct quillHeaderContact const *objA, struct quillHeaderContact const *objB);
QUILL_API bool quillHeaderContactEquals(struct quillHeaderContact const *objA, struct quillHeaderContact const *objB);
QUILL_API struct quillHeaderContact *quillHeaderContactCreateFrom(struct quillHeaderContact const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderContact *quillHeaderContactCreate(void);

/// @name Elements
/// @{
QUILL_API void quillHeaderContactClear(struct quillHeaderContact **hdr);
QUILL_API int64_t quillHeaderContactContactsLength(struct quillHeaderContact const *hdr);
QUILL_API struct quillContact *quillHeaderContactTryDecodeContactAt(struct quillHeaderContact const *hdr,
                                                                    int64_t index);
QUILL_API void quillHeaderContactSetContactAt(struct quillHeaderContact **hdr, int64_t index,
                                              struct quillContact const *contact);
QUILL_API void quillHeaderContactDelContactAt(struct quillHeaderContact **hdr, int64_t index);
QUILL_API void quillHeaderContactPrependContact(struct quillHeaderContact **hdr, struct quillContact const *contact);
QUILL_API void quillHeaderContactAppendContact(struct quillHeaderContact **hdr, struct quillContact const *contact);
QUILL_API void quillHeaderContactInsertContact(struct quillHeaderContact **hdr, int64_t index,
                                               struct quillContact const *contact);
/// @}

/// @name Star form
/// @{
QUILL_API bool quillHeaderContactIsStarForm(struct quillHeaderContact const *hdr);
/// Drops all contacts, whichever the flag. To put a contact in, by whatever function, clears the flag; to take one out
/// leaves it.
QUILL_API void quillHeaderContactSetStarForm(struct quillHeaderContact **hdr, bool starForm);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderContactEncode(struct quillHeaderContact const *hdr);
QUILL_API struct quillHeaderContact *quillHeaderContactTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderContactStore(struct quillHeaderContact const *hdr);
QUILL_API struct quillHeaderContact *quillHeaderContactTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderContactPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderContactEncodeToMessage(struct quillHeaderContact const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderContact *quillHeaderContactTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderContactRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
