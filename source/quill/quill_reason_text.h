/// @file
/// Texts of Reason (RFC 3326, 2), unquoted.
///
///     reason-text = "text" EQUAL quoted-string
#ifndef QUILL_QUILL_REASON_TEXT_H
#define QUILL_QUILL_REASON_TEXT_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// Any quotable string.
QUILL_API bool quillReasonTextOk(struct coString const *reasonText);

CO_EXTERN_C_END

#endif
