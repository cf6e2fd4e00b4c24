#include <co/co_block.hpp>
#include <cstdlib>
#include <iterator>
#include <support/cost.hpp>

#ifdef TEST_COUNTS_HEAP // linked with --wrap for these

static int64_t bytesAskedFor;

// Each block is asked for: none that was freed before is taken instead. From the program's start on.
static bool const keepsNone = (co::keepNoBlocks(), true);

// What the last pieces of memory were asked for, by their address; a later one may take the place of an earlier one.
static struct {
    void const *mem;
    size_t size;
} asked[1 << 16];

static auto &askedFor(void const *mem) { return asked[(reinterpret_cast<uintptr_t>(mem) >> 4) % std::size(asked)]; }

static void *noted(void *mem, size_t size) {
    askedFor(mem) = {mem, size};
    bytesAskedFor += static_cast<int64_t>(size);
    return mem;
}

extern "C" {
void *__real_malloc(size_t size);
void *__real_calloc(size_t count, size_t size);
void *__real_realloc(void *mem, size_t size);
void *__wrap_malloc(size_t size);
void *__wrap_calloc(size_t count, size_t size);
void *__wrap_realloc(void *mem, size_t size);

void *__wrap_malloc(size_t size) { return noted(__real_malloc(size), size); }
void *__wrap_calloc(size_t count, size_t size) { return noted(__real_calloc(count, size), count * size); }
void *__wrap_realloc(void *mem, size_t size) { return noted(__real_realloc(mem, size), size); }
}

bool test::countsHeap() { return keepsNone; }
int64_t test::heapBytes() { return bytesAskedFor; }
size_t test::sizeOf(void const *mem) { return askedFor(mem).mem == mem ? askedFor(mem).size : 0; }

#else

#include <malloc.h>

bool test::countsHeap() { return false; }
int64_t test::heapBytes() { return 0; }
size_t test::sizeOf(void const *mem) { return malloc_usable_size(const_cast<void *>(mem)); } // a sanitizer's is exact

#endif
