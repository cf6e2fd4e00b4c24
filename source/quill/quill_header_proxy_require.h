/// @file
/// The Proxy-Require header field: the extensions that proxies must understand (RFC 3261, 20.29).
///
///     Proxy-Require = "Proxy-Require" HCOLON option-tag *( COMMA option-tag )
///
/// A set of option tags, kept in lower case.
///
/// Object family, sets, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_PROXY_REQUIRE_H
#define QUILL_QUILL_HEADER_PROXY_REQUIRE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderProxyRequireSort(void);
QUILL_API void quillHeaderProxyRequireRetain(struct quillHeaderProxyRequire *obj);
QUILL_API void quillHeaderProxyRequireRelease(struct quillHeaderProxyRequire *obj);
QUILL_API struct coObj *quillHeaderProxyRequireObj(struct quillHeaderProxyRequire const *hdr);
QUILL_API struct quillHeaderProxyRequire *quillHeaderProxyRequireFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderProxyRequireToString(struct quillHeaderProxyRequire const *obj);
QUILL_API int quillHeaderProxyRequireCompare(struct quillHeaderProxyRequire const *objA,
                                             struct quillHeaderProxyRequire const *objB);
QUILL_API bool quillHeaderProxyRequireEquals(struct quillHeaderProxyRequire const *objA,
                                             struct quillHeaderProxyRequire const *objB);
QUILL_API struct quillHeaderProxyRequire *
quillHeaderProxyRequireCreateFrom(struct quillHeaderProxyRequire const *source);
/// @}

/// An empty set.
QUILL_API struct quillHeaderProxyRequire *quillHeaderProxyRequireCreate(void);

/// @name Tokens
/// @{
QUILL_API void quillHeaderProxyRequireClearOptionTags(struct quillHeaderProxyRequire **hdr);
QUILL_API int64_t quillHeaderProxyRequireOptionTagsLength(struct quillHeaderProxyRequire const *hdr);
QUILL_API struct coString *quillHeaderProxyRequireOptionTagAt(struct quillHeaderProxyRequire const *hdr, int64_t index);
QUILL_API struct coVector *quillHeaderProxyRequireOptionTagsVector(struct quillHeaderProxyRequire const *hdr);
QUILL_API void quillHeaderProxyRequireSetOptionTagsVector(struct quillHeaderProxyRequire **hdr,
                                                          struct coVector const *vec);
QUILL_API bool quillHeaderProxyRequireHasOptionTag(struct quillHeaderProxyRequire const *hdr,
                                                   struct coString const *optionTag);
QUILL_API bool quillHeaderProxyRequireHasOptionTagCstr(struct quillHeaderProxyRequire const *hdr, char const *optionTag,
                                                       int64_t length);
QUILL_API bool quillHeaderProxyRequireHasOptionTagWcstr(struct quillHeaderProxyRequire const *hdr,
                                                        wchar_t const *optionTag, int64_t length);
QUILL_API void quillHeaderProxyRequireSetOptionTag(struct quillHeaderProxyRequire **hdr, struct coString *optionTag);
QUILL_API void quillHeaderProxyRequireSetOptionTagCstr(struct quillHeaderProxyRequire **hdr, char const *optionTag,
                                                       int64_t length);
QUILL_API void quillHeaderProxyRequireSetOptionTagWcstr(struct quillHeaderProxyRequire **hdr, wchar_t const *optionTag,
                                                        int64_t length);
QUILL_API void quillHeaderProxyRequireDelOptionTag(struct quillHeaderProxyRequire **hdr,
                                                   struct coString const *optionTag);
QUILL_API void quillHeaderProxyRequireDelOptionTagCstr(struct quillHeaderProxyRequire **hdr, char const *optionTag,
                                                       int64_t length);
QUILL_API void quillHeaderProxyRequireDelOptionTagWcstr(struct quillHeaderProxyRequire **hdr, wchar_t const *optionTag,
                                                        int64_t length);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderProxyRequireEncode(struct quillHeaderProxyRequire const *hdr);
QUILL_API struct quillHeaderProxyRequire *quillHeaderProxyRequireTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderProxyRequireStore(struct quillHeaderProxyRequire const *hdr);
QUILL_API struct quillHeaderProxyRequire *quillHeaderProxyRequireTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderProxyRequirePresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderProxyRequireEncodeToMessage(struct quillHeaderProxyRequire const *hdr,
                                                      struct quillMessage **msg);
QUILL_API struct quillHeaderProxyRequire *quillHeaderProxyRequireTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderProxyRequireRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
