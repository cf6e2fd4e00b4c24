// The Alert-Info header field. Grammar and contract: quill_header_alert_info.h.

#define CO_UNIT "source/quill/quill_header_alert_info"

#include <quill/quill_header_alert_info.h>
#include <quill/quill_header_family.hpp>

QUILL_DEFINE_VALUE_LIST_HEADER(AlertInfo, ALERT_INFO, AlertInfo, alertInfo, quill___SkipAlertInfo)
