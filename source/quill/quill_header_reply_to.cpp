// The Reply-To header field. Grammar and contract: quill_header_reply_to.h.

#define CO_UNIT "source/quill/quill_header_reply_to"

#include <quill/quill_address_header.hpp>
#include <quill/quill_header_reply_to.h>

QUILL_DEFINE_ADDRESS_HEADER(ReplyTo, REPLY_TO)
