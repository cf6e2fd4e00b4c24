/// @file
/// The Replaces header field: the dialog that a new one takes the place of (RFC 3891, 6.1).
///
///     Replaces       = "Replaces" HCOLON callid *( SEMI replaces-param )
///     replaces-param = to-tag / from-tag / early-flag / generic-param
///     to-tag         = "to-tag" EQUAL token
///     from-tag       = "from-tag" EQUAL token
///     early-flag     = "early-only"
///
/// Both tags may be missing.
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_REPLACES_H
#define QUILL_QUILL_HEADER_REPLACES_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by call identifier, from-tag, to-tag, early flag, then parameters.
/// @{
QUILL_API struct coSort const *quillHeaderReplacesSort(void);
QUILL_API void quillHeaderReplacesRetain(struct quillHeaderReplaces *obj);
QUILL_API void quillHeaderReplacesRelease(struct quillHeaderReplaces *obj);
QUILL_API struct coObj *quillHeaderReplacesObj(struct quillHeaderReplaces const *hdr);
QUILL_API struct quillHeaderReplaces *quillHeaderReplacesFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderReplacesToString(struct quillHeaderReplaces const *obj);
QUILL_API int quillHeaderReplacesCompare(struct quillHeaderReplaces const *objA,
                                         struct quillHeaderReplaces const *objB);
QUILL_API bool quillHeaderReplacesEquals(struct quillHeaderReplaces const *objA,
                                         struct quillHeaderReplaces const *objB);
QUILL_API struct quillHeaderReplaces *quillHeaderReplacesCreateFrom(struct quillHeaderReplaces const *source);
/// @}

QUILL_API struct quillHeaderReplaces *quillHeaderReplacesCreate(struct coString *callId);

/// @name Call identifier
/// @{
QUILL_API struct coString *quillHeaderReplacesCallId(struct quillHeaderReplaces const *hdr);
QUILL_API void quillHeaderReplacesSetCallId(struct quillHeaderReplaces **hdr, struct coString *callId);
/// @}

/// @name From-tag: a token; optional
/// @{
QUILL_API struct coString *quillHeaderReplacesFromTag(struct quillHeaderReplaces const *hdr);
QUILL_API bool quillHeaderReplacesHasFromTag(struct quillHeaderReplaces const *hdr);
QUILL_API void quillHeaderReplacesSetFromTag(struct quillHeaderReplaces **hdr, struct coString *fromTag);
QUILL_API void quillHeaderReplacesDelFromTag(struct quillHeaderReplaces **hdr);
/// @}

/// @name To-tag: a token; optional
/// @{
QUILL_API struct coString *quillHeaderReplacesToTag(struct quillHeaderReplaces const *hdr);
QUILL_API bool quillHeaderReplacesHasToTag(struct quillHeaderReplaces const *hdr);
QUILL_API void quillHeaderReplacesSetToTag(struct quillHeaderReplaces **hdr, struct coString *toTag);
QUILL_API void quillHeaderReplacesDelToTag(struct quillHeaderReplaces **hdr);
/// @}

/// @name Early flag: only a dialog that is not yet confirmed may be replaced
/// @{
QUILL_API bool quillHeaderReplacesEarlyOnly(struct quillHeaderReplaces const *hdr);
QUILL_API void quillHeaderReplacesSetEarlyOnly(struct quillHeaderReplaces **hdr, bool earlyOnly);
/// @}

/// @name Other parameters; never null
/// @{
QUILL_API struct quillGenericParams *quillHeaderReplacesGenericParams(struct quillHeaderReplaces const *hdr);
QUILL_API void quillHeaderReplacesSetGenericParams(struct quillHeaderReplaces **hdr,
                                                   struct quillGenericParams *genericParams);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderReplacesEncode(struct quillHeaderReplaces const *hdr);
QUILL_API struct quillHeaderReplaces *quillHeaderReplacesTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderReplacesStore(struct quillHeaderReplaces const *hdr);
QUILL_API struct quillHeaderReplaces *quillHeaderReplacesTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderReplacesPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderReplacesEncodeToMessage(struct quillHeaderReplaces const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderReplaces *quillHeaderReplacesTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderReplacesRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
