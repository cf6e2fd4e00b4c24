// The P-Early-Media header field. Grammar and contract: quill_header_p_early_media.h.

#define CO_UNIT "source/quill/quill_header_p_early_media"

#include <quill/quill_em_param.h>
#include <quill/quill_header_family.hpp>
#include <quill/quill_header_p_early_media.h>

QUILL_DEFINE_SCALAR_LIST_HEADER(PEarlyMedia, P_EARLY_MEDIA, EmParam, emParam, quill___SkipEmParam)
