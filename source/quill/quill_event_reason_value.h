/// @file
/// Why a subscription ended (RFC 6665, 8.4).
///
///     event-reason-value = "deactivated" / "probation" / "rejected" / "timeout" / "giveup" / "noresource"
///                        / "invariant" / event-reason-extension
#ifndef QUILL_QUILL_EVENT_REASON_VALUE_H
#define QUILL_QUILL_EVENT_REASON_VALUE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillEventReasonValueOk(struct coString const *eventReasonValue);
/// In lower case.
QUILL_API struct coString *quillEventReasonValueNormalize(struct coString const *eventReasonValue);

CO_EXTERN_C_END

#endif
