/// @file
/// The Via header field: the way that a request has taken, the last hop first (RFC 3261, 20.42).
///
///     Via = ( "Via" / "v" ) HCOLON via-parm *( COMMA via-parm )
///
/// A list of quillVia.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_VIA_H
#define QUILL_QUILL_HEADER_VIA_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderViaSort(void);
QUILL_API void quillHeaderViaRetain(struct quillHeaderVia *obj);
QUILL_API void quillHeaderViaRelease(struct quillHeaderVia *obj);
QUILL_API struct coObj *quillHeaderViaObj(struct quillHeaderVia const *hdr);
QUILL_API struct quillHeaderVia *quillHeaderViaFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderViaToString(struct quillHeaderVia const *obj);
QUILL_API int quillHeaderViaCompare(struct quillHeaderVia const *objA, struct quillHeaderVia const *objB);
QUILL_API bool quillHeaderViaEquals(struct quillHeaderVia const *objA, struct quillHeaderVia const *objB);
QUILL_API struct quillHeaderVia *quillHeaderViaCreateFrom(struct quillHeaderVia const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderVia *quillHeaderViaCreate(void);

/// @name Elements
/// @{
QUILL_API void quillHeaderViaClearVias(struct quillHeaderVia **hdr);
QUILL_API int64_t quillHeaderViaViasLength(struct quillHeaderVia const *hdr);
QUILL_API struct quillVia *quillHeaderViaTryDecodeViaAt(struct quillHeaderVia const *hdr, int64_t index);
QUILL_API void quillHeaderViaSetViaAt(struct quillHeaderVia **hdr, int64_t index, struct quillVia const *via);
QUILL_API void quillHeaderViaDelViaAt(struct quillHeaderVia **hdr, int64_t index);
QUILL_API void quillHeaderViaPrependVia(struct quillHeaderVia **hdr, struct quillVia const *via);
QUILL_API void quillHeaderViaAppendVia(struct quillHeaderVia **hdr, struct quillVia const *via);
QUILL_API void quillHeaderViaInsertVia(struct quillHeaderVia **hdr, int64_t index, struct quillVia const *via);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderViaEncode(struct quillHeaderVia const *hdr);
QUILL_API struct quillHeaderVia *quillHeaderViaTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderViaStore(struct quillHeaderVia const *hdr);
QUILL_API struct quillHeaderVia *quillHeaderViaTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderViaPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderViaEncodeToMessage(struct quillHeaderVia const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderVia *quillHeaderViaTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderViaRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
