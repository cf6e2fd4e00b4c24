// Does with every message that it is given what a proxy does: takes it apart, reads the core, puts itself in, writes it.
// And now and then what others do: reads all typed headers, takes messages off a stream.

#include "../../bench/workloads.h"

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

static constexpr int rounds = 200;

static coBuffer *bufferOf(std::string const &bytes) {
    return coBufferCreateFromBytesCopy(reinterpret_cast<uint8_t const *>(bytes.data()), std::ssize(bytes));
}

static quillMessage *tryDecode(std::string const &bytes) {
    coBuffer *buffer = bufferOf(bytes);
    quillMessage *msg = quillMessageTryDecode(buffer);
    coBufferRelease(buffer);
    return msg;
}

static void encode(quillMessage const *msg) { coBufferRelease(quillMessageEncode(msg)); }

static void pass(proxy const *proxy, quillMessage **msg) {
    core core;
    coreRead(*msg, &core);
    if (core.vias) proxyHop(proxy, &core, msg);
    coreRelease(&core);
    encode(*msg);
}

// In pieces, as they come from a network.
static void passStream(std::string const &bytes) {
    constexpr size_t pieceSize = 64;
    quillMessageStreamDecoder *decoder = quillMessageStreamDecoderCreate();
    for (size_t at = 0; at < bytes.size(); at += pieceSize) {
        coBuffer *piece = bufferOf(bytes.substr(at, pieceSize));
        quillMessageStreamDecoderWrite(decoder, piece);
        coBufferRelease(piece);
        quillMessage *msg = quillMessageStreamDecoderRead(decoder);
        if (msg) quillMessageRelease(msg);
    }
    quillMessageStreamDecoderRelease(decoder);
}

static void readTypedHeaders(quillMessage const *msg) {
    for (int64_t i = 0; i < quillTypedHeadersLength(); i++)
        if (coObj *header = quillTypedHeaderAt(i)->tryDecodeFromMessage(msg)) coObjRelease(header);
}

int main(int count, char **paths) {
    coModuleLoad(quillModule());
    proxy const proxy = proxyCreate();
    for (int i = 1; i < count; i++) {
        std::ifstream file(paths[i], std::ios::binary);
        std::string const bytes(std::istreambuf_iterator<char>(file), {});
        for (int round = 0; round < rounds; round++) {
            quillMessage *msg = tryDecode(bytes);
            if (!msg) break;
            if (round == 0) readTypedHeaders(msg);
            encode(msg);
            pass(&proxy, &msg);
            passStream(bytes);
            quillMessageRelease(msg);
        }
    }
    proxyRelease(&proxy);
    coModuleUnload(quillModule());
    return 0;
}
