#include <co/co_vector.hpp>
#include <support/text.hpp>

using test::count;
using test::str;
using test::taken;

namespace {

constexpr char const *unit = "source/co/co_store";

std::string textOf(coStore const *store) { return taken(coStoreToString(store)); }

TEST(Store, IsEmptyAtFirst) {
    co::Ref<coStore> const store(coStoreCreate());
    EXPECT_EQ(coStoreLength(store.get()), 0);
    EXPECT_EQ(textOf(store.get()), "{}");
    EXPECT_EQ(coStoreValue(store.get(), str("a")), nullptr);
    EXPECT_EQ(coStoreStore(store.get(), str("a")), nullptr);
}

TEST(Store, KeepsStringsAndStores) {
    co::Ref<coStore> sub(coStoreCreate());
    coStoreSetValue(sub.address(), str("b"), str("2"));
    co::Ref<coStore> store(coStoreCreate());
    coStoreSetValue(store.address(), str("a"), str("1"));
    coStoreSetStore(store.address(), str("sub"), sub.get());
    coStoreSetValue(store.address(), str("c"), str("3"));
    EXPECT_EQ(coStoreLength(store.get()), 3);
    EXPECT_EQ(textOf(store.get()), "{a: 1, sub: {b: 2}, c: 3}");
    EXPECT_EQ(taken(coStoreValue(store.get(), str("a"))), "1");
    EXPECT_EQ(taken(coStoreValueAt(store.get(), 2)), "3");
    co::Ref<coStore> const found(coStoreStore(store.get(), str("sub")));
    EXPECT_EQ(found.get(), sub.get());
    EXPECT_EQ(count(sub.get()), 3);
}

TEST(Store, AnswersNullWhereTheOtherKindStands) {
    co::Ref<coStore> store(coStoreCreate());
    coStoreSetValue(store.address(), str("value"), str("1"));
    coStoreSetStore(store.address(), str("store"), co::Ref(coStoreCreate()).get());
    EXPECT_EQ(coStoreStore(store.get(), str("value")), nullptr);
    EXPECT_EQ(coStoreValue(store.get(), str("store")), nullptr);
    EXPECT_EQ(coStoreValueAt(store.get(), 1), nullptr);
    EXPECT_EQ(taken(coStoreValueAt(store.get(), 0)), "1");
    coStoreSetValue(store.address(), str("store"), str("2")); // one kind replaces the other
    EXPECT_EQ(textOf(store.get()), "{value: 1, store: 2}");
}

TEST(Store, RetainsAndGivesUp) {
    test::Str const value = str("1");
    co::Ref<coStore> store(coStoreCreate());
    coStoreSetValue(store.address(), str("a"), value);
    EXPECT_EQ(count(value.get()), 2);
    coString *found = coStoreValue(store.get(), str("a"));
    EXPECT_EQ(found, value.get());
    EXPECT_EQ(count(value.get()), 3);
    coStringRelease(found);
    store.reset(nullptr);
    EXPECT_EQ(count(value.get()), 1);
}

TEST(Store, KeepsASequence) {
    co::Ref<coStore> store(coStoreCreate());
    for (int64_t i = 0; i <= 100; i++) {
        co::Ref<coString> const value(coFormatEncodeInt(i, 10, 0, 0));
        coStoreSetValueFormatCstr(store.address(), "%.*A", -1, value.get(), int64_t{100}, i);
    }
    EXPECT_EQ(taken(coStoreValue(store.get(), str("007"))), "7");
    EXPECT_EQ(taken(coStoreValue(store.get(), str("100"))), "100");
    for (int64_t i = 0; i <= 100; i++) EXPECT_EQ(taken(coStoreValueAt(store.get(), i)), std::to_string(i));
    coStoreSetValueFormatCstr(store.address(), "%s-%i rest", 5, str("x"), str("k").get(), int64_t{1});
    EXPECT_EQ(taken(coStoreValue(store.get(), str("k-1"))), "x");
}

TEST(Store, ComparesWithoutRegardToOrder) {
    co::Ref<coStore> a(coStoreCreate());
    co::Ref<coStore> b(coStoreCreate());
    coStoreSetValue(a.address(), str("x"), str("1"));
    coStoreSetStore(a.address(), str("y"), b.get());
    coStoreSetStore(b.address(), str("y"), co::Ref(coStoreCreate()).get());
    EXPECT_NE(coStoreCompare(a.get(), b.get()), 0);
    coStoreSetValue(b.address(), str("x"), str("1"));
    EXPECT_EQ(coStoreCompare(a.get(), b.get()), 0);
    EXPECT_TRUE(coStoreEquals(a.get(), b.get()));
}

TEST(Store, BrokenPreconditionsAbort) {
    co::Ref<coStore> store(coStoreCreate());
    coStore *s = store.get();
    coStore *none = nullptr;
    test::Str const text = str("k");
    EXPECT_ABORT(coStoreLength(nullptr), unit, "store");
    EXPECT_ABORT(coStoreValue(nullptr, text), unit, "store");
    EXPECT_ABORT(coStoreValue(s, nullptr), unit, "key");
    EXPECT_ABORT(coStoreValueAt(nullptr, 0), unit, "store");
    EXPECT_ABORT(coStoreValueAt(s, 0), unit, "index >= 0 && index < coStoreLength( store )");
    EXPECT_ABORT(coStoreStore(nullptr, text), unit, "store");
    EXPECT_ABORT(coStoreStore(s, nullptr), unit, "key");
    EXPECT_ABORT(coStoreSetValue(nullptr, text, text), unit, "store");
    EXPECT_ABORT(coStoreSetValue(&none, text, text), unit, "*store");
    EXPECT_ABORT(coStoreSetValue(&s, nullptr, text), unit, "key");
    EXPECT_ABORT(coStoreSetValue(&s, text, nullptr), unit, "value");
    EXPECT_ABORT(coStoreSetValueFormatCstr(&none, "a", -1, text), unit, "*store");
    EXPECT_ABORT(coStoreSetValueFormatCstr(&s, "a", -1, nullptr), unit, "value");
    EXPECT_ABORT(coStoreSetStore(&none, text, s), unit, "*store");
    EXPECT_ABORT(coStoreSetStore(&s, nullptr, s), unit, "key");
    EXPECT_ABORT(coStoreSetStore(&s, text, nullptr), unit, "sub");
}

} // namespace
