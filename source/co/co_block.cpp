// Blocks of memory. Contract: co_block.hpp.

#define CO_UNIT "source/co/co_block"

#include <co/co_block.hpp>
#include <cstdlib>
#include <utility>

#ifdef CO_HEAP_IS_WATCHED
static bool isWatched() { return true; }
#else
#include <valgrind/valgrind.h>
static bool isWatched() { return RUNNING_ON_VALGRIND; }
#endif

// What a thread that has no lists sees: never written, for nothing is in them and there is room for nothing.
static constinit co::BlockCache notYet{};
static constinit co::BlockCache never{};

constinit thread_local co::BlockCache *co::blockCache = &notYet;

void *co::allocateNewBlock(int64_t size) {
    bool const exact = !isKept(size) || isWatched(); // what is watched ends where it was meant to
    return std::malloc(static_cast<size_t>(exact ? size : blockSize(blockClass(size))));
}

static void freeLists(co::BlockCache *cache) {
    for (co::BlockList &list : cache->lists)
        while (co::FreeBlock *block = list.first) {
            list.first = block->next;
            std::free(block);
        }
    std::free(cache);
}

void co::keepNoBlocks() {
    BlockCache *cache = std::exchange(blockCache, &never);
    if (cache != &notYet && cache != &never) freeLists(cache);
}

namespace {

// Ends with its thread. What is freed later, by other ends, goes to the heap.
struct AtThreadEnd {
    bool isNeeded = false;
    ~AtThreadEnd() { co::keepNoBlocks(); }
};

thread_local AtThreadEnd atThreadEnd;

} // namespace

// The thread's lists, which begin empty; none where there is no memory for them.
static co::BlockCache *makeCache() {
    if (isWatched()) return &never;
    auto *cache = static_cast<co::BlockCache *>(std::calloc(1, sizeof(co::BlockCache)));
    if (!cache) return &never;
    for (int64_t i = 0; i < co::blockClasses; i++) cache->lists[i].room = co::roomFor(i);
    atThreadEnd.isNeeded = true; // only what is used is destroyed
    return cache;
}

void co::freeUnkeptBlock(void *mem, int64_t size) {
    if (blockCache != &notYet) return std::free(mem);
    blockCache = makeCache();
    if (blockCache == &never) return std::free(mem);
    freeBlock(mem, size);
}
