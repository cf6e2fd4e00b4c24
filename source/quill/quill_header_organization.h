/// @file
/// The Organization header field: whom the sender belongs to (RFC 3261, 20.25).
///
///     Organization = "Organization" HCOLON [ TEXT-UTF8-TRIM ]
///
/// Object family, conversions, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_HEADER_ORGANIZATION_H
#define QUILL_QUILL_HEADER_ORGANIZATION_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
QUILL_API struct coSort const *quillHeaderOrganizationSort(void);
QUILL_API void quillHeaderOrganizationRetain(struct quillHeaderOrganization *obj);
QUILL_API void quillHeaderOrganizationRelease(struct quillHeaderOrganization *obj);
QUILL_API struct coObj *quillHeaderOrganizationObj(struct quillHeaderOrganization const *hdr);
QUILL_API struct quillHeaderOrganization *quillHeaderOrganizationFrom(struct coObj const *obj);
QUILL_API struct coString *quillHeaderOrganizationToString(struct quillHeaderOrganization const *obj);
QUILL_API int quillHeaderOrganizationCompare(struct quillHeaderOrganization const *objA,
                                             struct quillHeaderOrganization const *objB);
QUILL_API bool quillHeaderOrganizationEquals(struct quillHeaderOrganization const *objA,
                                             struct quillHeaderOrganization const *objB);
QUILL_API struct quillHeaderOrganization *
quillHeaderOrganizationCreateFrom(struct quillHeaderOrganization const *source);
/// @}

QUILL_API struct quillHeaderOrganization *quillHeaderOrganizationCreate(struct coString *organization);

/// @name Organization: kept with one space for each run of blanks and none around the text; may be empty
/// @{
QUILL_API struct coString *quillHeaderOrganizationOrganization(struct quillHeaderOrganization const *hdr);
QUILL_API void quillHeaderOrganizationSetOrganization(struct quillHeaderOrganization **hdr,
                                                      struct coString *organization);
/// @}

/// @name Conversions
/// @{
QUILL_API struct quillMessageHeader *quillHeaderOrganizationEncode(struct quillHeaderOrganization const *hdr);
QUILL_API struct quillHeaderOrganization *quillHeaderOrganizationTryDecode(struct quillMessageHeader const *header);
QUILL_API struct coStore *quillHeaderOrganizationStore(struct quillHeaderOrganization const *hdr);
QUILL_API struct quillHeaderOrganization *quillHeaderOrganizationTryRestore(struct coStore const *store);
QUILL_API bool quillHeaderOrganizationPresentInMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderOrganizationEncodeToMessage(struct quillHeaderOrganization const *hdr,
                                                      struct quillMessage **msg);
QUILL_API struct quillHeaderOrganization *quillHeaderOrganizationTryDecodeFromMessage(struct quillMessage const *msg);
QUILL_API void quillHeaderOrganizationRemoveFromMessage(struct quillMessage **msg);
/// @}

CO_EXTERN_C_END

#endif
