/// @file
/// The Warning header field: more about the status of a response (RFC 3261, 20.43).
///
///     Warning = "Warning" HCOLON warning-value *( COMMA warning-value )
///
/// A list of quillWarningValue.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_WARNING_H
#define QUILL_QUILL_HEADER_WARNING_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderWarningSort(void);
QUILL_API void quillHeaderWarningRetain(struct quillHeaderWarning *obj);
QUILL_API void quillHeaderWarningRelease(struct quillHeaderWarning *obj);
QUILL_API struct coObj *quillHeaderWarningObj(struct quillHeaderWarning const *hdr);
QUILL_API struct quillHeaderWarning *quillHeaderWarningFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderWarningToString(struct quillHeaderWarning const *obj);
QUILL_API int quillHeaderWarningCompare(struct quillHeaderWarning const *objA, struct quillHeaderWarning const *objB);
QUILL_API bool quillHeaderWarningEquals(struct quillHeaderWarning const *objA, struct quillHeaderWarning const *objB);
QUILL_API struct quillHeaderWarning *quillHeaderWarningCreateFrom(struct quillHeaderWarning const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderWarning *quillHeaderWarningCreate(void);

/// @name Elements
/// @{
/// Noun before verb, unlike the others.
QUILL_API void quillHeaderWarningWarningsClear(struct quillHeaderWarning **hdr);
QUILL_API int64_t quillHeaderWarningWarningsLength(struct quillHeaderWarning const *hdr);
QUILL_API struct quillWarningValue *quillHeaderWarningTryDecodeWarningAt(struct quillHeaderWarning const *hdr,
                                                                         int64_t index);
QUILL_API void quillHeaderWarningSetWarningAt(struct quillHeaderWarning **hdr, int64_t index,
                                              struct quillWarningValue const *warning);
QUILL_API void quillHeaderWarningDelWarningAt(struct quillHeaderWarning **hdr, int64_t index);
QUILL_API void quillHeaderWarningPrependWarning(struct quillHeaderWarning **hdr,
                                                struct quillWarningValue const *warning);
QUILL_API void quillHeaderWarningAppendWarning(struct quillHeaderWarning **hdr,
                                               struct quillWarningValue const *warning);
QUILL_API void quillHeaderWarningInsertWarning(struct quillHeaderWarning **hdr, int64_t index,
                                               struct quillWarningValue const *warning);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderWarningEncode(struct quillHeaderWarning const *hdr);
QUILL_API struct quillHeaderWarning *quillHeaderWarningTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderWarningStore(struct quillHeaderWarning const *hdr);
QUILL_API struct quillHeaderWarning *quillHeaderWarningTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderWarningPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderWarningEncodeToMessage(struct quillHeaderWarning const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderWarning *quillHeaderWarningTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderWarningRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
