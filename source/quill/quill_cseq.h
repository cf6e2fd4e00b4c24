/// @file
/// Sequence numbers of CSeq (RFC 3261, 8.1.1.5).
#ifndef QUILL_QUILL_CSEQ_H
#define QUILL_QUILL_CSEQ_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// 0 to 2^31 - 1.
QUILL_API bool quillCseqOk(int64_t cseq);
/// Whether the next number is valid, too.
QUILL_API bool quillCseqIncrementOk(int64_t cseq);
/// Whether less than 100 numbers are left.
QUILL_API bool quillCseqScarce(int64_t cseq);

CO_EXTERN_C_END

#endif
