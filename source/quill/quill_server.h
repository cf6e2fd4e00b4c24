/// @file
/// What the Server header field holds (RFC 3261, 20.35).
///
///     server-val *(LWS server-val)
#ifndef QUILL_QUILL_SERVER_H
#define QUILL_QUILL_SERVER_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillServerOk(struct coString const *server);

CO_EXTERN_C_END

#endif
