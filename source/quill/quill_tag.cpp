// Tags of From and To (RFC 3261, 19.3), compared as they are. Contract: quill_tag.h.

#define CO_UNIT "source/quill/quill_tag"

#include <quill/quill_scalar.hpp>
#include <quill/quill_tag.h>

QUILL_DEFINE_TEXT_VALUE(Tag, tag, quill___SkipTag)
