/// @file
/// What the User-Agent header field holds (RFC 3261, 20.41).
///
///     server-val *(LWS server-val)
#ifndef QUILL_QUILL_USER_AGENT_H
#define QUILL_QUILL_USER_AGENT_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillUserAgentOk(struct coString const *userAgent);

CO_EXTERN_C_END

#endif
