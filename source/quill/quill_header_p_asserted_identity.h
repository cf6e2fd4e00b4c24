/// @file
/// The P-Asserted-Identity header field: who the sender is, as the network has found (RFC 3325, 9.1).
///
///     PAssertedID = "P-Asserted-Identity" HCOLON PAssertedID-value *( COMMA PAssertedID-value )
///
/// A list of quillIdentityValue.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_P_ASSERTED_IDENTITY_H
#define QUILL_QUILL_HEADER_P_ASSERTED_IDENTITY_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderPAssertedIdentitySort(void);
QUILL_API void quillHeaderPAssertedIdentityRetain(struct quillHeaderPAssertedIdentity *obj);
QUILL_API void quillHeaderPAssertedIdentityRelease(struct quillHeaderPAssertedIdentity *obj);
QUILL_API struct coObj *quillHeaderPAssertedIdentityObj(struct quillHeaderPAssertedIdentity const *hdr);
QUILL_API struct quillHeaderPAssertedIdentity *quillHeaderPAssertedIdentityFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderPAssertedIdentityToString(struct quillHeaderPAssertedIdentity const *obj);
QUILL_API int quillHeaderPAssertedIdentityCompare(struct quillHeaderPAssertedIdentity const *objA,
                                                  struct quillHeaderPAssertedIdentity const *objB);
QUILL_API bool quillHeaderPAssertedIdentityEquals(struct quillHeaderPAssertedIdentity const *objA,
                                                  struct quillHeaderPAssertedIdentity const *objB);
QUILL_API struct quillHeaderPAssertedIdentity *
quillHeaderPAssertedIdentityCreateFrom(struct quillHeaderPAssertedIdentity const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderPAssertedIdentity *quillHeaderPAssertedIdentityCreate(void);

/// @name Elements
/// @{
QUILL_API void quillHeaderPAssertedIdentityClearIdentityValues(struct quillHeaderPAssertedIdentity **hdr);
QUILL_API int64_t quillHeaderPAssertedIdentityIdentityValuesLength(struct quillHeaderPAssertedIdentity const *hdr);
QUILL_API struct quillIdentityValue *
quillHeaderPAssertedIdentityTryDecodeIdentityValueAt(struct quillHeaderPAssertedIdentity const *hdr, int64_t index);
QUILL_API void quillHeaderPAssertedIdentitySetIdentityValueAt(struct quillHeaderPAssertedIdentity **hdr, int64_t index,
                                                              struct quillIdentityValue const *identityValue);
QUILL_API void quillHeaderPAssertedIdentityDelIdentityValueAt(struct quillHeaderPAssertedIdentity **hdr, int64_t index);
QUILL_API void quillHeaderPAssertedIdentityPrependIdentityValue(struct quillHeaderPAssertedIdentity **hdr,
                                                                struct quillIdentityValue const *identityValue);
QUILL_API void quillHeaderPAssertedIdentityAppendIdentityValue(struct quillHeaderPAssertedIdentity **hdr,
                                                               struct quillIdentityValue const *identityValue);
QUILL_API void quillHeaderPAssertedIdentityInsertIdentityValue(struct quillHeaderPAssertedIdentity **hdr, int64_t index,
                                                               struct quillIdentityValue const *identityValue);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderPAssertedIdentityEncode(struct quillHeaderPAssertedIdentity const *hdr);
QUILL_API struct quillHeaderPAssertedIdentity *
quillHeaderPAssertedIdentityTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderPAssertedIdentityStore(struct quillHeaderPAssertedIdentity const *hdr);
QUILL_API struct quillHeaderPAssertedIdentity *quillHeaderPAssertedIdentityTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderPAssertedIdentityPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderPAssertedIdentityEncodeToMessage(struct quillHeaderPAssertedIdentity const *hdr,
                                                           struct quillMessage **msg);
QUILL_API struct quillHeaderPAssertedIdentity *
quillHeaderPAssertedIdentityTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderPAssertedIdentityRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
