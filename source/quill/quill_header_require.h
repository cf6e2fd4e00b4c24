/// @file
/// The Require header field: the extensions that the other side must understand (RFC 3261, 20.32).
///
///     Require = "Require" HCOLON option-tag *( COMMA option-tag )
///
/// A set of option tags, kept in lower case.
///
/// Object family, sets, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_REQUIRE_H
#define QUILL_QUILL_HEADER_REQUIRE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderRequireSort(void);
QUILL_API void quillHeaderRequireRetain(struct quillHeaderRequire *obj);
QUILL_API void quillHeaderRequireRelease(struct quillHeaderRequire *obj);
QUILL_API struct coObj *quillHeaderRequireObj(struct quillHeaderRequire const *hdr);
QUILL_API struct quillHeaderRequire *quillHeaderRequireFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderRequireToString(struct quillHeaderRequire const *obj);
QUILL_API int quillHeaderRequireCompare(struct quillHeaderRequire const *objA, struct quillHeaderRequire const *objB);
QUILL_API bool quillHeaderRequireEquals(struct quillHeaderRequire const *objA, struct quillHeaderRequire const *objB);
QUILL_API struct quillHeaderRequire *quillHeaderRequireCreateFrom(struct quillHeaderRequire const *source);
/// @}

/// An empty set.
QUILL_API struct quillHeaderRequire *quillHeaderRequireCreate(void);

/// @name Tokens
/// @{
QUILL_API void quillHeaderRequireClearOptionTags(struct quillHeaderRequire **hdr);
QUILL_API int64_t quillHeaderRequireOptionTagsLength(struct quillHeaderRequire const *hdr);
QUILL_API struct coString *quillHeaderRequireOptionTagAt(struct quillHeaderRequire const *hdr, int64_t index);
QUILL_API struct coVector *quillHeaderRequireOptionTagsVector(struct quillHeaderRequire const *hdr);
QUILL_API void quillHeaderRequireSetOptionTagsVector(struct quillHeaderRequire **hdr, struct coVector const *vec);
QUILL_API bool quillHeaderRequireHasOptionTag(struct quillHeaderRequire const *hdr, struct coString const *optionTag);
QUILL_API bool quillHeaderRequireHasOptionTagCstr(struct quillHeaderRequire const *hdr, char const *optionTag,
                                                  int64_t length);
QUILL_API bool quillHeaderRequireHasOptionTagWcstr(struct quillHeaderRequire const *hdr, wchar_t const *optionTag,
                                                   int64_t length);
QUILL_API void quillHeaderRequireSetOptionTag(struct quillHeaderRequire **hdr, struct coString *optionTag);
QUILL_API void quillHeaderRequireSetOptionTagCstr(struct quillHeaderRequire **hdr, char const *optionTag,
                                                  int64_t length);
QUILL_API void quillHeaderRequireSetOptionTagWcstr(struct quillHeaderRequire **hdr, wchar_t const *optionTag,
                                                   int64_t length);
QUILL_API void quillHeaderRequireDelOptionTag(struct quillHeaderRequire **hdr, struct coString const *optionTag);
QUILL_API void quillHeaderRequireDelOptionTagCstr(struct quillHeaderRequire **hdr, char const *optionTag,
                                                  int64_t length);
QUILL_API void quillHeaderRequireDelOptionTagWcstr(struct quillHeaderRequire **hdr, wchar_t const *optionTag,
                                                   int64_t length);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderRequireEncode(struct quillHeaderRequire const *hdr);
QUILL_API struct quillHeaderRequire *quillHeaderRequireTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderRequireStore(struct quillHeaderRequire const *hdr);
QUILL_API struct quillHeaderRequire *quillHeaderRequireTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderRequirePresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderRequireEncodeToMessage(struct quillHeaderRequire const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderRequire *quillHeaderRequireTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderRequireRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
