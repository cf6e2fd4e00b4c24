// What the User-Agent header field holds (RFC 3261, 20.41). Contract: quill_user_agent.h.

#define CO_UNIT "source/quill/quill_user_agent"

#include <quill/quill_scalar.hpp>
#include <quill/quill_user_agent.h>

QUILL_DEFINE_TEXT_VALUE(UserAgent, userAgent, quill___SkipUserAgent)
