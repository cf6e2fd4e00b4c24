// The functions that every base type has, run for each of them.

#include <co/co_buffer.hpp>
#include <co/co_dict.hpp>
#include <co/co_string.hpp>
#include <co/co_vector.hpp>
#include <support/text.hpp>

using test::count;
using test::str;
using test::taken;

extern "C" struct coSort const co___sort_CO_STORE;
extern "C" struct coSort const co___sort_CO_TIME;

namespace {

template <class T> struct Family;

#define FAMILY(T, NAME, theUnit)                                                                                       \
    template <> struct Family<T> {                                                                                     \
        using Object = T;                                                                                              \
        static constexpr char const *name = #NAME;                                                                     \
        static constexpr char const *unit = theUnit;                                                                   \
        static constexpr coSort const &record = co___sort_##NAME;                                                      \
        static constexpr auto sort = T##Sort;                                                                          \
        static constexpr auto retain = T##Retain;                                                                      \
        static constexpr auto release = T##Release;                                                                    \
        static constexpr auto asObj = T##Obj;                                                                          \
        static constexpr auto from = T##From;                                                                          \
        static constexpr auto toString = T##ToString;                                                                  \
        static constexpr auto compare = T##Compare;                                                                    \
        static constexpr auto equals = T##Equals;                                                                      \
        static T *make();                                                                                              \
        static void change(T **obj);                                                                                   \
    };

FAMILY(coString, CO_STRING, "source/co/co_string")
FAMILY(coVector, CO_VECTOR, "source/co/co_vector")
FAMILY(coDict, CO_DICT, "source/co/co_dict")
FAMILY(coStore, CO_STORE, "source/co/co_store")
FAMILY(coBuffer, CO_BUFFER, "source/co/co_buffer")
FAMILY(coTime, CO_TIME, "source/co/co_time")

coString *Family<coString>::make() { return coStringCreateFromCstr("text", -1); }
void Family<coString>::change(coString **obj) { coStringAppendChar(obj, U'!'); }

coVector *Family<coVector>::make() {
    coVector *vector = coVectorCreate();
    coVectorAppendString(&vector, str("a"));
    return vector;
}
void Family<coVector>::change(coVector **obj) { coVectorAppendString(obj, str("b")); }

coDict *Family<coDict>::make() {
    coDict *dict = coDictCreate();
    coDictSetStringKey(&dict, str("a"), coStringObj(str("1")));
    return dict;
}
void Family<coDict>::change(coDict **obj) { coDictSetStringKey(obj, str("b"), coStringObj(str("2"))); }

coStore *Family<coStore>::make() {
    coStore *store = coStoreCreate();
    coStoreSetValue(&store, str("a"), str("1"));
    return store;
}
void Family<coStore>::change(coStore **obj) { coStoreSetValue(obj, str("b"), str("2")); }

coBuffer *Family<coBuffer>::make() { return test::buffer("bytes").take(); }
void Family<coBuffer>::change(coBuffer **obj) { coBufferAppendByte(obj, 0); }

coTime *Family<coTime>::make() { return coTimeCreate(); }
void Family<coTime>::change(coTime **obj) { coTimeSetSecond(obj, 1); }

template <class F> class BaseFamily : public testing::Test {
public:
    co::Ref<typename F::Object> object{F::make()};
    // One of a sort that is no base type's.
    static coObj *stranger() {
        static constinit coModule module{&co___sort_CO_MODULE, nullptr, nullptr, nullptr};
        return &module;
    }
};

using BaseTypes = testing::Types<Family<coString>, Family<coVector>, Family<coDict>, Family<coStore>, Family<coBuffer>,
                                 Family<coTime>>;
TYPED_TEST_SUITE(BaseFamily, BaseTypes, );

TYPED_TEST(BaseFamily, SortIsAnObjectThatNamesItsTypeAndModule) {
    using F = TypeParam;
    coSort const *sort = F::sort();
    EXPECT_EQ(sort, &F::record);
    EXPECT_STREQ(sort->name, F::name);
    EXPECT_EQ(sort->module, &co___module);
    EXPECT_EQ(sort->itsSort, &co___sort_CO_SORT);
    EXPECT_EQ(count(sort), 1);
    for (void const *slot : sort->reserved) EXPECT_EQ(slot, nullptr);
}

TYPED_TEST(BaseFamily, RetainAndReleaseCount) {
    using F = TypeParam;
    auto *obj = this->object.get();
    EXPECT_EQ(count(obj), 1);
    F::retain(obj);
    EXPECT_EQ(count(obj), 2);
    coObjRetain(F::asObj(obj));
    EXPECT_EQ(count(obj), 3);
    F::release(obj);
    EXPECT_EQ(count(obj), 2);
    coObjRelease(F::asObj(obj));
    EXPECT_EQ(count(obj), 1);
}

TYPED_TEST(BaseFamily, ObjAndFromKeepTheReference) {
    using F = TypeParam;
    auto *obj = this->object.get();
    EXPECT_EQ(static_cast<void *>(F::asObj(obj)), static_cast<void *>(obj));
    EXPECT_EQ(F::from(F::asObj(obj)), obj);
    EXPECT_EQ(coObjSort(F::asObj(obj)), F::sort());
    EXPECT_EQ(count(obj), 1);
    EXPECT_EQ(F::asObj(nullptr), nullptr);
    EXPECT_EQ(F::from(nullptr), nullptr);
}

TYPED_TEST(BaseFamily, EqualObjectsCompareEqualAndChangedOnesDoNot) {
    using F = TypeParam;
    co::Ref<typename F::Object> other(F::make());
    auto *a = this->object.get();
    EXPECT_NE(a, other.get());
    EXPECT_EQ(F::compare(a, other.get()), 0);
    EXPECT_TRUE(F::equals(a, other.get()));
    EXPECT_TRUE(F::equals(a, a));
    EXPECT_EQ(taken(F::toString(a)), taken(F::toString(other.get())));
    F::change(other.address());
    EXPECT_EQ(F::compare(a, other.get()), -1);
    EXPECT_EQ(F::compare(other.get(), a), 1);
    EXPECT_FALSE(F::equals(a, other.get()));
    EXPECT_NE(taken(F::toString(a)), taken(F::toString(other.get())));
}

TYPED_TEST(BaseFamily, ToStringIsTheSorts) {
    using F = TypeParam;
    EXPECT_EQ(taken(F::toString(this->object.get())), taken(coObjToString(F::asObj(this->object.get()))));
}

TYPED_TEST(BaseFamily, NullAndStrangersAbort) {
    using F = TypeParam;
    auto *obj = this->object.get();
    EXPECT_ABORT(F::retain(nullptr), F::unit, "obj", "stdfunc retain");
    EXPECT_ABORT(F::release(nullptr), F::unit, "obj", "stdfunc release");
    EXPECT_ABORT(F::toString(nullptr), F::unit, "obj", "stdfunc tostring");
    EXPECT_ABORT(F::compare(nullptr, obj), F::unit, "objA", "stdfunc compare a");
    EXPECT_ABORT(F::compare(obj, nullptr), F::unit, "objB", "stdfunc compare b");
    EXPECT_ABORT(F::equals(nullptr, obj), "source/co/co_object", "objA");
    EXPECT_ABORT(F::equals(obj, nullptr), "source/co/co_object", "objB");
    std::string const condition = std::string("!obj || coObjSort(obj)==&co___sort_") + F::name;
    EXPECT_ABORT(F::from(this->stranger()), F::unit, condition, "stdfunc from");
}

} // namespace
