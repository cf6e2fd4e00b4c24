// Content codings (RFC 3261, 20.12). Contract: quill_content_coding.h.

#define CO_UNIT "source/quill/quill_content_coding"

#include <quill/quill_content_coding.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(ContentCoding, contentCoding, quill___SkipContentCoding)
QUILL_DEFINE_LOWER_NORMALIZE(ContentCoding, contentCoding)
