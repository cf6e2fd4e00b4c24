// Frames messages on a stream connection (RFC 3261, 18.3). Contract: quill_message_stream_decoder.h.
//
//     seeking headers: nothing pending; the offset says how far the end of the headers has been looked for
//     awaiting body:   a message pending; the offset is where its body begins
//     error:           for good

#define CO_UNIT "source/quill/quill_message_stream_decoder"

#include <co/co_buffer.hpp>
#include <co/co_simd.hpp>
#include <quill/quill_family.hpp>
#include <quill/quill_message.h>
#include <quill/quill_message_fragment.h>
#include <quill/quill_message_fragment.hpp>
#include <quill/quill_message_stream_decoder.h>

struct quillMessageStreamDecoder : coObj {
    static constexpr auto &sort = quill___sort_QUILL_MESSAGE_STREAM_DECODER;

    co::Flag error;
    co::Slot<coBuffer> buffer; // never null: what has been received and not yet consumed
    co::Slot<quillMessage> pending;
    co::Int offset;
    co::Int contentLength; // of the pending message

    static constexpr auto members() {
        return std::tuple(&quillMessageStreamDecoder::error, &quillMessageStreamDecoder::buffer,
                          &quillMessageStreamDecoder::pending, &quillMessageStreamDecoder::offset,
                          &quillMessageStreamDecoder::contentLength);
    }
};

QUILL_DEFINE_SORT(MessageStreamDecoder, MESSAGE_STREAM_DECODER, nullptr, nullptr)

struct quillMessageStreamDecoder *quillMessageStreamDecoderCreate(void) {
    auto *decoder = co::make<quillMessageStreamDecoder>();
    decoder->buffer.adopt(coBufferCreate());
    decoder->offset.set(0);
    return decoder;
}

bool quillMessageStreamDecoderError(struct quillMessageStreamDecoder const *decoder) {
    CO_ASSERT_GIVEN(decoder);
    return decoder->error.get();
}

int64_t quillMessageStreamDecoderLength(struct quillMessageStreamDecoder const *decoder) {
    CO_ASSERT_GIVEN(decoder);
    return coBufferLength(decoder->buffer.get());
}

int64_t quillMessageStreamDecoderSpace(struct quillMessageStreamDecoder const *decoder) {
    CO_ASSERT_GIVEN(decoder);
    return coBufferSpace(decoder->buffer.get());
}

// Writing: the whole or a part of a buffer.
#define WRITE(Part, parameters, arguments)                                                                             \
    bool quillMessageStreamDecoderWrite##Part(struct quillMessageStreamDecoder *decoder,                               \
                                              struct coBuffer const *buffer MORE parameters) {                         \
        CO_ASSERT_GIVEN(decoder);                                                                                      \
        CO_ASSERT_GIVEN(buffer);                                                                                       \
        if (decoder->error.get()) return false;                                                                        \
        coBufferAppend##Part(decoder->buffer.address(), buffer MORE arguments);                                        \
        return true;                                                                                                   \
    }
#define MORE(...) __VA_OPT__(, ) __VA_ARGS__

WRITE(, (), ())
WRITE(Leading, (int64_t count), (count))
WRITE(Trailing, (int64_t count), (count))
WRITE(Inner, (int64_t offset, int64_t count), (offset, count))
WRITE(Outer, (int64_t offset, int64_t count), (offset, count))

// Reading.

// CR LF before a message keeps a connection alive and says nothing (RFC 3261, 7.5; RFC 5626, 3.5.1).
[[gnu::noinline]] static void skipKeepAlives(quillMessageStreamDecoder *decoder) {
    std::string_view const bytes = decoder->buffer->view();
    size_t count = 0;
    while (bytes.substr(count, 2) == "\r\n") count += 2;
    if (count > 0) coBufferDelLeading(decoder->buffer.address(), static_cast<int64_t>(count));
}

// Where the last line of the headers ends, looked for from where the last search stopped; -1 when the empty line behind it
// is not there yet.
static int64_t findEndOfHeaders(quillMessageStreamDecoder *decoder) {
    std::string_view const bytes = decoder->buffer->view();
    if (bytes.size() < co::emptyLine.size()) return -1;
    size_t const end = co::simd::findEmptyLine(bytes, static_cast<size_t>(decoder->offset.get()));
    if (end < bytes.size()) return static_cast<int64_t>(end);
    decoder->offset.set(decoder->buffer->length);
    return -1;
}

// Makes the message whose headers end at a place pending; false when they are none of a message on a stream. Apart, so that
// a read that finds nothing is short.
[[gnu::noinline]] static bool decodePending(quillMessageStreamDecoder *decoder, int64_t end) {
    int64_t contentLength = -1;
    std::string_view const headers = decoder->buffer->view().substr(0, static_cast<size_t>(end + 2));
    co::Ref<struct quillMessageFragment> const frag(quill::tryDecodeHeaders(headers, &contentLength));
    if (!frag || contentLength < 0) return false;
    if (!quillMessageFragmentIsRequest(frag.get()) && !quillMessageFragmentIsResponse(frag.get())) return false;
    decoder->pending.adopt(quillMessageCreate(frag.get()));
    decoder->offset.set(end + 4);
    decoder->contentLength.set(contentLength);
    return true;
}

// The pending message with its body, which has arrived.
[[gnu::noinline]] static quillMessage *complete(quillMessageStreamDecoder *decoder) {
    int64_t const offset = decoder->offset.get();
    int64_t const contentLength = decoder->contentLength.get();
    co::Ref<coBuffer> const body(coBufferRead(decoder->buffer.get(), offset, contentLength));
    quillMessage *msg = decoder->pending.retained();
    decoder->pending.clear();
    quillMessageSetBody(&msg, body.get());
    coBufferDelLeading(decoder->buffer.address(), offset + contentLength);
    decoder->offset.set(0);
    decoder->contentLength.clear();
    return msg;
}

struct quillMessage *quillMessageStreamDecoderRead(struct quillMessageStreamDecoder *decoder) {
    CO_ASSERT_GIVEN(decoder);
    if (decoder->error.get()) return nullptr;
    if (!decoder->pending) {
        if (decoder->offset.get() == 0) skipKeepAlives(decoder);
        int64_t const end = findEndOfHeaders(decoder);
        if (end < 0) return nullptr;
        if (!decodePending(decoder, end)) {
            decoder->error.set(true);
            return nullptr;
        }
    }
    if (decoder->buffer->length - decoder->offset.get() < decoder->contentLength.get()) return nullptr;
    return complete(decoder);
}
