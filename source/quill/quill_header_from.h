/// @file
/// The From header field: who a request comes from (RFC 3261, 20.20).
///
///     From       = ( "From" / "f" ) HCOLON from-spec
///     from-spec  = ( name-addr / addr-spec ) *( SEMI from-param )
///     from-param = tag-param / "epid" EQUAL token / generic-param
///     tag-param  = "tag" EQUAL token
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_FROM_H
#define QUILL_QUILL_HEADER_FROM_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by IRI, display name, tag, epid, then parameters.
/// @{
QUILL_API struct coSort const *quillHeaderFromSort(void);
QUILL_API void quillHeaderFromRetain(struct quillHeaderFrom *obj);
QUILL_API void quillHeaderFromRelease(struct quillHeaderFrom *obj);
QUILL_API struct coObj *quillHeaderFromObj(struct quillHeaderFrom const *hdr);
QUILL_API struct quillHeaderFrom *quillHeaderFromFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderFromToString(struct quillHeaderFrom const *obj);
QUILL_API int quillHeaderFromCompare(struct quillHeaderFrom const *objA, struct quillHeaderFrom const *objB);
QUILL_API bool quillHeaderFromEquals(struct quillHeaderFrom const *objA, struct quillHeaderFrom const *objB);
QUILL_API struct quillHeaderFrom *quillHeaderFromCreateFrom(struct quillHeaderFrom const *source);
/// @}

/// @name Creation
/// @{
QUILL_API struct quillHeaderFrom *quillHeaderFromCreate(struct coString *iri);
/// The same address, tag, epid and parameters.
QUILL_API struct quillHeaderFrom *quillHeaderFromCreateFromHeaderTo(struct quillHeaderTo const *hdrTo);
/// @}

/// @name IRI: on the wire a URI in angle brackets
/// @{
QUILL_API struct coString *quillHeaderFromIri(struct quillHeaderFrom const *hdr);
QUILL_API void quillHeaderFromSetIri(struct quillHeaderFrom **hdr, struct coString *iri);
/// @}

/// @name Display name: unquoted; optional
/// @{
QUILL_API struct coString *quillHeaderFromDisplayName(struct quillHeaderFrom const *hdr);
QUILL_API bool quillHeaderFromHasDisplayName(struct quillHeaderFrom const *hdr);
QUILL_API void quillHeaderFromSetDisplayName(struct quillHeaderFrom **hdr, struct coString *displayName);
QUILL_API void quillHeaderFromDelDisplayName(struct quillHeaderFrom **hdr);
/// @}

/// @name Tag: a token; optional
/// @{
QUILL_API struct coString *quillHeaderFromTag(struct quillHeaderFrom const *hdr);
QUILL_API bool quillHeaderFromHasTag(struct quillHeaderFrom const *hdr);
QUILL_API void quillHeaderFromSetTag(struct quillHeaderFrom **hdr, struct coString *tag);
QUILL_API void quillHeaderFromDelTag(struct quillHeaderFrom **hdr);
/// @}

/// @name Endpoint identifier: a token of at most 16 characters; optional
/// @{
QUILL_API struct coString *quillHeaderFromEpid(struct quillHeaderFrom const *hdr);
QUILL_API bool quillHeaderFromHasEpid(struct quillHeaderFrom const *hdr);
QUILL_API void quillHeaderFromSetEpid(struct quillHeaderFrom **hdr, struct coString *epid);
QUILL_API void quillHeaderFromDelEpid(struct quillHeaderFrom **hdr);
/// @}

/// @name Other parameters; never null
/// @{
QUILL_API struct quillGenericParams *quillHeaderFromGenericParams(struct quillHeaderFrom const *hdr);
QUILL_API void quillHeaderFromSetGenericParams(struct quillHeaderFrom **hdr, struct quillGenericParams *genericParams);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderFromEncode(struct quillHeaderFrom const *hdr);
QUILL_API struct quillHeaderFrom *quillHeaderFromTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderFromStore(struct quillHeaderFrom const *hdr);
QUILL_API struct quillHeaderFrom *quillHeaderFromTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderFromPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderFromEncodeToMessage(struct quillHeaderFrom const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderFrom *quillHeaderFromTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderFromRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
