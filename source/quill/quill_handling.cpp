// The handling parameter of Content-Disposition (RFC 3261, 20.11). Contract: quill_handling.h.

#define CO_UNIT "source/quill/quill_handling"

#include <quill/quill_handling.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(Handling, handling, quill___SkipHandling)
QUILL_DEFINE_LOWER_NORMALIZE(Handling, handling)
