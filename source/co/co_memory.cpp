// Raw memory. Contract: co_memory.h and co_block.hpp.

#define CO_UNIT "source/co/co_memory"

#include <co/co_assert.hpp>
#include <co/co_block.hpp>
#include <co/co_memory.h>
#include <cstdlib>

void *coMemAllocN(int64_t count, int64_t size) {
    int64_t bytes = 0;
    CO_ASSERT(count >= 0 && size >= 0, "count >= 0 && size >= 0");
    CO_ASSERT_SAYING("out of memory", !__builtin_mul_overflow(count, size, &bytes), "count * size");
    void *mem = std::malloc(bytes ? static_cast<size_t>(bytes) : 1);
    CO_ASSERT_SAYING("out of memory", mem, "mem");
    return mem;
}

void *co::allocateBlock(int64_t size) {
    void *mem = takeKeptBlock(size);
    if (!mem) mem = allocateNewBlock(size);
    CO_ASSERT_SAYING("out of memory", mem, "mem");
    return mem;
}

void coMemFree(void *mem) { std::free(mem); }
