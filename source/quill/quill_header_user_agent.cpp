// The User-Agent header field. Grammar and contract: quill_header_user_agent.h.

#define CO_UNIT "source/quill/quill_header_user_agent"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_user_agent.h>
#include <quill/quill_user_agent.h>

QUILL_DEFINE_TEXT_HEADER(UserAgent, USER_AGENT, UserAgent, userAgent)
