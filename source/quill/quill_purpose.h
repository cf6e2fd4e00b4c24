/// @file
/// The purpose parameter of Call-Info (RFC 3261, 20.9).
///
///     info-param = ( "purpose" EQUAL ( "icon" / "info" / "card" / token ) ) / generic-param
#ifndef QUILL_QUILL_PURPOSE_H
#define QUILL_QUILL_PURPOSE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillPurposeOk(struct coString const *purpose);
/// In lower case.
QUILL_API struct coString *quillPurposeNormalize(struct coString const *purpose);

CO_EXTERN_C_END

#endif
