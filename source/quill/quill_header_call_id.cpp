// The Call-Id header field. Grammar and contract: quill_header_call_id.h.

#define CO_UNIT "source/quill/quill_header_call_id"

#include <quill/quill_call_id.h>
#include <quill/quill_header_call_id.h>
#include <quill/quill_header_family.hpp>

QUILL_DEFINE_TEXT_HEADER(CallId, CALL_ID, CallId, callId)
