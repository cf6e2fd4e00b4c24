/// @file
/// What the Organization header field holds (RFC 3261, 20.25).
///
///     [TEXT-UTF8-TRIM]
#ifndef QUILL_QUILL_ORGANIZATION_H
#define QUILL_QUILL_ORGANIZATION_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// Text and blanks (SP, HTAB), or nothing.
QUILL_API bool quillOrganizationOk(struct coString const *organization);
/// Without blanks around it, and with one SP for each run of blanks within.
QUILL_API struct coString *quillOrganizationNormalize(struct coString const *organization);

CO_EXTERN_C_END

#endif
