/// @file
/// The Diversion header field: who diverted the call and why, the latest first (RFC 5806, 3).
///
///     Diversion = "Diversion" ":" 1#( name-addr *( ";" diversion_params ) )
///
/// A list of quillDiversion.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_DIVERSION_H
#define QUILL_QUILL_HEADER_DIVERSION_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderDiversionSort(void);
QUILL_API void quillHeaderDiversionRetain(struct quillHeaderDiversion *obj);
QUILL_API void quillHeaderDiversionRelease(struct quillHeaderDiversion *obj);
QUILL_API struct coObj *quillHeaderDiversionObj(struct quillHeaderDiversion const *hdr);
QUILL_API struct quillHeaderDiversion *quillHeaderDiversionFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderDiversionToString(struct quillHeaderDiversion const *obj);
QUILL_API int quillHeaderDiversionCompare(struct quillHeaderDiversion const *objA,
                                          struct quillHeaderDiversion const *objB);
QUILL_API bool quillHeaderDiversionEquals(struct quillHeaderDiversion const *objA,
                                          struct quillHeaderDiversion const *objB);
QUILL_API struct quillHeaderDiversion *quillHeaderDiversionCreateFrom(struct quillHeaderDiversion const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderDiversion *quillHeaderDiversionCreate(void);

/// @name Elements
/// @{
QUILL_API void quillHeaderDiversionClearDiversions(struct quillHeaderDiversion **hdr);
QUILL_API int64_t quillHeaderDiversionDiversionsLength(struct quillHeaderDiversion const *hdr);
QUILL_API struct quillDiversion *quillHeaderDiversionTryDecodeDiversionAt(struct quillHeaderDiversion const *hdr,
                                                                          int64_t index);
QUILL_API void quillHeaderDiversionSetDiversionAt(struct quillHeaderDiversion **hdr, int64_t index,
                                                  struct quillDiversion const *diversion);
QUILL_API void quillHeaderDiversionDelDiversionAt(struct quillHeaderDiversion **hdr, int64_t index);
QUILL_API void quillHeaderDiversionPrependDiversion(struct quillHeaderDiversion **hdr,
                                                    struct quillDiversion const *diversion);
QUILL_API void quillHeaderDiversionAppendDiversion(struct quillHeaderDiversion **hdr,
                                                   struct quillDiversion const *diversion);
QUILL_API void quillHeaderDiversionInsertDiversion(struct quillHeaderDiversion **hdr, int64_t index,
                                                   struct quillDiversion const *diversion);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderDiversionEncode(struct quillHeaderDiversion const *hdr);
QUILL_API struct quillHeaderDiversion *quillHeaderDiversionTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderDiversionStore(struct quillHeaderDiversion const *hdr);
QUILL_API struct quillHeaderDiversion *quillHeaderDiversionTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderDiversionPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderDiversionEncodeToMessage(struct quillHeaderDiversion const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderDiversion *quillHeaderDiversionTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderDiversionRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
