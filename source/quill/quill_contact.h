/// @file
/// One value of a Contact header field: an address with parameters (RFC 3261, 20.10; RFC 5626, 11; RFC 7044, 5).
///
///     contact-param     = ( name-addr / addr-spec ) *( SEMI contact-params )
///     contact-params    = c-p-q / c-p-expires / rc-param / mp-param / np-param / c-p-instance / "+sip.src" /
///                         "+sip.srs" / contact-extension
///     c-p-q             = "q" EQUAL qvalue
///     c-p-expires       = "expires" EQUAL delta-seconds
///     rc-param          = "rc" EQUAL index-val
///     mp-param          = "mp" EQUAL index-val
///     np-param          = "np" EQUAL index-val
///     c-p-instance      = "+sip.instance" EQUAL DQUOTE "<" instance-val ">" DQUOTE
///     contact-extension = generic-param
///
/// "*" is no value: the header field holds it. Parameters behind a bare address belong to the value; brackets are
/// always written.
///
/// Object family, members, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_CONTACT_H
#define QUILL_QUILL_CONTACT_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by identifier, display name, q-value, expires, rc, mp, np, instance, then parameters. Values that differ in
/// flags alone are equal.
/// @{
QUILL_API struct coSort const *quillContactSort(void);
QUILL_API void quillContactRetain(struct quillContact *obj);
QUILL_API void quillContactRelease(struct quillContact *obj);
QUILL_API struct coObj *quillContactObj(struct quillContact const *contact);
QUILL_API struct quillContact *quillContactFrom(struct coObj const *obj);
QUILL_API struct coString *quillContactToString(struct quillContact const *obj);
QUILL_API int quillContactCompare(struct quillContact const *objA, struct quillContact const *objB);
QUILL_API bool quillContactEquals(struct quillContact const *objA, struct quillContact const *objB);
QUILL_API struct quillContact *quillContactCreateFrom(struct quillContact const *source);
/// @}

QUILL_API struct quillContact *quillContactCreate(struct coString *iri);

/// @name Identifier: an IRI, which stands on the wire as a URI
/// @{
QUILL_API struct coString *quillContactIri(struct quillContact const *contact);
QUILL_API void quillContactSetIri(struct quillContact **contact, struct coString *iri);
/// @}

/// @name Display name: text without its quotes; optional
/// @{
QUILL_API struct coString *quillContactDisplayName(struct quillContact const *contact);
QUILL_API bool quillContactHasDisplayName(struct quillContact const *contact);
QUILL_API void quillContactSetDisplayName(struct quillContact **contact, struct coString *displayName);
QUILL_API void quillContactDelDisplayName(struct quillContact **contact);
/// @}

/// @name Parameters other than these; never null
/// @{
QUILL_API struct quillGenericParams *quillContactGenericParams(struct quillContact const *contact);
QUILL_API void quillContactSetGenericParams(struct quillContact **contact, struct quillGenericParams *genericParams);
/// @}

/// @name q-value: 0 to 1000, in thousandths; optional
/// @{
QUILL_API int64_t quillContactQvalue(struct quillContact const *contact);
QUILL_API bool quillContactHasQvalue(struct quillContact const *contact);
QUILL_API void quillContactSetQvalue(struct quillContact **contact, int64_t qvalue);
QUILL_API void quillContactDelQvalue(struct quillContact **contact);
/// @}

/// @name expires: seconds; optional
/// @{
QUILL_API int64_t quillContactExpires(struct quillContact const *contact);
QUILL_API bool quillContactHasExpires(struct quillContact const *contact);
QUILL_API void quillContactSetExpires(struct quillContact **contact, int64_t expires);
QUILL_API void quillContactDelExpires(struct quillContact **contact);
/// @}

/// @name rc: the index of the History-Info value that was changed; optional
/// @{
QUILL_API struct coString *quillContactRc(struct quillContact const *contact);
QUILL_API bool quillContactHasRc(struct quillContact const *contact);
QUILL_API void quillContactSetRc(struct quillContact **contact, struct coString *rc);
QUILL_API void quillContactDelRc(struct quillContact **contact);
/// @}

/// @name mp: the index of the History-Info value that was mapped; optional
/// @{
QUILL_API struct coString *quillContactMp(struct quillContact const *contact);
QUILL_API bool quillContactHasMp(struct quillContact const *contact);
QUILL_API void quillContactSetMp(struct quillContact **contact, struct coString *mp);
QUILL_API void quillContactDelMp(struct quillContact **contact);
/// @}

/// @name np: the index of the History-Info value that was not changed; optional
/// @{
QUILL_API struct coString *quillContactNp(struct quillContact const *contact);
QUILL_API bool quillContactHasNp(struct quillContact const *contact);
QUILL_API void quillContactSetNp(struct quillContact **contact, struct coString *np);
QUILL_API void quillContactDelNp(struct quillContact **contact);
/// @}

/// @name +sip.instance: "<" … ">" without the quotes around it; optional
/// @{
QUILL_API struct coString *quillContactSipInstance(struct quillContact const *contact);
QUILL_API bool quillContactHasSipInstance(struct quillContact const *contact);
QUILL_API void quillContactSetSipInstance(struct quillContact **contact, struct coString *sipInstance);
QUILL_API void quillContactDelSipInstance(struct quillContact **contact);
/// @}

/// @name +sip.src (RFC 7866): a session recording client
/// The setter changes the object itself, also where others hold it.
/// @{
QUILL_API bool quillContactSipSrc(struct quillContact const *contact);
QUILL_API void quillContactSetSipSrc(struct quillContact **contact, bool sipSrc);
/// @}

/// @name +sip.srs (RFC 7866): a session recording server
/// The setter changes the object itself, also where others hold it.
/// @{
QUILL_API bool quillContactSipSrs(struct quillContact const *contact);
QUILL_API void quillContactSetSipSrs(struct quillContact **contact, bool sipSrs);
/// @}

CO_EXTERN_C_END

#endif
