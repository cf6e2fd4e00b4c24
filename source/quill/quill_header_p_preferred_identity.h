/// @file
/// The P-Preferred-Identity header field: who the sender asks to be shown as (RFC 3325, 9.2).
///
///     PPreferredID = "P-Preferred-Identity" HCOLON PPreferredID-value *( COMMA PPreferredID-value )
///
/// A list of quillIdentityValue.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_P_PREFERRED_IDENTITY_H
#define QUILL_QUILL_HEADER_P_PREFERRED_IDENTITY_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderPPreferredIdentitySort(void);
QUILL_API void quillHeaderPPreferredIdentityRetain(struct quillHeaderPPreferredIdentity *obj);
QUILL_API void quillHeaderPPreferredIdentityRelease(struct quillHeaderPPreferredIdentity *obj);
QUILL_API struct coObj *quillHeaderPPreferredIdentityObj(struct quillHeaderPPreferredIdentity const *hdr);
QUILL_API struct quillHeaderPPreferredIdentity *quillHeaderPPreferredIdentityFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderPPreferredIdentityToString(struct quillHeaderPPreferredIdentity const *obj);
QUILL_API int quillHeaderPPreferredIdentityCompare(struct quillHeaderPPreferredIdentity const *objA,
                                                   struct quillHeaderPPreferredIdentity const *objB);
QUILL_API bool quillHeaderPPreferredIdentityEquals(struct quillHeaderPPreferredIdentity const *objA,
                                                   struct quillHeaderPPreferredIdentity const *objB);
QUILL_API struct quillHeaderPPreferredIdentity *
quillHeaderPPreferredIdentityCreateFrom(struct quillHeaderPPreferredIdentity const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderPPreferredIdentity *quillHeaderPPreferredIdentityCreate(void);

/// @name Elements
/// @{
QUILL_API void quillHeaderPPreferredIdentityClearIdentityValues(struct quillHeaderPPreferredIdentity **hdr);
QUILL_API int64_t quillHeaderPPreferredIdentityIdentityValuesLength(struct quillHeaderPPreferredIdentity const *hdr);
QUILL_API struct quillIdentityValue *
quillHeaderPPreferredIdentityTryDecodeIdentityValueAt(struct quillHeaderPPreferredIdentity const *hdr, int64_t index);
QUILL_API void quillHeaderPPreferredIdentitySetIdentityValueAt(struct quillHeaderPPreferredIdentity **hdr,
                                                               int64_t index,
                                                               struct quillIdentityValue const *identityValue);
QUILL_API void quillHeaderPPreferredIdentityDelIdentityValueAt(struct quillHeaderPPreferredIdentity **hdr,
                                                               int64_t index);
QUILL_API void quillHeaderPPreferredIdentityPrependIdentityValue(struct quillHeaderPPreferredIdentity **hdr,
                                                                 struct quillIdentityValue const *identityValue);
QUILL_API void quillHeaderPPreferredIdentityAppendIdentityValue(struct quillHeaderPPreferredIdentity **hdr,
                                                                struct quillIdentityValue const *identityValue);
QUILL_API void quillHeaderPPreferredIdentityInsertIdentityValue(struct quillHeaderPPreferredIdentity **hdr,
                                                                int64_t index,
                                                                struct quillIdentityValue const *identityValue);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *
quillHeaderPPreferredIdentityEncode(struct quillHeaderPPreferredIdentity const *hdr);
QUILL_API struct quillHeaderPPreferredIdentity *
quillHeaderPPreferredIdentityTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderPPreferredIdentityStore(struct quillHeaderPPreferredIdentity const *hdr);
QUILL_API struct quillHeaderPPreferredIdentity *quillHeaderPPreferredIdentityTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderPPreferredIdentityPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderPPreferredIdentityEncodeToMessage(struct quillHeaderPPreferredIdentity const *hdr,
                                                            struct quillMessage **msg);
QUILL_API struct quillHeaderPPreferredIdentity *
quillHeaderPPreferredIdentityTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderPPreferredIdentityRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
