/// @file
/// Tags of From and To (RFC 3261, 19.3), compared as they are.
///
///     tag-param = "tag" EQUAL token
#ifndef QUILL_QUILL_TAG_H
#define QUILL_QUILL_TAG_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillTagOk(struct coString const *tag);

CO_EXTERN_C_END

#endif
