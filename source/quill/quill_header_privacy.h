/// @file
/// The Privacy header field: what the sender asks to be kept private (RFC 3323, 4.2).
///
///     Privacy-hdr = "Privacy" HCOLON priv-value *( ";" priv-value )
///
/// A set of priv-values, kept in lower case. Semicolons separate them.
///
/// Object family, sets, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_PRIVACY_H
#define QUILL_QUILL_HEADER_PRIVACY_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderPrivacySort(void);
QUILL_API void quillHeaderPrivacyRetain(struct quillHeaderPrivacy *obj);
QUILL_API void quillHeaderPrivacyRelease(struct quillHeaderPrivacy *obj);
QUILL_API struct coObj *quillHeaderPrivacyObj(struct quillHeaderPrivacy const *hdr);
QUILL_API struct quillHeaderPrivacy *quillHeaderPrivacyFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderPrivacyToString(struct quillHeaderPrivacy const *obj);
QUILL_API int quillHeaderPrivacyCompare(struct quillHeaderPrivacy const *objA, struct quillHeaderPrivacy const *objB);
QUILL_API bool quillHeaderPrivacyEquals(struct quillHeaderPrivacy const *objA, struct quillHeaderPrivacy const *objB);
QUILL_API struct quillHeaderPrivacy *quillHeaderPrivacyCreateFrom(struct quillHeaderPrivacy const *source);
/// @}

/// An empty set.
QUILL_API struct quillHeaderPrivacy *quillHeaderPrivacyCreate(void);

/// @name Tokens
/// @{
QUILL_API void quillHeaderPrivacyClearPrivValues(struct quillHeaderPrivacy **hdr);
QUILL_API int64_t quillHeaderPrivacyPrivValuesLength(struct quillHeaderPrivacy const *hdr);
QUILL_API struct coString *quillHeaderPrivacyPrivValueAt(struct quillHeaderPrivacy const *hdr, int64_t index);
QUILL_API struct coVector *quillHeaderPrivacyPrivValuesVector(struct quillHeaderPrivacy const *hdr);
QUILL_API void quillHeaderPrivacySetPrivValuesVector(struct quillHeaderPrivacy **hdr, struct coVector const *vec);
QUILL_API bool quillHeaderPrivacyHasPrivValue(struct quillHeaderPrivacy const *hdr, struct coString const *privValue);
QUILL_API bool quillHeaderPrivacyHasPrivValueCstr(struct quillHeaderPrivacy const *hdr, char const *privValue,
                                                  int64_t length);
QUILL_API bool quillHeaderPrivacyHasPrivValueWcstr(struct quillHeaderPrivacy const *hdr, wchar_t const *privValue,
                                                   int64_t length);
QUILL_API void quillHeaderPrivacySetPrivValue(struct quillHeaderPrivacy **hdr, struct coString *privValue);
QUILL_API void quillHeaderPrivacySetPrivValueCstr(struct quillHeaderPrivacy **hdr, char const *privValue,
                                                  int64_t length);
QUILL_API void quillHeaderPrivacySetPrivValueWcstr(struct quillHeaderPrivacy **hdr, wchar_t const *privValue,
                                                   int64_t length);
QUILL_API void quillHeaderPrivacyDelPrivValue(struct quillHeaderPrivacy **hdr, struct coString const *privValue);
QUILL_API void quillHeaderPrivacyDelPrivValueCstr(struct quillHeaderPrivacy **hdr, char const *privValue,
                                                  int64_t length);
QUILL_API void quillHeaderPrivacyDelPrivValueWcstr(struct quillHeaderPrivacy **hdr, wchar_t const *privValue,
                                                   int64_t length);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderPrivacyEncode(struct quillHeaderPrivacy const *hdr);
QUILL_API struct quillHeaderPrivacy *quillHeaderPrivacyTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderPrivacyStore(struct quillHeaderPrivacy const *hdr);
QUILL_API struct quillHeaderPrivacy *quillHeaderPrivacyTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderPrivacyPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderPrivacyEncodeToMessage(struct quillHeaderPrivacy const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderPrivacy *quillHeaderPrivacyTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderPrivacyRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
