/// @file
/// A SIP message: a fragment that is a request or a response (RFC 3261, 7).
///
/// Object family, members, ownership, null and failure: docs/conventions.md. Start line, headers, body and wire form:
/// quill_message_fragment.h, whose operations of the same names these are.
#ifndef QUILL_QUILL_MESSAGE_H
#define QUILL_QUILL_MESSAGE_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

#if defined(__GNUC__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow" // two functions bear the names of types: say struct where these are meant
#endif

/// @name Object family
/// Compared by identity. There is no text form.
/// @{
QUILL_API struct coSort const *quillMessageSort(void);
QUILL_API void quillMessageRetain(struct quillMessage *obj);
QUILL_API void quillMessageRelease(struct quillMessage *obj);
QUILL_API struct coObj *quillMessageObj(struct quillMessage const *msg);
QUILL_API struct quillMessage *quillMessageFrom(struct coObj const *obj);
QUILL_API struct coString *quillMessageToString(struct quillMessage const *obj);
QUILL_API int quillMessageCompare(struct quillMessage const *objA, struct quillMessage const *objB);
QUILL_API bool quillMessageEquals(struct quillMessage const *objA, struct quillMessage const *objB);
QUILL_API struct quillMessage *quillMessageCreateFrom(struct quillMessage const *source);
/// @}

/// @name The fragment
/// @{
/// The fragment is kept, not copied; it must be a request or a response.
QUILL_API struct quillMessage *quillMessageCreate(struct quillMessageFragment *fragment);
QUILL_API struct quillMessageFragment *quillMessageFragment(struct quillMessage const *msg);
/// @}

/// @name Requests (RFC 3261, 7.1)
/// The IRI is kept as an IRI; on the wire it is a URI.
/// @{
QUILL_API bool quillMessageIsRequest(struct quillMessage const *msg);
QUILL_API struct quillMessage *quillMessageCreateRequest(struct quillVersion *version, struct coString *method,
                                                         struct coString *iri);
QUILL_API struct quillMessage *quillMessageCreateRequestCstr(struct quillVersion *version, char const *method,
                                                             int64_t methodLength, char const *iri, int64_t iriLength);
QUILL_API struct quillMessage *quillMessageCreateRequestWcstr(struct quillVersion *version, wchar_t const *method,
                                                              int64_t methodLength, wchar_t const *iri,
                                                              int64_t iriLength);
/// Makes it a request, whatever it was; headers and body stay.
QUILL_API void quillMessageSetRequest(struct quillMessage **msg, struct quillVersion *version, struct coString *method,
                                      struct coString *iri);
QUILL_API void quillMessageSetRequestCstr(struct quillMessage **msg, struct quillVersion *version, char const *method,
                                          int64_t methodLength, char const *iri, int64_t iriLength);
QUILL_API void quillMessageSetRequestWcstr(struct quillMessage **msg, struct quillVersion *version,
                                           wchar_t const *method, int64_t methodLength, wchar_t const *iri,
                                           int64_t iriLength);
/// Null when it is no request.
QUILL_API struct coString *quillMessageRequestMethod(struct quillMessage const *msg);
/// It must be a request already.
QUILL_API void quillMessageSetRequestMethod(struct quillMessage **msg, struct coString *method);
QUILL_API void quillMessageSetRequestMethodCstr(struct quillMessage **msg, char const *method, int64_t length);
QUILL_API void quillMessageSetRequestMethodWcstr(struct quillMessage **msg, wchar_t const *method, int64_t length);
/// Null when it is no request.
QUILL_API struct coString *quillMessageRequestIri(struct quillMessage const *msg);
/// It must be a request already.
QUILL_API void quillMessageSetRequestIri(struct quillMessage **msg, struct coString *iri);
QUILL_API void quillMessageSetRequestIriCstr(struct quillMessage **msg, char const *iri, int64_t length);
QUILL_API void quillMessageSetRequestIriWcstr(struct quillMessage **msg, wchar_t const *iri, int64_t length);
/// @}

/// @name Responses (RFC 3261, 7.2)
/// Status codes: quill_status_code.h. Without a reason phrase the code's default one is used.
/// @{
QUILL_API bool quillMessageIsResponse(struct quillMessage const *msg);
QUILL_API struct quillMessage *quillMessageCreateResponse(struct quillVersion *version, int64_t sc);
QUILL_API struct quillMessage *quillMessageCreateResponseWithReasonPhrase(struct quillVersion *version, int64_t sc,
                                                                          struct coString *reasonPhrase);
QUILL_API struct quillMessage *quillMessageCreateResponseWithReasonPhraseCstr(struct quillVersion *version, int64_t sc,
                                                                              char const *reasonPhrase, int64_t length);
