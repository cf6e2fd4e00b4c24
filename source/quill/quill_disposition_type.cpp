// Disposition types (RFC 3261, 20.11). Contract: quill_disposition_type.h.

#define CO_UNIT "source/quill/quill_disposition_type"

#include <quill/quill_disposition_type.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(DispositionType, dispositionType, quill___SkipDispositionType)
QUILL_DEFINE_LOWER_NORMALIZE(DispositionType, dispositionType)
