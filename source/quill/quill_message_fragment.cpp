// A message as it stands on the wire. Contract: quill_message_fragment.h.

#define CO_UNIT "source/quill/quill_message_fragment"

#include <quill/quill_family.hpp>
#include <quill/quill_field_name.hpp>
#include <quill/quill_iri.h>
#include <quill/quill_message_fragment.h>
#include <quill/quill_message_fragment.hpp>
#include <quill/quill_message_header.h>
#include <quill/quill_message_header.hpp>
#include <quill/quill_method.h>
#include <quill/quill_method.hpp>
#include <quill/quill_reason_phrase.h>

QUILL_DEFINE_SORT(MessageFragment, MESSAGE_FRAGMENT, nullptr, nullptr)
QUILL_DEFINE_CREATE_FROM(MessageFragment)

struct coString *quill___CosContentLength;

void quill___MessageFragmentStartup(void) {
    quill::start(&quill___CosContentLength, coStringCreateFromCstr("Content-Length", -1));
    quill::startMethods();
}

void quill___MessageFragmentShutdown(void) {
    quill::stop(&quill___CosContentLength);
    quill::stopMethods();
}

struct quillMessageFragment *quillMessageFragmentCreate(void) {
    return co::make<quillMessageFragment>();
}

// Requests.

bool quillMessageFragmentIsRequest(struct quillMessageFragment const *frag) {
    CO_ASSERT_GIVEN(frag);
    return frag->requestMethod && frag->requestIri && frag->version;
}

void quillMessageFragmentSetRequest(struct quillMessageFragment **frag, struct quillVersion *version,
                                    struct coString *method, struct coString *iri) {
    CO_ASSERT_REFERENCE(frag);
    CO_ASSERT_GIVEN(version);
    CO_ASSERT_OK(quillMethodOk, method);
    CO_ASSERT_OK(quillIriOk, iri);
    quillMessageFragment *own = co::writable(frag);
    own->version.set(version);
    own->requestMethod.set(method);
    own->requestIri.set(iri);
    own->responseStatusCode.clear();
    own->responseReasonPhrase.clear();
}

struct quillMessageFragment *quillMessageFragmentCreateRequest(struct quillVersion *version, struct coString *method,
                                                               struct coString *iri) {
    quillMessageFragment *frag = quillMessageFragmentCreate();
    quillMessageFragmentSetRequest(&frag, version, method, iri);
    return frag;
}

void quillMessageFragmentSetRequestCstr(struct quillMessageFragment **frag, struct quillVersion *version,
                                        char const *method, int64_t methodLength, char const *iri, int64_t iriLength) {
    quillMessageFragmentSetRequest(frag, version, co::Text(method, methodLength), co::Text(iri, iriLength));
}

void quillMessageFragmentSetRequestWcstr(struct quillMessageFragment **frag, struct quillVersion *version,
                                         wchar_t const *method, int64_t methodLength, wchar_t const *iri,
                                         int64_t iriLength) {
    quillMessageFragmentSetRequest(frag, version, co::Text(method, methodLength), co::Text(iri, iriLength));
}

struct quillMessageFragment *quillMessageFragmentCreateRequestCstr(struct quillVersion *version, char const *method,
                                                                   int64_t methodLength, char const *iri,
                                                                   int64_t iriLength) {
    return quillMessageFragmentCreateRequest(version, co::Text(method, methodLength), co::Text(iri, iriLength));
}

struct quillMessageFragment *quillMessageFragmentCreateRequestWcstr(struct quillVersion *version, wchar_t const *method,
                                                                    int64_t methodLength, wchar_t const *iri,
                                                                    int64_t iriLength) {
    return quillMessageFragmentCreateRequest(version, co::Text(method, methodLength), co::Text(iri, iriLength));
}

struct coString *quillMessageFragmentRequestMethod(struct quillMessageFragment const *frag) {
    CO_ASSERT_GIVEN(frag);
    return frag->requestMethod.retained();
}

void quillMessageFragmentSetRequestMethod(struct quillMessageFragment **frag, struct coString *method) {
    CO_ASSERT_REFERENCE(frag);
    CO_ASSERT((*frag)->requestMethod, "(*frag)->requestMethod");
    CO_ASSERT_OK(quillMethodOk, method);
    co::writable(frag)->requestMethod.set(method);
}

