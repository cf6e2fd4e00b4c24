/// @file
/// States of a subscription (RFC 6665, 8.4).
///
///     substate-value = "active" / "pending" / "terminated" / extension-substate
#ifndef QUILL_QUILL_SUBSTATE_VALUE_H
#define QUILL_QUILL_SUBSTATE_VALUE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

QUILL_API bool quillSubstateValueOk(struct coString const *substateValue);
/// In lower case.
QUILL_API struct coString *quillSubstateValueNormalize(struct coString const *substateValue);

CO_EXTERN_C_END

#endif
