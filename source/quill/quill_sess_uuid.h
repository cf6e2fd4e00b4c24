/// @file
/// Session identifiers of Session-ID (RFC 7989, 5): 32 digits and lower-case letters, beyond `f` too.
///
///     sess-uuid = 32(DIGIT / %x61-7A)
#ifndef QUILL_QUILL_SESS_UUID_H
#define QUILL_QUILL_SESS_UUID_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillSessUuidOk(struct coString const *sessUuid);
/// The nil identifier, 32 zeros. The name's spelling is part of the interface.
QUILL_API struct coString *qiullSessUuidNil(void);
QUILL_API bool quillSessUuidIsNil(struct coString const *uuid);

CO_EXTERN_C_END

#endif
