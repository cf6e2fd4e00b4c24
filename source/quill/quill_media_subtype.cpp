// Subtypes of media (RFC 3261, 25.1). The wildcard `*`, a token by its form, is none. Contract: quill_media_subtype.h.

#define CO_UNIT "source/quill/quill_media_subtype"

#include <quill/quill_media_subtype.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(MediaSubtype, mediaSubtype, quill___SkipMediaSubtype)
QUILL_DEFINE_LOWER_NORMALIZE(MediaSubtype, mediaSubtype)
