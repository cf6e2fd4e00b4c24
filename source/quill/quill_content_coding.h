/// @file
/// Content codings (RFC 3261, 20.12).
///
///     content-coding = token
#ifndef QUILL_QUILL_CONTENT_CODING_H
#define QUILL_QUILL_CONTENT_CODING_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillContentCodingOk(struct coString const *contentCoding);
/// In lower case.
QUILL_API struct coString *quillContentCodingNormalize(struct coString const *contentCoding);

CO_EXTERN_C_END

#endif