QUILL_API struct quillMessage *quillMessageCreateResponseWithReasonPhraseWcstr(struct quillVersion *version, int64_t sc,
                                                                               wchar_t const *reasonPhrase,
                                                                               int64_t length);
/// Makes it a response, whatever it was; headers and body stay.
QUILL_API void quillMessageSetResponse(struct quillMessage **msg, struct quillVersion *version, int64_t sc);
QUILL_API void quillMessageSetResponseWithReasonPhrase(struct quillMessage **msg, struct quillVersion *version,
                                                       int64_t sc, struct coString *reasonPhrase);
QUILL_API void quillMessageSetResponseWithReasonPhraseCstr(struct quillMessage **msg, struct quillVersion *version,
                                                           int64_t sc, char const *reasonPhrase, int64_t length);
QUILL_API void quillMessageSetResponseWithReasonPhraseWcstr(struct quillMessage **msg, struct quillVersion *version,
                                                            int64_t sc, wchar_t const *reasonPhrase, int64_t length);
/// -1 when it is no response.
QUILL_API int64_t quillMessageResponseStatusCode(struct quillMessage const *msg);
/// It must be a response already. The phrase stays unless it is to be replaced by the code's default one.
QUILL_API void quillMessageSetResponseStatusCode(struct quillMessage **msg, int64_t sc, bool replaceReasonPhrase);
/// Null when it is no response.
QUILL_API struct coString *quillMessageResponseReasonPhrase(struct quillMessage const *msg);
/// It must be a response already.
QUILL_API void quillMessageSetResponseReasonPhrase(struct quillMessage **msg, struct coString *reasonPhrase);
QUILL_API void quillMessageSetResponseReasonPhraseCstr(struct quillMessage **msg, char const *reasonPhrase,
                                                       int64_t length);
QUILL_API void quillMessageSetResponseReasonPhraseWcstr(struct quillMessage **msg, wchar_t const *reasonPhrase,
                                                        int64_t length);
/// @}

/// @name Protocol version; never null
/// @{
QUILL_API struct quillVersion *quillMessageVersion(struct quillMessage const *msg);
QUILL_API void quillMessageSetVersion(struct quillMessage **msg, struct quillVersion *version);
/// @}

/// @name Headers
/// A name must be a token; it is normalised before use.
/// @{
QUILL_API struct coVector *quillMessageHeadersVector(struct quillMessage const *msg);
/// Null when there is none of the name.
QUILL_API struct quillMessageHeader *quillMessageHeader(struct quillMessage const *msg, struct coString const *name);
QUILL_API struct quillMessageHeader *quillMessageHeaderCstr(struct quillMessage const *msg, char const *name,
                                                            int64_t length);
QUILL_API struct quillMessageHeader *quillMessageHeaderWcstr(struct quillMessage const *msg, wchar_t const *name,
                                                             int64_t length);
QUILL_API bool quillMessageHasHeader(struct quillMessage const *msg, struct coString const *name);
QUILL_API bool quillMessageHasHeaderCstr(struct quillMessage const *msg, char const *name, int64_t length);
QUILL_API bool quillMessageHasHeaderWcstr(struct quillMessage const *msg, wchar_t const *name, int64_t length);
/// Takes the place of a header of the same name.
QUILL_API void quillMessageSetHeader(struct quillMessage **msg, struct quillMessageHeader *header);
QUILL_API void quillMessageDelHeader(struct quillMessage **msg, struct coString const *name);
QUILL_API void quillMessageDelHeaderCstr(struct quillMessage **msg, char const *name, int64_t length);
QUILL_API void quillMessageDelHeaderWcstr(struct quillMessage **msg, wchar_t const *name, int64_t length);
/// @}

/// @name Body: bytes; optional
/// @{
QUILL_API struct coBuffer *quillMessageBody(struct quillMessage const *msg);
QUILL_API bool quillMessageHasBody(struct quillMessage const *msg);
QUILL_API void quillMessageSetBody(struct quillMessage **msg, struct coBuffer *body);
QUILL_API void quillMessageDelBody(struct quillMessage **msg);
/// @}

/// @name Wire form
/// @{
QUILL_API struct coBuffer *quillMessageEncode(struct quillMessage const *msg);
/// Null when the bytes are no message, or headers without a start line. The buffer is left as it is; one of more than 16 kB
/// may be shared with the message from then on.
QUILL_API struct quillMessage *quillMessageTryDecode(struct coBuffer const *buf);
/// @}

#if defined(__GNUC__)
#pragma GCC diagnostic pop
#endif

CO_EXTERN_C_END

#endif
