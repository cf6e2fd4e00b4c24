// Blocks of memory for objects and their arrays: from the heap, and back to it by way of a small list of each size that
// every thread keeps of what it freed last. A message takes and frees some dozens of them.
//
// What a thread keeps is bounded (roomFor), and freed when it ends. A block may be freed by another thread than the one
// that took it. There are no lists, but malloc and free alone, where a tool watches the heap: in builds with sanitizers,
// and under valgrind. Where valgrind's header is not at hand it could not be noticed: then there are no lists either.
#pragma once

#include <cstdint>
#include <cstdlib>

#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) || __has_feature(memory_sanitizer)
#define CO_HEAP_IS_WATCHED
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__) ||                                                   \
    defined(FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION) || !__has_include(<valgrind/valgrind.h>)
#define CO_HEAP_IS_WATCHED
#endif

namespace co {

#ifdef CO_HEAP_IS_WATCHED
inline constexpr bool keepsBlocks = false;
#else
inline constexpr bool keepsBlocks = true;
#endif

// The sizes that are told apart: in steps that malloc makes itself up to fineLimit, in coarse ones up to largestKept.
inline constexpr int64_t smallestKept = 9; // nothing is smaller
inline constexpr int64_t fineStep = 16;
inline constexpr int64_t fineLimit = 264;
inline constexpr int64_t coarseStep = 128;
inline constexpr int64_t largestKept = 4104;
inline constexpr int64_t fineClasses = (fineLimit - smallestKept) / fineStep + 1;
inline constexpr int64_t blockClasses = fineClasses + (largestKept - fineLimit) / coarseStep;

constexpr int64_t blockClass(int64_t size) {
    if (size <= fineLimit) return (size - smallestKept) / fineStep;
    return fineClasses + (size - fineLimit - 1) / coarseStep;
}

// The size of the blocks of a class.
constexpr int64_t blockSize(int64_t index) {
    if (index < fineClasses) return (index + 1) * fineStep + 8;
    return fineLimit + (index - fineClasses + 1) * coarseStep;
}

// How many blocks of a class a thread keeps: 4 kB of them, but at least 2 and at most 32.
constexpr int64_t roomFor(int64_t index) {
    int64_t const count = 4096 / blockSize(index);
    return count < 2 ? 2 : count > 32 ? 32 : count;
}

// What stands in a block that nobody uses. Where an object's sort was is the pattern of released slots: who uses the
// object now, or releases it once more, faults at once.
struct FreeBlock {
    uintptr_t released;
    int64_t unchanged; // an object's count
    FreeBlock *next;
};
static_assert(blockSize(0) >= sizeof(FreeBlock));

struct BlockList {
    FreeBlock *first;
    int64_t room;
};

struct BlockCache {
    BlockList lists[blockClasses];
};

// The calling thread's lists: before it frees its first block, and after its end, lists that are empty and have no room.
// In static memory for threads, so that it is found without a call; a pointer, because there is little of that memory.
extern constinit thread_local BlockCache *blockCache __attribute__((tls_model("initial-exec")));

// The ways around the lists. New memory is null when there is none.
void *allocateNewBlock(int64_t size);
void freeUnkeptBlock(void *mem, int64_t size);

// The others are for malloc and free: large ones, 0 for an unknown one, and negative ones, which overflowed and are
// refused there.
constexpr bool isKept(int64_t size) {
    return keepsBlocks && static_cast<uint64_t>(size) - smallestKept <= largestKept - smallestKept;
}

// Memory of a kept block, or null: there is none, or none of this size.
inline void *takeKeptBlock(int64_t size) {
    if (!isKept(size)) return nullptr;
    BlockList &list = blockCache->lists[blockClass(size)];
    FreeBlock *block = list.first;
    if (!block) return nullptr;
    list.first = block->next;
    list.room++;
    return block;
}

// Uninitialised memory that is freed with freeBlock alone. Ends the process when there is none. For objects:
// allocateObject.
void *allocateBlock(int64_t size);

// `size` is what was asked for, or 0 where that is not known any more. `mem` is not null.
inline void freeBlock(void *mem, int64_t size) {
    if (!isKept(size)) return std::free(mem);
    BlockList &list = blockCache->lists[blockClass(size)];
    if (list.room == 0) [[unlikely]]
        return freeUnkeptBlock(mem, size);
    auto *block = static_cast<FreeBlock *>(mem);
    block->released = ~uintptr_t{0};
    block->next = list.first;
    list.first = block;
    list.room--;
}

// Gives the calling thread's kept blocks back to the heap, and keeps none in this thread from now on. For tests that
// count the heap's bytes.
void keepNoBlocks();

} // namespace co
