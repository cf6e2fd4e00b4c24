// Who adds a warning (RFC 3261, 20.43). Contract: quill_warn_agent.h.

#define CO_UNIT "source/quill/quill_warn_agent"

#include <quill/quill_scalar.hpp>
#include <quill/quill_warn_agent.h>

QUILL_DEFINE_TEXT_VALUE(WarnAgent, warnAgent, quill___SkipWarnAgent)
