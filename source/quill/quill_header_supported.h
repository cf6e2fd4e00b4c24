/// @file
/// The Supported header field: the extensions that the sender supports (RFC 3261, 20.37).
///
///     Supported = ( "Supported" / "k" ) HCOLON [ option-tag *( COMMA option-tag ) ]
///
/// A set of option tags, kept in lower case.
///
/// Object family, sets, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_SUPPORTED_H
#define QUILL_QUILL_HEADER_SUPPORTED_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderSupportedSort(void);
QUILL_API void quillHeaderSupportedRetain(struct quillHeaderSupported *obj);
QUILL_API void quillHeaderSupportedRelease(struct quillHeaderSupported *obj);
QUILL_API struct coObj *quillHeaderSupportedObj(struct quillHeaderSupported const *hdr);
QUILL_API struct quillHeaderSupported *quillHeaderSupportedFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderSupportedToString(struct quillHeaderSupported const *obj);
QUILL_API int quillHeaderSupportedCompare(struct quillHeaderSupported const *objA,
                                          struct quillHeaderSupported const *objB);
QUILL_API bool quillHeaderSupportedEquals(struct quillHeaderSupported const *objA,
                                          struct quillHeaderSupported const *objB);
QUILL_API struct quillHeaderSupported *quillHeaderSupportedCreateFrom(struct quillHeaderSupported const *source);
/// @}

/// An empty set.
QUILL_API struct quillHeaderSupported *quillHeaderSupportedCreate(void);

/// @name Tokens
/// @{
QUILL_API void quillHeaderSupportedClearOptionTags(struct quillHeaderSupported **hdr);
QUILL_API int64_t quillHeaderSupportedOptionTagsLength(struct quillHeaderSupported const *hdr);
QUILL_API struct coString *quillHeaderSupportedOptionTagAt(struct quillHeaderSupported const *hdr, int64_t index);
QUILL_API struct coVector *quillHeaderSupportedOptionTagsVector(struct quillHeaderSupported const *hdr);
QUILL_API void quillHeaderSupportedSetOptionTagsVector(struct quillHeaderSupported **hdr, struct coVector const *vec);
QUILL_API bool quillHeaderSupportedHasOptionTag(struct quillHeaderSupported const *hdr,
                                                struct coString const *optionTag);
QUILL_API bool quillHeaderSupportedHasOptionTagCstr(struct quillHeaderSupported const *hdr, char const *optionTag,
                                                    int64_t length);
QUILL_API bool quillHeaderSupportedHasOptionTagWcstr(struct quillHeaderSupported const *hdr, wchar_t const *optionTag,
                                                     int64_t length);
QUILL_API void quillHeaderSupportedSetOptionTag(struct quillHeaderSupported **hdr, struct coString *optionTag);
QUILL_API void quillHeaderSupportedSetOptionTagCstr(struct quillHeaderSupported **hdr, char const *optionTag,
                                                    int64_t length);
QUILL_API void quillHeaderSupportedSetOptionTagWcstr(struct quillHeaderSupported **hdr, wchar_t const *optionTag,
                                                     int64_t length);
QUILL_API void quillHeaderSupportedDelOptionTag(struct quillHeaderSupported **hdr, struct coString const *optionTag);
QUILL_API void quillHeaderSupportedDelOptionTagCstr(struct quillHeaderSupported **hdr, char const *optionTag,
                                                    int64_t length);
QUILL_API void quillHeaderSupportedDelOptionTagWcstr(struct quillHeaderSupported **hdr, wchar_t const *optionTag,
                                                     int64_t length);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderSupportedEncode(struct quillHeaderSupported const *hdr);
QUILL_API struct quillHeaderSupported *quillHeaderSupportedTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderSupportedStore(struct quillHeaderSupported const *hdr);
QUILL_API struct quillHeaderSupported *quillHeaderSupportedTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderSupportedPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderSupportedEncodeToMessage(struct quillHeaderSupported const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderSupported *quillHeaderSupportedTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderSupportedRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
