/// @file
/// Codes of warnings and their default texts (RFC 3261, 20.43).
///
///     warn-code = 3DIGIT
#ifndef QUILL_QUILL_WARN_CODE_H
#define QUILL_QUILL_WARN_CODE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// 0 to 999.
QUILL_API bool quillWarnCodeOk(int64_t warnCode);
/// The default text, for a code that has none `Warning "007"`.
QUILL_API struct coString *quillWarnCodeToString(int64_t warnCode);

CO_EXTERN_C_END

#endif
