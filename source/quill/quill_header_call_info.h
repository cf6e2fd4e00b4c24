/// @file
/// The Call-Info header field: more about the caller or the callee (RFC 3261, 20.9).
///
///     Call-Info = "Call-Info" HCOLON info *( COMMA info )
///
/// A list of quillCallInfo.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_CALL_INFO_H
#define QUILL_QUILL_HEADER_CALL_INFO_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderCallInfoSort(void);
QUILL_API void quillHeaderCallInfoRetain(struct quillHeaderCallInfo *obj);
QUILL_API void quillHeaderCallInfoRelease(struct quillHeaderCallInfo *obj);
QUILL_API struct coObj *quillHeaderCallInfoObj(struct quillHeaderCallInfo const *hdr);
QUILL_API struct quillHeaderCallInfo *quillHeaderCallInfoFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderCallInfoToString(struct quillHeaderCallInfo const *obj);
QUILL_API int quillHeaderCallInfoCompare(struct quillHeaderCallInfo const *objA,
                                         struct quillHeaderCallInfo const *objB);
QUILL_API bool quillHeaderCallInfoEquals(struct quillHeaderCallInfo const *objA,
                                         struct quillHeaderCallInfo const *objB);
QUILL_API struct quillHeaderCallInfo *quillHeaderCallInfoCreateFrom(struct quillHeaderCallInfo const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderCallInfo *quillHeaderCallInfoCreate(void);

/// @name Elements
/// @{
QUILL_API void quillHeaderCallInfoClearCallInfos(struct quillHeaderCallInfo **hdr);
QUILL_API int64_t quillHeaderCallInfoCallInfosLength(struct quillHeaderCallInfo const *hdr);
QUILL_API struct quillCallInfo *quillHeaderCallInfoTryDecodeCallInfoAt(struct quillHeaderCallInfo const *hdr,
                                                                       int64_t index);
QUILL_API void quillHeaderCallInfoSetCallInfoAt(struct quillHeaderCallInfo **hdr, int64_t index,
                                                struct quillCallInfo const *callInfo);
QUILL_API void quillHeaderCallInfoDelCallInfoAt(struct quillHeaderCallInfo **hdr, int64_t index);
QUILL_API void quillHeaderCallInfoPrependCallInfo(struct quillHeaderCallInfo **hdr,
                                                  struct quillCallInfo const *callInfo);
QUILL_API void quillHeaderCallInfoAppendCallInfo(struct quillHeaderCallInfo **hdr,
                                                 struct quillCallInfo const *callInfo);
QUILL_API void quillHeaderCallInfoInsertCallInfo(struct quillHeaderCallInfo **hdr, int64_t index,
                                                 struct quillCallInfo const *callInfo);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderCallInfoEncode(struct quillHeaderCallInfo const *hdr);
QUILL_API struct quillHeaderCallInfo *quillHeaderCallInfoTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderCallInfoStore(struct quillHeaderCallInfo const *hdr);
QUILL_API struct quillHeaderCallInfo *quillHeaderCallInfoTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderCallInfoPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderCallInfoEncodeToMessage(struct quillHeaderCallInfo const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderCallInfo *quillHeaderCallInfoTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderCallInfoRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
