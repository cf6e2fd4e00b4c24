/// @file
/// One value of a P-Asserted-Identity or P-Preferred-Identity header field: an address without parameters (RFC 3325,
/// 9.1 and 9.2).
///
///     PAssertedID-value  = name-addr / addr-spec
///     PPreferredID-value = name-addr / addr-spec
///
/// Brackets are always written.
///
/// Object family, members, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_IDENTITY_VALUE_H
#define QUILL_QUILL_IDENTITY_VALUE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by identifier, then display name.
/// @{
QUILL_API struct coSort const *quillIdentityValueSort(void);
QUILL_API void quillIdentityValueRetain(struct quillIdentityValue *obj);
QUILL_API void quillIdentityValueRelease(struct quillIdentityValue *obj);
QUILL_API struct coObj *quillIdentityValueObj(struct quillIdentityValue const *identityValue);
QUILL_API struct quillIdentityValue *quillIdentityValueFrom(struct coObj const *obj);
QUILL_API struct coString *quillIdentityValueToString(struct quillIdentityValue const *obj);
QUILL_API int quillIdentityValueCompare(struct quillIdentityValue const *objA, struct quillIdentityValue const *objB);
QUILL_API bool quillIdentityValueEquals(struct quillIdentityValue const *objA, struct quillIdentityValue const *objB);
QUILL_API struct quillIdentityValue *quillIdentityValueCreateFrom(struct quillIdentityValue const *source);
/// @}

QUILL_API struct quillIdentityValue *quillIdentityValueCreate(struct coString *iri);

/// @name Identifier: an IRI, which stands on the wire as a URI
/// @{
QUILL_API struct coString *quillIdentityValueIri(struct quillIdentityValue const *identityValue);
QUILL_API void quillIdentityValueSetIri(struct quillIdentityValue **identityValue, struct coString *iri);
/// @}

/// @name Display name: text without its quotes; optional
/// @{
QUILL_API struct coString *quillIdentityValueDisplayName(struct quillIdentityValue const *identityValue);
QUILL_API bool quillIdentityValueHasDisplayName(struct quillIdentityValue const *identityValue);
QUILL_API void quillIdentityValueSetDisplayName(struct quillIdentityValue **identityValue,
                                                struct coString *displayName);
QUILL_API void quillIdentityValueDelDisplayName(struct quillIdentityValue **identityValue);
/// @}

CO_EXTERN_C_END

#endif
