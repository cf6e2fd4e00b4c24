/// @file
/// The Reply-To header field: where to call back, when this is not the From address (RFC 3261, 20.31).
///
///     Reply-To = "Reply-To" HCOLON ( name-addr / addr-spec ) *( SEMI generic-param )
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_REPLY_TO_H
#define QUILL_QUILL_HEADER_REPLY_TO_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by IRI, display name, then parameters.
/// @{
QUILL_API struct coSort const *quillHeaderReplyToSort(void);
QUILL_API void quillHeaderReplyToRetain(struct quillHeaderReplyTo *obj);
QUILL_API void quillHeaderReplyToRelease(struct quillHeaderReplyTo *obj);
QUILL_API struct coObj *quillHeaderReplyToObj(struct quillHeaderReplyTo const *hdr);
QUILL_API struct quillHeaderReplyTo *quillHeaderReplyToFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderReplyToToString(struct quillHeaderReplyTo const *obj);
QUILL_API int quillHeaderReplyToCompare(struct quillHeaderReplyTo const *objA, struct quillHeaderReplyTo const *objB);
QUILL_API bool quillHeaderReplyToEquals(struct quillHeaderReplyTo const *objA, struct quillHeaderReplyTo const *objB);
QUILL_API struct quillHeaderReplyTo *quillHeaderReplyToCreateFrom(struct quillHeaderReplyTo const *source);
/// @}

QUILL_API struct quillHeaderReplyTo *quillHeaderReplyToCreate(struct coString *iri);

/// @name IRI: on the wire a URI in angle brackets
/// @{
QUILL_API struct coString *quillHeaderReplyToIri(struct quillHeaderReplyTo const *hdr);
QUILL_API void quillHeaderReplyToSetIri(struct quillHeaderReplyTo **hdr, struct coString *iri);
/// @}

/// @name Display name: unquoted; optional
/// @{
QUILL_API struct coString *quillHeaderReplyToDisplayName(struct quillHeaderReplyTo const *hdr);
QUILL_API bool quillHeaderReplyToHasDisplayName(struct quillHeaderReplyTo const *hdr);
QUILL_API void quillHeaderReplyToSetDisplayName(struct quillHeaderReplyTo **hdr, struct coString *displayName);
QUILL_API void quillHeaderReplyToDelDisplayName(struct quillHeaderReplyTo **hdr);
/// @}

/// @name Parameters; never null
/// @{
QUILL_API struct quillGenericParams *quillHeaderReplyToGenericParams(struct quillHeaderReplyTo const *hdr);
QUILL_API void quillHeaderReplyToSetGenericParams(struct quillHeaderReplyTo **hdr,
                                                  struct quillGenericParams *genericParams);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderReplyToEncode(struct quillHeaderReplyTo const *hdr);
QUILL_API struct quillHeaderReplyTo *quillHeaderReplyToTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderReplyToStore(struct quillHeaderReplyTo const *hdr);
QUILL_API struct quillHeaderReplyTo *quillHeaderReplyToTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderReplyToPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderReplyToEncodeToMessage(struct quillHeaderReplyTo const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderReplyTo *quillHeaderReplyToTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderReplyToRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
