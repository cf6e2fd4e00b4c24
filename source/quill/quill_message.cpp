// A SIP message: a fragment that is a request or a response. Contract: quill_message.h.

#define CO_UNIT "source/quill/quill_message"

#include <co/co_buffer.h>
#include <quill/quill_family.hpp>
#include <quill/quill_message.h>
#include <quill/quill_message_fragment.h>
#include <quill/quill_message_fragment.hpp>

struct quillMessage : coObj {
    static constexpr auto &sort = quill___sort_QUILL_MESSAGE;

    co::Slot<struct quillMessageFragment> fragment; // never null, a request or a response

    static constexpr auto members() { return std::tuple(&quillMessage::fragment); }
};

QUILL_DEFINE_SORT(Message, MESSAGE, nullptr, nullptr)
QUILL_DEFINE_CREATE_FROM(Message)

// Takes the fragment over.
static quillMessage *makeMessage(struct quillMessageFragment *fragment) {
    CO_ASSERT(quillMessageFragmentIsRequest(fragment) || quillMessageFragmentIsResponse(fragment),
              "quillMessageFragmentIsRequest( fragment ) || quillMessageFragmentIsResponse( fragment )");
    auto *msg = co::make<quillMessage>();
    msg->fragment.adopt(fragment);
    return msg;
}

struct quillMessage *quillMessageCreate(struct quillMessageFragment *fragment) {
    return makeMessage(co::retained(fragment));
}

struct quillMessageFragment *quillMessageFragment(struct quillMessage const *msg) {
    CO_ASSERT_GIVEN(msg);
    return msg->fragment.retained();
}

quill::HeaderTable const &quill::headersOf(quillMessage const *msg) { return msg->fragment->headers; }

// Constructors, readers and setters are the fragment's operations of the same names.

#define MORE(...) __VA_OPT__(, ) __VA_ARGS__

#define CREATE(Name, parameters, arguments)                                                                            \
    struct quillMessage *quillMessage##Name parameters {                                                               \
        return makeMessage(quillMessageFragment##Name arguments);                                                      \
    }

#define READ(Result, Name, parameters, arguments)                                                                      \
    Result quillMessage##Name(struct quillMessage const *msg MORE parameters) {                                        \
        CO_ASSERT_GIVEN(msg);                                                                                          \
        return quillMessageFragment##Name(msg->fragment.get() MORE arguments);                                         \
    }

// Copy on write of the message first; the fragment's operation does the fragment's.
#define CHANGE(Name, parameters, arguments)                                                                            \
    void quillMessage##Name(struct quillMessage **msg MORE parameters) {                                               \
        CO_ASSERT_REFERENCE(msg);                                                                                      \
        quillMessageFragment##Name(co::writable(msg)->fragment.address() MORE arguments);                              \
    }

CREATE(CreateRequest, (struct quillVersion * version, struct coString *method, struct coString *iri),
       (version, method, iri))
CREATE(CreateRequestCstr,
       (struct quillVersion * version, char const *method, int64_t methodLength, char const *iri, int64_t iriLength),
       (version, method, methodLength, iri, iriLength))
CREATE(CreateRequestWcstr,
       (struct quillVersion * version, wchar_t const *method, int64_t methodLength, wchar_t const *iri,
        int64_t iriLength),
       (version, method, methodLength, iri, iriLength))
CREATE(CreateResponse, (struct quillVersion * version, int64_t sc), (version, sc))
CREATE(CreateResponseWithReasonPhrase, (struct quillVersion * version, int64_t sc, struct coString *reasonPhrase),
       (version, sc, reasonPhrase))
CREATE(CreateResponseWithReasonPhraseCstr,
       (struct quillVersion * version, int64_t sc, char const *reasonPhrase, int64_t length),
       (version, sc, reasonPhrase, length))
CREATE(CreateResponseWithReasonPhraseWcstr,
       (struct quillVersion * version, int64_t sc, wchar_t const *reasonPhrase, int64_t length),
       (version, sc, reasonPhrase, length))

