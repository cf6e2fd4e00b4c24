/// @file
/// The branch of a Via header field (RFC 3261, 8.1.1.7), compared as it is.
///
///     via-branch = "branch" EQUAL token
#ifndef QUILL_QUILL_BRANCH_H
#define QUILL_QUILL_BRANCH_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillBranchOk(struct coString const *branch);

CO_EXTERN_C_END

#endif
