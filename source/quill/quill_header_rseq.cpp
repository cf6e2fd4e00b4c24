// The Rseq header field. Grammar and contract: quill_header_rseq.h.

#define CO_UNIT "source/quill/quill_header_rseq"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_rseq.h>
#include <quill/quill_response_num.h>

QUILL_DEFINE_INTEGER_HEADER(Rseq, RSEQ, ResponseNum, responseNum)
