/// @file
/// One value of a Diversion header field: who a call was diverted from, and why (RFC 5806, 4).
///
///     diversion-params    = name-addr *( SEMI ( diversion-reason / diversion-counter / diversion-limit /
///                           diversion-privacy / diversion-screen / diversion-extension ) )
///     diversion-reason    = "reason" EQUAL ( "unknown" / "user-busy" / … / token / quoted-string )
///     diversion-counter   = "counter" EQUAL 1*2DIGIT
///     diversion-limit     = "limit" EQUAL 1*2DIGIT
///     diversion-privacy   = "privacy" EQUAL ( "full" / "name" / "uri" / "off" / token / quoted-string )
///     diversion-screen    = "screen" EQUAL ( "yes" / "no" / token / quoted-string )
///     diversion-extension = generic-param
///
/// Bare addresses are read, too; brackets are always written. Reason, privacy and screen are set as a token or as a
/// quoted string with its quotes; what is read from a quoted string comes without them.
///
/// Object family, members, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_DIVERSION_H
#define QUILL_QUILL_DIVERSION_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by identifier, display name, reason, counter, limit, privacy, screen, then parameters.
/// @{
QUILL_API struct coSort const *quillDiversionSort(void);
QUILL_API void quillDiversionRetain(struct quillDiversion *obj);
QUILL_API void quillDiversionRelease(struct quillDiversion *obj);
QUILL_API struct coObj *quillDiversionObj(struct quillDiversion const *diversion);
QUILL_API struct quillDiversion *quillDiversionFrom(struct coObj const *obj);
QUILL_API struct coString *quillDiversionToString(struct quillDiversion const *obj);
QUILL_API int quillDiversionCompare(struct quillDiversion const *objA, struct quillDiversion const *objB);
QUILL_API bool quillDiversionEquals(struct quillDiversion const *objA, struct quillDiversion const *objB);
QUILL_API struct quillDiversion *quillDiversionCreateFrom(struct quillDiversion const *source);
/// @}

QUILL_API struct quillDiversion *quillDiversionCreate(struct coString *iri);

/// @name Identifier: an IRI, which stands on the wire as a URI
/// @{
QUILL_API struct coString *quillDiversionIri(struct quillDiversion const *diversion);
QUILL_API void quillDiversionSetIri(struct quillDiversion **diversion, struct coString *iri);
/// @}

/// @name Display name: text without its quotes; optional
/// @{
QUILL_API struct coString *quillDiversionDisplayName(struct quillDiversion const *diversion);
QUILL_API bool quillDiversionHasDisplayName(struct quillDiversion const *diversion);
QUILL_API void quillDiversionSetDisplayName(struct quillDiversion **diversion, struct coString *displayName);
QUILL_API void quillDiversionDelDisplayName(struct quillDiversion **diversion);
/// @}

/// @name Reason: kept in lower case; optional
/// @{
QUILL_API struct coString *quillDiversionReason(struct quillDiversion const *diversion);
QUILL_API bool quillDiversionHasReason(struct quillDiversion const *diversion);
QUILL_API void quillDiversionSetReason(struct quillDiversion **diversion, struct coString *reason);
QUILL_API void quillDiversionDelReason(struct quillDiversion **diversion);
/// @}

/// @name Counter: 0 to 99 diversions; optional
/// @{
QUILL_API int64_t quillDiversionCounter(struct quillDiversion const *diversion);
QUILL_API bool quillDiversionHasCounter(struct quillDiversion const *diversion);
QUILL_API void quillDiversionSetCounter(struct quillDiversion **diversion, int64_t counter);
QUILL_API void quillDiversionDelCounter(struct quillDiversion **diversion);
/// @}

/// @name Limit: 0 to 99 diversions; optional
/// @{
QUILL_API int64_t quillDiversionLimit(struct quillDiversion const *diversion);
QUILL_API bool quillDiversionHasLimit(struct quillDiversion const *diversion);
QUILL_API void quillDiversionSetLimit(struct quillDiversion **diversion, int64_t limit);
QUILL_API void quillDiversionDelLimit(struct quillDiversion **diversion);
/// @}

/// @name Privacy: kept in lower case; optional
/// @{
QUILL_API struct coString *quillDiversionPrivacy(struct quillDiversion const *diversion);
QUILL_API bool quillDiversionHasPrivacy(struct quillDiversion const *diversion);
QUILL_API void quillDiversionSetPrivacy(struct quillDiversion **diversion, struct coString *privacy);
QUILL_API void quillDiversionDelPrivacy(struct quillDiversion **diversion);
/// @}

/// @name Screen: kept in lower case; optional
/// @{
QUILL_API struct coString *quillDiversionScreen(struct quillDiversion const *diversion);
QUILL_API bool quillDiversionHasScreen(struct quillDiversion const *diversion);
QUILL_API void quillDiversionSetScreen(struct quillDiversion **diversion, struct coString *screen);
QUILL_API void quillDiversionDelScreen(struct quillDiversion **diversion);
/// @}

/// @name Parameters other than these; never null
/// @{
QUILL_API struct quillGenericParams *quillDiversionGenericParams(struct quillDiversion const *diversion);
QUILL_API void quillDiversionSetGenericParams(struct quillDiversion **diversion,
                                              struct quillGenericParams *genericParams);
/// @}

CO_EXTERN_C_END

#endif
