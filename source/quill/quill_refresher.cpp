// Who refreshes a session (RFC 4028, 4), in either letter case. Contract: quill_refresher.h.

#define CO_UNIT "source/quill/quill_refresher"

#include <quill/quill_refresher.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(Refresher, refresher, quill___SkipRefresher)
QUILL_DEFINE_LOWER_NORMALIZE(Refresher, refresher)
