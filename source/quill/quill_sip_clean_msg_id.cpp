// Message identifiers of Referred-By (RFC 3892, 3), without their quotes. Contract: quill_sip_clean_msg_id.h.

#define CO_UNIT "source/quill/quill_sip_clean_msg_id"

#include <quill/quill_scalar.hpp>
#include <quill/quill_sip_clean_msg_id.h>

QUILL_DEFINE_TEXT_VALUE(SipCleanMsgId, sipCleanMsgId, quill___SkipSipCleanMsgId)
