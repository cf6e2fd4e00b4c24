// The Warning header field. Grammar and contract: quill_header_warning.h.

#define CO_UNIT "source/quill/quill_header_warning"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_warning.h>

QUILL_DEFINE_LIST_OBJECT(Warning, WARNING)
QUILL_DEFINE_LIST_CODEC(Warning, quill___SkipWarningValue)
QUILL_DEFINE_LIST_CLEAR(Warning, WarningsClear)
QUILL_DEFINE_VALUE_LIST_ACCESS(Warning, Warning, WarningValue, warning, nullptr)
