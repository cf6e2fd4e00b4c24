/// @file
/// A message as it stands on the wire, untyped: start line, raw headers, body (RFC 3261, 7). It is a request, a response
/// or neither of them.
///
/// There is one raw header for each name; several occurrences of a field are several lines of it. Headers keep the
/// order in which their names came.
///
/// Object family, members, ownership, null and failure: docs/conventions.md.
#ifndef QUILL_QUILL_MESSAGE_FRAGMENT_H
#define QUILL_QUILL_MESSAGE_FRAGMENT_H

#include <quill/quill_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// Compared by identity. There is no text form.
/// @{
QUILL_API struct coSort const *quillMessageFragmentSort(void);
QUILL_API void quillMessageFragmentRetain(struct quillMessageFragment *obj);
QUILL_API void quillMessageFragmentRelease(struct quillMessageFragment *obj);
QUILL_API struct coObj *quillMessageFragmentObj(struct quillMessageFragment const *frag);
QUILL_API struct quillMessageFragment *quillMessageFragmentFrom(struct coObj const *obj);
QUILL_API struct coString *quillMessageFragmentToString(struct quillMessageFragment const *obj);
QUILL_API int quillMessageFragmentCompare(struct quillMessageFragment const *objA,
                                          struct quillMessageFragment const *objB);
QUILL_API bool quillMessageFragmentEquals(struct quillMessageFragment const *objA,
                                          struct quillMessageFragment const *objB);
QUILL_API struct quillMessageFragment *quillMessageFragmentCreateFrom(struct quillMessageFragment const *source);
/// @}

/// Neither request nor response, without headers and body.
QUILL_API struct quillMessageFragment *quillMessageFragmentCreate(void);

/// @name Requests (RFC 3261, 7.1)
/// The IRI is kept as an IRI; on the wire it is a URI.
/// @{
QUILL_API bool quillMessageFragmentIsRequest(struct quillMessageFragment const *frag);
QUILL_API struct quillMessageFragment *quillMessageFragmentCreateRequest(struct quillVersion *version,
                                                                         struct coString *method, struct coString *iri);
QUILL_API struct quillMessageFragment *quillMessageFragmentCreateRequestCstr(struct quillVersion *version,
                                                                             char const *method, int64_t methodLength,
                                                                             char const *iri, int64_t iriLength);
QUILL_API struct quillMessageFragment *quillMessageFragmentCreateRequestWcstr(struct quillVersion *version,
                                                                              wchar_t const *method,
                                                                              int64_t methodLength, wchar_t const *iri,
                                                                              int64_t iriLength);
/// Makes it a request, whatever it was; headers and body stay.
QUILL_API void quillMessageFragmentSetRequest(struct quillMessageFragment **frag, struct quillVersion *version,
                                              struct coString *method, struct coString *iri);
QUILL_API void quillMessageFragmentSetRequestCstr(struct quillMessageFragment **frag, struct quillVersion *version,
                                                  char const *method, int64_t methodLength, char const *iri,
                                                  int64_t iriLength);
QUILL_API void quillMessageFragmentSetRequestWcstr(struct quillMessageFragment **frag, struct quillVersion *version,
                                                   wchar_t const *method, int64_t methodLength, wchar_t const *iri,
                                                   int64_t iriLength);
/// Null when it is no request.
QUILL_API struct coString *quillMessageFragmentRequestMethod(struct quillMessageFragment const *frag);
/// It must be a request already.
QUILL_API void quillMessageFragmentSetRequestMethod(struct quillMessageFragment **frag, struct coString *method);
QUILL_API void quillMessageFragmentSetRequestMethodCstr(struct quillMessageFragment **frag, char const *method,
                                                        int64_t length);
QUILL_API void quillMessageFragmentSetRequestMethodWcstr(struct quillMessageFragment **frag, wchar_t const *method,
                                                         int64_t length);
