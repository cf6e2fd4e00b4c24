/// @file
/// The P-Called-Party-ID header field: the address that a request was sent to before it was forwarded (RFC 7315, 4.2).
///
///     P-Called-Party-ID = "P-Called-Party-ID" HCOLON ( name-addr / addr-spec ) *( SEMI generic-param )
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_P_CALLED_PARTY_ID_H
#define QUILL_QUILL_HEADER_P_CALLED_PARTY_ID_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by IRI, display name, then parameters.
/// @{
QUILL_API struct coSort const *quillHeaderPCalledPartyIdSort(void);
QUILL_API void quillHeaderPCalledPartyIdRetain(struct quillHeaderPCalledPartyId *obj);
QUILL_API void quillHeaderPCalledPartyIdRelease(struct quillHeaderPCalledPartyId *obj);
QUILL_API struct coObj *quillHeaderPCalledPartyIdObj(struct quillHeaderPCalledPartyId const *hdr);
QUILL_API struct quillHeaderPCalledPartyId *quillHeaderPCalledPartyIdFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderPCalledPartyIdToString(struct quillHeaderPCalledPartyId const *obj);
QUILL_API int quillHeaderPCalledPartyIdCompare(struct quillHeaderPCalledPartyId const *objA,
                                               struct quillHeaderPCalledPartyId const *objB);
QUILL_API bool quillHeaderPCalledPartyIdEquals(struct quillHeaderPCalledPartyId const *objA,
                                               struct quillHeaderPCalledPartyId const *objB);
QUILL_API struct quillHeaderPCalledPartyId *
quillHeaderPCalledPartyIdCreateFrom(struct quillHeaderPCalledPartyId const *source);
/// @}

QUILL_API struct quillHeaderPCalledPartyId *quillHeaderPCalledPartyIdCreate(struct coString *iri);

/// @name IRI: on the wire a URI in angle brackets
/// @{
QUILL_API struct coString *quillHeaderPCalledPartyIdIri(struct quillHeaderPCalledPartyId const *hdr);
QUILL_API void quillHeaderPCalledPartyIdSetIri(struct quillHeaderPCalledPartyId **hdr, struct coString *iri);
/// @}

/// @name Display name: unquoted; optional
/// @{
QUILL_API struct coString *quillHeaderPCalledPartyIdDisplayName(struct quillHeaderPCalledPartyId const *hdr);
QUILL_API bool quillHeaderPCalledPartyIdHasDisplayName(struct quillHeaderPCalledPartyId const *hdr);
QUILL_API void quillHeaderPCalledPartyIdSetDisplayName(struct quillHeaderPCalledPartyId **hdr,
                                                       struct coString *displayName);
QUILL_API void quillHeaderPCalledPartyIdDelDisplayName(struct quillHeaderPCalledPartyId **hdr);
/// @}

/// @name Parameters; never null
/// @{
QUILL_API struct quillGenericParams *
quillHeaderPCalledPartyIdGenericParams(struct quillHeaderPCalledPartyId const *hdr);
QUILL_API void quillHeaderPCalledPartyIdSetGenericParams(struct quillHeaderPCalledPartyId **hdr,
                                                         struct quillGenericParams *genericParams);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderPCalledPartyIdEncode(struct quillHeaderPCalledPartyId const *hdr);
QUILL_API struct quillHeaderPCalledPartyId *quillHeaderPCalledPartyIdTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderPCalledPartyIdStore(struct quillHeaderPCalledPartyId const *hdr);
QUILL_API struct quillHeaderPCalledPartyId *quillHeaderPCalledPartyIdTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderPCalledPartyIdPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderPCalledPartyIdEncodeToMessage(struct quillHeaderPCalledPartyId const *hdr,
                                                        struct quillMessage **msg);
QUILL_API struct quillHeaderPCalledPartyId *
quillHeaderPCalledPartyIdTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderPCalledPartyIdRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
