/// @file
/// The Allow header field: the methods that the sender takes (RFC 3261, 20.5).
///
///     Allow = "Allow" HCOLON [ Method *( COMMA Method ) ]
///
/// A set of methods, stored as given: letter case matters.
///
/// Object family, sets, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_ALLOW_H
#define QUILL_QUILL_HEADER_ALLOW_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderAllowSort(void);
QUILL_API void quillHeaderAllowRetain(struct quillHeaderAllow *obj);
QUILL_API void quillHeaderAllowRelease(struct quillHeaderAllow *obj);
QUILL_API struct coObj *quillHeaderAllowObj(struct quillHeaderAllow const *hdr);
QUILL_API struct quillHeaderAllow *quillHeaderAllowFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderAllowToString(struct quillHeaderAllow const *obj);
QUILL_API int quillHeaderAllowCompare(struct quillHeaderAllow const *objA, struct quillHeaderAllow const *objB);
QUILL_API bool quillHeaderAllowEquals(struct quillHeaderAllow const *objA, struct quillHeaderAllow const *objB);
QUILL_API struct quillHeaderAllow *quillHeaderAllowCreateFrom(struct quillHeaderAllow const *source);
/// @}

/// An empty set.
QUILL_API struct quillHeaderAllow *quillHeaderAllowCreate(void);

/// @name Tokens
/// @{
QUILL_API void quillHeaderAllowClearMethods(struct quillHeaderAllow **hdr);
QUILL_API int64_t quillHeaderAllowMethodsLength(struct quillHeaderAllow const *hdr);
QUILL_API struct coString *quillHeaderAllowMethodAt(struct quillHeaderAllow const *hdr, int64_t index);
QUILL_API struct coVector *quillHeaderAllowMethodsVector(struct quillHeaderAllow const *hdr);
QUILL_API void quillHeaderAllowSetMethodsVector(struct quillHeaderAllow **hdr, struct coVector const *vec);
QUILL_API bool quillHeaderAllowHasMethod(struct quillHeaderAllow const *hdr, struct coString const *method);
QUILL_API bool quillHeaderAllowHasMethodCstr(struct quillHeaderAllow const *hdr, char const *method, int64_t length);
QUILL_API bool quillHeaderAllowHasMethodWcstr(struct quillHeaderAllow const *hdr, wchar_t const *method,
                                              int64_t length);
QUILL_API void quillHeaderAllowSetMethod(struct quillHeaderAllow **hdr, struct coString *method);
QUILL_API void quillHeaderAllowSetMethodCstr(struct quillHeaderAllow **hdr, char const *method, int64_t length);
QUILL_API void quillHeaderAllowSetMethodWcstr(struct quillHeaderAllow **hdr, wchar_t const *method, int64_t length);
QUILL_API void quillHeaderAllowDelMethod(struct quillHeaderAllow **hdr, struct coString const *method);
QUILL_API void quillHeaderAllowDelMethodCstr(struct quillHeaderAllow **hdr, char const *method, int64_t length);
QUILL_API void quillHeaderAllowDelMethodWcstr(struct quillHeaderAllow **hdr, wchar_t const *method, int64_t length);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderAllowEncode(struct quillHeaderAllow const *hdr);
QUILL_API struct quillHeaderAllow *quillHeaderAllowTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderAllowStore(struct quillHeaderAllow const *hdr);
QUILL_API struct quillHeaderAllow *quillHeaderAllowTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderAllowPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderAllowEncodeToMessage(struct quillHeaderAllow const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderAllow *quillHeaderAllowTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderAllowRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
