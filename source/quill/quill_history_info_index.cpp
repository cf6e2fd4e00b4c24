// Indexes of History-Info (RFC 7044, 5): numbers without leading zeros, with dots between them. Contract:
// quill_history_info_index.h.

#define CO_UNIT "source/quill/quill_history_info_index"

#include <quill/quill_history_info_index.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(HistoryInfoIndex, historyInfoIndex, quill___SkipHistoryInfoIndex)
