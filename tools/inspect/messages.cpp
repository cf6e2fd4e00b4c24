#include "messages.hpp"

#include <algorithm>

namespace inspect {
namespace {

/// As much as a connection hands over at once; decoding must not depend on it.
constexpr int64_t pieceLength = 4096;

void readAll(quillMessageStreamDecoder *decoder, Take const &take) {
    while (Message const message{quillMessageStreamDecoderRead(decoder)}) take(message.get());
}

} // namespace

Trouble decodeDatagram(coBuffer const *bytes, Take const &take) {
    Message const message(quillMessageTryDecode(bytes));
    if (!message) return "does not decode";
    take(message.get());
    return {};
}

Trouble decodeStream(coBuffer const *bytes, Take const &take) {
    Decoder const decoder(quillMessageStreamDecoderCreate());
    int64_t const length = coBufferLength(bytes);
    for (int64_t offset = 0; offset < length; offset += pieceLength) {
        int64_t const count = std::min(pieceLength, length - offset);
        quillMessageStreamDecoderWriteInner(decoder.get(), bytes, offset, count);
        readAll(decoder.get(), take);
        if (quillMessageStreamDecoderError(decoder.get()))
            return "the stream is broken: the headers do not decode or lack a Content-Length";
    }
    int64_t const rest = quillMessageStreamDecoderLength(decoder.get());
    if (rest > 0)
        return "the stream is cut: it ends within a message, " + std::to_string(rest) + " bytes are left over";
    return {};
}

} // namespace inspect