/// Null when it is no request.
QUILL_API struct coString *quillMessageFragmentRequestIri(struct quillMessageFragment const *frag);
/// It must be a request already.
QUILL_API void quillMessageFragmentSetRequestIri(struct quillMessageFragment **frag, struct coString *iri);
QUILL_API void quillMessageFragmentSetRequestIriCstr(struct quillMessageFragment **frag, char const *iri,
                                                     int64_t length);
QUILL_API void quillMessageFragmentSetRequestIriWcstr(struct quillMessageFragment **frag, wchar_t const *iri,
                                                      int64_t length);
/// @}

/// @name Responses (RFC 3261, 7.2)
/// Status codes: quill_status_code.h. Without a reason phrase the code's default one is used.
/// @{
QUILL_API bool quillMessageFragmentIsResponse(struct quillMessageFragment const *frag);
QUILL_API struct quillMessageFragment *quillMessageFragmentCreateResponse(struct quillVersion *version, int64_t sc);
QUILL_API struct quillMessageFragment *
quillMessageFragmentCreateResponseWithReasonPhrase(struct quillVersion *version, int64_t sc,
                                                   struct coString *reasonPhrase);
QUILL_API struct quillMessageFragment *
quillMessageFragmentCreateResponseWithReasonPhraseCstr(struct quillVersion *version, int64_t sc,
                                                       char const *reasonPhrase, int64_t length);
QUILL_API struct quillMessageFragment *
quillMessageFragmentCreateResponseWithReasonPhraseWcstr(struct quillVersion *version, int64_t sc,
                                                        wchar_t const *reasonPhrase, int64_t length);
/// Makes it a response, whatever it was; headers and body stay.
QUILL_API void quillMessageFragmentSetResponse(struct quillMessageFragment **frag, struct quillVersion *version,
                                               int64_t sc);
QUILL_API void quillMessageFragmentSetResponseWithReasonPhrase(struct quillMessageFragment **frag,
                                                               struct quillVersion *version, int64_t sc,
                                                               struct coString *reasonPhrase);
QUILL_API void quillMessageFragmentSetResponseWithReasonPhraseCstr(struct quillMessageFragment **frag,
                                                                   struct quillVersion *version, int64_t sc,
                                                                   char const *reasonPhrase, int64_t length);
QUILL_API void quillMessageFragmentSetResponseWithReasonPhraseWcstr(struct quillMessageFragment **frag,
                                                                    struct quillVersion *version, int64_t sc,
                                                                    wchar_t const *reasonPhrase, int64_t length);
/// -1 when it is no response.
QUILL_API int64_t quillMessageFragmentResponseStatusCode(struct quillMessageFragment const *frag);
/// It must be a response already. The phrase stays unless it is to be replaced by the code's default one.
QUILL_API void quillMessageFragmentSetResponseStatusCode(struct quillMessageFragment **frag, int64_t sc,
                                                         bool replaceReasonPhrase);
/// Null when it is no response.
QUILL_API struct coString *quillMessageFragmentResponseReasonPhrase(struct quillMessageFragment const *frag);
/// It must be a response already.
QUILL_API void quillMessageFragmentSetResponseReasonPhrase(struct quillMessageFragment **frag,
                                                           struct coString *reasonPhrase);
QUILL_API void quillMessageFragmentSetResponseReasonPhraseCstr(struct quillMessageFragment **frag,
                                                               char const *reasonPhrase, int64_t length);
QUILL_API void quillMessageFragmentSetResponseReasonPhraseWcstr(struct quillMessageFragment **frag,
                                                                wchar_t const *reasonPhrase, int64_t length);
/// @}

/// @name Neither
/// @{
QUILL_API bool quillMessageFragmentIsNeitherRequestNorResponse(struct quillMessageFragment const *frag);
/// Drops the start line; headers and body stay.
QUILL_API void quillMessageFragmentSetNeitherRequestNorResponse(struct quillMessageFragment **frag);
/// @}

