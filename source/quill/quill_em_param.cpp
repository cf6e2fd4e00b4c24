// Values of P-Early-Media (RFC 5009, 8). Contract: quill_em_param.h.

#define CO_UNIT "source/quill/quill_em_param"

#include <quill/quill_em_param.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(EmParam, emParam, quill___SkipEmParam)