struct coString *quillMessageFragmentRequestIri(struct quillMessageFragment const *frag) {
    CO_ASSERT_GIVEN(frag);
    return frag->requestIri.retained();
}

// The test for a request is the method's here too.
void quillMessageFragmentSetRequestIri(struct quillMessageFragment **frag, struct coString *iri) {
    CO_ASSERT_REFERENCE(frag);
    CO_ASSERT((*frag)->requestMethod, "(*frag)->requestMethod");
    CO_ASSERT_OK(quillIriOk, iri);
    co::writable(frag)->requestIri.set(iri);
}

CO_DEFINE_TEXT_FORMS_1(void, quillMessageFragmentSetRequestMethod, struct quillMessageFragment **, frag, method)
CO_DEFINE_TEXT_FORMS_1(void, quillMessageFragmentSetRequestIri, struct quillMessageFragment **, frag, iri)

// Responses.

bool quillMessageFragmentIsResponse(struct quillMessageFragment const *frag) {
    CO_ASSERT_GIVEN(frag);
    return frag->responseStatusCode && frag->responseReasonPhrase;
}

void quillMessageFragmentSetResponseWithReasonPhrase(struct quillMessageFragment **frag, struct quillVersion *version,
                                                     int64_t sc, struct coString *reasonPhrase) {
    CO_ASSERT_REFERENCE(frag);
    CO_ASSERT_GIVEN(version);
    CO_ASSERT_OK(quillStatusCodeOk, sc);
    CO_ASSERT_OK(quillReasonPhraseOk, reasonPhrase);
    quillMessageFragment *own = co::writable(frag);
    own->version.set(version);
    own->requestMethod.clear();
    own->requestIri.clear();
    own->responseStatusCode.set(sc);
    own->responseReasonPhrase.set(reasonPhrase);
}

struct quillMessageFragment *quillMessageFragmentCreateResponseWithReasonPhrase(struct quillVersion *version,
                                                                                int64_t sc,
                                                                                struct coString *reasonPhrase) {
    quillMessageFragment *frag = quillMessageFragmentCreate();
    quillMessageFragmentSetResponseWithReasonPhrase(&frag, version, sc, reasonPhrase);
    return frag;
}

CO_DEFINE_TEXT_FORMS_3(void, quillMessageFragmentSetResponseWithReasonPhrase, struct quillMessageFragment **, frag,
                       struct quillVersion *, version, int64_t, sc, reasonPhrase)
CO_DEFINE_TEXT_FORMS_2(struct quillMessageFragment *, quillMessageFragmentCreateResponseWithReasonPhrase,
                       struct quillVersion *, version, int64_t, sc, reasonPhrase)

void quillMessageFragmentSetResponse(struct quillMessageFragment **frag, struct quillVersion *version, int64_t sc) {
    CO_ASSERT_REFERENCE(frag);
    CO_ASSERT_GIVEN(version);
    CO_ASSERT_OK(quillStatusCodeOk, sc);
    co::Ref<coString> const reasonPhrase(quillStatusCodeReasonPhrase(sc));
    quillMessageFragmentSetResponseWithReasonPhrase(frag, version, sc, reasonPhrase.get());
}

struct quillMessageFragment *quillMessageFragmentCreateResponse(struct quillVersion *version, int64_t sc) {
    quillMessageFragment *frag = quillMessageFragmentCreate();
    quillMessageFragmentSetResponse(&frag, version, sc);
    return frag;
}

int64_t quillMessageFragmentResponseStatusCode(struct quillMessageFragment const *frag) {
    CO_ASSERT_GIVEN(frag);
    return frag->responseStatusCode.get();
}

void quillMessageFragmentSetResponseStatusCode(struct quillMessageFragment **frag, int64_t sc,
                                               bool replaceReasonPhrase) {
    CO_ASSERT_REFERENCE(frag);
    CO_ASSERT((*frag)->responseStatusCode, "(*frag)->responseStatusCode != QUILL_STATUS_CODE_INVALID");
    CO_ASSERT_OK(quillStatusCodeOk, sc);
    quillMessageFragment *own = co::writable(frag);
    own->responseStatusCode.set(sc);
    if (replaceReasonPhrase) own->responseReasonPhrase.adopt(quillStatusCodeReasonPhrase(sc));
}

struct coString *quillMessageFragmentResponseReasonPhrase(struct quillMessageFragment const *frag) {
    CO_ASSERT_GIVEN(frag);
    return frag->responseReasonPhrase.retained();
}

