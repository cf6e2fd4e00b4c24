/// @file
/// The Remote-Party-ID header field: who a party is, as a trusted proxy says (draft-ietf-sip-privacy-04, 5.1).
///
///     Remote-Party-ID = "Remote-Party-ID" HCOLON ( name-addr / addr-spec ) *( SEMI generic-param )
///
/// One party, without the draft's names for its parameters.
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_REMOTE_PARTY_ID_H
#define QUILL_QUILL_HEADER_REMOTE_PARTY_ID_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by IRI, display name, then parameters.
/// @{
QUILL_API struct coSort const *quillHeaderRemotePartyIdSort(void);
QUILL_API void quillHeaderRemotePartyIdRetain(struct quillHeaderRemotePartyId *obj);
QUILL_API void quillHeaderRemotePartyIdRelease(struct quillHeaderRemotePartyId *obj);
QUILL_API struct coObj *quillHeaderRemotePartyIdObj(struct quillHeaderRemotePartyId const *hdr);
QUILL_API struct quillHeaderRemotePartyId *quillHeaderRemotePartyIdFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderRemotePartyIdToString(struct quillHeaderRemotePartyId const *obj);
QUILL_API int quillHeaderRemotePartyIdCompare(struct quillHeaderRemotePartyId const *objA,
                                              struct quillHeaderRemotePartyId const *objB);
QUILL_API bool quillHeaderRemotePartyIdEquals(struct quillHeaderRemotePartyId const *objA,
                                              struct quillHeaderRemotePartyId const *objB);
QUILL_API struct quillHeaderRemotePartyId *
quillHeaderRemotePartyIdCreateFrom(struct quillHeaderRemotePartyId const *source);
/// @}

QUILL_API struct quillHeaderRemotePartyId *quillHeaderRemotePartyIdCreate(struct coString *iri);

/// @name IRI: on the wire a URI in angle brackets
/// @{
QUILL_API struct coString *quillHeaderRemotePartyIdIri(struct quillHeaderRemotePartyId const *hdr);
QUILL_API void quillHeaderRemotePartyIdSetIri(struct quillHeaderRemotePartyId **hdr, struct coString *iri);
/// @}

/// @name Display name: unquoted; optional
/// @{
QUILL_API struct coString *quillHeaderRemotePartyIdDisplayName(struct quillHeaderRemotePartyId const *hdr);
QUILL_API bool quillHeaderRemotePartyIdHasDisplayName(struct quillHeaderRemotePartyId const *hdr);
QUILL_API void quillHeaderRemotePartyIdSetDisplayName(struct quillHeaderRemotePartyId **hdr,
                                                      struct coString *displayName);
QUILL_API void quillHeaderRemotePartyIdDelDisplayName(struct quillHeaderRemotePartyId **hdr);
/// @}

/// @name Parameters; never null
/// @{
QUILL_API struct quillGenericParams *quillHeaderRemotePartyIdGenericParams(struct quillHeaderRemotePartyId const *hdr);
QUILL_API void quillHeaderRemotePartyIdSetGenericParams(struct quillHeaderRemotePartyId **hdr,
                                                        struct quillGenericParams *genericParams);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderRemotePartyIdEncode(struct quillHeaderRemotePartyId const *hdr);
QUILL_API struct quillHeaderRemotePartyId *quillHeaderRemotePartyIdTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderRemotePartyIdStore(struct quillHeaderRemotePartyId const *hdr);
QUILL_API struct quillHeaderRemotePartyId *quillHeaderRemotePartyIdTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderRemotePartyIdPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderRemotePartyIdEncodeToMessage(struct quillHeaderRemotePartyId const *hdr,
                                                       struct quillMessage **msg);
QUILL_API struct quillHeaderRemotePartyId *quillHeaderRemotePartyIdTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderRemotePartyIdRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
