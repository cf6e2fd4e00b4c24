// Why a call was diverted (RFC 5806): a token or a quoted string. Contract: quill_diversion_reason.h.

#define CO_UNIT "source/quill/quill_diversion_reason"

#include <quill/quill_diversion_reason.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_DIVERSION_VALUE(DiversionReason, diversionReason, quill___SkipDiversionReason)
