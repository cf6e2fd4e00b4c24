/// @file
/// Message identifiers of Referred-By (RFC 3892, 3), without their quotes.
///
///     dot-atom "@" (dot-atom / host)
#ifndef QUILL_QUILL_SIP_CLEAN_MSG_ID_H
#define QUILL_QUILL_SIP_CLEAN_MSG_ID_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillSipCleanMsgIdOk(struct coString const *sipCleanMsgId);

CO_EXTERN_C_END

#endif
