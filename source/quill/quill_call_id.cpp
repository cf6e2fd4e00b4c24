// Call identifiers (RFC 3261, 20.8), compared as they are. Contract: quill_call_id.h.

#define CO_UNIT "source/quill/quill_call_id"

#include <quill/quill_call_id.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(CallId, callId, quill___SkipCallId)
