/// @file
/// Texts of warnings (RFC 3261, 20.43), unquoted.
///
///     warn-text = quoted-string
#ifndef QUILL_QUILL_WARN_TEXT_H
#define QUILL_QUILL_WARN_TEXT_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// Any quotable string.
QUILL_API bool quillWarnTextOk(struct coString const *warnText);

CO_EXTERN_C_END

#endif
