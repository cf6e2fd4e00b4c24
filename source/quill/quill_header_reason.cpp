// The Reason header field. Grammar and contract: quill_header_reason.h.

#define CO_UNIT "source/quill/quill_header_reason"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_reason.h>

QUILL_DEFINE_VALUE_LIST_HEADER(Reason, REASON, Reason, reason, quill___SkipReason)
