// Values of Resource-Priority (RFC 4412, 3.1). Contract: quill_rvalue.h.

#define CO_UNIT "source/quill/quill_rvalue"

#include <quill/quill_rvalue.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(Rvalue, rvalue, quill___SkipRvalue)
