/// @file
/// The Referred-By header field: who referred the sender to the recipient (RFC 3892, 3).
///
///     Referred-By         = ( "Referred-By" / "b" ) HCOLON referrer-uri
///                           *( SEMI ( referredby-id-param / generic-param ) )
///     referrer-uri        = ( name-addr / addr-spec )
///     referredby-id-param = "cid" EQUAL sip-clean-msg-id
///     sip-clean-msg-id    = DQUOTE dot-atom "@" ( dot-atom / host ) DQUOTE
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_REFERRED_BY_H
#define QUILL_QUILL_HEADER_REFERRED_BY_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by IRI, display name, cid, then parameters.
/// @{
QUILL_API struct coSort const *quillHeaderReferredBySort(void);
QUILL_API void quillHeaderReferredByRetain(struct quillHeaderReferredBy *obj);
QUILL_API void quillHeaderReferredByRelease(struct quillHeaderReferredBy *obj);
QUILL_API struct coObj *quillHeaderReferredByObj(struct quillHeaderReferredBy const *hdr);
QUILL_API struct quillHeaderReferredBy *quillHeaderReferredByFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderReferredByToString(struct quillHeaderReferredBy const *obj);
QUILL_API int quillHeaderReferredByCompare(struct quillHeaderReferredBy const *objA,
                                           struct quillHeaderReferredBy const *objB);
QUILL_API bool quillHeaderReferredByEquals(struct quillHeaderReferredBy const *objA,
                                           struct quillHeaderReferredBy const *objB);
QUILL_API struct quillHeaderReferredBy *quillHeaderReferredByCreateFrom(struct quillHeaderReferredBy const *source);
/// @}

QUILL_API struct quillHeaderReferredBy *quillHeaderReferredByCreate(struct coString *iri);

/// @name IRI: on the wire a URI in angle brackets
/// @{
QUILL_API struct coString *quillHeaderReferredByIri(struct quillHeaderReferredBy const *hdr);
QUILL_API void quillHeaderReferredBySetIri(struct quillHeaderReferredBy **hdr, struct coString *iri);
/// @}

/// @name Display name: unquoted; optional
/// @{
QUILL_API struct coString *quillHeaderReferredByDisplayName(struct quillHeaderReferredBy const *hdr);
QUILL_API bool quillHeaderReferredByHasDisplayName(struct quillHeaderReferredBy const *hdr);
QUILL_API void quillHeaderReferredBySetDisplayName(struct quillHeaderReferredBy **hdr, struct coString *displayName);
QUILL_API void quillHeaderReferredByDelDisplayName(struct quillHeaderReferredBy **hdr);
/// @}

/// @name Content identifier of the body with the referrer's token: without its quotes; optional
/// @{
QUILL_API struct coString *quillHeaderReferredByCid(struct quillHeaderReferredBy const *hdr);
QUILL_API bool quillHeaderReferredByHasCid(struct quillHeaderReferredBy const *hdr);
QUILL_API void quillHeaderReferredBySetCid(struct quillHeaderReferredBy **hdr, struct coString *cid);
QUILL_API void quillHeaderReferredByDelCid(struct quillHeaderReferredBy **hdr);
/// @}

/// @name Other parameters; never null
/// @{
QUILL_API struct quillGenericParams *quillHeaderReferredByGenericParams(struct quillHeaderReferredBy const *hdr);
QUILL_API void quillHeaderReferredBySetGenericParams(struct quillHeaderReferredBy **hdr,
                                                     struct quillGenericParams *genericParams);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderReferredByEncode(struct quillHeaderReferredBy const *hdr);
QUILL_API struct quillHeaderReferredBy *quillHeaderReferredByTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderReferredByStore(struct quillHeaderReferredBy const *hdr);
QUILL_API struct quillHeaderReferredBy *quillHeaderReferredByTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderReferredByPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderReferredByEncodeToMessage(struct quillHeaderReferredBy const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderReferredBy *quillHeaderReferredByTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderReferredByRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