/// @name Protocol version: present in requests and responses
/// @{
QUILL_API struct quillVersion *quillMessageFragmentVersion(struct quillMessageFragment const *frag);
QUILL_API bool quillMessageFragmentHasVersion(struct quillMessageFragment const *frag);
/// It must be a request or a response already.
QUILL_API void quillMessageFragmentSetVersion(struct quillMessageFragment **frag, struct quillVersion *version);
/// @}

/// @name Headers
/// A name must be a token; it is normalised before use.
/// @{
QUILL_API struct coVector *quillMessageFragmentHeadersVector(struct quillMessageFragment const *frag);
/// Null when there is none of the name.
QUILL_API struct quillMessageHeader *quillMessageFragmentHeader(struct quillMessageFragment const *frag,
                                                                struct coString const *name);
QUILL_API struct quillMessageHeader *quillMessageFragmentHeaderCstr(struct quillMessageFragment const *frag,
                                                                    char const *name, int64_t length);
QUILL_API struct quillMessageHeader *quillMessageFragmentHeaderWcstr(struct quillMessageFragment const *frag,
                                                                     wchar_t const *name, int64_t length);
QUILL_API bool quillMessageFragmentHasHeader(struct quillMessageFragment const *frag, struct coString const *name);
QUILL_API bool quillMessageFragmentHasHeaderCstr(struct quillMessageFragment const *frag, char const *name,
                                                 int64_t length);
QUILL_API bool quillMessageFragmentHasHeaderWcstr(struct quillMessageFragment const *frag, wchar_t const *name,
                                                  int64_t length);
/// Takes the place of a header of the same name.
QUILL_API void quillMessageFragmentSetHeader(struct quillMessageFragment **frag, struct quillMessageHeader *header);
QUILL_API void quillMessageFragmentDelHeader(struct quillMessageFragment **frag, struct coString const *name);
QUILL_API void quillMessageFragmentDelHeaderCstr(struct quillMessageFragment **frag, char const *name, int64_t length);
QUILL_API void quillMessageFragmentDelHeaderWcstr(struct quillMessageFragment **frag, wchar_t const *name,
                                                  int64_t length);
QUILL_API void quillMessageFragmentClearHeaders(struct quillMessageFragment **frag);
/// The header "Content-Length"; null when there is none.
QUILL_API struct quillMessageHeader *quillMessageFragmentHeaderContentLength(struct quillMessageFragment const *frag);
/// @}

/// @name Body: bytes; optional
/// @{
QUILL_API struct coBuffer *quillMessageFragmentBody(struct quillMessageFragment const *frag);
QUILL_API bool quillMessageFragmentHasBody(struct quillMessageFragment const *frag);
/// The buffer is kept, not copied.
QUILL_API void quillMessageFragmentSetBody(struct quillMessageFragment **frag, struct coBuffer *body);
QUILL_API void quillMessageFragmentDelBody(struct quillMessageFragment **frag);
/// @}

/// @name Wire form
/// UTF-8 text, lines ended by CR LF, and the body's bytes.
/// @{
/// A whole message: start line (optional), headers, empty line, body. Null when the bytes are no message: text that is
/// not UTF-8, a bad status line, request IRI or version, a header line without a name or colon, a Content-Length that is
/// no decimal number or says more than there is; headers of 4 GiB. Bytes beyond the Content-Length are dropped.
/// The buffer is left as it is; one of more than 16 kB may be shared with the fragment from then on.
QUILL_API struct quillMessageFragment *quillMessageFragmentTryDecode(struct coBuffer const *buf);
/// Start line and headers alone. @p contentLength may be null; it receives the value of the last Content-Length line, or
/// -1 where there is none, and null comes back when that is no decimal number.
QUILL_API struct quillMessageFragment *quillMessageFragmentTryDecodeHeaders(struct coBuffer const *buf,
                                                                            int64_t *contentLength);
/// The canonical bytes: names in their normal form, one line for each line, no folding, the body's real length as
/// Content-Length.
QUILL_API struct coBuffer *quillMessageFragmentEncode(struct quillMessageFragment const *frag);
/// @}

CO_EXTERN_C_END

#endif
