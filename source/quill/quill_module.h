/// @file
/// The module, which the host starts and stops: `coModuleLoad(quillModule())`, `coModuleUnload(quillModule())`.
///
/// No other function may be called outside of that span, and no object be kept beyond it.
#ifndef QUILL_QUILL_MODULE_H
#define QUILL_QUILL_MODULE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// The module, borrowed.
QUILL_API struct coModule *quillModule(void);

CO_EXTERN_C_END

#endif
