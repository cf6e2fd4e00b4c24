/// @file
/// The Subscription-State header field: what becomes of a subscription (RFC 6665, 8.2.3).
///
///     Subscription-State = "Subscription-State" HCOLON substate-value *( SEMI subexp-params )
///     substate-value     = "active" / "pending" / "terminated" / extension-substate
///     subexp-params      = ( "reason" EQUAL event-reason-value ) / ( "expires" EQUAL delta-seconds ) /
///                          ( "retry-after" EQUAL delta-seconds ) / generic-param
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_SUBSCRIPTION_STATE_H
#define QUILL_QUILL_HEADER_SUBSCRIPTION_STATE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by state, reason, expires, retry-after, then parameters.
/// @{
QUILL_API struct coSort const *quillHeaderSubscriptionStateSort(void);
QUILL_API void quillHeaderSubscriptionStateRetain(struct quillHeaderSubscriptionState *obj);
QUILL_API void quillHeaderSubscriptionStateRelease(struct quillHeaderSubscriptionState *obj);
QUILL_API struct coObj *quillHeaderSubscriptionStateObj(struct quillHeaderSubscriptionState const *hdr);
QUILL_API struct quillHeaderSubscriptionState *quillHeaderSubscriptionStateFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderSubscriptionStateToString(struct quillHeaderSubscriptionState const *obj);
QUILL_API int quillHeaderSubscriptionStateCompare(struct quillHeaderSubscriptionState const *objA,
                                                  struct quillHeaderSubscriptionState const *objB);
QUILL_API bool quillHeaderSubscriptionStateEquals(struct quillHeaderSubscriptionState const *objA,
                                                  struct quillHeaderSubscriptionState const *objB);
QUILL_API struct quillHeaderSubscriptionState *
quillHeaderSubscriptionStateCreateFrom(struct quillHeaderSubscriptionState const *source);
/// @}

QUILL_API struct quillHeaderSubscriptionState *quillHeaderSubscriptionStateCreate(struct coString *substateValue);

/// @name State: a token, kept in lower case
/// @{
QUILL_API struct coString *quillHeaderSubscriptionStateSubstateValue(struct quillHeaderSubscriptionState const *hdr);
QUILL_API void quillHeaderSubscriptionStateSetSubstateValue(struct quillHeaderSubscriptionState **hdr,
                                                            struct coString *substateValue);
/// @}

/// @name Reason why it ended: a token, kept in lower case; optional
/// @{
QUILL_API struct coString *quillHeaderSubscriptionStateReason(struct quillHeaderSubscriptionState const *hdr);
QUILL_API bool quillHeaderSubscriptionStateHasReason(struct quillHeaderSubscriptionState const *hdr);
QUILL_API void quillHeaderSubscriptionStateSetReason(struct quillHeaderSubscriptionState **hdr,
                                                     struct coString *reason);
QUILL_API void quillHeaderSubscriptionStateDelReason(struct quillHeaderSubscriptionState **hdr);
/// @}

/// @name Expires: seconds it still lasts, from 0; optional
/// @{
QUILL_API int64_t quillHeaderSubscriptionStateExpires(struct quillHeaderSubscriptionState const *hdr);
QUILL_API bool quillHeaderSubscriptionStateHasExpires(struct quillHeaderSubscriptionState const *hdr);
QUILL_API void quillHeaderSubscriptionStateSetExpires(struct quillHeaderSubscriptionState **hdr, int64_t expires);
QUILL_API void quillHeaderSubscriptionStateDelExpires(struct quillHeaderSubscriptionState **hdr);
/// @}

/// @name Retry-after: seconds to wait before another subscription, from 0; optional
/// @{
QUILL_API int64_t quillHeaderSubscriptionStateRetryAfter(struct quillHeaderSubscriptionState const *hdr);
QUILL_API bool quillHeaderSubscriptionStateHasRetryAfter(struct quillHeaderSubscriptionState const *hdr);
QUILL_API void quillHeaderSubscriptionStateSetRetryAfter(struct quillHeaderSubscriptionState **hdr, int64_t retryAfter);
QUILL_API void quillHeaderSubscriptionStateDelRetryAfter(struct quillHeaderSubscriptionState **hdr);
/// @}

/// @name Other parameters; never null
/// @{
QUILL_API struct quillGenericParams *
quillHeaderSubscriptionStateGenericParams(struct quillHeaderSubscriptionState const *hdr);
QUILL_API void quillHeaderSubscriptionStateSetGenericParams(struct quillHeaderSubscriptionState **hdr,
                                                            struct quillGenericParams *genericParams);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderSubscriptionStateEncode(struct quillHeaderSubscriptionState const *hdr);
QUILL_API struct quillHeaderSubscriptionState *
quillHeaderSubscriptionStateTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderSubscriptionStateStore(struct quillHeaderSubscriptionState const *hdr);
QUILL_API struct quillHeaderSubscriptionState *quillHeaderSubscriptionStateTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderSubscriptionStatePresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderSubscriptionStateEncodeToMessage(struct quillHeaderSubscriptionState const *hdr,
                                                           struct quillMessage **msg);
QUILL_API struct quillHeaderSubscriptionState *
quillHeaderSubscriptionStateTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderSubscriptionStateRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
