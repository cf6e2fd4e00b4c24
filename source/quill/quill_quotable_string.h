/// @file
/// Texts that can stand in quotes (RFC 3261, 25.1), themselves without quotes and escapes.
///
///     quoted-string = SWS DQUOTE *(qdtext / quoted-pair ) DQUOTE
#ifndef QUILL_QUILL_QUOTABLE_STRING_H
#define QUILL_QUILL_QUOTABLE_STRING_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// Any text without CR and LF, the empty one included.
QUILL_API bool quillQuotableStringOk(struct coString const *quotableString);

CO_EXTERN_C_END

#endif
