/// @file
/// Disposition types (RFC 3261, 20.11).
///
///     disp-type = "render" / "session" / "icon" / "alert" / disp-extension-token
#ifndef QUILL_QUILL_DISPOSITION_TYPE_H
#define QUILL_QUILL_DISPOSITION_TYPE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillDispositionTypeOk(struct coString const *dispositionType);
/// In lower case.
QUILL_API struct coString *quillDispositionTypeNormalize(struct coString const *dispositionType);

CO_EXTERN_C_END

#endif
