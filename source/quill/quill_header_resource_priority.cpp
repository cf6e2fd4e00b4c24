// The Resource-Priority header field. Grammar and contract: quill_header_resource_priority.h.

#define CO_UNIT "source/quill/quill_header_resource_priority"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_resource_priority.h>
#include <quill/quill_rvalue.h>

QUILL_DEFINE_SCALAR_LIST_HEADER(ResourcePriority, RESOURCE_PRIORITY, Rvalue, rvalue, quill___SkipRvalue)
