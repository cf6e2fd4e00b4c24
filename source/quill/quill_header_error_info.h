/// @file
/// The Error-Info header field: where more is told about an error response (RFC 3261, 20.18).
///
///     Error-Info = "Error-Info" HCOLON error-uri *( COMMA error-uri )
///
/// A list of quillErrorInfo.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_ERROR_INFO_H
#define QUILL_QUILL_HEADER_ERROR_INFO_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderErrorInfoSort(void);
QUILL_API void quillHeaderErrorInfoRetain(struct quillHeaderErrorInfo *obj);
QUILL_API void quillHeaderErrorInfoRelease(struct quillHeaderErrorInfo *obj);
QUILL_API struct coObj *quillHeaderErrorInfoObj(struct quillHeaderErrorInfo const *hdr);
QUILL_API struct quillHeaderErrorInfo *quillHeaderErrorInfoFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderErrorInfoToString(struct quillHeaderErrorInfo const *obj);
QUILL_API int quillHeaderErrorInfoCompare(struct quillHeaderErrorInfo const *objA,
                                          struct quillHeaderErrorInfo const *objB);
QUILL_API bool quillHeaderErrorInfoEquals(struct quillHeaderErrorInfo const *objA,
                                          struct quillHeaderErrorInfo const *objB);
QUILL_API struct quillHeaderErrorInfo *quillHeaderErrorInfoCreateFrom(struct quillHeaderErrorInfo const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderErrorInfo *quillHeaderErrorInfoCreate(void);

/// @name Elements
/// @{
QUILL_API void quillHeaderErrorInfoClearErrorInfos(struct quillHeaderErrorInfo **hdr);
QUILL_API int64_t quillHeaderErrorInfoErrorInfosLength(struct quillHeaderErrorInfo const *hdr);
QUILL_API struct quillErrorInfo *quillHeaderErrorInfoTryDecodeErrorInfoAt(struct quillHeaderErrorInfo const *hdr,
                                                                          int64_t index);
QUILL_API void quillHeaderErrorInfoSetErrorInfoAt(struct quillHeaderErrorInfo **hdr, int64_t index,
                                                  struct quillErrorInfo const *errorInfo);
QUILL_API void quillHeaderErrorInfoDelErrorInfoAt(struct quillHeaderErrorInfo **hdr, int64_t index);
QUILL_API void quillHeaderErrorInfoPrependErrorInfo(struct quillHeaderErrorInfo **hdr,
                                                    struct quillErrorInfo const *errorInfo);
QUILL_API void quillHeaderErrorInfoAppendErrorInfo(struct quillHeaderErrorInfo **hdr,
                                                   struct quillErrorInfo const *errorInfo);
QUILL_API void quillHeaderErrorInfoInsertErrorInfo(struct quillHeaderErrorInfo **hdr, int64_t index,
                                                   struct quillErrorInfo const *errorInfo);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderErrorInfoEncode(struct quillHeaderErrorInfo const *hdr);
QUILL_API struct quillHeaderErrorInfo *quillHeaderErrorInfoTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderErrorInfoStore(struct quillHeaderErrorInfo const *hdr);
QUILL_API struct quillHeaderErrorInfo *quillHeaderErrorInfoTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderErrorInfoPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderErrorInfoEncodeToMessage(struct quillHeaderErrorInfo const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderErrorInfo *quillHeaderErrorInfoTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderErrorInfoRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
