// The Allow header field. Grammar and contract: quill_header_allow.h.

#define CO_UNIT "source/quill/quill_header_allow"

#include <quill/quill_header_allow.h>
#include <quill/quill_header_family.hpp>
#include <quill/quill_method.h>

QUILL_DEFINE_SET_HEADER(Allow, ALLOW, Method, method, quill___SkipMethod, co::sameChar, quill___SkipComma, U",")
QUILL_DEFINE_SET_TEXT_FORMS(Allow, Method, method)
