// Response numbers of RSeq and RAck. Contract: quill_response_num.h.

#define CO_UNIT "source/quill/quill_response_num"

#include <quill/quill_response_num.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_INTEGER_VALUE(ResponseNum, responseNum, 1, UINT32_MAX)

bool quillResponseNumIncrementOk(int64_t responseNum) {
    CO_ASSERT_OK(quillResponseNumOk, responseNum);
    return quillResponseNumOk(responseNum + 1);
}
