/// @file
/// The User-to-User header field: what the users' programs tell each other (RFC 7433, 4).
///
///     UUI = "User-to-User" HCOLON uui-value *( COMMA uui-value )
///
/// A list of quillUuiValue.
///
/// Object family, lists, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_USER_TO_USER_H
#define QUILL_QUILL_HEADER_USER_TO_USER_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderUserToUserSort(void);
QUILL_API void quillHeaderUserToUserRetain(struct quillHeaderUserToUser *obj);
QUILL_API void quillHeaderUserToUserRelease(struct quillHeaderUserToUser *obj);
QUILL_API struct coObj *quillHeaderUserToUserObj(struct quillHeaderUserToUser const *hdr);
QUILL_API struct quillHeaderUserToUser *quillHeaderUserToUserFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderUserToUserToString(struct quillHeaderUserToUser const *obj);
QUILL_API int quillHeaderUserToUserCompare(struct quillHeaderUserToUser const *objA,
                                           struct quillHeaderUserToUser const *objB);
QUILL_API bool quillHeaderUserToUserEquals(struct quillHeaderUserToUser const *objA,
                                           struct quillHeaderUserToUser const *objB);
QUILL_API struct quillHeaderUserToUser *quillHeaderUserToUserCreateFrom(struct quillHeaderUserToUser const *source);
/// @}

/// An empty list.
QUILL_API struct quillHeaderUserToUser *quillHeaderUserToUserCreate(void);

/// @name Elements
/// @{
QUILL_API void quillHeaderUserToUserClearUuiValues(struct quillHeaderUserToUser **hdr);
QUILL_API int64_t quillHeaderUserToUserUuiValuesLength(struct quillHeaderUserToUser const *hdr);
QUILL_API struct quillUuiValue *quillHeaderUserToUserTryDecodeUuiValueAt(struct quillHeaderUserToUser const *hdr,
                                                                         int64_t index);
QUILL_API void quillHeaderUserToUserSetUuiValueAt(struct quillHeaderUserToUser **hdr, int64_t index,
                                                  struct quillUuiValue const *uuiValue);
QUILL_API void quillHeaderUserToUserDelUuiValueAt(struct quillHeaderUserToUser **hdr, int64_t index);
QUILL_API void quillHeaderUserToUserPrependUuiValue(struct quillHeaderUserToUser **hdr,
                                                    struct quillUuiValue const *uuiValue);
QUILL_API void quillHeaderUserToUserAppendUuiValue(struct quillHeaderUserToUser **hdr,
                                                   struct quillUuiValue const *uuiValue);
QUILL_API void quillHeaderUserToUserInsertUuiValue(struct quillHeaderUserToUser **hdr, int64_t index,
                                                   struct quillUuiValue const *uuiValue);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderUserToUserEncode(struct quillHeaderUserToUser const *hdr);
QUILL_API struct quillHeaderUserToUser *quillHeaderUserToUserTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderUserToUserStore(struct quillHeaderUserToUser const *hdr);
QUILL_API struct quillHeaderUserToUser *quillHeaderUserToUserTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderUserToUserPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderUserToUserEncodeToMessage(struct quillHeaderUserToUser const *hdr, struct quillMessage **msg);
QUILL_API struct quillHeaderUserToUser *quillHeaderUserToUserTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderUserToUserRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
