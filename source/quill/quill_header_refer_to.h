/// @file
/// The Refer-To header field: where a request refers its recipient to (RFC 3515, 2.1).
///
///     Refer-To = ( "Refer-To" / "r" ) HCOLON ( name-addr / addr-spec ) *( SEMI generic-param )
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_REFER_TO_H
#define QUILL_QUILL_HEADER_REFER_TO_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by IRI, display name, then parameters.
/// @{
QUILL_API struct coSort const *quillHeaderReferToSort(void);
QUILL_API void quillHeaderReferToRetain(struct quillHeaderReferTo *obj);
QUILL_API void quillHeaderReferToRelease(struct quillHeaderReferTo *obj);
QUILL_API struct coObj *quillHeaderReferToObj(struct quillHeaderReferTo const *hdr);
QUILL_API struct quillHeaderReferTo *quillHeaderReferToFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderReferToToString(struct quillHeaderReferTo const *obj);
QUILL_API int quillHeaderReferToCompare(struct quillHeaderReferTo const *objA, struct quillHeaderReferTo const *objB);
QUILL_API bool quillHeaderReferToEquals(struct quillHeaderReferTo const *objA, struct quillHeaderReferTo const *objB);
QUILL_API struct quillHeaderReferTo *quillHeaderReferToCreateFrom(struct quillHeaderReferTo const *source);
/// @}

QUILL_API struct quillHeaderReferTo *quillHeaderReferToCreate(struct coString *iri);

/// @name IRI: on the wire a URI in angle brackets
/// @{
QUILL_API struct coString *quillHeaderReferToIri(struct quillHeaderReferTo const *hdr);
QUILL_API void quillHeaderReferToSetIri(struct quillHeaderReferTo **hdr, struct coString *iri);
/// @}

/// @name Display name: unquoted; optional
/// @{
QUILL_API struct coString *quillHeaderReferToDisplayName(struct quillHeaderReferTo const *hdr);
QUILL_API bool quillHeaderReferToHasDisplayName(struct quillHeaderReferTo const *hdr);
QUILL_API void quillHeaderReferToSetDisplayName(struct quillHeaderReferTo **hdr, struct coString *displayName);
QUILL_API void quillHeaderReferToDelDisplayName(struct quillHeaderReferTo **hdr);
/// @}

/// @name Parameters; never null
/// @{
QUILL_API struct quillGenericParams *quillHeaderReferToGenericParams(struct quillHeaderReferTo const *hdr);
QUILL_API void quillHeaderReferToSetGenericParams(struct quillHeaderReferTo **hdr,
                                                  struct quillGenericParams *genericParams);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderReferToEncode(struct quillHeaderReferTo const *hdr);
QUILL_API struct quillHeaderReferTo *quillHeaderReferToTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderReferToStore(struct quillHeaderReferTo const *hdr);
QUILL_API struct quillHeaderReferTo *quillHeaderReferToTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderReferToPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderReferToEncodeToMessage(struct quillHeaderReferTo const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderReferTo *quillHeaderReferToTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderReferToRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
