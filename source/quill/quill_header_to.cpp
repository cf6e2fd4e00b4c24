// The To header field. Grammar and contract: quill_header_to.h.

#define CO_UNIT "source/quill/quill_header_to"

#include <quill/quill_address_header.hpp>
#include <quill/quill_header_from.h>
#include <quill/quill_header_to.h>

QUILL_DEFINE_DIALOG_END_HEADER(To, TO, From)
