/// @file
/// The History-Info header field: the targets that a request was sent to, in order (RFC 7044, 5).
///
///     History-Info = "History-Info" HCOLON hi-entry *( COMMA hi-entry )
///
/// A list of quillHistoryInfo. An entry without an index stays in the list; to decode it gives null.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_HISTORY_INFO_H
#define QUILL_QUILL_HEADER_HISTORY_INFO_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderHistoryInfoSort(void);
QUILL_API void quillHeaderHistoryInfoRetain(struct quillHeaderHistoryInfo *obj);
QUILL_API void quillHeaderHistoryInfoRelease(struct quillHeaderHistoryInfo *obj);
QUILL_API struct coObj *quillHeaderHistoryInfoObj(struct quillHeaderHistoryInfo const *hdr);
QUILL_API struct quillHeaderHistoryInfo *quillHeaderHistoryInfoFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderHistoryInfoToString(struct quillHeaderHistoryInfo const *obj);
QUILL_API int quillHeaderHistoryInfoCompare(struct quillHeaderHistoryInfo const *objA,
                                            struct quillHeaderHistoryInfo const *objB);
QUILL_API bool quillHeaderHistoryInfoEquals(struct quillHeaderHistoryInfo const *objA,
                                            struct quillHeaderHistoryInfo const *objB);
QUILL_API struct quillHeaderHistoryInfo *quillHeaderHistoryInfoCreateFrom(struct quillHeaderHistoryInfo const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderHistoryInfo *quillHeaderHistoryInfoCreate(void);

/// @name Elements
/// @{
QUILL_API void quillHeaderHistoryInfoClearHistoryInfos(struct quillHeaderHistoryInfo **hdr);
QUILL_API int64_t quillHeaderHistoryInfoHistoryInfosLength(struct quillHeaderHistoryInfo const *hdr);
QUILL_API struct quillHistoryInfo *
quillHeaderHistoryInfoTryDecodeHistoryInfoAt(struct quillHeaderHistoryInfo const *hdr, int64_t index);
QUILL_API void quillHeaderHistoryInfoSetHistoryInfoAt(struct quillHeaderHistoryInfo **hdr, int64_t index,
                                                      struct quillHistoryInfo const *historyInfo);
QUILL_API void quillHeaderHistoryInfoDelHistoryInfoAt(struct quillHeaderHistoryInfo **hdr, int64_t index);
QUILL_API void quillHeaderHistoryInfoPrependHistoryInfo(struct quillHeaderHistoryInfo **hdr,
                                                        struct quillHistoryInfo const *historyInfo);
QUILL_API void quillHeaderHistoryInfoAppendHistoryInfo(struct quillHeaderHistoryInfo **hdr,
                                                       struct quillHistoryInfo const *historyInfo);
QUILL_API void quillHeaderHistoryInfoInsertHistoryInfo(struct quillHeaderHistoryInfo **hdr, int64_t index,
                                                       struct quillHistoryInfo const *historyInfo);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderHistoryInfoEncode(struct quillHeaderHistoryInfo const *hdr);
QUILL_API struct quillHeaderHistoryInfo *quillHeaderHistoryInfoTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderHistoryInfoStore(struct quillHeaderHistoryInfo const *hdr);
QUILL_API struct quillHeaderHistoryInfo *quillHeaderHistoryInfoTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderHistoryInfoPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderHistoryInfoEncodeToMessage(struct quillHeaderHistoryInfo const *hdr,
                                                     struct quillMessage **msg);
QUILL_API struct quillHeaderHistoryInfo *quillHeaderHistoryInfoTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderHistoryInfoRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
