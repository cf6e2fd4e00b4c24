// The Require header field. Grammar and contract: quill_header_require.h.

#define CO_UNIT "source/quill/quill_header_require"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_require.h>
#include <quill/quill_option_tag.h>

QUILL_DEFINE_SET_HEADER(Require, REQUIRE, OptionTag, optionTag, quill___SkipOptionTag, co::asciiLower,
                        quill___SkipComma, U",")
QUILL_DEFINE_SET_TEXT_FORMS(Require, OptionTag, optionTag)
