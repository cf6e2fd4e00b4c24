/// @file
/// One value of a Reason header field: why a request was sent or a call was cleared (RFC 3326, 2).
///
///     reason-value     = protocol *( SEMI reason-params )
///     protocol         = "SIP" / "Q.850" / token
///     reason-params    = protocol-cause / reason-text / reason-extension
///     protocol-cause   = "cause" EQUAL cause
///     cause            = 1*DIGIT
///     reason-text      = "text" EQUAL quoted-string
///     reason-extension = generic-param
///
/// Object family, members, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_REASON_H
#define QUILL_QUILL_REASON_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by protocol, cause, text, then parameters.
/// @{
QUILL_API struct coSort const *quillReasonSort(void);
QUILL_API void quillReasonRetain(struct quillReason *obj);
QUILL_API void quillReasonRelease(struct quillReason *obj);
QUILL_API struct coObj *quillReasonObj(struct quillReason const *reason);
QUILL_API struct quillReason *quillReasonFrom(struct coObj const *obj);
QUILL_API struct coString *quillReasonToString(struct quillReason const *obj);
QUILL_API int quillReasonCompare(struct quillReason const *objA, struct quillReason const *objB);
QUILL_API bool quillReasonEquals(struct quillReason const *objA, struct quillReason const *objB);
QUILL_API struct quillReason *quillReasonCreateFrom(struct quillReason const *source);
/// @}

QUILL_API struct quillReason *quillReasonCreate(struct coString *protocol);

/// @name Protocol: a token, as given
/// @{
QUILL_API struct coString *quillReasonProtocol(struct quillReason const *reason);
QUILL_API void quillReasonSetProtocol(struct quillReason **reason, struct coString *protocol);
/// @}

/// @name Cause: digits, kept as text ("16" of Q.850, "486" of SIP); optional
/// @{
QUILL_API struct coString *quillReasonCause(struct quillReason const *reason);
QUILL_API bool quillReasonHasCause(struct quillReason const *reason);
QUILL_API void quillReasonSetCause(struct quillReason **reason, struct coString *cause);
QUILL_API void quillReasonDelCause(struct quillReason **reason);
/// @}

/// @name Text: without its quotes; optional
/// @{
QUILL_API struct coString *quillReasonText(struct quillReason const *reason);
QUILL_API bool quillReasonHasText(struct quillReason const *reason);
QUILL_API void quillReasonSetText(struct quillReason **reason, struct coString *text);
QUILL_API void quillReasonDelText(struct quillReason **reason);
/// @}

/// @name Parameters other than these; never null
/// @{
QUILL_API struct quillGenericParams *quillReasonGenericParams(struct quillReason const *reason);
QUILL_API void quillReasonSetGenericParams(struct quillReason **reason, struct quillGenericParams *genericParams);
/// @}

CO_EXTERN_C_END

#endif
