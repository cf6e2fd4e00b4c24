/// @file
/// Privacy of a diversion (RFC 5806): a token or a quoted string.
///
///     diversion-privacy = "privacy" EQUAL ( "full" / "name" / "uri" / "off" / token / quoted-string )
#ifndef QUILL_QUILL_DIVERSION_PRIVACY_H
#define QUILL_QUILL_DIVERSION_PRIVACY_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillDiversionPrivacyOk(struct coString const *diversionPrivacy);
/// In lower case, what stands in quotes included. Any text may be given.
QUILL_API struct coString *quillDiversionPrivacyNormalize(struct coString const *diversionPrivacy);

CO_EXTERN_C_END

#endif
