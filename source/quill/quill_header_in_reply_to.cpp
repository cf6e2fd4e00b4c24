// The In-Reply-To header field. Grammar and contract: quill_header_in_reply_to.h.

#define CO_UNIT "source/quill/quill_header_in_reply_to"

#include <quill/quill_call_id.h>
#include <quill/quill_header_family.hpp>
#include <quill/quill_header_in_reply_to.h>

QUILL_DEFINE_SET_HEADER(InReplyTo, IN_REPLY_TO, CallId, callId, quill___SkipCallId, co::sameChar, quill___SkipComma,
                        U",")
