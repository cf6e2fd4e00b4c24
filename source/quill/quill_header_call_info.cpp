// The Call-Info header field. Grammar and contract: quill_header_call_info.h.

#define CO_UNIT "source/quill/quill_header_call_info"

#include <quill/quill_header_call_info.h>
#include <quill/quill_header_family.hpp>

QUILL_DEFINE_VALUE_LIST_HEADER(CallInfo, CALL_INFO, CallInfo, callInfo, quill___SkipCallInfo)
