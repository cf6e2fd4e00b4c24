/// @file
/// Who refreshes a session (RFC 4028, 4), in either letter case.
///
///     refresher-param = "refresher" EQUAL ("uas" / "uac")
#ifndef QUILL_QUILL_REFRESHER_H
#define QUILL_QUILL_REFRESHER_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillRefresherOk(struct coString const *refresher);
/// In lower case.
QUILL_API struct coString *quillRefresherNormalize(struct coString const *refresher);

CO_EXTERN_C_END

#endif
