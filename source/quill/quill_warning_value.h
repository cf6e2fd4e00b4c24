/// @file
/// One value of a Warning header field (RFC 3261, 20.43).
///
///     warning-value = warn-code SP warn-agent SP warn-text
///     warn-code     = 3DIGIT
///     warn-agent    = hostport / pseudonym
///     warn-text     = quoted-string
///
/// What follows the text is not looked at when a value is read.
///
/// Object family, members, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_WARNING_VALUE_H
#define QUILL_QUILL_WARNING_VALUE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by code, agent, then text.
/// @{
QUILL_API struct coSort const *quillWarningValueSort(void);
QUILL_API void quillWarningValueRetain(struct quillWarningValue *obj);
QUILL_API void quillWarningValueRelease(struct quillWarningValue *obj);
QUILL_API struct coObj *quillWarningValueObj(struct quillWarningValue const *warningValue);
QUILL_API struct quillWarningValue *quillWarningValueFrom(struct coObj const *obj);
QUILL_API struct coString *quillWarningValueToString(struct quillWarningValue const *obj);
QUILL_API int quillWarningValueCompare(struct quillWarningValue const *objA, struct quillWarningValue const *objB);
QUILL_API bool quillWarningValueEquals(struct quillWarningValue const *objA, struct quillWarningValue const *objB);
QUILL_API struct quillWarningValue *quillWarningValueCreateFrom(struct quillWarningValue const *source);
/// @}

/// With the default text of the code.
QUILL_API struct quillWarningValue *quillWarningValueCreate(int64_t warnCode, struct coString *warnAgent);

QUILL_API struct quillWarningValue *quillWarningValueCreateWithWarnText(int64_t warnCode, struct coString *warnAgent,
                                                                        struct coString *warnText);

/// @name Code: 0 to 999
/// One below 100 is written without leading zeros and cannot be read back.
/// @{
QUILL_API int64_t quillWarningValueWarnCode(struct quillWarningValue const *warningValue);
QUILL_API void quillWarningValueSetWarnCode(struct quillWarningValue **warningValue, int64_t warnCode);
/// @}

/// @name Agent: who adds the warning, a host with an optional port or a pseudonym
/// @{
QUILL_API struct coString *quillWarningValueWarnAgent(struct quillWarningValue const *warningValue);
QUILL_API void quillWarningValueSetWarnAgent(struct quillWarningValue **warningValue, struct coString *warnAgent);
/// @}

/// @name Text: without its quotes
/// @{
QUILL_API struct coString *quillWarningValueWarnText(struct quillWarningValue const *warningValue);
QUILL_API void quillWarningValueSetWarnText(struct quillWarningValue **warningValue, struct coString *warnText);
/// @}

CO_EXTERN_C_END

#endif
