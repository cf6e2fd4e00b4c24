/// @file
/// Whether a diversion was screened (RFC 5806): a token or a quoted string.
///
///     diversion-screen = "screen" EQUAL ( "yes" / "no" / token / quoted-string )
#ifndef QUILL_QUILL_DIVERSION_SCREEN_H
#define QUILL_QUILL_DIVERSION_SCREEN_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillDiversionScreenOk(struct coString const *diversionScreen);
/// In lower case, what stands in quotes included. Any text may be given.
QUILL_API struct coString *quillDiversionScreenNormalize(struct coString const *diversionScreen);

CO_EXTERN_C_END

#endif
