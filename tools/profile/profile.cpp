// Does with every message that it is given what a proxy does: takes it apart, reads the core, puts itself in, writes it.
// And now and then what others do: reads all typed headers, takes messages off a stream, handles what has many parts.

#include "../../bench/workloads.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

static constexpr int rounds = 200;
static constexpr int manyParts = 100;

// Longer than a word.
static std::string nameOf(int number) { return "X-Header-" + std::to_string(number); }

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

// In pieces, as they come from a network: each in a buffer of its own, or all in one.
static void passStream(std::string const &bytes, bool isInOne) {
    constexpr int64_t pieceSize = 64;
    quillMessageStreamDecoder *decoder = quillMessageStreamDecoderCreate();
    coBuffer *whole = bufferOf(bytes);
    for (int64_t at = 0; at < std::ssize(bytes); at += pieceSize) {
        int64_t const size = std::min(pieceSize, std::ssize(bytes) - at);
        if (isInOne) {
            quillMessageStreamDecoderWriteInner(decoder, whole, at, size);
        } else {
            coBuffer *piece = coBufferRead(whole, at, size);
            quillMessageStreamDecoderWrite(decoder, piece);
            coBufferRelease(piece);
        }
        quillMessage *msg = quillMessageStreamDecoderRead(decoder);
        if (msg) quillMessageRelease(msg);
    }
    coBufferRelease(whole);
    quillMessageStreamDecoderRelease(decoder);
}

static void readTypedHeaders(quillMessage const *msg) {
    for (int64_t i = 0; i < quillTypedHeadersLength(); i++)
        if (coObj *header = quillTypedHeaderAt(i)->tryDecodeFromMessage(msg)) coObjRelease(header);
}

// A message with many fields that nobody knows, many parameters and a set of many tokens.
static std::string messageOfMany() {
    std::string lines;
    std::string params;
    std::string tokens = "a";
    for (int i = 0; i < manyParts; i++) {
        lines += nameOf(i) + ": a\r\n";
        params += ";p" + std::to_string(i) + "=v" + std::to_string(i);
        tokens += ",a" + std::to_string(i);
    }
    return "OPTIONS sip:bob@example.org SIP/2.0\r\nVia: SIP/2.0/UDP example.org;branch=z9hG4bK1\r\n" + lines +
           "From: <sip:alice@example.org>" + params + "\r\nSupported: " + tokens + "\r\n\r\n";
}

static void rewriteTypedHeaders(quillMessage **msg) {
    quillHeaderFrom *from = quillHeaderFromTryDecodeFromMessage(*msg);
    quillHeaderSupported *supported = quillHeaderSupportedTryDecodeFromMessage(*msg);
    quillHeaderFromEncodeToMessage(from, msg);
    quillHeaderSupportedEncodeToMessage(supported, msg);
    quillHeaderFromRelease(from);
    quillHeaderSupportedRelease(supported);
}

// What tables and sets are for.
static void passMany(std::string const &bytes) {
    quillMessage *msg = tryDecode(bytes);
    rewriteTypedHeaders(&msg);
    quillGenericParams *params = quillGenericParamsCreate();
    quillHeaderSupported *supported = quillHeaderSupportedCreate();
    for (int i = 0; i < manyParts; i++) {
        std::string const name = nameOf(i);
        quillHeaderSupportedSetOptionTagCstr(&supported, name.c_str(), -1);
        quillGenericParamsSetParamValueCstr(&params, name.c_str(), -1, QUILL_GENERIC_PARAM_VALUE_TYPE_TOKEN, "a", -1);
        if (quillMessageHasHeaderCstr(msg, name.c_str(), -1)) quillMessageDelHeaderCstr(&msg, name.c_str(), -1);
    }
    for (int i = 0; i < manyParts; i++) quillGenericParamsDelParamCstr(&params, nameOf(i).c_str(), -1);
    quillHeaderSupportedRelease(supported);
    quillGenericParamsRelease(params);
    encode(msg);
    quillMessageRelease(msg);
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
            passStream(bytes, round % 2 == 0);
            quillMessageRelease(msg);
        }
    }
    std::string const many = messageOfMany();
    for (int round = 0; round < rounds / 4; round++) passMany(many);
    proxyRelease(&proxy);
    coModuleUnload(quillModule());
    return 0;
}
