/// @file
/// One media range of an Accept header field (RFC 3261, 20.1).
///
///     accept-range = media-range *( SEMI accept-param )
///     media-range  = ( "*/*" / ( m-type SLASH "*" ) / ( m-type SLASH m-subtype ) ) *( SEMI m-parameter )
///     accept-param = ( "q" EQUAL qvalue ) / generic-param
///
/// Object family, members, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_ACCEPT_H
#define QUILL_QUILL_ACCEPT_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by media type, subtype, q-value, then parameters.
/// @{
QUILL_API struct coSort const *quillAcceptSort(void);
QUILL_API void quillAcceptRetain(struct quillAccept *obj);
QUILL_API void quillAcceptRelease(struct quillAccept *obj);
QUILL_API struct coObj *quillAcceptObj(struct quillAccept const *accept);
QUILL_API struct quillAccept *quillAcceptFrom(struct coObj const *obj);
QUILL_API struct coString *quillAcceptToString(struct quillAccept const *obj);
QUILL_API int quillAcceptCompare(struct quillAccept const *objA, struct quillAccept const *objB);
QUILL_API bool quillAcceptEquals(struct quillAccept const *objA, struct quillAccept const *objB);
QUILL_API struct quillAccept *quillAcceptCreateFrom(struct quillAccept const *source);
/// @}

/// Everything: "*/*" without parameters.
QUILL_API struct quillAccept *quillAcceptCreate(void);

/// @name Media type: a token, kept in lower case; absent for "*"
/// @{
QUILL_API struct coString *quillAcceptMediaType(struct quillAccept const *accept);
QUILL_API bool quillAcceptHasMediaType(struct quillAccept const *accept);
QUILL_API void quillAcceptSetMediaType(struct quillAccept **accept, struct coString *mediaType);
QUILL_API void quillAcceptDelMediaType(struct quillAccept **accept);
/// @}

/// @name Media subtype: a token, kept in lower case; absent for "*"
/// @{
QUILL_API struct coString *quillAcceptMediaSubtype(struct quillAccept const *accept);
QUILL_API bool quillAcceptHasMediaSubtype(struct quillAccept const *accept);
QUILL_API void quillAcceptSetMediaSubtype(struct quillAccept **accept, struct coString *mediaSubtype);
QUILL_API void quillAcceptDelMediaSubtype(struct quillAccept **accept);
/// @}

/// @name Parameters other than q; never null
/// @{
QUILL_API struct quillGenericParams *quillAcceptGenericParams(struct quillAccept const *accept);
QUILL_API void quillAcceptSetGenericParams(struct quillAccept **accept, struct quillGenericParams *genericParams);
/// @}

/// @name q-value: 0 to 1000, in thousandths; optional
/// @{
QUILL_API int64_t quillAcceptQvalue(struct quillAccept const *accept);
QUILL_API bool quillAcceptHasQvalue(struct quillAccept const *accept);
QUILL_API void quillAcceptSetQvalue(struct quillAccept **accept, int64_t qvalue);
QUILL_API void quillAcceptDelQvalue(struct quillAccept **accept);
/// @}

CO_EXTERN_C_END

#endif
