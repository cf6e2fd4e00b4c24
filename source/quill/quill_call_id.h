/// @file
/// Call identifiers (RFC 3261, 20.8), compared as they are.
///
///     callid = word [ "@" word ]
#ifndef QUILL_QUILL_CALL_ID_H
#define QUILL_QUILL_CALL_ID_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillCallIdOk(struct coString const *callId);

CO_EXTERN_C_END

#endif
