/// @file
/// Reason phrases of status lines (RFC 3261, 7.2), unescaped.
///
///     Reason-Phrase = *(reserved / unreserved / escaped / UTF8-NONASCII / UTF8-CONT / SP / HTAB)
#ifndef QUILL_QUILL_REASON_PHRASE_H
#define QUILL_QUILL_REASON_PHRASE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// True: everything can be escaped.
QUILL_API bool quillReasonPhraseOk(struct coString const *reasonPhrase);

CO_EXTERN_C_END

#endif
