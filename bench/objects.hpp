// References that are given up by themselves, and objects from texts.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <quill/quill.h>
#include <string>
#include <string_view>

namespace bench {

template <class T> using Held = std::unique_ptr<T, void (*)(T *)>;
template <class T> Held<T> held(T *obj, void (*release)(T *)) { return {obj, release}; }

// What has to be there; its absence ends the program.
template <class T> T *given(T *obj, char const *what) {
    if (obj) return obj;
    std::fprintf(stderr, "%s is not there or does not decode\n", what);
    std::exit(2);
}

inline Held<coBuffer> bufferOf(std::string_view bytes) {
    return held(coBufferCreateFromBytesCopy(reinterpret_cast<uint8_t const *>(bytes.data()),
                                            static_cast<int64_t>(bytes.size())),
                coBufferRelease);
}

inline Held<coString> stringOf(std::string_view text) {
    return held(coStringCreateFromCstr(text.data(), static_cast<int64_t>(text.size())), coStringRelease);
}

inline Held<quillMessage> decoded(coBuffer const *bytes) {
    return held(given(quillMessageTryDecode(bytes), "a message"), quillMessageRelease);
}

inline int64_t encodedLength(quillMessage const *message) {
    return coBufferLength(held(quillMessageEncode(message), coBufferRelease).get());
}

// Writes bytes to a decoder in pieces and reads after each as a connection would; how many messages came.
inline int64_t decodeStream(quillMessageStreamDecoder *decoder, coBuffer const *bytes, int64_t pieceLength) {
    int64_t messages = 0;
    for (int64_t at = 0, length = coBufferLength(bytes); at < length; at += pieceLength) {
        quillMessageStreamDecoderWriteInner(decoder, bytes, at, at + pieceLength < length ? pieceLength : length - at);
        while (quillMessage *message = quillMessageStreamDecoderRead(decoder)) {
            messages++;
            quillMessageRelease(message);
        }
    }
    return messages;
}

} // namespace bench
