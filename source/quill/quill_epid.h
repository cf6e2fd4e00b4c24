/// @file
/// Endpoint identifiers, a parameter of From and To: at most 16 characters.
///
///     epid = 1*16( alphanum / "-" / "." / "!" / "%" / "*" / "_" / "+" / "`" / "'" / "~" )
#ifndef QUILL_QUILL_EPID_H
#define QUILL_QUILL_EPID_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillEpidOk(struct coString const *epid);

CO_EXTERN_C_END

#endif
