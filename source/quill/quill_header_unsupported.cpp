// The Unsupported header field. Grammar and contract: quill_header_unsupported.h.

#define CO_UNIT "source/quill/quill_header_unsupported"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_unsupported.h>
#include <quill/quill_option_tag.h>

QUILL_DEFINE_SET_HEADER(Unsupported, UNSUPPORTED, OptionTag, optionTag, quill___SkipOptionTag, co::asciiLower,
                        quill___SkipComma, U",")
