// Types of media (RFC 3261, 25.1). The wildcard `*`, a token by its form, is none. Contract: quill_media_type.h.

#define CO_UNIT "source/quill/quill_media_type"

#include <quill/quill_media_type.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(MediaType, mediaType, quill___SkipMediaType)
QUILL_DEFINE_LOWER_NORMALIZE(MediaType, mediaType)
