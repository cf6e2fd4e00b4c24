// Whether a diversion was screened (RFC 5806): a token or a quoted string. Contract: quill_diversion_screen.h.

#define CO_UNIT "source/quill/quill_diversion_screen"

#include <quill/quill_diversion_screen.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_DIVERSION_VALUE(DiversionScreen, diversionScreen, quill___SkipDiversionScreen)
