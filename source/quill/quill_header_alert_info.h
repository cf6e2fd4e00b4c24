/// @file
/// The Alert-Info header field: alternative ring tones (RFC 3261, 20.4).
///
///     Alert-Info = "Alert-Info" HCOLON alert-param *( COMMA alert-param )
///
/// A list of quillAlertInfo.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_ALERT_INFO_H
#define QUILL_QUILL_HEADER_ALERT_INFO_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderAlertInfoSort(void);
QUILL_API void quillHeaderAlertInfoRetain(struct quillHeaderAlertInfo *obj);
QUILL_API void quillHeaderAlertInfoRelease(struct quillHeaderAlertInfo *obj);
QUILL_API struct coObj *quillHeaderAlertInfoObj(struct quillHeaderAlertInfo const *hdr);
QUILL_API struct quillHeaderAlertInfo *quillHeaderAlertInfoFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderAlertInfoToString(struct quillHeaderAlertInfo const *obj);
QUILL_API int quillHeaderAlertInfoCompare(struct quillHeaderAlertInfo const *objA,
                                          struct quillHeaderAlertInfo const *objB);
QUILL_API bool quillHeaderAlertInfoEquals(struct quillHeaderAlertInfo const *objA,
                                          struct quillHeaderAlertInfo const *objB);
QUILL_API struct quillHeaderAlertInfo *quillHeaderAlertInfoCreateFrom(struct quillHeaderAlertInfo const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderAlertInfo *quillHeaderAlertInfoCreate(void);

/// @name Elements
/// @{
QUILL_API void quillHeaderAlertInfoClearAlertInfos(struct quillHeaderAlertInfo **hdr);
QUILL_API int64_t quillHeaderAlertInfoAlertInfosLength(struct quillHeaderAlertInfo const *hdr);
QUILL_API struct quillAlertInfo *quillHeaderAlertInfoTryDecodeAlertInfoAt(struct quillHeaderAlertInfo const *hdr,
                                                                          int64_t index);
QUILL_API void quillHeaderAlertInfoSetAlertInfoAt(struct quillHeaderAlertInfo **hdr, int64_t index,
                                                  struct quillAlertInfo const *alertInfo);
QUILL_API void quillHeaderAlertInfoDelAlertInfoAt(struct quillHeaderAlertInfo **hdr, int64_t index);
QUILL_API void quillHeaderAlertInfoPrependAlertInfo(struct quillHeaderAlertInfo **hdr,
                                                    struct quillAlertInfo const *alertInfo);
QUILL_API void quillHeaderAlertInfoAppendAlertInfo(struct quillHeaderAlertInfo **hdr,
                                                   struct quillAlertInfo const *alertInfo);
QUILL_API void quillHeaderAlertInfoInsertAlertInfo(struct quillHeaderAlertInfo **hdr, int64_t index,
                                                   struct quillAlertInfo const *alertInfo);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderAlertInfoEncode(struct quillHeaderAlertInfo const *hdr);
QUILL_API struct quillHeaderAlertInfo *quillHeaderAlertInfoTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderAlertInfoStore(struct quillHeaderAlertInfo const *hdr);
QUILL_API struct quillHeaderAlertInfo *quillHeaderAlertInfoTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderAlertInfoPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderAlertInfoEncodeToMessage(struct quillHeaderAlertInfo const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderAlertInfo *quillHeaderAlertInfoTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderAlertInfoRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
