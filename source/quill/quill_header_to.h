/// @file
/// The To header field: whom a request is meant for (RFC 3261, 20.39).
///
///     To       = ( "To" / "t" ) HCOLON ( name-addr / addr-spec ) *( SEMI to-param )
///     to-param = tag-param / "epid" EQUAL token / generic-param
///     tag-param  = "tag" EQUAL token
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_TO_H
#define QUILL_QUILL_HEADER_TO_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by IRI, display name, tag, epid, then parameters.
/// @{
QUILL_API struct coSort const *quillHeaderToSort(void);
QUILL_API void quillHeaderToRetain(struct quillHeaderTo *obj);
QUILL_API void quillHeaderToRelease(struct quillHeaderTo *obj);
QUILL_API struct coObj *quillHeaderToObj(struct quillHeaderTo const *hdr);
QUILL_API struct quillHeaderTo *quillHeaderToFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderToToString(struct quillHeaderTo const *obj);
QUILL_API int quillHeaderToCompare(struct quillHeaderTo const *objA, struct quillHeaderTo const *objB);
QUILL_API bool quillHeaderToEquals(struct quillHeaderTo const *objA, struct quillHeaderTo const *objB);
QUILL_API struct quillHeaderTo *quillHeaderToCreateFrom(struct quillHeaderTo const *source);
/// @}

/// @name Creation
/// @{
QUILL_API struct quillHeaderTo *quillHeaderToCreate(struct coString *iri);
/// The same address, tag, epid and parameters.
QUILL_API struct quillHeaderTo *quillHeaderToCreateFromHeaderFrom(struct quillHeaderFrom const *hdrFrom);
/// @}

/// @name IRI: on the wire a URI in angle brackets
/// @{
QUILL_API struct coString *quillHeaderToIri(struct quillHeaderTo const *hdr);
QUILL_API void quillHeaderToSetIri(struct quillHeaderTo **hdr, struct coString *iri);
/// @}

/// @name Display name: unquoted; optional
/// @{
QUILL_API struct coString *quillHeaderToDisplayName(struct quillHeaderTo const *hdr);
QUILL_API bool quillHeaderToHasDisplayName(struct quillHeaderTo const *hdr);
QUILL_API void quillHeaderToSetDisplayName(struct quillHeaderTo **hdr, struct coString *displayName);
QUILL_API void quillHeaderToDelDisplayName(struct quillHeaderTo **hdr);
/// @}

/// @name Tag: a token; optional
/// @{
QUILL_API struct coString *quillHeaderToTag(struct quillHeaderTo const *hdr);
QUILL_API bool quillHeaderToHasTag(struct quillHeaderTo const *hdr);
QUILL_API void quillHeaderToSetTag(struct quillHeaderTo **hdr, struct coString *tag);
QUILL_API void quillHeaderToDelTag(struct quillHeaderTo **hdr);
/// @}

/// @name Endpoint identifier: a token of at most 16 characters; optional
/// @{
QUILL_API struct coString *quillHeaderToEpid(struct quillHeaderTo const *hdr);
QUILL_API bool quillHeaderToHasEpid(struct quillHeaderTo const *hdr);
QUILL_API void quillHeaderToSetEpid(struct quillHeaderTo **hdr, struct coString *epid);
QUILL_API void quillHeaderToDelEpid(struct quillHeaderTo **hdr);
/// @}

/// @name Other parameters; never null
/// @{
QUILL_API struct quillGenericParams *quillHeaderToGenericParams(struct quillHeaderTo const *hdr);
QUILL_API void quillHeaderToSetGenericParams(struct quillHeaderTo **hdr, struct quillGenericParams *genericParams);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderToEncode(struct quillHeaderTo const *hdr);
QUILL_API struct quillHeaderTo *quillHeaderToTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderToStore(struct quillHeaderTo const *hdr);
QUILL_API struct quillHeaderTo *quillHeaderToTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderToPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderToEncodeToMessage(struct quillHeaderTo const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderTo *quillHeaderToTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderToRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
