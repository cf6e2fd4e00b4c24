// The Via header field. Grammar and contract: quill_header_via.h.

#define CO_UNIT "source/quill/quill_header_via"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_via.h>
#include <quill/quill_readers.hpp>
#include <quill/quill_via.h>

QUILL_DEFINE_READ_VALUE_LIST_HEADER(Via, VIA, Via, via, quill___SkipVia, quill::viaKind)
