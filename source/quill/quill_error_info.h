/// @file
/// One value of an Error-Info header field: where to find more on a failure (RFC 3261, 20.18).
///
///     error-uri = LAQUOT absoluteURI RAQUOT *( SEMI generic-param )
///
/// Object family, members, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_ERROR_INFO_H
#define QUILL_QUILL_ERROR_INFO_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by identifier, then parameters.
/// @{
QUILL_API struct coSort const *quillErrorInfoSort(void);
QUILL_API void quillErrorInfoRetain(struct quillErrorInfo *obj);
QUILL_API void quillErrorInfoRelease(struct quillErrorInfo *obj);
QUILL_API struct coObj *quillErrorInfoObj(struct quillErrorInfo const *errorInfo);
QUILL_API struct quillErrorInfo *quillErrorInfoFrom(struct coObj const *obj);
QUILL_API struct coString *quillErrorInfoToString(struct quillErrorInfo const *obj);
QUILL_API int quillErrorInfoCompare(struct quillErrorInfo const *objA, struct quillErrorInfo const *objB);
QUILL_API bool quillErrorInfoEquals(struct quillErrorInfo const *objA, struct quillErrorInfo const *objB);
QUILL_API struct quillErrorInfo *quillErrorInfoCreateFrom(struct quillErrorInfo const *source);
/// @}

QUILL_API struct quillErrorInfo *quillErrorInfoCreate(struct coString *iri);

/// @name Identifier: an IRI, which stands on the wire as a URI
/// @{
QUILL_API struct coString *quillErrorInfoIri(struct quillErrorInfo const *errorInfo);
QUILL_API void quillErrorInfoSetIri(struct quillErrorInfo **errorInfo, struct coString *iri);
/// @}

/// @name Parameters; never null
/// @{
QUILL_API struct quillGenericParams *quillErrorInfoGenericParams(struct quillErrorInfo const *errorInfo);
QUILL_API void quillErrorInfoSetGenericParams(struct quillErrorInfo **errorInfo,
                                              struct quillGenericParams *genericParams);
/// @}

CO_EXTERN_C_END

#endif
