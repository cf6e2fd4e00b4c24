/// @file
/// Causes of Reason (RFC 3326, 2), kept as text.
///
///     cause = 1*DIGIT
#ifndef QUILL_QUILL_REASON_CAUSE_H
#define QUILL_QUILL_REASON_CAUSE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillReasonCauseOk(struct coString const *reasonCause);

CO_EXTERN_C_END

#endif
