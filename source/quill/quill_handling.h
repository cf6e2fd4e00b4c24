/// @file
/// The handling parameter of Content-Disposition (RFC 3261, 20.11).
///
///     handling-param = "handling" EQUAL ( "optional" / "required" / other-handling )
#ifndef QUILL_QUILL_HANDLING_H
#define QUILL_QUILL_HANDLING_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillHandlingOk(struct coString const *handling);
/// In lower case.
QUILL_API struct coString *quillHandlingNormalize(struct coString const *handling);

CO_EXTERN_C_END

#endif
