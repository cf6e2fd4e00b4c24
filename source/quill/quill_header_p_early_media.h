/// @file
/// The P-Early-Media header field: in which directions media flow before the answer (RFC 5009, 8).
///
///     P-Early-Media = "P-Early-Media" HCOLON [ em-param *( COMMA em-param ) ]
///
/// A list of early-media parameters, stored as given.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_P_EARLY_MEDIA_H
#define QUILL_QUILL_HEADER_P_EARLY_MEDIA_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderPEarlyMediaSort(void);
QUILL_API void quillHeaderPEarlyMediaRetain(struct quillHeaderPEarlyMedia *obj);
QUILL_API void quillHeaderPEarlyMediaRelease(struct quillHeaderPEarlyMedia *obj);
QUILL_API struct coObj *quillHeaderPEarlyMediaObj(struct quillHeaderPEarlyMedia const *hdr);
QUILL_API struct quillHeaderPEarlyMedia *quillHeaderPEarlyMediaFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderPEarlyMediaToString(struct quillHeaderPEarlyMedia const *obj);
QUILL_API int quillHeaderPEarlyMediaCompare(struct quillHeaderPEarlyMedia const *objA,
                                            struct quillHeaderPEarlyMedia const *objB);
QUILL_API bool quillHeaderPEarlyMediaEquals(struct quillHeaderPEarlyMedia const *objA,
                                            struct quillHeaderPEarlyMedia const *objB);
QUILL_API struct quillHeaderPEarlyMedia *quillHeaderPEarlyMediaCreateFrom(struct quillHeaderPEarlyMedia const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderPEarlyMedia *quillHeaderPEarlyMediaCreate(void);

/// @name Elements
/// @{
QUILL_API void quillHeaderPEarlyMediaClearEmParams(struct quillHeaderPEarlyMedia **hdr);
QUILL_API int64_t quillHeaderPEarlyMediaEmParamsLength(struct quillHeaderPEarlyMedia const *hdr);
QUILL_API struct coString *quillHeaderPEarlyMediaEmParamAt(struct quillHeaderPEarlyMedia const *hdr, int64_t index);
QUILL_API void quillHeaderPEarlyMediaSetEmParamAt(struct quillHeaderPEarlyMedia **hdr, int64_t index,
                                                  struct coString *emParam);
QUILL_API void quillHeaderPEarlyMediaDelEmParamAt(struct quillHeaderPEarlyMedia **hdr, int64_t index);
QUILL_API void quillHeaderPEarlyMediaPrependEmParam(struct quillHeaderPEarlyMedia **hdr, struct coString *emParam);
QUILL_API void quillHeaderPEarlyMediaAppendEmParam(struct quillHeaderPEarlyMedia **hdr, struct coString *emParam);
QUILL_API void quillHeaderPEarlyMediaInsertEmParam(struct quillHeaderPEarlyMedia **hdr, int64_t index,
                                                   struct coString *emParam);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderPEarlyMediaEncode(struct quillHeaderPEarlyMedia const *hdr);
QUILL_API struct quillHeaderPEarlyMedia *quillHeaderPEarlyMediaTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderPEarlyMediaStore(struct quillHeaderPEarlyMedia const *hdr);
QUILL_API struct quillHeaderPEarlyMedia *quillHeaderPEarlyMediaTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderPEarlyMediaPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderPEarlyMediaEncodeToMessage(struct quillHeaderPEarlyMedia const *hdr,
                                                     struct quillMessage **msg);
QUILL_API struct quillHeaderPEarlyMedia *quillHeaderPEarlyMediaTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderPEarlyMediaRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
