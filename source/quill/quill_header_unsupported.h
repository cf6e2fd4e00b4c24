/// @file
/// The Unsupported header field: the extensions that were required in vain (RFC 3261, 20.40).
///
///     Unsupported = "Unsupported" HCOLON option-tag *( COMMA option-tag )
///
/// A set of option tags, kept in lower case.
///
/// Object family, sets, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_UNSUPPORTED_H
#define QUILL_QUILL_HEADER_UNSUPPORTED_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderUnsupportedSort(void);
QUILL_API void quillHeaderUnsupportedRetain(struct quillHeaderUnsupported *obj);
QUILL_API void quillHeaderUnsupportedRelease(struct quillHeaderUnsupported *obj);
QUILL_API struct coObj *quillHeaderUnsupportedObj(struct quillHeaderUnsupported const *hdr);
QUILL_API struct quillHeaderUnsupported *quillHeaderUnsupportedFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderUnsupportedToString(struct quillHeaderUnsupported const *obj);
QUILL_API int quillHeaderUnsupportedCompare(struct quillHeaderUnsupported const *objA,
                                            struct quillHeaderUnsupported const *objB);
QUILL_API bool quillHeaderUnsupportedEquals(struct quillHeaderUnsupported const *objA,
                                            struct quillHeaderUnsupported const *objB);
QUILL_API struct quillHeaderUnsupported *quillHeaderUnsupportedCreateFrom(struct quillHeaderUnsupported const *source);
/// @}

/// An empty set.
QUILL_API struct quillHeaderUnsupported *quillHeaderUnsupportedCreate(void);

/// @name Tokens
/// @{
QUILL_API void quillHeaderUnsupportedClearOptionTags(struct quillHeaderUnsupported **hdr);
QUILL_API int64_t quillHeaderUnsupportedOptionTagsLength(struct quillHeaderUnsupported const *hdr);
QUILL_API struct coString *quillHeaderUnsupportedOptionTagAt(struct quillHeaderUnsupported const *hdr, int64_t index);
QUILL_API struct coVector *quillHeaderUnsupportedOptionTagsVector(struct quillHeaderUnsupported const *hdr);
QUILL_API void quillHeaderUnsupportedSetOptionTagsVector(struct quillHeaderUnsupported **hdr,
                                                         struct coVector const *vec);
QUILL_API bool quillHeaderUnsupportedHasOptionTag(struct quillHeaderUnsupported const *hdr,
                                                  struct coString const *optionTag);
QUILL_API void quillHeaderUnsupportedSetOptionTag(struct quillHeaderUnsupported **hdr, struct coString *optionTag);
QUILL_API void quillHeaderUnsupportedDelOptionTag(struct quillHeaderUnsupported **hdr,
                                                  struct coString const *optionTag);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderUnsupportedEncode(struct quillHeaderUnsupported const *hdr);
QUILL_API struct quillHeaderUnsupported *quillHeaderUnsupportedTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderUnsupportedStore(struct quillHeaderUnsupported const *hdr);
QUILL_API struct quillHeaderUnsupported *quillHeaderUnsupportedTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderUnsupportedPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderUnsupportedEncodeToMessage(struct quillHeaderUnsupported const *hdr,
                                                     struct quillMessage **msg);
QUILL_API struct quillHeaderUnsupported *quillHeaderUnsupportedTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderUnsupportedRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
