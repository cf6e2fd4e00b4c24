// The Supported header field. Grammar and contract: quill_header_supported.h.

#define CO_UNIT "source/quill/quill_header_supported"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_supported.h>
#include <quill/quill_option_tag.h>

QUILL_DEFINE_SET_HEADER(Supported, SUPPORTED, OptionTag, optionTag, quill___SkipOptionTag, co::asciiLower,
                        quill___SkipComma, U",")
QUILL_DEFINE_SET_TEXT_FORMS(Supported, OptionTag, optionTag)
