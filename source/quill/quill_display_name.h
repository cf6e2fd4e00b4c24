/// @file
/// Display names of addresses (RFC 3261, 25.1), unquoted.
///
///     display-name = *(token LWS) / quoted-string
#ifndef QUILL_QUILL_DISPLAY_NAME_H
#define QUILL_QUILL_DISPLAY_NAME_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// Any quotable string.
QUILL_API bool quillDisplayNameOk(struct coString const *displayName);

CO_EXTERN_C_END

#endif
