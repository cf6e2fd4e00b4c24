/// @file
/// What the Subject header field holds (RFC 3261, 20.36).
///
///     [TEXT-UTF8-TRIM]
#ifndef QUILL_QUILL_SUBJECT_H
#define QUILL_QUILL_SUBJECT_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// Text and blanks (SP, HTAB), or nothing.
QUILL_API bool quillSubjectOk(struct coString const *subject);
/// Without blanks around it, and with one SP for each run of blanks within.
QUILL_API struct coString *quillSubjectNormalize(struct coString const *subject);

CO_EXTERN_C_END

#endif
