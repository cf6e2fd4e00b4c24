/// @file
/// Methods (RFC 3261, 7.1), whose letter case counts.
///
///     Method = INVITEm / ACKm / OPTIONSm / BYEm / CANCELm / REGISTERm / extension-method
///     extension-method = token
#ifndef QUILL_QUILL_METHOD_H
#define QUILL_QUILL_METHOD_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillMethodOk(struct coString const *method);

CO_EXTERN_C_END

#endif
