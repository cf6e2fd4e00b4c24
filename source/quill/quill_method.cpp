// Methods (RFC 3261, 7.1), whose letter case counts. Contract: quill_method.h.

#define CO_UNIT "source/quill/quill_method"

#include <quill/quill_method.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(Method, method, quill___SkipMethod)
