// Privacy of a diversion (RFC 5806): a token or a quoted string. Contract: quill_diversion_privacy.h.

#define CO_UNIT "source/quill/quill_diversion_privacy"

#include <quill/quill_diversion_privacy.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_DIVERSION_VALUE(DiversionPrivacy, diversionPrivacy, quill___SkipDiversionPrivacy)
