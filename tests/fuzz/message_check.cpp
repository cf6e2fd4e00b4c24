#include <algorithm>
#include <co/co.h>
#include <co/co_obj.hpp>
#include <cstdio>
#include <cstdlib>
#include <fuzz/message_check.hpp>
#include <quill/quill_message.h>
#include <quill/quill_message_fragment.h>
#include <quill/quill_message_header.h>
#include <quill/quill_message_stream_decoder.h>
#include <quill/quill_version.h>
#include <string_view>

using Fragment = struct quillMessageFragment;
using Header = struct quillMessageHeader;
using Message = struct quillMessage;

template <class T> static co::Ref<T> own(T *obj) { return co::Ref<T>(obj); }

static void require(bool condition, char const *what) {
    if (condition) return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

// Null equals null.
template <class T> static bool equal(co::Ref<T> const &a, co::Ref<T> const &b) {
    return a && b ? co::compare(a.get(), b.get()) == 0 : !a && !b;
}

static void checkState(Fragment const *frag) {
    bool const isRequest = quillMessageFragmentIsRequest(frag);
    bool const isResponse = quillMessageFragmentIsResponse(frag);
    require(isRequest + isResponse + quillMessageFragmentIsNeitherRequestNorResponse(frag) == 1, "one state");
    require(bool(own(quillMessageFragmentRequestMethod(frag))) == isRequest, "a method in requests");
    require(bool(own(quillMessageFragmentRequestIri(frag))) == isRequest, "an IRI in requests");
    require((quillMessageFragmentResponseStatusCode(frag) != -1) == isResponse, "a code in responses");
    require(bool(own(quillMessageFragmentResponseReasonPhrase(frag))) == isResponse, "a phrase in responses");
}

static void requireSameStart(Fragment const *a, Fragment const *b) {
    require(equal(own(quillMessageFragmentRequestMethod(a)), own(quillMessageFragmentRequestMethod(b))), "same method");
    require(equal(own(quillMessageFragmentRequestIri(a)), own(quillMessageFragmentRequestIri(b))), "same IRI");
    require(quillMessageFragmentResponseStatusCode(a) == quillMessageFragmentResponseStatusCode(b), "same code");
    require(equal(own(quillMessageFragmentResponseReasonPhrase(a)), own(quillMessageFragmentResponseReasonPhrase(b))),
            "same phrase");
    require(equal(own(quillMessageFragmentVersion(a)), own(quillMessageFragmentVersion(b))), "same version");
}

// Every header of one is the other's; the Content-Length, which encoding writes anew, is not looked at.
static void requireHeadersOf(Fragment const *a, Fragment const *b) {
    auto const headers = own(quillMessageFragmentHeadersVector(a));
    for (int64_t i = 0; i < coVectorLength(headers.get()); i++) {
        auto const header = own(quillMessageHeaderFrom(coVectorObjAt(headers.get(), i)));
        if (quillMessageHeaderNameEqualsCstr(header.get(), "l", -1)) continue;
        auto const name = own(quillMessageHeaderName(header.get()));
        auto const other = own(quillMessageFragmentHeader(b, name.get()));
        require(other && quillMessageHeaderEquals(header.get(), other.get()), "same header");
    }
}

static void requireSameBody(Fragment const *a, Fragment const *b) {
    auto bodyA = own(quillMessageFragmentBody(a));
    auto bodyB = own(quillMessageFragmentBody(b));
    if (!bodyA) bodyA.reset(coBufferCreate()); // no body and an empty one are the same on the wire
    if (!bodyB) bodyB.reset(coBufferCreate());
    require(equal(bodyA, bodyB), "same body");
}

static void requireSame(Fragment const *a, Fragment const *b) {
    requireSameStart(a, b);
    requireHeadersOf(a, b);
    requireHeadersOf(b, a);
    requireSameBody(a, b);
}

// The same with every second header, or with all of them, as an object, so that less or nothing is copied in runs.
static void checkObjectsEncodeAs(coBuffer const *wire, Fragment const *frag, int64_t step) {
    auto const headers = own(quillMessageFragmentHeadersVector(frag));
    auto copy = own(co::retained(frag));
    for (int64_t i = 0; i < coVectorLength(headers.get()); i += step) {
        auto const header = own(quillMessageHeaderFrom(coVectorObjAt(headers.get(), i)));
        quillMessageFragmentSetHeader(copy.address(), header.get());
    }
    require(coBufferEquals(own(quillMessageFragmentEncode(copy.get())).get(), wire),
            "objects are written as lines are");
}

static void checkEncoding(Fragment const *frag) {
    auto const wire = own(quillMessageFragmentEncode(frag));
    auto const back = own(quillMessageFragmentTryDecode(wire.get()));
    require(bool(back), "what is written can be read");
    requireSame(frag, back.get());
    require(equal(own(quillMessageFragmentEncode(back.get())), wire), "the canonical form is stable");
    checkObjectsEncodeAs(wire.get(), frag, 1);
    checkObjectsEncodeAs(wire.get(), frag, 2);
}

// The first message of the stream, null when there is none.
static co::Ref<Message> checkStream(coBuffer const *bytes, int64_t seed) {
    auto const decoder = own(quillMessageStreamDecoderCreate());
    co::Ref<Message> first;
    int64_t const length = coBufferLength(bytes);
    for (int64_t at = 0; at < length;) {
        seed = (seed * 1103515245 + 12345) & 0x7fffffff;
        int64_t const count = std::min(length - at, seed % 4 == 0 ? 1 : seed / 4 % 64 + 1);
        bool const wasBroken = quillMessageStreamDecoderError(decoder.get());
        int64_t const before = quillMessageStreamDecoderLength(decoder.get());
        bool const written = quillMessageStreamDecoderWriteInner(decoder.get(), bytes, at, count);
        require(written == !wasBroken, "only a broken stream takes nothing");
        require(quillMessageStreamDecoderLength(decoder.get()) == before + (written ? count : 0), "all is kept");
        while (auto msg = own(quillMessageStreamDecoderRead(decoder.get()))) {
            auto const frag = own(quillMessageFragment(msg.get()));
            checkState(frag.get());
            checkEncoding(frag.get());
            require(quillMessageHasBody(msg.get()), "messages of a stream have a body");
            if (!first) first = std::move(msg);
        }
        at += count;
    }
    return first;
}

void fuzz::checkMessage(uint8_t const *bytes, size_t length) {
    auto const buffer = own(coBufferCreateFromBytesCopy(bytes, static_cast<int64_t>(length)));
    int64_t seed = static_cast<int64_t>(length);
    for (size_t i = 0; i < length; i++) seed = (seed * 31 + bytes[i]) & 0x7fffffff;
    auto const ofStream = checkStream(buffer.get(), seed);

    int64_t contentLength = 0;
    if (auto const headers = own(quillMessageFragmentTryDecodeHeaders(buffer.get(), &contentLength))) {
        require(contentLength >= -1, "a length or none");
        checkState(headers.get());
    }
    auto const frag = own(quillMessageFragmentTryDecode(buffer.get()));
    if (frag) {
        checkState(frag.get());
        checkEncoding(frag.get());
    }
    auto const msg = own(quillMessageTryDecode(buffer.get()));
    require(bool(msg) == (frag && !quillMessageFragmentIsNeitherRequestNorResponse(frag.get())),
            "a message is a fragment with a start line");
    if (!msg) return;

    // A stream says the same where it can: with the length of the body, and nothing but keep-alives in front.
    auto const lengthHeader = own(quillMessageHeaderCstr(msg.get(), "l", -1));
    if (!lengthHeader) return;
    auto const ofMessage = own(quillMessageFragment(msg.get()));
    bool const hasEnd =
        coBufferLength(buffer.get()) >= 4 &&
        std::string_view(reinterpret_cast<char const *>(bytes), length).find("\r\n\r\n") != std::string_view::npos;
    if (!hasEnd) return;
    require(bool(ofStream), "a stream has the message, too");
    requireSame(own(quillMessageFragment(ofStream.get())).get(), ofMessage.get());
}
