/// @file
/// Indexes of History-Info (RFC 7044, 5): numbers without leading zeros, with dots between them.
///
///     index-val = number *("." number)
#ifndef QUILL_QUILL_HISTORY_INFO_INDEX_H
#define QUILL_QUILL_HISTORY_INFO_INDEX_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillHistoryInfoIndexOk(struct coString const *historyInfoIndex);

CO_EXTERN_C_END

#endif
