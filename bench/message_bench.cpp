// How long messages take to read and to write, and how much memory is asked for on the way.
//
//     build/release/message_bench                                  bench/corpus, then samples/
//     build/release/message_bench --benchmark_filter=/invite$      one message
//     build/release/message_bench --benchmark_filter=^sixTypedHeaders --benchmark_format=json
//
// One iteration handles one message, or the one header of it that is named; streamOfMany handles 10,000 messages, and
// items_per_second counts them. "allocations" counts the calls of malloc, calloc, realloc and their like, and
// "allocated" the bytes they ask for, in an iteration.

#include "heap.hpp"
#include "objects.hpp"
#include "workloads.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

using namespace bench;

namespace {

struct Sample {
    std::string name;
    Held<coBuffer> bytes;
    Held<quillMessage> message;
};

proxy theProxy;

// Runs the work of one iteration, and counts.
template <class Work> void measure(benchmark::State &state, int64_t bytes, int64_t messages, Work const &work) {
    int64_t const callsBefore = heap::calls;
    int64_t const askedBefore = heap::asked;
    for (auto _ : state) work();
    auto const average = [](int64_t total) {
        return benchmark::Counter(static_cast<double>(total), benchmark::Counter::kAvgIterations);
    };
    state.counters["allocations"] = average(heap::calls - callsBefore);
    state.counters["allocated"] = average(heap::asked - askedBefore);
    auto const iterations = static_cast<int64_t>(state.iterations());
    if (bytes > 0) state.SetBytesProcessed(iterations * bytes);
    state.SetItemsProcessed(iterations * messages);
}

// On the message as it came.

void readCore(quillMessage const *message) {
    core read;
    coreRead(message, &read);
    benchmark::DoNotOptimize(read);
    coreRelease(&read);
}

void decode(Sample const &sample) { decoded(sample.bytes.get()); }

void decodeEncode(Sample const &sample) { benchmark::DoNotOptimize(encodedLength(decoded(sample.bytes.get()).get())); }

void typedCore(Sample const &sample) { readCore(decoded(sample.bytes.get()).get()); }

void hop(Sample const &sample) {
    quillMessage *message = decoded(sample.bytes.get()).release();
    core read;
    coreRead(message, &read);
    benchmark::DoNotOptimize(read);
    proxyHop(&theProxy, &read, &message);
    coreRelease(&read);
    benchmark::DoNotOptimize(encodedLength(message));
    quillMessageRelease(message);
}

// On the decoded message.

void encode(Sample const &sample) { benchmark::DoNotOptimize(encodedLength(sample.message.get())); }

// Via, From, To, CSeq, Call-ID and Contact, the elements of the lists as values.
void sixTypedHeaders(Sample const &sample) {
    quillMessage const *message = sample.message.get();
    auto const vias = held(quillHeaderViaTryDecodeFromMessage(message), quillHeaderViaRelease);
    auto const via = held(given(quillHeaderViaTryDecodeViaAt(vias.get(), 0), "a Via"), quillViaRelease);
    auto const from = held(quillHeaderFromTryDecodeFromMessage(message), quillHeaderFromRelease);
    auto const to = held(quillHeaderToTryDecodeFromMessage(message), quillHeaderToRelease);
    auto const cseq = held(quillHeaderCseqTryDecodeFromMessage(message), quillHeaderCseqRelease);
    auto const callId = held(quillHeaderCallIdTryDecodeFromMessage(message), quillHeaderCallIdRelease);
    auto const contacts = held(quillHeaderContactTryDecodeFromMessage(message), quillHeaderContactRelease);
    auto const contact =
        held(given(quillHeaderContactTryDecodeContactAt(contacts.get(), 0), "a Contact"), quillContactRelease);
}

// On a stream. The bytes are what the encoder writes: with a Content-Length, which a stream needs.

void stream(benchmark::State &state, Sample const &sample, int64_t messages, int64_t pieceLength) {
    auto const one = held(quillMessageEncode(sample.message.get()), coBufferRelease);
    coBuffer *all = coBufferCreate();
    for (int64_t i = 0; i < messages; i++) coBufferAppend(&all, one.get());
    auto const bytes = held(all, coBufferRelease);
    auto const decoder = held(quillMessageStreamDecoderCreate(), quillMessageStreamDecoderRelease);
    measure(state, coBufferLength(bytes.get()), messages, [&] {
        if (decodeStream(decoder.get(), bytes.get(), pieceLength) != messages)
            state.SkipWithError("not all messages came out of the stream");
    });
}

std::vector<Sample> readSamples(std::filesystem::path const &directory, std::string const &prefix) {
    std::vector<Sample> samples;
    for (auto const &entry : std::filesystem::directory_iterator(directory)) {
        if (entry.path().extension() != ".sip") continue;
        std::ifstream file(entry.path(), std::ios::binary);
        auto bytes = bufferOf(std::string{std::istreambuf_iterator<char>(file), {}});
        auto message = held(quillMessageTryDecode(bytes.get()), quillMessageRelease);
        if (message) // or else a sample of what is no message
            samples.push_back({prefix + entry.path().stem().string(), std::move(bytes), std::move(message)});
    }
    std::sort(samples.begin(), samples.end(), [](Sample const &a, Sample const &b) { return a.name < b.name; });
    return samples;
}

template <class Run> void add(std::string const &what, Sample const &sample, Run const &run) {
    benchmark::RegisterBenchmark((what + "/" + sample.name).c_str(), run);
}

void addWork(std::string const &what, Sample const &sample, void (*work)(Sample const &)) {
    add(what, sample, [&sample, work](benchmark::State &state) {
        measure(state, coBufferLength(sample.bytes.get()), 1, [&] { work(sample); });
    });
}

void addStream(std::string const &what, Sample const &sample, int64_t messages, int64_t pieceLength) {
    add(what, sample, [=, &sample](benchmark::State &state) { stream(state, sample, messages, pieceLength); });
}

constexpr int64_t unlimited = INT64_MAX / 2;

void addReadingAndWriting(Sample const &sample) {
    addWork("decode", sample, decode);
    addWork("encode", sample, encode);
    addWork("decodeEncode", sample, decodeEncode);
    addStream("streamWhole", sample, 1, unlimited);
    addStream("stream64", sample, 1, 64);
    addStream("stream1", sample, 1, 1);
}

bool present(Sample const &sample, char const *name) {
    return quillMessageHasHeaderCstr(sample.message.get(), name, -1);
}

void addProxyWork(Sample const &sample) {
    addWork("typedCore", sample, typedCore);
    addWork("hop", sample, hop);
    addStream("streamOfMany", sample, 10000, unlimited);
    if (present(sample, "Contact")) addWork("sixTypedHeaders", sample, sixTypedHeaders);
}

// Each typed header that a message has, alone.
void addTypedHeaders(Sample const &sample) {
    for (int64_t i = 0; i < quillTypedHeadersLength(); i++) {
        quillTypedHeader const *type = quillTypedHeaderAt(i);
        if (!type->presentInMessage(sample.message.get())) continue;
        add("typed" + std::string(type->type), sample, [type, &sample](benchmark::State &state) {
            measure(state, 0, 1,
                    [&] { held(given(type->tryDecodeFromMessage(sample.message.get()), type->name), coObjRelease); });
        });
    }
}

int run() {
    std::vector<Sample> const corpus = readSamples(QUILL_CORPUS, "");
    std::vector<Sample> const samples = readSamples(QUILL_SAMPLES, "samples/");
    if (corpus.empty() || samples.empty()) {
        std::fprintf(stderr, "message_bench: no messages in %s or %s\n", QUILL_CORPUS, QUILL_SAMPLES);
        return 1;
    }
    for (Sample const &sample : corpus) {
        addReadingAndWriting(sample);
        addProxyWork(sample);
        addTypedHeaders(sample);
    }
    for (Sample const &sample : samples) addReadingAndWriting(sample);
    if (benchmark::RunSpecifiedBenchmarks() > 0) return 0;
    std::fprintf(stderr, "message_bench: no benchmark has this name\n");
    return 1;
}

} // namespace

int main(int argc, char **argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    coModuleLoad(quillModule());
    theProxy = proxyCreate();
    int const status = run();
    proxyRelease(&theProxy);
    coModuleUnload(quillModule());
    return status;
}
