/// @file
/// What the Timestamp header field holds (RFC 3261, 20.38).
///
///     1*(DIGIT) [ "." *(DIGIT) ] [ LWS delay ]
#ifndef QUILL_QUILL_TIMESTAMP_VALUE_H
#define QUILL_QUILL_TIMESTAMP_VALUE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillTimestampValueOk(struct coString const *timestampValue);

CO_EXTERN_C_END

#endif
