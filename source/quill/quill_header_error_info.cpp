// The Error-Info header field. Grammar and contract: quill_header_error_info.h.

#define CO_UNIT "source/quill/quill_header_error_info"

#include <quill/quill_header_error_info.h>
#include <quill/quill_header_family.hpp>

QUILL_DEFINE_VALUE_LIST_HEADER(ErrorInfo, ERROR_INFO, ErrorInfo, errorInfo, quill___SkipErrorInfo)
