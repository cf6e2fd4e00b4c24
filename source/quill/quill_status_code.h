/// @file
/// Status codes of responses and their default reason phrases (RFC 3261, 7.2 and 21).
///
///     Status-Code = 3DIGIT
#ifndef QUILL_QUILL_STATUS_CODE_H
#define QUILL_QUILL_STATUS_CODE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// The status code of what is no response.
#define QUILL_STATUS_CODE_INVALID (-1)

/// 100 to 999.
QUILL_API bool quillStatusCodeOk(int64_t statusCode);

/// @name Classes
/// Valid codes from 700 belong to none.
/// @{
QUILL_API bool quillStatusCodeInformational(int64_t statusCode);
QUILL_API bool quillStatusCodeSuccess(int64_t statusCode);
QUILL_API bool quillStatusCodeRedirection(int64_t statusCode);
QUILL_API bool quillStatusCodeClientError(int64_t statusCode);
QUILL_API bool quillStatusCodeServerError(int64_t statusCode);
QUILL_API bool quillStatusCodeGlobalFailure(int64_t statusCode);
/// @}

/// The default reason phrase, for a code that has none `Unknown reason "204"`.
QUILL_API struct coString *quillStatusCodeReasonPhrase(int64_t statusCode);

CO_EXTERN_C_END

#endif
