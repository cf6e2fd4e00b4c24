/// @file
/// Why a call was diverted (RFC 5806): a token or a quoted string.
///
///     diversion-reason = "reason" EQUAL ( "unknown" / "user-busy" / "no-answer" / "unavailable" / "unconditional"
///                      / "time-of-day" / "do-not-disturb" / "deflection" / "follow-me" / "out-of-service" / "away"
///                      / token / quoted-string )
#ifndef QUILL_QUILL_DIVERSION_REASON_H
#define QUILL_QUILL_DIVERSION_REASON_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillDiversionReasonOk(struct coString const *diversionReason);
/// In lower case, what stands in quotes included. Any text may be given.
QUILL_API struct coString *quillDiversionReasonNormalize(struct coString const *diversionReason);

CO_EXTERN_C_END

#endif
