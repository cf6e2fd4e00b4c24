/// @file
/// The Content-Disposition header field: how a body is to be understood (RFC 3261, 20.11).
///
///     Content-Disposition = "Content-Disposition" HCOLON disp-type *( SEMI disp-param )
///     disp-type           = "render" / "session" / "icon" / "alert" / disp-extension-token
///     disp-param          = handling-param / generic-param
///     handling-param      = "handling" EQUAL ( "optional" / "required" / other-handling )
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_CONTENT_DISPOSITION_H
#define QUILL_QUILL_HEADER_CONTENT_DISPOSITION_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by disposition type, handling, then parameters.
/// @{
QUILL_API struct coSort const *quillHeaderContentDispositionSort(void);
QUILL_API void quillHeaderContentDispositionRetain(struct quillHeaderContentDisposition *obj);
QUILL_API void quillHeaderContentDispositionRelease(struct quillHeaderContentDisposition *obj);
QUILL_API struct coObj *quillHeaderContentDispositionObj(struct quillHeaderContentDisposition const *hdr);
QUILL_API struct quillHeaderContentDisposition *quillHeaderContentDispositionFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderContentDispositionToString(struct quillHeaderContentDisposition const *obj);
QUILL_API int quillHeaderContentDispositionCompare(struct quillHeaderContentDisposition const *objA,
                                                   struct quillHeaderContentDisposition const *objB);
QUILL_API bool quillHeaderContentDispositionEquals(struct quillHeaderContentDisposition const *objA,
                                                   struct quillHeaderContentDisposition const *objB);
QUILL_API struct quillHeaderContentDisposition *
quillHeaderContentDispositionCreateFrom(struct quillHeaderContentDisposition const *source);
/// @}

QUILL_API struct quillHeaderContentDisposition *quillHeaderContentDispositionCreate(struct coString *dispositionType);

/// @name Disposition type: a token, kept in lower case
/// @{
QUILL_API struct coString *
quillHeaderContentDispositionDispositionType(struct quillHeaderContentDisposition const *hdr);
QUILL_API void quillHeaderContentDispositionSetDispositionType(struct quillHeaderContentDisposition **hdr,
                                                               struct coString *dispositionType);
/// @}

/// @name Handling: a token, kept in lower case; optional
/// @{
QUILL_API struct coString *quillHeaderContentDispositionHandling(struct quillHeaderContentDisposition const *hdr);
QUILL_API bool quillHeaderContentDispositionHasHandling(struct quillHeaderContentDisposition const *hdr);
QUILL_API void quillHeaderContentDispositionSetHandling(struct quillHeaderContentDisposition **hdr,
                                                        struct coString *handling);
QUILL_API void quillHeaderContentDispositionDelHandling(struct quillHeaderContentDisposition **hdr);
/// @}

/// @name Other parameters; never null
/// @{
QUILL_API struct quillGenericParams *
quillHeaderContentDispositionGenericParams(struct quillHeaderContentDisposition const *hdr);
QUILL_API void quillHeaderContentDispositionSetGenericParams(struct quillHeaderContentDisposition **hdr,
                                                             struct quillGenericParams *genericParams);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *
quillHeaderContentDispositionEncode(struct quillHeaderContentDisposition const *hdr);
QUILL_API struct quillHeaderContentDisposition *
quillHeaderContentDispositionTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderContentDispositionStore(struct quillHeaderContentDisposition const *hdr);
QUILL_API struct quillHeaderContentDisposition *quillHeaderContentDispositionTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderContentDispositionPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderContentDispositionEncodeToMessage(struct quillHeaderContentDisposition const *hdr,
                                                            struct quillMessage **msg);
QUILL_API struct quillHeaderContentDisposition *
quillHeaderContentDispositionTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderContentDispositionRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
