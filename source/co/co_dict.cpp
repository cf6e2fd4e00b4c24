// Dictionaries. Contract: co_dict.h.

#define CO_UNIT "source/co/co_dict"

#include <co/co_assert.hpp>
#include <co/co_dict.hpp>
#include <co/co_dict_table.hpp>
#include <co/co_family.hpp>
#include <co/co_vector.hpp>

using co::Chars;
using co::DictEntry;

// A full table that is made anew gets at least a third of free room, so that the cost is shared by as many additions.
int64_t co::tableCapacityFor(int64_t room) {
    constexpr int64_t largestCapacity = int64_t{1} << 31;
    int64_t capacity = TableSizes::fewEntries;
    int64_t const wanted = room <= TableSizes::largestUnhashed ? room : room + room / 2;
    while (capacity < wanted) capacity *= 2;
    CO_ASSERT_SAYING("out of memory", capacity <= largestCapacity, "capacity");
    return capacity;
}

void co::assertTableIndex(int64_t index, int64_t length) {
    CO_ASSERT(index >= 0 && index < length, "index >= 0 && index < coDictLength( dict )");
}

struct coDict : coObj {
    co::Table<DictEntry> table;
};

bool co::DictWalk::next(DictEntry *entry) {
    DictEntry const *found = dict->table.next(&place);
    if (found) *entry = *found;
    return found;
}

static coDict *makeDict() { return static_cast<coDict *>(co::allocateObject(sizeof(coDict), &co___sort_CO_DICT)); }

static void freeDict(coObj *obj) { static_cast<coDict *>(obj)->table.poison(); }

// Copy on write: a private dictionary that shares keys and values.
static co::Table<DictEntry> &writable(coDict **reference) {
    coDict *old = *reference;
    if (!co::isUnique(old)) {
        *reference = makeDict();
        (*reference)->table.copy(old->table);
        co::release(old);
    }
    return (*reference)->table;
}

static int compareDicts(coObj const *objA, coObj const *objB) {
    return static_cast<coDict const *>(objA)->table.compare(static_cast<coDict const *>(objB)->table);
}

static coString *stringOfDict(coObj const *obj) {
    coString *text = coStringCreate();
    co::append(&text, U"{");
    Chars separator = U"";
    DictEntry entry;
    for (co::DictWalk walk(static_cast<coDict const *>(obj)); walk.next(&entry);) {
        co::Ref<coString> const value(coObjToString(entry.value));
        co::append(&text, separator);
        co::append(&text, entry.keyText());
        co::append(&text, U": ");
        co::append(&text, value->view());
        separator = U", ";
    }
    co::append(&text, U"}");
    return text;
}

constinit coSort const co___sort_CO_DICT{&co___sort_CO_SORT, &co___module, "CO_DICT",     freeDict,
                                         compareDicts,       stringOfDict, sizeof(coDict)};

CO_DEFINE_FAMILY(coDict, co___sort_CO_DICT)

// Reading.

struct coDict *coDictCreate(void) {
    coDict *dict = makeDict();
    dict->table.init();
    return dict;
}

int64_t coDictLength(struct coDict const *dict) {
    CO_ASSERT_GIVEN(dict);
    return dict->table.length();
}

struct coString *coDictKeyAt(struct coDict const *dict, int64_t index) {
    CO_ASSERT_GIVEN(dict);
    return co::retained(dict->table.at(index).key);
}

struct coObj *coDictValueAt(struct coDict const *dict, int64_t index) {
    CO_ASSERT_GIVEN(dict);
    return co::retained(dict->table.at(index).value);
}

struct coVector *coDictKeysVector(struct coDict const *dict) {
    CO_ASSERT_GIVEN(dict);
    coVector *keys = coVectorCreate();
    DictEntry entry;
    for (co::DictWalk walk(dict); walk.next(&entry);) co::appendTaken(&keys, co::retained(entry.key));
    return keys;
}

struct coVector *coDictValuesVector(struct coDict const *dict) {
    CO_ASSERT_GIVEN(dict);
    coVector *values = coVectorCreate();
    DictEntry entry;
    for (co::DictWalk walk(dict); walk.next(&entry);) co::appendTaken(&values, co::retained(entry.value));
    return values;
}

coObj *co::find(coDict const *dict, Chars key) {
    DictEntry const *entry = dict->table.find(key);
    return entry ? entry->value : nullptr;
}

struct coObj *coDictStringKey(struct coDict const *dict, struct coString const *key) {
    CO_ASSERT_GIVEN(dict);
    CO_ASSERT_GIVEN(key);
    return co::retained(co::find(dict, key->view()));
}

bool coDictHasStringKey(struct coDict const *dict, struct coString const *key) {
    CO_ASSERT_GIVEN(dict);
    CO_ASSERT_GIVEN(key);
    return co::find(dict, key->view());
}

// Changing.

void co::setTaken(coDict **dict, coString *key, coObj *value) { writable(dict).set({key, value}); }

void coDictSetStringKey(struct coDict **dict, struct coString *key, struct coObj *value) {
    CO_ASSERT_REFERENCE(dict);
    CO_ASSERT_GIVEN(key);
    CO_ASSERT_GIVEN(value);
    // They are retained first: a dictionary put into itself is copied.
    co::setTaken(dict, co::retained(key), co::retained(value));
}

void coDictDelStringKey(struct coDict **dict, struct coString const *key) {
    CO_ASSERT_REFERENCE(dict);
    CO_ASSERT_GIVEN(key);
    writable(dict).remove(key->view());
}

void coDictClear(struct coDict **dict) {
    CO_ASSERT_REFERENCE(dict);
    if (co::isUnique(*dict))
        (*dict)->table.clear();
    else
        co::release(std::exchange(*dict, coDictCreate()));
}
