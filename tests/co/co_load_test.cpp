// The shared library, loaded by a program that runs already and has threads that are older than it.

#include <atomic>
#include <co/co.h>
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace {

// A function of the library, which this program is not linked with.
#define LOADED(library, name) reinterpret_cast<decltype(&name)>(dlsym(library, #name))

bool worksIn(void *library) {
    auto *create = LOADED(library, coStringCreateFromCstr);
    auto *length = LOADED(library, coStringLength);
    auto *release = LOADED(library, coStringRelease);
    if (!create || !length || !release) return false;
    for (int i = 0; i < 1000; i++) {
        coString *one = create("one", -1);
        coString *another = create("another", -1);
        bool const isRight = length(one) == 3 && length(another) == 7;
        release(one);
        release(another);
        if (!isRight) return false;
    }
    return true;
}

TEST(LoadedLibrary, Works) {
    for (int round = 0; round < 3; round++) {
        void *library = dlopen(LIBRARY, RTLD_NOW | RTLD_LOCAL);
        ASSERT_TRUE(library) << dlerror();
        EXPECT_TRUE(worksIn(library));
        EXPECT_EQ(dlclose(library), 0);
    }
}

TEST(LoadedLibrary, WorksInThreadsOlderAndYounger) {
    std::atomic<bool> isTried{false};
    void *library = nullptr;
    std::atomic<int> working{0};
    auto const work = [&] {
        while (!isTried) std::this_thread::yield();
        working += library && worksIn(library);
    };
    std::vector<std::thread> threads;
    for (int i = 0; i < 3; i++) threads.emplace_back(work);
    library = dlopen(LIBRARY, RTLD_NOW | RTLD_LOCAL);
    isTried = true;
    for (int i = 0; i < 3; i++) threads.emplace_back(work);
    for (std::thread &thread : threads) thread.join();
    ASSERT_TRUE(library) << dlerror();
    EXPECT_EQ(working, 6);
    EXPECT_EQ(dlclose(library), 0);
}

// A thread that has used the library may end after it was closed.
TEST(LoadedLibrary, IsClosedBeforeAThreadEnds) {
    std::atomic<bool> isUsed{false};
    std::atomic<bool> isClosed{false};
    void *library = dlopen(LIBRARY, RTLD_NOW | RTLD_LOCAL);
    ASSERT_TRUE(library) << dlerror();
    std::thread thread([&] {
        EXPECT_TRUE(worksIn(library));
        isUsed = true;
        while (!isClosed) std::this_thread::yield();
    });
    while (!isUsed) std::this_thread::yield();
    EXPECT_EQ(dlclose(library), 0);
    isClosed = true;
    thread.join();
}

} // namespace
