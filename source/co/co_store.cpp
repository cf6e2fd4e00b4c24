// Stores. Contract: co_store.h.

#define CO_UNIT "source/co/co_store"

#include <co/co_assert.hpp>
#include <co/co_dict.hpp>
#include <co/co_family.hpp>
#include <co/co_store.h>
#include <co/co_string.hpp>

extern "C" struct coSort const co___sort_CO_STORE;

struct coStore : coObj {
    co::Slot<coDict> values; // strings and stores

    static constexpr coSort const &sort = co___sort_CO_STORE;
    static constexpr auto members() { return std::tuple(&coStore::values); }
    static constexpr auto comparison() { return members(); }
};

static int compareStores(coObj const *objA, coObj const *objB) {
    return co::compareMembers(static_cast<coStore const *>(objA), static_cast<coStore const *>(objB));
}

static coString *stringOfStore(coObj const *obj) {
    return coDictToString(static_cast<coStore const *>(obj)->values.get());
}

constinit coSort const co___sort_CO_STORE{&co___sort_CO_SORT, &co___module,  "CO_STORE",     co::freeMembers<coStore>,
                                          compareStores,      stringOfStore, sizeof(coStore)};

CO_DEFINE_FAMILY(coStore, co___sort_CO_STORE)

struct coStore *coStoreCreate(void) {
    auto *store = co::make<coStore>();
    store->values.adopt(coDictCreate());
    return store;
}

int64_t coStoreLength(struct coStore const *store) {
    CO_ASSERT_GIVEN(store);
    return coDictLength(store->values.get());
}

// What is stored under a key or at a position is asked for as one kind; the other kind counts as absent.

static bool isOf(coObj const *value, coSort const *sort) { return value && value->itsSort == sort; }

struct coString *coStoreValue(struct coStore const *store, struct coString const *key) {
    CO_ASSERT_GIVEN(store);
    CO_ASSERT_GIVEN(key);
    coObj *value = co::find(store->values.get(), key->view());
    return isOf(value, &co___sort_CO_STRING) ? co::retained(static_cast<coString *>(value)) : nullptr;
}

struct coString *coStoreValueAt(struct coStore const *store, int64_t index) {
    CO_ASSERT_GIVEN(store);
    CO_ASSERT(index >= 0 && index < coDictLength(store->values.get()), "index >= 0 && index < coStoreLength( store )");
    co::Ref<coObj> value(coDictValueAt(store->values.get(), index));
    return isOf(value.get(), &co___sort_CO_STRING) ? static_cast<coString *>(value.take()) : nullptr;
}

struct coStore *coStoreStore(struct coStore const *store, struct coString const *key) {
    CO_ASSERT_GIVEN(store);
    CO_ASSERT_GIVEN(key);
    coObj *value = co::find(store->values.get(), key->view());
    return isOf(value, &co___sort_CO_STORE) ? co::retained(static_cast<coStore *>(value)) : nullptr;
}

static void set(coStore **store, coString *key, coObj *value) {
    co::Ref<coObj> const kept(co::retained(value)); // so that a store that is put into itself is copied
    coDictSetStringKey(co::writable(store)->values.address(), key, value);
}

void coStoreSetValue(struct coStore **store, struct coString *key, struct coString *value) {
    CO_ASSERT_REFERENCE(store);
    CO_ASSERT_GIVEN(key);
    CO_ASSERT_GIVEN(value);
    set(store, key, value);
}

void coStoreSetValueFormatCstr(struct coStore **store, char const *format, int64_t length, struct coString *value,
                               ...) {
    CO_ASSERT_REFERENCE(store);
    CO_ASSERT_GIVEN(value);
    va_list args;
    va_start(args, value);
    co::Ref<coString> const key(coStringCreateFromFormatCstrArgList(format, length, args));
    va_end(args);
    set(store, key.get(), value);
}

void coStoreSetStore(struct coStore **store, struct coString *key, struct coStore *sub) {
    CO_ASSERT_REFERENCE(store);
    CO_ASSERT_GIVEN(key);
    CO_ASSERT_GIVEN(sub);
    set(store, key, sub);
}
