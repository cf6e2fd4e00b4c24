// Kept blocks. malloc, calloc and free are wrapped, so that what goes to the heap is counted.

#include <co/co_block.hpp>
#include <co/co_buffer.hpp>
#include <co/co_dict.hpp>
#include <co/co_format.h>
#include <co/co_string.hpp>
#include <co/co_vector.hpp>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <set>
#include <thread>
#include <vector>

static std::atomic<int64_t> allocated{0};
static std::atomic<int64_t> freed{0};
static thread_local bool failing = false;

extern "C" {
void *__real_malloc(size_t size);
void *__real_calloc(size_t count, size_t size);
void __real_free(void *mem);
void *__wrap_malloc(size_t size);
void *__wrap_calloc(size_t count, size_t size);
void __wrap_free(void *mem);

void *__wrap_malloc(size_t size) {
    if (failing) return nullptr;
    allocated++;
    return __real_malloc(size);
}
void *__wrap_calloc(size_t count, size_t size) {
    if (failing) return nullptr;
    allocated++;
    return __real_calloc(count, size);
}
void __wrap_free(void *mem) {
    freed += mem != nullptr;
    __real_free(mem);
}
}

namespace {

int64_t live() { return allocated - freed; }

// Each test in a thread of its own, whose lists are empty at its beginning.
void inThread(std::function<void()> const &work) { std::thread(work).join(); }

std::vector<void *> take(int64_t size, int64_t count) {
    std::vector<void *> blocks;
    for (int64_t i = 0; i < count; i++) {
        blocks.push_back(co::allocateBlock(size));
        std::memset(blocks.back(), 0xAB, static_cast<size_t>(size));
    }
    return blocks;
}

void give(std::vector<void *> const &blocks, int64_t size) {
    for (void *block : blocks) co::freeBlock(block, size);
}

// The sizes around every step.
std::vector<int64_t> sizes() {
    std::vector<int64_t> all{1, co::smallestKept - 1, co::smallestKept};
    for (int64_t i = 0; i < co::blockClasses; i++)
        for (int64_t size : {co::blockSize(i) - 1, co::blockSize(i), co::blockSize(i) + 1}) all.push_back(size);
    return all;
}

TEST(Block, ClassesCoverTheSizesInOrder) {
    EXPECT_EQ(co::blockClass(co::smallestKept), 0);
    EXPECT_EQ(co::blockClass(co::largestKept), co::blockClasses - 1);
    EXPECT_EQ(co::blockSize(co::blockClasses - 1), co::largestKept);
    for (int64_t size = co::smallestKept; size <= co::largestKept; size++) {
        int64_t const index = co::blockClass(size);
        ASSERT_GE(co::blockSize(index), size);
        ASSERT_GE(co::blockSize(index), static_cast<int64_t>(sizeof(co::FreeBlock)));
        ASSERT_TRUE(index == 0 || co::blockSize(index - 1) < size) << size;
        ASSERT_LE(co::blockSize(index), std::max(size + 15, size + size / 2)) << "not much is wasted";
    }
}

TEST(Block, OfAnySizeHoldsWhatWasAskedFor) {
    inThread([] {
        for (int round = 0; round < 3; round++)
            for (int64_t size : sizes()) give(take(size, 3), size);
    });
}

TEST(Block, IsTakenAgain) {
    if (!co::keepsBlocks) GTEST_SKIP();
    inThread([] {
        for (int64_t size : sizes()) {
            if (!co::isKept(size)) continue;
            give(take(size, 2), size);
            int64_t const before = allocated;
            std::vector<void *> const again = take(size, 2);
            EXPECT_EQ(allocated, before) << size;
            EXPECT_NE(again[0], again[1]);
            give(again, size);
        }
    });
}

TEST(Block, IsNotTakenForAnotherSize) {
    inThread([] {
        give(take(64, 4), 64);
        int64_t const before = allocated;
        give(take(200, 4), 200);
        EXPECT_GE(allocated - before, 4);
    });
}

TEST(Block, LargerOnesAndThoseOfUnknownSizeGoToTheHeap) {
    inThread([] {
        give(take(64, 1), 64);
        int64_t const before = live();
        give(take(co::largestKept + 1, 3), co::largestKept + 1);
        std::vector<void *> const blocks = take(100, 3);
        give(blocks, 0);
        EXPECT_EQ(live(), before);
    });
}

TEST(Block, KeptOnesAreBounded) {
    if (!co::keepsBlocks) GTEST_SKIP();
    inThread([] {
        int64_t const before = live();
        int64_t room = 1; // for the lists themselves
        int64_t bytes = 0;
        for (int64_t i = 0; i < co::blockClasses; i++) {
            give(take(co::blockSize(i), 100), co::blockSize(i));
            room += co::roomFor(i);
            bytes += co::roomFor(i) * co::blockSize(i);
            EXPECT_LE(co::roomFor(i), 32);
            EXPECT_EQ(live() - before, room);
        }
        EXPECT_LE(bytes, 256 * 1024);
    });
}

TEST(BlockThread, FreesWhatItKeptWhenItEnds) {
    int64_t const before = live();
    inThread([] {
        for (int64_t size : sizes()) give(take(size, 40), size);
    });
    EXPECT_EQ(live(), before);
}

TEST(BlockThread, FreesWhatAnotherTook) {
    int64_t const before = live();
    for (int round = 0; round < 50; round++) {
        std::vector<void *> blocks;
        inThread([&] { blocks = take(72, 20); });
        inThread([&] { give(blocks, 72); });
    }
    EXPECT_EQ(live(), before);
}

TEST(BlockThread, TakesBlocksThatAnotherMade) {
    if (!co::keepsBlocks) GTEST_SKIP();
    std::vector<void *> made;
    inThread([&] { made = take(72, 20); });
    inThread([&] {
        give(made, 72);
        std::vector<void *> const again = take(72, 20);
        EXPECT_EQ(std::set<void *>(again.begin(), again.end()), std::set<void *>(made.begin(), made.end()));
        give(again, 72);
    });
}

// Destroyed after the thread's lists are, for it is made before them.
struct Late {
    coString *string = nullptr;
    ~Late() {
        if (!string) return;
        coStringRelease(string);
        coStringRelease(coStringCreateFromCstr("made and freed later still", -1));
    }
};

TEST(BlockThread, FreesWhatIsFreedAfterItsLists) {
    int64_t const before = live();
    inThread([] {
        static thread_local Late late;
        late.string = coStringCreateFromCstr("to the heap", -1);
        give(take(100, 5), 100);
    });
    EXPECT_EQ(live(), before);
}

TEST(BlockThread, KeepsNoneWhenTold) {
    inThread([] {
        int64_t const before = live();
        for (int64_t size : sizes()) give(take(size, 4), size);
        co::keepNoBlocks();
        EXPECT_EQ(live(), before);
        for (int64_t size : sizes()) give(take(size, 4), size);
        EXPECT_EQ(live(), before);
        co::keepNoBlocks();
    });
}

TEST(BlockThread, ManyPassObjectsOn) {
    int64_t const before = live();
    std::atomic<int> wrong{0};
    inThread([&] {
        std::atomic<coString *> places[8] = {};
        std::vector<std::thread> threads;
        for (unsigned t = 0; t < 4; t++)
            threads.emplace_back([&, t] {
                for (unsigned i = 0; i < 5000; i++) {
                    char text[40];
                    int const length = std::snprintf(text, sizeof text, "%.*s", static_cast<int>((i * 7 + t) % 30),
                                                     "abcdefghijklmnopqrstuvwxyz0123456789");
                    coString *mine = coStringCreateFromCstr(text, length);
                    coString *other = places[(i + t) % 8].exchange(mine);
                    if (!other) continue;
                    coVector *vector = coVectorCreate();
                    for (int64_t n = 0; n < (i % 7); n++) coVectorAppendString(&vector, other);
                    wrong += coVectorLength(vector) != i % 7;
                    wrong += coStringLength(other) > 0 && coStringCharAt(other, 0) != U'a';
                    coStringRelease(other);
                    coVectorRelease(vector);
                }
            });
        for (std::thread &thread : threads) thread.join();
        for (auto &place : places)
            if (coString *left = place) coStringRelease(left);
    });
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(live(), before);
}

TEST(BlockThread, WorksWithoutMemoryForItsLists) {
    inThread([] {
        std::vector<void *> const blocks = take(100, 3);
        int64_t const before = live();
        failing = true;
        give(blocks, 100);
        failing = false;
        EXPECT_EQ(live(), before - 3);
        give(take(100, 3), 100);
        EXPECT_EQ(live(), before - 3);
    });
}

TEST(Block, OutOfMemoryEndsTheProcess) {
    auto const failAfter = [](auto const &make) {
        failing = true;
        make();
    };
    EXPECT_EXIT(failAfter([] { co::makeString(1000); }), testing::KilledBySignal(SIGABRT),
                "^abort: out of memory: source/co/co_object:[0-9]+: mem\n$");
    EXPECT_EXIT(failAfter([] { co::makeString(INT64_MAX / 4); }), testing::KilledBySignal(SIGABRT),
                "^abort: out of memory: source/co/co_object:[0-9]+: mem\n$");
    EXPECT_EXIT(failAfter([] { co::allocateBlock(100); }), testing::KilledBySignal(SIGABRT),
                "^abort: out of memory: source/co/co_memory:[0-9]+: mem\n$");
}

TEST(Block, IsMarkedAsReleased) {
    if (!co::keepsBlocks) GTEST_SKIP();
    inThread([] {
        coString *string = coStringCreateFromCstr("text", -1);
        auto const *block = reinterpret_cast<co::FreeBlock const *>(string);
        coStringRelease(string);
        EXPECT_EQ(block->released, UINTPTR_MAX);
        EXPECT_EQ(co::allocateBlock(coString::sizeFor(4)), string);
        co::freeBlock(string, coString::sizeFor(4));
    });
}

TEST(Block, ASecondReleaseFaults) {
    if (!co::keepsBlocks) GTEST_SKIP();
    auto const releaseTwice = [] {
        coString *string = coStringCreateFromCstr("text", -1);
        coStringRelease(string);
        coStringRelease(string);
    };
    EXPECT_EXIT(inThread(releaseTwice), testing::KilledBySignal(SIGSEGV), "");
}

// How many blocks an object takes of the heap, with what it holds.
TEST(Block, SmallCollectionsTakeOne) {
    coString *text = coStringCreateFromCstr("text", -1);
    inThread([&] {
        co::keepNoBlocks();
        for (int64_t count : {0, 4, 5}) {
            int64_t const before = allocated;
            coVector *vector = coVectorCreate();
            for (int64_t i = 0; i < count; i++) coVectorInsertString(&vector, i / 2, text);
            EXPECT_EQ(allocated - before, count <= 4 ? 1 : 2) << count;
            coVectorRelease(vector);
        }
    });
    inThread([&] {
        co::keepNoBlocks();
        coString *keys[5];
        for (int64_t i = 0; i < 5; i++) {
            keys[i] = co::makeString(co::Chars(U"abcde").substr(static_cast<size_t>(i), 1));
        }
        for (int64_t count : {0, 4, 5}) {
            int64_t const before = allocated;
            coDict *dict = coDictCreate();
            for (int64_t i = 0; i < count; i++) coDictSetStringKey(&dict, keys[i], coStringObj(text));
            EXPECT_EQ(allocated - before, count <= 4 ? 1 : 2) << count;
            coDictRelease(dict);
        }
        for (coString *key : keys) coStringRelease(key);
    });
    coStringRelease(text);
}

TEST(Block, GrownObjectsAreFreed) {
    int64_t const before = live();
    inThread([] {
        for (int64_t length : {0, 1, 10, 60, 500, 2000, 9000}) {
            co::Ref<coString> string(coStringCreate());
            co::Ref<coBuffer> buffer(coBufferCreate());
            co::Ref<coVector> vector(coVectorCreate());
            for (int64_t i = 0; i < length; i++) {
                coStringAppendChar(string.address(), U'x');
                coBufferAppendByte(buffer.address(), 'x');
                coVectorAppend(vector.address(), coBufferObj(buffer.get()));
            }
        }
        for (int64_t length : {0, 1, 4, 5, 8, 9, 100, 1000}) {
            co::Ref<coDict> dict(coDictCreate());
            for (int64_t i = 0; i < length; i++) {
                co::Ref<coString> const key(coFormatEncodeInt(i, 10, 0, 0));
                coDictSetStringKey(dict.address(), key.get(), coStringObj(key.get()));
            }
            co::Ref<coDict> const shared(co::retained(dict.get()));
            while (coDictLength(dict.get()) > 2)
                coDictDelStringKey(dict.address(), co::Ref(coDictKeyAt(dict.get(), 1)).get());
            if (length > 8) coDictClear(dict.address());
        }
    });
    EXPECT_EQ(live(), before);
}

} // namespace
