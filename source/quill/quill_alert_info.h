/// @file
/// One value of an Alert-Info header field: where to find a ringing tone (RFC 3261, 20.4).
///
///     alert-param = LAQUOT absoluteURI RAQUOT *( SEMI generic-param )
///
/// Object family, members, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_ALERT_INFO_H
#define QUILL_QUILL_ALERT_INFO_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by identifier, then parameters.
/// @{
QUILL_API struct coSort const *quillAlertInfoSort(void);
QUILL_API void quillAlertInfoRetain(struct quillAlertInfo *obj);
QUILL_API void quillAlertInfoRelease(struct quillAlertInfo *obj);
QUILL_API struct coObj *quillAlertInfoObj(struct quillAlertInfo const *alertInfo);
QUILL_API struct quillAlertInfo *quillAlertInfoFrom(struct coObj const *obj);
QUILL_API struct coString *quillAlertInfoToString(struct quillAlertInfo const *obj);
QUILL_API int quillAlertInfoCompare(struct quillAlertInfo const *objA, struct quillAlertInfo const *objB);
QUILL_API bool quillAlertInfoEquals(struct quillAlertInfo const *objA, struct quillAlertInfo const *objB);
QUILL_API struct quillAlertInfo *quillAlertInfoCreateFrom(struct quillAlertInfo const *source);
/// @}

QUILL_API struct quillAlertInfo *quillAlertInfoCreate(struct coString *iri);

/// @name Identifier: an IRI, which stands on the wire as a URI
/// @{
QUILL_API struct coString *quillAlertInfoIri(struct quillAlertInfo const *alertInfo);
QUILL_API void quillAlertInfoSetIri(struct quillAlertInfo **alertInfo, struct coString *iri);
/// @}

/// @name Parameters; never null
/// @{
QUILL_API struct quillGenericParams *quillAlertInfoGenericParams(struct quillAlertInfo const *alertInfo);
QUILL_API void quillAlertInfoSetGenericParams(struct quillAlertInfo **alertInfo,
                                              struct quillGenericParams *genericParams);
/// @}

CO_EXTERN_C_END

#endif
