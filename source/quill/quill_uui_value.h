/// @file
/// One value of a User-to-User header field (RFC 7433, 4.1).
///
///     UUI-value  = UUI-data *( SEMI UUI-param )
///     UUI-data   = token / quoted-string
///     UUI-param  = pkg-param / cont-param / enc-param / generic-param
///     enc-param  = "encoding" EQUAL ( token / "hex" )
///     pkg-param  = "purpose" EQUAL token
///     cont-param = "content" EQUAL token
///
/// Data that is no token is read, but not written: the text then begins with the first parameter.
///
/// Object family, members, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_UUI_VALUE_H
#define QUILL_QUILL_UUI_VALUE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by data, encoding, purpose, content, then parameters.
/// @{
QUILL_API struct coSort const *quillUuiValueSort(void);
QUILL_API void quillUuiValueRetain(struct quillUuiValue *obj);
QUILL_API void quillUuiValueRelease(struct quillUuiValue *obj);
QUILL_API struct coObj *quillUuiValueObj(struct quillUuiValue const *uuiValue);
QUILL_API struct quillUuiValue *quillUuiValueFrom(struct coObj const *obj);
QUILL_API struct coString *quillUuiValueToString(struct quillUuiValue const *obj);
QUILL_API int quillUuiValueCompare(struct quillUuiValue const *objA, struct quillUuiValue const *objB);
QUILL_API bool quillUuiValueEquals(struct quillUuiValue const *objA, struct quillUuiValue const *objB);
QUILL_API struct quillUuiValue *quillUuiValueCreateFrom(struct quillUuiValue const *source);
/// @}

QUILL_API struct quillUuiValue *quillUuiValueCreate(struct coString *uuiData);

/// @name Data: a token, or the text of a quoted string without its quotes; as given
/// @{
QUILL_API struct coString *quillUuiValueUuiData(struct quillUuiValue const *uuiValue);
QUILL_API void quillUuiValueSetUuiData(struct quillUuiValue **uuiValue, struct coString *uuiData);
/// @}

/// @name Encoding: a token, as given; optional
/// @{
QUILL_API struct coString *quillUuiValueEncoding(struct quillUuiValue const *uuiValue);
QUILL_API bool quillUuiValueHasEncoding(struct quillUuiValue const *uuiValue);
QUILL_API void quillUuiValueSetEncoding(struct quillUuiValue **uuiValue, struct coString *encoding);
QUILL_API void quillUuiValueDelEncoding(struct quillUuiValue **uuiValue);
/// @}

/// @name Purpose: a token, as given; optional
/// @{
QUILL_API struct coString *quillUuiValuePurpose(struct quillUuiValue const *uuiValue);
QUILL_API bool quillUuiValueHasPurpose(struct quillUuiValue const *uuiValue);
QUILL_API void quillUuiValueSetPurpose(struct quillUuiValue **uuiValue, struct coString *purpose);
QUILL_API void quillUuiValueDelPurpose(struct quillUuiValue **uuiValue);
/// @}

/// @name Content: a token, as given; optional
/// @{
QUILL_API struct coString *quillUuiValueContent(struct quillUuiValue const *uuiValue);
QUILL_API bool quillUuiValueHasContent(struct quillUuiValue const *uuiValue);
QUILL_API void quillUuiValueSetContent(struct quillUuiValue **uuiValue, struct coString *content);
QUILL_API void quillUuiValueDelContent(struct quillUuiValue **uuiValue);
/// @}

/// @name Parameters other than these; never null
/// @{
QUILL_API struct quillGenericParams *quillUuiValueGenericParams(struct quillUuiValue const *uuiValue);
QUILL_API void quillUuiValueSetGenericParams(struct quillUuiValue **uuiValue, struct quillGenericParams *genericParams);
/// @}

CO_EXTERN_C_END

#endif
