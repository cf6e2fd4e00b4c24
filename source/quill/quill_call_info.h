/// @file
/// One value of a Call-Info header field: where to find more on the caller or the called (RFC 3261, 20.9).
///
///     info       = LAQUOT absoluteURI RAQUOT *( SEMI info-param )
///     info-param = ( "purpose" EQUAL ( "icon" / "info" / "card" / token ) ) / generic-param
///
/// Object family, members, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_CALL_INFO_H
#define QUILL_QUILL_CALL_INFO_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by identifier, purpose, then parameters.
/// @{
QUILL_API struct coSort const *quillCallInfoSort(void);
QUILL_API void quillCallInfoRetain(struct quillCallInfo *obj);
QUILL_API void quillCallInfoRelease(struct quillCallInfo *obj);
QUILL_API struct coObj *quillCallInfoObj(struct quillCallInfo const *callInfo);
QUILL_API struct quillCallInfo *quillCallInfoFrom(struct coObj const *obj);
QUILL_API struct coString *quillCallInfoToString(struct quillCallInfo const *obj);
QUILL_API int quillCallInfoCompare(struct quillCallInfo const *objA, struct quillCallInfo const *objB);
QUILL_API bool quillCallInfoEquals(struct quillCallInfo const *objA, struct quillCallInfo const *objB);
QUILL_API struct quillCallInfo *quillCallInfoCreateFrom(struct quillCallInfo const *source);
/// @}

QUILL_API struct quillCallInfo *quillCallInfoCreate(struct coString *iri);

/// @name Identifier: an IRI, which stands on the wire as a URI
/// @{
QUILL_API struct coString *quillCallInfoIri(struct quillCallInfo const *callInfo);
QUILL_API void quillCallInfoSetIri(struct quillCallInfo **callInfo, struct coString *iri);
/// @}

/// @name Purpose: a token, kept in lower case; optional
/// @{
QUILL_API struct coString *quillCallInfoPurpose(struct quillCallInfo const *callInfo);
QUILL_API bool quillCallInfoHasPurpose(struct quillCallInfo const *callInfo);
QUILL_API void quillCallInfoSetPurpose(struct quillCallInfo **callInfo, struct coString *purpose);
QUILL_API void quillCallInfoDelPurpose(struct quillCallInfo **callInfo);
/// @}

/// @name Parameters other than purpose; never null
/// @{
QUILL_API struct quillGenericParams *quillCallInfoGenericParams(struct quillCallInfo const *callInfo);
QUILL_API void quillCallInfoSetGenericParams(struct quillCallInfo **callInfo, struct quillGenericParams *genericParams);
/// @}

CO_EXTERN_C_END

#endif
