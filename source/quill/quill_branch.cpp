// The branch of a Via header field (RFC 3261, 8.1.1.7), compared as it is. Contract: quill_branch.h.

#define CO_UNIT "source/quill/quill_branch"

#include <quill/quill_branch.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(Branch, branch, quill___SkipBranch)
