/// @file
/// One value of a History-Info header field: a target that a request had (RFC 7044, 5).
///
///     hi-entry        = name-addr *( SEMI hi-param )
///     hi-param        = hi-index / hi-target-param / hi-extension
///     hi-index        = "index" EQUAL index-val
///     hi-target-param = rc-param / mp-param / np-param
///     rc-param        = "rc" EQUAL index-val
///     mp-param        = "mp" EQUAL index-val
///     np-param        = "np" EQUAL index-val
///     index-val       = number *( "." number )
///     hi-extension    = generic-param
///
/// An element without an index, or with none that is valid, is no value. The index is written before all other
/// parameters.
///
/// Object family, members, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HISTORY_INFO_H
#define QUILL_QUILL_HISTORY_INFO_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by identifier, display name, index, rc, mp, np, then parameters.
/// @{
QUILL_API struct coSort const *quillHistoryInfoSort(void);
QUILL_API void quillHistoryInfoRetain(struct quillHistoryInfo *obj);
QUILL_API void quillHistoryInfoRelease(struct quillHistoryInfo *obj);
QUILL_API struct coObj *quillHistoryInfoObj(struct quillHistoryInfo const *historyInfo);
QUILL_API struct quillHistoryInfo *quillHistoryInfoFrom(struct coObj const *obj);
QUILL_API struct coString *quillHistoryInfoToString(struct quillHistoryInfo const *obj);
QUILL_API int quillHistoryInfoCompare(struct quillHistoryInfo const *objA, struct quillHistoryInfo const *objB);
QUILL_API bool quillHistoryInfoEquals(struct quillHistoryInfo const *objA, struct quillHistoryInfo const *objB);
QUILL_API struct quillHistoryInfo *quillHistoryInfoCreateFrom(struct quillHistoryInfo const *source);
/// @}

QUILL_API struct quillHistoryInfo *quillHistoryInfoCreate(struct coString *iri, struct coString *index);

/// @name Identifier: an IRI, which stands on the wire as a URI
/// @{
QUILL_API struct coString *quillHistoryInfoIri(struct quillHistoryInfo const *historyInfo);
QUILL_API void quillHistoryInfoSetIri(struct quillHistoryInfo **historyInfo, struct coString *iri);
/// @}

/// @name Display name: text without its quotes; optional
/// @{
QUILL_API struct coString *quillHistoryInfoDisplayName(struct quillHistoryInfo const *historyInfo);
QUILL_API bool quillHistoryInfoHasDisplayName(struct quillHistoryInfo const *historyInfo);
QUILL_API void quillHistoryInfoSetDisplayName(struct quillHistoryInfo **historyInfo, struct coString *displayName);
QUILL_API void quillHistoryInfoDelDisplayName(struct quillHistoryInfo **historyInfo);
/// @}

/// @name Index: numbers with dots between them, as text
/// @{
QUILL_API struct coString *quillHistoryInfoIndex(struct quillHistoryInfo const *historyInfo);
QUILL_API void quillHistoryInfoSetIndex(struct quillHistoryInfo **historyInfo, struct coString *index);
/// @}

/// @name rc: the index of the value whose target was changed to this one; optional
/// @{
QUILL_API struct coString *quillHistoryInfoRc(struct quillHistoryInfo const *historyInfo);
QUILL_API bool quillHistoryInfoHasRc(struct quillHistoryInfo const *historyInfo);
QUILL_API void quillHistoryInfoSetRc(struct quillHistoryInfo **historyInfo, struct coString *rc);
QUILL_API void quillHistoryInfoDelRc(struct quillHistoryInfo **historyInfo);
/// @}

/// @name mp: the index of the value whose target was mapped to this one; optional
/// @{
QUILL_API struct coString *quillHistoryInfoMp(struct quillHistoryInfo const *historyInfo);
QUILL_API bool quillHistoryInfoHasMp(struct quillHistoryInfo const *historyInfo);
QUILL_API void quillHistoryInfoSetMp(struct quillHistoryInfo **historyInfo, struct coString *mp);
QUILL_API void quillHistoryInfoDelMp(struct quillHistoryInfo **historyInfo);
/// @}

/// @name np: the index of the value whose target was not changed; optional
/// @{
QUILL_API struct coString *quillHistoryInfoNp(struct quillHistoryInfo const *historyInfo);
QUILL_API bool quillHistoryInfoHasNp(struct quillHistoryInfo const *historyInfo);
QUILL_API void quillHistoryInfoSetNp(struct quillHistoryInfo **historyInfo, struct coString *np);
QUILL_API void quillHistoryInfoDelNp(struct quillHistoryInfo **historyInfo);
/// @}

/// @name Parameters other than these; never null
/// @{
QUILL_API struct quillGenericParams *quillHistoryInfoGenericParams(struct quillHistoryInfo const *historyInfo);
QUILL_API void quillHistoryInfoSetGenericParams(struct quillHistoryInfo **historyInfo,
                                                struct quillGenericParams *genericParams);
/// @}

CO_EXTERN_C_END

#endif
