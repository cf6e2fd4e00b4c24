/// @file
/// Values of Priority (RFC 3261, 20.26).
///
///     priority-value = "emergency" / "urgent" / "normal" / "non-urgent" / other-priority
#ifndef QUILL_QUILL_PRIORITY_VALUE_H
#define QUILL_QUILL_PRIORITY_VALUE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillPriorityValueOk(struct coString const *priorityValue);
/// In lower case.
QUILL_API struct coString *quillPriorityValueNormalize(struct coString const *priorityValue);

CO_EXTERN_C_END

#endif
