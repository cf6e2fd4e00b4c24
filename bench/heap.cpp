#include "heap.hpp"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <malloc.h>

extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *memory, size_t size);
void *__libc_memalign(size_t alignment, size_t size);
void __libc_free(void *memory);
}

static void noteAsked(size_t size) {
    heap::calls++;
    heap::asked += static_cast<int64_t>(size);
}

static void *noteTaken(void *memory) {
    if (!heap::watched || !memory) return memory;
    heap::live += static_cast<int64_t>(malloc_usable_size(memory));
    heap::highest = std::max(heap::highest, heap::live);
    return memory;
}

static void noteGiven(void *memory) {
    if (heap::watched && memory) heap::live -= static_cast<int64_t>(malloc_usable_size(memory));
}

extern "C" {
void *malloc(size_t size) noexcept {
    noteAsked(size);
    return noteTaken(__libc_malloc(size));
}

void *calloc(size_t count, size_t size) noexcept {
    noteAsked(count * size);
    return noteTaken(__libc_calloc(count, size));
}

void *realloc(void *memory, size_t size) noexcept {
    noteAsked(size);
    noteGiven(memory);
    return noteTaken(__libc_realloc(memory, size));
}

void *memalign(size_t alignment, size_t size) noexcept {
    noteAsked(size);
    return noteTaken(__libc_memalign(alignment, size));
}

void *aligned_alloc(size_t alignment, size_t size) noexcept { return memalign(alignment, size); }

int posix_memalign(void **memory, size_t alignment, size_t size) noexcept {
    *memory = memalign(alignment, size);
    return *memory || size == 0 ? 0 : ENOMEM;
}

void free(void *memory) noexcept {
    noteGiven(memory);
    __libc_free(memory);
}
}
