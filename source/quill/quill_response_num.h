/// @file
/// Response numbers of RSeq and RAck (RFC 3262, 7.1).
///
///     response-num = 1*DIGIT
#ifndef QUILL_QUILL_RESPONSE_NUM_H
#define QUILL_QUILL_RESPONSE_NUM_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// 1 to 2^32 - 1.
QUILL_API bool quillResponseNumOk(int64_t responseNum);
/// Whether the next number is valid, too.
QUILL_API bool quillResponseNumIncrementOk(int64_t responseNum);

CO_EXTERN_C_END

#endif
