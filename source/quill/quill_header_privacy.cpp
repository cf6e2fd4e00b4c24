// The Privacy header field. Grammar and contract: quill_header_privacy.h.

#define CO_UNIT "source/quill/quill_header_privacy"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_privacy.h>
#include <quill/quill_priv_value.h>

QUILL_DEFINE_SET_HEADER(Privacy, PRIVACY, PrivValue, privValue, quill___SkipPrivValue, co::asciiLower, quill___SkipSemi,
                        U";")
QUILL_DEFINE_SET_TEXT_FORMS(Privacy, PrivValue, privValue)
