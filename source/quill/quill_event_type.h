/// @file
/// Event packages with their templates (RFC 6665, 8.4), compared as they are.
///
///     event-type = event-package *( "." event-template )
#ifndef QUILL_QUILL_EVENT_TYPE_H
#define QUILL_QUILL_EVENT_TYPE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillEventTypeOk(struct coString const *eventType);

CO_EXTERN_C_END

#endif