READ(bool, IsRequest, (), ())
READ(struct coString *, RequestMethod, (), ())
READ(struct coString *, RequestIri, (), ())
READ(bool, IsResponse, (), ())
READ(int64_t, ResponseStatusCode, (), ())
READ(struct coString *, ResponseReasonPhrase, (), ())
READ(struct quillVersion *, Version, (), ())
READ(struct coVector *, HeadersVector, (), ())
READ(struct quillMessageHeader *, Header, (struct coString const *name), (name))
READ(struct quillMessageHeader *, HeaderCstr, (char const *name, int64_t length), (name, length))
READ(struct quillMessageHeader *, HeaderWcstr, (wchar_t const *name, int64_t length), (name, length))
READ(bool, HasHeader, (struct coString const *name), (name))
READ(bool, HasHeaderCstr, (char const *name, int64_t length), (name, length))
READ(bool, HasHeaderWcstr, (wchar_t const *name, int64_t length), (name, length))
READ(struct coBuffer *, Body, (), ())
READ(bool, HasBody, (), ())
READ(struct coBuffer *, Encode, (), ())

CHANGE(SetRequest, (struct quillVersion * version, struct coString *method, struct coString *iri),
       (version, method, iri))
CHANGE(SetRequestCstr,
       (struct quillVersion * version, char const *method, int64_t methodLength, char const *iri, int64_t iriLength),
       (version, method, methodLength, iri, iriLength))
CHANGE(SetRequestWcstr,
       (struct quillVersion * version, wchar_t const *method, int64_t methodLength, wchar_t const *iri,
        int64_t iriLength),
       (version, method, methodLength, iri, iriLength))
CHANGE(SetRequestMethod, (struct coString * method), (method))
CHANGE(SetRequestMethodCstr, (char const *method, int64_t length), (method, length))
CHANGE(SetRequestMethodWcstr, (wchar_t const *method, int64_t length), (method, length))
CHANGE(SetRequestIri, (struct coString * iri), (iri))
CHANGE(SetRequestIriCstr, (char const *iri, int64_t length), (iri, length))
CHANGE(SetRequestIriWcstr, (wchar_t const *iri, int64_t length), (iri, length))
CHANGE(SetResponse, (struct quillVersion * version, int64_t sc), (version, sc))
CHANGE(SetResponseWithReasonPhrase, (struct quillVersion * version, int64_t sc, struct coString *reasonPhrase),
       (version, sc, reasonPhrase))
CHANGE(SetResponseWithReasonPhraseCstr,
       (struct quillVersion * version, int64_t sc, char const *reasonPhrase, int64_t length),
       (version, sc, reasonPhrase, length))
CHANGE(SetResponseWithReasonPhraseWcstr,
       (struct quillVersion * version, int64_t sc, wchar_t const *reasonPhrase, int64_t length),
       (version, sc, reasonPhrase, length))
CHANGE(SetResponseStatusCode, (int64_t sc, bool replaceReasonPhrase), (sc, replaceReasonPhrase))
CHANGE(SetResponseReasonPhrase, (struct coString * reasonPhrase), (reasonPhrase))
CHANGE(SetResponseReasonPhraseCstr, (char const *reasonPhrase, int64_t length), (reasonPhrase, length))
CHANGE(SetResponseReasonPhraseWcstr, (wchar_t const *reasonPhrase, int64_t length), (reasonPhrase, length))
CHANGE(SetVersion, (struct quillVersion * version), (version))
CHANGE(SetHeader, (struct quillMessageHeader * header), (header))
CHANGE(DelHeader, (struct coString const *name), (name))
CHANGE(DelHeaderCstr, (char const *name, int64_t length), (name, length))
CHANGE(DelHeaderWcstr, (wchar_t const *name, int64_t length), (name, length))
CHANGE(SetBody, (struct coBuffer * body), (body))
CHANGE(DelBody, (), ())

struct quillMessage *quillMessageTryDecode(struct coBuffer const *buf) {
    co::Ref<struct quillMessageFragment> fragment(quillMessageFragmentTryDecode(buf));
    if (!fragment) return nullptr;
    if (!quillMessageFragmentIsRequest(fragment.get()) && !quillMessageFragmentIsResponse(fragment.get()))
        return nullptr;
    return makeMessage(fragment.take());
}
