#include <co/co_obj.hpp>
#include <cstring>
#include <support/text.hpp>

using test::count;
using test::str;
using test::taken;

namespace {

constexpr char const *unit = "source/co/co_object";

int freed = 0;

struct Thing : coObj {
    int64_t rank;
    unsigned char rest[40];
};

int compareRanks(coObj const *a, coObj const *b) {
    int64_t const rankA = static_cast<Thing const *>(a)->rank;
    int64_t const rankB = static_cast<Thing const *>(b)->rank;
    return (rankA > rankB) - (rankA < rankB);
}

void countFree(coObj *) { freed++; }

constinit coModule module{&co___sort_CO_MODULE, nullptr, nullptr, nullptr};
constinit coSort const bare{&co___sort_CO_SORT, &module, "BARE", nullptr, nullptr, nullptr};
constinit coSort const ranked{&co___sort_CO_SORT, &module, "RANKED", countFree, compareRanks, nullptr};
constinit coSort const bareTwin{&co___sort_CO_SORT, &module, "BARE", nullptr, nullptr, nullptr};

co::Ref<coObj> make(coSort const &sort, int64_t rank = 0) {
    coObj *obj = co___ObjCreate(sizeof(Thing), &sort);
    static_cast<Thing *>(obj)->rank = rank;
    return co::Ref<coObj>(obj);
}

TEST(Object, IsCreatedZeroedWithOneReference) {
    co::Ref<coObj> const obj(co___ObjCreate(sizeof(Thing), &bare));
    auto const *thing = static_cast<Thing const *>(obj.get());
    EXPECT_EQ(count(thing), 1);
    EXPECT_EQ(coObjSort(thing), &bare);
    EXPECT_EQ(thing->rank, 0);
    for (unsigned char byte : thing->rest) EXPECT_EQ(byte, 0);
}

TEST(Object, IsFreedByItsLastReleaseOnly) {
    freed = 0;
    coObj *obj = make(ranked).take();
    coObjRetain(obj);
    coObjRelease(obj);
    EXPECT_EQ(freed, 0);
    coObjRelease(obj);
    EXPECT_EQ(freed, 1);
}

TEST(Object, ComparesByTheSortsFunction) {
    co::Ref<coObj> const one = make(ranked, 1);
    co::Ref<coObj> const two = make(ranked, 2);
    co::Ref<coObj> const again = make(ranked, 1);
    EXPECT_LT(coObjCompare(one.get(), two.get()), 0);
    EXPECT_GT(coObjCompare(two.get(), one.get()), 0);
    EXPECT_EQ(coObjCompare(one.get(), again.get()), 0);
    EXPECT_EQ(coObjCompare(one.get(), one.get()), 0);
}

TEST(Object, WithoutACompareFunctionComparesByAddress) {
    co::Ref<coObj> const a = make(bare);
    co::Ref<coObj> const b = make(bare);
    EXPECT_EQ(coObjCompare(a.get(), a.get()), 0);
    EXPECT_EQ(coObjCompare(a.get(), b.get()), a.get() < b.get() ? -1 : 1);
    EXPECT_EQ(coObjCompare(b.get(), a.get()), b.get() < a.get() ? -1 : 1);
}

TEST(Object, OfDifferentSortsComparesByTheSortsName) {
    co::Ref<coObj> const a = make(bare);
    co::Ref<coObj> const b = make(ranked);
    EXPECT_EQ(coObjCompare(a.get(), b.get()), -1);
    EXPECT_EQ(coObjCompare(b.get(), a.get()), 1);
    co::Ref<coObj> const twin = make(bareTwin);
    EXPECT_EQ(coObjCompare(a.get(), twin.get()), -coObjCompare(twin.get(), a.get()));
    EXPECT_NE(coObjCompare(a.get(), twin.get()), 0);
}

TEST(Object, WithoutATextFormIsNamedWithItsAddress) {
    co::Ref<coObj> const obj = make(bare);
    char expected[64];
    std::snprintf(expected, sizeof expected, "<BARE %p>", static_cast<void *>(obj.get()));
    EXPECT_EQ(taken(coObjToString(obj.get())), expected);
}

TEST(Object, SortsAndModulesAreObjects) {
    EXPECT_EQ(coObjSort(&bare), &co___sort_CO_SORT);
    EXPECT_EQ(coObjSort(&co___sort_CO_SORT), &co___sort_CO_SORT);
    EXPECT_EQ(coObjSort(&co___module), &co___sort_CO_MODULE);
    EXPECT_EQ(count(&co___module), 1);
    EXPECT_EQ(co___module.record->format, 2);
    EXPECT_STREQ(co___module.record->name, "co");
    EXPECT_STREQ(co___module.record->end, "");
}

TEST(Object, BrokenPreconditionsAbort) {
    co::Ref<coObj> const obj = make(bare);
    EXPECT_ABORT(coObjSort(nullptr), unit, "obj");
    EXPECT_ABORT(coObjRetain(nullptr), unit, "obj");
    EXPECT_ABORT(coObjRelease(nullptr), unit, "obj");
    EXPECT_ABORT(coObjToString(nullptr), unit, "obj");
    EXPECT_ABORT(coObjCompare(nullptr, obj.get()), unit, "objA");
    EXPECT_ABORT(coObjCompare(obj.get(), nullptr), unit, "objB");
    EXPECT_ABORT(co___ObjCreate(1, &bare), unit, "size >= sizeof(struct coObj)");
    EXPECT_ABORT(co___ObjCreate(64, nullptr), unit, "sort");
}

TEST(Object, AbortWritesOneLine) {
    EXPECT_EXIT(co___Abort("message", "a/unit", 7, "a == b"), testing::KilledBySignal(SIGABRT),
                "^abort: message: a/unit:7: a == b\n$");
    EXPECT_EXIT(co___Abort(nullptr, "a/unit", 7, "a == b"), testing::KilledBySignal(SIGABRT),
                "^abort: a/unit:7: a == b\n$");
}

TEST(Object, ReleasedPatternIsAllOnes) {
    EXPECT_EQ(reinterpret_cast<uintptr_t>(co::released<coString>()), UINTPTR_MAX);
}

TEST(Memory, IsGivenForAnyCountAndTakenBack) {
    for (int64_t elements : {0, 1, 1000}) {
        void *mem = coMemAllocN(elements, 8);
        ASSERT_NE(mem, nullptr);
        std::memset(mem, 0xAA, static_cast<size_t>(elements) * 8);
        coMemFree(mem);
    }
    coMemFree(nullptr);
    EXPECT_ABORT(coMemAllocN(-1, 1), "source/co/co_memory", "count >= 0 && size >= 0");
    EXPECT_ABORT(coMemAllocN(1, -1), "source/co/co_memory", "count >= 0 && size >= 0");
    EXPECT_ABORT(coMemAllocN(INT64_MAX, 2), "source/co/co_memory", "count * size", "out of memory");
}

TEST(Int, MaxAndMin) {
    struct {
        int64_t a, b, max, min;
    } const rows[] = {
        {1, 2, 2, 1}, {2, 1, 2, 1}, {-1, 1, 1, -1}, {5, 5, 5, 5}, {INT64_MIN, INT64_MAX, INT64_MAX, INT64_MIN}};
    for (auto const &row : rows) {
        EXPECT_EQ(coIntMax(row.a, row.b), row.max);
        EXPECT_EQ(coIntMin(row.a, row.b), row.min);
    }
}

} // namespace
