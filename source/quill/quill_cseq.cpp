// Sequence numbers of CSeq. Contract: quill_cseq.h.

#define CO_UNIT "source/quill/quill_cseq"

#include <quill/quill_cseq.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_INTEGER_VALUE(Cseq, cseq, 0, INT32_MAX)

// A valid number is far from where a sum would overflow.

bool quillCseqIncrementOk(int64_t cseq) {
    CO_ASSERT_OK(quillCseqOk, cseq);
    return quillCseqOk(cseq + 1);
}

bool quillCseqScarce(int64_t cseq) {
    CO_ASSERT_OK(quillCseqOk, cseq);
    return !quillCseqOk(cseq + 100);
}
