// The History-Info header field. Grammar and contract: quill_header_history_info.h.

#define CO_UNIT "source/quill/quill_header_history_info"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_history_info.h>

QUILL_DEFINE_VALUE_LIST_HEADER(HistoryInfo, HISTORY_INFO, HistoryInfo, historyInfo, quill___SkipHistoryInfo)
