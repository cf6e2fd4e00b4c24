// How long the samples take to read and to write, and how much memory is asked for on the way.
//
//     build/release/message_bench                                  every sample that is a message
//     build/release/message_bench --benchmark_filter=/invite_16    the message whose figures are quoted
//
// One iteration handles one message. "allocations" counts the calls of malloc, calloc, realloc and their like, and
// "allocated" the bytes they ask for, per message.

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <quill/quill.h>
#include <string>
#include <vector>

// Every allocation of the program, the library's included, comes through here. The benchmarks run in one thread.

static int64_t allocations;
static int64_t allocatedBytes;

extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *memory, size_t size);
void *__libc_memalign(size_t alignment, size_t size);

void *malloc(size_t size) noexcept {
    allocations++;
    allocatedBytes += static_cast<int64_t>(size);
    return __libc_malloc(size);
}

void *calloc(size_t count, size_t size) noexcept {
    allocations++;
    allocatedBytes += static_cast<int64_t>(count * size);
    return __libc_calloc(count, size);
}

void *realloc(void *memory, size_t size) noexcept {
    allocations++;
    allocatedBytes += static_cast<int64_t>(size);
    return __libc_realloc(memory, size);
}

void *memalign(size_t alignment, size_t size) noexcept {
    allocations++;
    allocatedBytes += static_cast<int64_t>(size);
    return __libc_memalign(alignment, size);
}

void *aligned_alloc(size_t alignment, size_t size) noexcept { return memalign(alignment, size); }

int posix_memalign(void **memory, size_t alignment, size_t size) noexcept {
    *memory = memalign(alignment, size);
    return *memory || size == 0 ? 0 : ENOMEM;
}
}

namespace {

struct Sample {
    std::string name;
    coBuffer *bytes;
    quillMessage *message;
};

// The counters of one benchmark: from its construction to its report.
class Counters {
public:
    void report(benchmark::State &state, Sample const &sample) const {
        auto const perMessage = [](int64_t total) {
            return benchmark::Counter(static_cast<double>(total), benchmark::Counter::kAvgIterations);
        };
        state.counters["allocations"] = perMessage(allocations - allocationsBefore);
        state.counters["allocated"] = perMessage(allocatedBytes - bytesBefore);
        state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * coBufferLength(sample.bytes));
        state.SetItemsProcessed(static_cast<int64_t>(state.iterations()));
    }

private:
    int64_t allocationsBefore = allocations;
    int64_t bytesBefore = allocatedBytes;
};

void decode(benchmark::State &state, Sample const &sample) {
    Counters const counters;
    for (auto _ : state) {
        quillMessage *message = quillMessageTryDecode(sample.bytes);
        if (!message) return state.SkipWithError("the message does not decode");
        quillMessageRelease(message);
    }
    counters.report(state, sample);
}

void encode(benchmark::State &state, Sample const &sample) {
    Counters const counters;
    for (auto _ : state) {
        coBuffer *bytes = quillMessageEncode(sample.message);
        benchmark::DoNotOptimize(coBufferBacking(bytes));
        coBufferRelease(bytes);
    }
    counters.report(state, sample);
}

void decodeAndEncode(benchmark::State &state, Sample const &sample) {
    Counters const counters;
    for (auto _ : state) {
        quillMessage *message = quillMessageTryDecode(sample.bytes);
        if (!message) return state.SkipWithError("the message does not decode");
        coBuffer *bytes = quillMessageEncode(message);
        benchmark::DoNotOptimize(coBufferBacking(bytes));
        coBufferRelease(bytes);
        quillMessageRelease(message);
    }
    counters.report(state, sample);
}

// Writes the message to one decoder in pieces of a size, reading after each piece as a connection would. The bytes are
// what the encoder writes: with a Content-Length, which a stream needs.
void stream(benchmark::State &state, Sample const &sample, int64_t pieceSize) {
    coBuffer *whole = quillMessageEncode(sample.message);
    std::vector<coBuffer *> pieces;
    int64_t const length = coBufferLength(whole);
    for (int64_t at = 0; at < length; at += pieceSize) {
        pieces.push_back(coBufferRead(whole, at, std::min(pieceSize, length - at)));
    }
    quillMessageStreamDecoder *decoder = quillMessageStreamDecoderCreate();
    Counters const counters;
    for (auto _ : state) {
        int64_t messages = 0;
        for (coBuffer const *piece : pieces) {
            quillMessageStreamDecoderWrite(decoder, piece);
            while (quillMessage *message = quillMessageStreamDecoderRead(decoder)) {
                messages++;
                quillMessageRelease(message);
            }
        }
        if (messages != 1) {
            state.SkipWithError("the stream does not hold one message");
            break;
        }
    }
    counters.report(state, sample);
    quillMessageStreamDecoderRelease(decoder);
    for (coBuffer *piece : pieces) coBufferRelease(piece);
    coBufferRelease(whole);
}

std::vector<Sample> readSamples(std::filesystem::path const &directory) {
    std::vector<Sample> samples;
    for (auto const &entry : std::filesystem::directory_iterator(directory)) {
        if (entry.path().extension() != ".sip") continue;
        std::ifstream file(entry.path(), std::ios::binary);
        std::string const text{std::istreambuf_iterator<char>(file), {}};
        coBuffer *bytes = coBufferCreateFromBytesCopy(reinterpret_cast<uint8_t const *>(text.data()),
                                                      static_cast<int64_t>(text.size()));
        if (quillMessage *message = quillMessageTryDecode(bytes)) {
            samples.push_back({entry.path().stem().string(), bytes, message});
        } else {
            coBufferRelease(bytes); // a sample of what is no message
        }
    }
    std::sort(samples.begin(), samples.end(), [](Sample const &a, Sample const &b) { return a.name < b.name; });
    return samples;
}

void registerBenchmarks(Sample const &sample) {
    auto const add = [&sample](std::string const &what, auto run) {
        benchmark::RegisterBenchmark((what + "/" + sample.name).c_str(), run);
    };
    add("decode", [&sample](benchmark::State &state) { decode(state, sample); });
    add("encode", [&sample](benchmark::State &state) { encode(state, sample); });
    add("decode_encode", [&sample](benchmark::State &state) { decodeAndEncode(state, sample); });
    add("stream_whole", [&sample](benchmark::State &state) { stream(state, sample, INT64_MAX / 2); });
    add("stream_64", [&sample](benchmark::State &state) { stream(state, sample, 64); });
    add("stream_1", [&sample](benchmark::State &state) { stream(state, sample, 1); });
}

} // namespace

int main(int argc, char **argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    coModuleLoad(quillModule());
    std::vector<Sample> const samples = readSamples(QUILL_SAMPLES);
    for (Sample const &sample : samples) registerBenchmarks(sample);
    if (benchmark::RunSpecifiedBenchmarks() == 0) {
        std::fprintf(stderr, "message_bench: nothing to run on the samples in %s\n", QUILL_SAMPLES);
        return 1;
    }
    for (Sample const &sample : samples) {
        quillMessageRelease(sample.message);
        coBufferRelease(sample.bytes);
    }
    coModuleUnload(quillModule());
    return 0;
}