void quillMessageFragmentSetResponseReasonPhrase(struct quillMessageFragment **frag, struct coString *reasonPhrase) {
    CO_ASSERT_REFERENCE(frag);
    CO_ASSERT((*frag)->responseReasonPhrase, "(*frag)->responseReasonPhrase");
    CO_ASSERT_OK(quillReasonPhraseOk, reasonPhrase);
    co::writable(frag)->responseReasonPhrase.set(reasonPhrase);
}

CO_DEFINE_TEXT_FORMS_1(void, quillMessageFragmentSetResponseReasonPhrase, struct quillMessageFragment **, frag,
                       reasonPhrase)

// Neither.

bool quillMessageFragmentIsNeitherRequestNorResponse(struct quillMessageFragment const *frag) {
    CO_ASSERT_GIVEN(frag);
    return !frag->version;
}

void quillMessageFragmentSetNeitherRequestNorResponse(struct quillMessageFragment **frag) {
    CO_ASSERT_REFERENCE(frag);
    quillMessageFragment *own = co::writable(frag);
    own->version.clear();
    own->requestMethod.clear();
    own->requestIri.clear();
    own->responseStatusCode.clear();
    own->responseReasonPhrase.clear();
}

// Version.

struct quillVersion *quillMessageFragmentVersion(struct quillMessageFragment const *frag) {
    CO_ASSERT_GIVEN(frag);
    return frag->version.retained();
}

bool quillMessageFragmentHasVersion(struct quillMessageFragment const *frag) {
    CO_ASSERT_GIVEN(frag);
    return static_cast<bool>(frag->version);
}

void quillMessageFragmentSetVersion(struct quillMessageFragment **frag, struct quillVersion *version) {
    CO_ASSERT_REFERENCE(frag);
    CO_ASSERT((*frag)->version, "(*frag)->version");
    CO_ASSERT_GIVEN(version);
    co::writable(frag)->version.set(version);
}

// Headers.

struct coVector *quillMessageFragmentHeadersVector(struct quillMessageFragment const *frag) {
    CO_ASSERT_GIVEN(frag);
    return frag->headers.vector();
}

// A function by a name, in its three forms.
#define BY_NAME(Result, Fn, Fragment, ASSERT_FRAG, work)                                                               \
    Result Fn(Fragment frag, struct coString const *name) {                                                            \
        ASSERT_FRAG(frag);                                                                                             \
        quill::HeaderName const wanted(name);                                                                          \
        return work;                                                                                                   \
    }                                                                                                                  \
    Result Fn##Cstr(Fragment frag, char const *name, int64_t length) {                                                 \
        ASSERT_FRAG(frag);                                                                                             \
        quill::HeaderName const wanted(name, length);                                                                  \
        return work;                                                                                                   \
    }                                                                                                                  \
    Result Fn##Wcstr(Fragment frag, wchar_t const *name, int64_t length) { return Fn(frag, co::Text(name, length)); }

BY_NAME(struct quillMessageHeader *, quillMessageFragmentHeader, struct quillMessageFragment const *, CO_ASSERT_GIVEN,
        frag->headers.header(wanted))
BY_NAME(bool, quillMessageFragmentHasHeader, struct quillMessageFragment const *, CO_ASSERT_GIVEN,
        frag->headers.has(wanted))
BY_NAME(void, quillMessageFragmentDelHeader, struct quillMessageFragment **, CO_ASSERT_REFERENCE,
        co::writable(frag)->headers.remove(wanted))

void quillMessageFragmentSetHeader(struct quillMessageFragment **frag, struct quillMessageHeader *header) {
    CO_ASSERT_REFERENCE(frag);
    CO_ASSERT_GIVEN(header);
    co::writable(frag)->headers.set(header);
}

void quillMessageFragmentClearHeaders(struct quillMessageFragment **frag) {
    CO_ASSERT_REFERENCE(frag);
    co::writable(frag)->headers.removeAll();
}

struct quillMessageHeader *quillMessageFragmentHeaderContentLength(struct quillMessageFragment const *frag) {
    CO_ASSERT_GIVEN(frag);
    return frag->headers.header({.known = quill::contentLengthFieldName});
}

// Body.

CO_DEFINE_OPTIONAL_OBJECT_MEMBER(quillMessageFragment, frag, Body, body, coBuffer, body)
