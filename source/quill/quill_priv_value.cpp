// Values of Privacy (RFC 3323, 4.2). Contract: quill_priv_value.h.

#define CO_UNIT "source/quill/quill_priv_value"

#include <quill/quill_priv_value.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(PrivValue, privValue, quill___SkipPrivValue)
QUILL_DEFINE_LOWER_NORMALIZE(PrivValue, privValue)
