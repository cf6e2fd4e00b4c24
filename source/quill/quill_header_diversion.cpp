// The Diversion header field. Grammar and contract: quill_header_diversion.h.

#define CO_UNIT "source/quill/quill_header_diversion"

#include <quill/quill_header_diversion.h>
#include <quill/quill_header_family.hpp>

QUILL_DEFINE_VALUE_LIST_HEADER(Diversion, DIVERSION, Diversion, diversion, quill___SkipDiversion)
