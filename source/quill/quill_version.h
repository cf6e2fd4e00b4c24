/// @file
/// The protocol name and version of start lines and Via values, "SIP/2.0" nearly always (RFC 3261, 7.1 and 25.1).
///
///     version = protocol-name SLASH protocol-version
///
/// Object family, members, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_VERSION_H
#define QUILL_QUILL_VERSION_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by name, then version.
/// @{
QUILL_API struct coSort const *quillVersionSort(void);
QUILL_API void quillVersionRetain(struct quillVersion *obj);
QUILL_API void quillVersionRelease(struct quillVersion *obj);
QUILL_API struct coObj *quillVersionObj(struct quillVersion const *version);
QUILL_API struct quillVersion *quillVersionFrom(struct coObj const *obj);
QUILL_API struct coString *quillVersionToString(struct quillVersion const *obj);
QUILL_API int quillVersionCompare(struct quillVersion const *objA, struct quillVersion const *objB);
QUILL_API bool quillVersionEquals(struct quillVersion const *objA, struct quillVersion const *objB);
QUILL_API struct quillVersion *quillVersionCreateFrom(struct quillVersion const *source);
/// @}

QUILL_API struct quillVersion *quillVersionCreate(struct coString *protocolName, struct coString *protocolVersion);

/// The shared SIP/2.0; nothing is allocated.
QUILL_API struct quillVersion *quillVersionCreateSip20(void);

/// Whether the protocol's name is SIP.
QUILL_API bool quillVersionIsSip(struct quillVersion const *version);
/// Whether it is SIP/2.0.
QUILL_API bool quillVersionIsSip20(struct quillVersion const *version);

/// @name Protocol name: a token, kept in upper case
/// @{
QUILL_API struct coString *quillVersionProtocolName(struct quillVersion const *version);
QUILL_API void quillVersionSetProtocolName(struct quillVersion **version, struct coString *protocolName);
/// @}

/// @name Protocol version: a token, kept in lower case
/// @{
QUILL_API struct coString *quillVersionProtocolVersion(struct quillVersion const *version);
QUILL_API void quillVersionSetProtocolVersion(struct quillVersion **version, struct coString *protocolVersion);
/// @}

CO_EXTERN_C_END

#endif
