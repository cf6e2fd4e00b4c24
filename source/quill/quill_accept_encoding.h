/// @file
/// One value of an Accept-Encoding header field (RFC 3261, 20.2).
///
///     encoding     = codings *( SEMI accept-param )
///     codings      = content-coding / "*"
///     accept-param = ( "q" EQUAL qvalue ) / generic-param
///
/// Object family, members, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_ACCEPT_ENCODING_H
#define QUILL_QUILL_ACCEPT_ENCODING_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by content coding, q-value, then parameters.
/// @{
QUILL_API struct coSort const *quillAcceptEncodingSort(void);
QUILL_API void quillAcceptEncodingRetain(struct quillAcceptEncoding *obj);
QUILL_API void quillAcceptEncodingRelease(struct quillAcceptEncoding *obj);
QUILL_API struct coObj *quillAcceptEncodingObj(struct quillAcceptEncoding const *acceptEncoding);
QUILL_API struct quillAcceptEncoding *quillAcceptEncodingFrom(struct coObj const *obj);
QUILL_API struct coString *quillAcceptEncodingToString(struct quillAcceptEncoding const *obj);
QUILL_API int quillAcceptEncodingCompare(struct quillAcceptEncoding const *objA,
                                         struct quillAcceptEncoding const *objB);
QUILL_API bool quillAcceptEncodingEquals(struct quillAcceptEncoding const *objA,
                                         struct quillAcceptEncoding const *objB);
QUILL_API struct quillAcceptEncoding *quillAcceptEncodingCreateFrom(struct quillAcceptEncoding const *source);
/// @}

/// Any coding: "*" without parameters.
QUILL_API struct quillAcceptEncoding *quillAcceptEncodingCreate(void);

QUILL_API struct quillAcceptEncoding *quillAcceptEncodingCreateWithContentCoding(struct coString *contentCoding);

/// @name Content coding: a token, kept in lower case; absent for "*"
/// @{
QUILL_API struct coString *quillAcceptEncodingContentCoding(struct quillAcceptEncoding const *acceptEncoding);
QUILL_API bool quillAcceptEncodingHasContentCoding(struct quillAcceptEncoding const *acceptEncoding);
QUILL_API void quillAcceptEncodingSetContentCoding(struct quillAcceptEncoding **acceptEncoding,
                                                   struct coString *contentCoding);
QUILL_API void quillAcceptEncodingDelContentCoding(struct quillAcceptEncoding **acceptEncoding);
/// @}

/// @name Parameters other than q; never null
/// @{
QUILL_API struct quillGenericParams *quillAcceptEncodingGenericParams(struct quillAcceptEncoding const *acceptEncoding);
QUILL_API void quillAcceptEncodingSetGenericParams(struct quillAcceptEncoding **acceptEncoding,
                                                   struct quillGenericParams *genericParams);
/// @}

/// @name q-value: 0 to 1000, in thousandths; optional
/// @{
QUILL_API int64_t quillAcceptEncodingQvalue(struct quillAcceptEncoding const *acceptEncoding);
QUILL_API bool quillAcceptEncodingHasQvalue(struct quillAcceptEncoding const *acceptEncoding);
QUILL_API void quillAcceptEncodingSetQvalue(struct quillAcceptEncoding **acceptEncoding, int64_t qvalue);
QUILL_API void quillAcceptEncodingDelQvalue(struct quillAcceptEncoding **acceptEncoding);
/// @}

CO_EXTERN_C_END

#endif
