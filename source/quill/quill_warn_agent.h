/// @file
/// Who adds a warning (RFC 3261, 20.43).
///
///     warn-agent = hostport / pseudonym
#ifndef QUILL_QUILL_WARN_AGENT_H
#define QUILL_QUILL_WARN_AGENT_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillWarnAgentOk(struct coString const *warnAgent);

CO_EXTERN_C_END

#endif
