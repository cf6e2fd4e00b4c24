/// @file
/// The User-Agent header field: the software that asks (RFC 3261, 20.41).
///
///     User-Agent = "User-Agent" HCOLON server-val *( LWS server-val )
///     server-val = product / comment
///     product    = token [ SLASH product-version ]
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_USER_AGENT_H
#define QUILL_QUILL_HEADER_USER_AGENT_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderUserAgentSort(void);
QUILL_API void quillHeaderUserAgentRetain(struct quillHeaderUserAgent *obj);
QUILL_API void quillHeaderUserAgentRelease(struct quillHeaderUserAgent *obj);
QUILL_API struct coObj *quillHeaderUserAgentObj(struct quillHeaderUserAgent const *hdr);
QUILL_API struct quillHeaderUserAgent *quillHeaderUserAgentFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderUserAgentToString(struct quillHeaderUserAgent const *obj);
QUILL_API int quillHeaderUserAgentCompare(struct quillHeaderUserAgent const *objA,
                                          struct quillHeaderUserAgent const *objB);
QUILL_API bool quillHeaderUserAgentEquals(struct quillHeaderUserAgent const *objA,
                                          struct quillHeaderUserAgent const *objB);
QUILL_API struct quillHeaderUserAgent *quillHeaderUserAgentCreateFrom(struct quillHeaderUserAgent const *source);
/// @}

QUILL_API struct quillHeaderUserAgent *quillHeaderUserAgentCreate(struct coString *userAgent);

/// @name User agent: the text as a whole
/// @{
QUILL_API struct coString *quillHeaderUserAgentUserAgent(struct quillHeaderUserAgent const *hdr);
QUILL_API void quillHeaderUserAgentSetUserAgent(struct quillHeaderUserAgent **hdr, struct coString *userAgent);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderUserAgentEncode(struct quillHeaderUserAgent const *hdr);
QUILL_API struct quillHeaderUserAgent *quillHeaderUserAgentTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderUserAgentStore(struct quillHeaderUserAgent const *hdr);
QUILL_API struct quillHeaderUserAgent *quillHeaderUserAgentTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderUserAgentPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderUserAgentEncodeToMessage(struct quillHeaderUserAgent const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderUserAgent *quillHeaderUserAgentTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderUserAgentRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
