// Option tags (RFC 3261, 19.2). Contract: quill_option_tag.h.

#define CO_UNIT "source/quill/quill_option_tag"

#include <quill/quill_option_tag.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(OptionTag, optionTag, quill___SkipOptionTag)
QUILL_DEFINE_LOWER_NORMALIZE(OptionTag, optionTag)
