// Causes of Reason (RFC 3326, 2), kept as text. Contract: quill_reason_cause.h.

#define CO_UNIT "source/quill/quill_reason_cause"

#include <quill/quill_reason_cause.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(ReasonCause, reasonCause, quill___SkipReasonCause)
