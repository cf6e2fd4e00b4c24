// Objects that threads share: each thread changes its own reference and reads what others hold.

#include <co/co_dict.hpp>
#include <co/co_hash.hpp>
#include <support/text.hpp>
#include <thread>

using test::count;
using test::str;
using test::taken;

namespace {

void inThreads(std::function<void()> const &work) {
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; i++) threads.emplace_back(work);
    for (std::thread &thread : threads) thread.join();
}

TEST(Threads, AgreeOnTheHashKey) {
    std::atomic<uint64_t> different{0};
    uint64_t const expected = co::hash(U"to");
    inThreads([&] { different += co::hash(U"to") != expected; });
    EXPECT_EQ(different, 0u);
}

TEST(Threads, CopyWhatTheyShare) {
    co::Ref<coDict> dict(coDictCreate());
    for (int64_t i = 0; i < 100; i++) {
        co::Ref<coString> const key(coFormatEncodeInt(i, 10, 0, 0));
        coDictSetStringKey(dict.address(), key.get(), coStringObj(key.get()));
    }
    for (int64_t i = 0; i < 100; i += 3)
        coDictDelStringKey(dict.address(), co::Ref(coFormatEncodeInt(i, 10, 0, 0)).get());
    std::string const before = taken(coDictToString(dict.get()));
    std::atomic<int> wrong{0};
    inThreads([&] {
        for (int round = 0; round < 200; round++) {
            co::Ref<coDict> mine(co::retained(dict.get()));
            wrong += taken(coDictKeyAt(mine.get(), 30)) != "46";
            coDictDelStringKey(mine.address(), str("1"));
            coDictSetStringKey(mine.address(), str("x"), coStringObj(str("y")));
            wrong += coDictLength(mine.get()) != 66;
            co::Ref<coString> value(coStringFrom(coDictStringKey(mine.get(), str("50"))));
            coStringAppendChar(value.address(), U'!');
            wrong += taken(value.take()) != "50!";
        }
    });
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(taken(coDictToString(dict.get())), before);
    EXPECT_EQ(count(dict.get()), 1);
    EXPECT_EQ(count(co::find(dict.get(), U"50")), 2);
}

TEST(Threads, TheLastOneFrees) {
    for (int round = 0; round < 200; round++) {
        coString *string = coStringCreateFromCstr("text", -1);
        for (int i = 0; i < 4; i++) coStringRetain(string);
        inThreads([string] {
            co::Ref<coString> mine(string);
            coStringSetCharAt(mine.address(), 0, U'n');
        });
        EXPECT_EQ(test::utf8(string), "text");
        coStringRelease(string);
    }
}

} // namespace
