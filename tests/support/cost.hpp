// Costs that have to grow with the input, not faster: time, and heap bytes where they can be counted.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <gtest/gtest.h>
#include <malloc.h>
#include <string>
#include <string_view>

namespace test {

// Bytes asked of malloc and realloc so far, and whether they are counted: not under sanitizers, which have a heap of
// their own.
int64_t heapBytes();
bool countsHeap();
// How many bytes were asked for when a piece of memory was, that lives and is young; 0 when that is not known.
size_t sizeOf(void const *mem);

inline std::string repeated(std::string_view text, size_t count) {
    std::string all;
    all.reserve(text.size() * count);
    for (size_t i = 0; i < count; i++) all += text;
    return all;
}

// The processor time of the fastest of a few runs: what other processes do meanwhile does not count.
template <class Work> double seconds(Work const &work) {
    auto const now = [] {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    };
    double best = 1e9;
    for (int i = 0; i < 5; i++) {
        double const start = now();
        work();
        best = std::min(best, now() - start);
    }
    return best;
}

// To take large blocks from the system and to give them back costs more than to read what is in them: the heap keeps them.
inline void keepLargeBlocks() {
#ifdef __GLIBC__
    mallopt(M_TRIM_THRESHOLD, 32 << 20);
    mallopt(M_MMAP_THRESHOLD, 32 << 20);
#endif
}

// `prepare(n)` gives the work for an input of size n. Eight times the input may cost a bit more than eight times; where
// the cost is quadratic it is 64 times.
template <class Prepare> void expectLinear(std::string const &what, size_t n, Prepare const &prepare) {
    SCOPED_TRACE(what);
    keepLargeBlocks();
    auto const small = prepare(n);
    auto const large = prepare(8 * n);
    if (countsHeap()) {
        auto const bytes = [](auto const &work) {
            int64_t const before = heapBytes();
            work();
            return heapBytes() - before;
        };
        bytes(small); // first use fills what is kept
        EXPECT_LE(bytes(large), 12 * bytes(small) + 4096);
    }
    double ratio = 0;
    for (int attempt = 0; attempt < 5; attempt++) { // other processes may have taken the caches meanwhile
        ratio = seconds(large) / std::max(seconds(small), 1e-6);
        if (ratio < 24) return;
    }
    ADD_FAILURE() << "eight times the input takes " << ratio << " times the time";
}

} // namespace test
