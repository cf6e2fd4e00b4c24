// Dictionaries. Contract: co_dict.h.
//
// The entries stand in the order in which their keys came. A few are searched one after the other. More than that have
// a hash table beside them; then a deleted entry leaves a gap behind, so that no other entry moves, and gaps are closed
// when they outnumber the entries. A Fenwick tree over the gaps of each block of entries finds an entry by position.

#define CO_UNIT "source/co/co_dict"

#include <algorithm>
#include <co/co_assert.hpp>
#include <co/co_dict.hpp>
#include <co/co_family.hpp>
#include <co/co_hash.hpp>
#include <co/co_memory.h>
#include <co/co_vector.hpp>
#include <cstring>

using co::Chars;
using co::DictEntry;

namespace {

constexpr int64_t fewEntries = 4;
constexpr int64_t largestUnhashed = 8;
constexpr int64_t largestCapacity = int64_t{1} << 31;
constexpr int64_t blockLength = 16;
constexpr uint32_t noPlace = UINT32_MAX;

// What the entries of one dictionary are kept in: the table itself for a few, else one block for all four arrays.
struct Table {
    DictEntry *entries; // a null key: a gap
    int64_t length;     // without gaps
    int64_t used;       // with gaps
    int64_t capacity;   // fewEntries, largestUnhashed, or a larger power of two
    DictEntry few[fewEntries];

    bool hashed() const { return capacity > largestUnhashed; }
    int64_t blocks() const { return capacity / blockLength; }
    int64_t slots() const { return capacity * 2; } // at most half of them are taken: short ways to a free one

    uint32_t *hashes() const { return reinterpret_cast<uint32_t *>(entries + capacity); }
    uint32_t *gaps() const { return hashes() + capacity; }      // Fenwick tree, its first node at 0
    uint32_t *placeOfSlot() const { return gaps() + blocks(); } // open addressing, linear probing

    uint32_t hash(Chars key) const { return hashed() ? static_cast<uint32_t>(co::hash(key)) : 0; }
    uint32_t home(uint32_t hash) const { return hash & static_cast<uint32_t>(slots() - 1); }
    uint32_t after(uint32_t slot) const { return home(slot + 1); }

    void init(int64_t room);
    void freeBlock() const;
    int64_t find(Chars key, uint32_t hash) const;
    int64_t placeAt(int64_t index) const;
    void add(DictEntry entry, uint32_t hash);
    DictEntry remove(int64_t place);
    void moveTo(int64_t room);

private:
    int64_t blockSize() const;
    void countGap(int64_t place);
    void emptySlotOf(int64_t place);
};

// A full table that is made anew gets at least a third of free room, so that the cost is shared by as many additions.
int64_t capacityFor(int64_t room) {
    int64_t capacity = fewEntries;
    int64_t const wanted = room <= largestUnhashed ? room : room + room / 2;
    while (capacity < wanted) capacity *= 2;
    CO_ASSERT_SAYING("out of memory", capacity <= largestCapacity, "capacity");
    return capacity;
}

constexpr auto word = static_cast<int64_t>(sizeof(uint32_t));

// Of the memory beside the table itself, in bytes.
int64_t Table::blockSize() const {
    auto constexpr entry = static_cast<int64_t>(sizeof(DictEntry));
    return capacity * entry + (hashed() ? (capacity + blocks() + slots()) * word : 0);
}

void Table::init(int64_t room) {
    length = used = 0;
    capacity = capacityFor(room);
    entries = capacity == fewEntries ? few : static_cast<DictEntry *>(co::allocateBlock(blockSize()));
    if (!hashed()) return;
    std::memset(gaps(), 0, static_cast<size_t>(blocks() * word));
    std::memset(placeOfSlot(), 0xFF, static_cast<size_t>(slots() * word));
}

void Table::freeBlock() const {
    if (capacity > fewEntries) co::freeBlock(entries, blockSize());
}

// The place of a key among the entries, or -1.
int64_t Table::find(Chars key, uint32_t hash) const {
    if (!hashed()) {
        for (int64_t i = 0; i < used; i++)
            if (co::equal(entries[i].key->view(), key)) return i;
        return -1;
    }
    for (uint32_t slot = home(hash);; slot = after(slot)) {
        uint32_t const place = placeOfSlot()[slot];
        if (place == noPlace) return -1;
        if (hashes()[place] == hash && co::equal(entries[place].key->view(), key)) return place;
    }
}

// The place of the entry that has `index` entries before it: first the blocks that lie before it, the largest stride
// first, then the way within its block.
int64_t Table::placeAt(int64_t index) const {
    if (used == length) return index;
    int64_t block = 0;
    for (int64_t stride = blocks(); stride > 0; stride /= 2) {
        if (block + stride > blocks()) continue;
        int64_t const entriesThere = stride * blockLength - gaps()[block + stride - 1];
        if (entriesThere > index) continue;
        index -= entriesThere;
        block += stride;
    }
    int64_t place = block * blockLength;
    for (;; place++) {
        if (!entries[place].key) continue;
        if (index-- == 0) return place;
    }
}

// Behind all entries; there must be room.
void Table::add(DictEntry entry, uint32_t hash) {
    if (hashed()) {
        uint32_t slot = home(hash);
        while (placeOfSlot()[slot] != noPlace) slot = after(slot);
        placeOfSlot()[slot] = static_cast<uint32_t>(used);
        hashes()[used] = hash;
    }
    entries[used++] = entry;
    length++;
}

void Table::countGap(int64_t place) {
    for (int64_t node = place / blockLength + 1; node <= blocks(); node += node & -node) gaps()[node - 1]++;
}

// Frees a slot and moves those behind it that were only there because it was taken.
void Table::emptySlotOf(int64_t place) {
    uint32_t free = home(hashes()[place]);
    while (placeOfSlot()[free] != place) free = after(free);
    for (uint32_t slot = after(free); placeOfSlot()[slot] != noPlace; slot = after(slot)) {
        uint32_t const wayFromHome = home(slot - hashes()[placeOfSlot()[slot]]);
        if (wayFromHome < home(slot - free)) continue;
        placeOfSlot()[free] = placeOfSlot()[slot];
        free = slot;
    }
    placeOfSlot()[free] = noPlace;
}

// Takes an entry out and hands its references over.
DictEntry Table::remove(int64_t place) {
    DictEntry const removed = entries[place];
    length--;
    if (!hashed()) {
        std::copy(entries + place + 1, entries + used, entries + place);
        used--;
        return removed;
    }
    emptySlotOf(place);
    countGap(place);
    entries[place] = {nullptr, nullptr};
    if (length * 2 < used) moveTo(length);
    return removed;
}

// New memory for `room` entries, without gaps. Not from few to few.
void Table::moveTo(int64_t room) {
    Table const old = *this;
    init(room);
    for (int64_t i = 0; i < old.used; i++) {
        if (!old.entries[i].key) continue;
        add(old.entries[i], old.hashed() ? old.hashes()[i] : hash(old.entries[i].key->view()));
    }
    old.freeBlock();
}

} // namespace

struct coDict : coObj {
    Table table;
};

constinit coDict co::emptyDict{{&co___sort_CO_DICT, immortal}, {}};

bool co::DictWalk::next(DictEntry *entry) {
    Table const &table = dict->table;
    while (place < table.used && !table.entries[place].key) place++;
    if (place >= table.used) return false;
    *entry = table.entries[place++];
    return true;
}

static coDict *makeDict(int64_t room) {
    auto *dict = static_cast<coDict *>(co::allocateObject(sizeof(coDict), &co___sort_CO_DICT));
    dict->table.init(room);
    return dict;
}

static void releaseEntries(coDict const *dict) {
    DictEntry entry;
    for (co::DictWalk walk(dict); walk.next(&entry);) {
        co::release(entry.key);
        co::release(entry.value);
    }
}

static void freeDict(coObj *obj) {
    auto *dict = static_cast<coDict *>(obj);
    releaseEntries(dict);
    dict->table.freeBlock();
    dict->table.entries = co::released<DictEntry>();
}

// Copy on write: a private dictionary that shares keys and values, with room for one more.
static coDict *writable(coDict **reference) {
    coDict *old = *reference;
    if (co::isUnique(old)) return old;
    coDict *copy = makeDict(old->table.length + 1);
    for (int64_t i = 0; i < old->table.used; i++) {
        DictEntry const entry = old->table.entries[i];
        if (!entry.key) continue;
        co::retain(entry.key);
        co::retain(entry.value);
        copy->table.add(entry, old->table.hashed() ? old->table.hashes()[i] : copy->table.hash(entry.key->view()));
    }
    *reference = copy;
    co::release(old);
    return copy;
}

// Comparison.

static int compareKeys(DictEntry const &a, DictEntry const &b) { return co::compare(a.key, b.key); }

// Where both have the same keys in the same order nothing needs to be sorted: of the values that differ, the one with
// the smallest key decides. False when the keys are not the same.
static bool compareInStep(coDict const *a, coDict const *b, int *order) {
    if (a->table.length != b->table.length) return false;
    *order = 0;
    coString const *deciding = nullptr;
    DictEntry ofA;
    DictEntry ofB;
    co::DictWalk walkA(a);
    for (co::DictWalk walkB(b); walkA.next(&ofA) && walkB.next(&ofB);) {
        if (!co::equal(ofA.key->view(), ofB.key->view())) return false;
        if (deciding && co::compare(deciding, ofA.key) < 0) continue;
        int const here = co::compare(ofA.value, ofB.value);
        if (here == 0) continue;
        *order = here;
        deciding = ofA.key;
    }
    return true;
}

static DictEntry *sortedEntries(coDict const *dict) {
    auto *sorted = static_cast<DictEntry *>(coMemAllocN(dict->table.length, sizeof(DictEntry)));
    DictEntry *end = sorted;
    for (co::DictWalk walk(dict); walk.next(end);) end++;
    std::sort(sorted, end, [](DictEntry const &x, DictEntry const &y) { return compareKeys(x, y) < 0; });
    return sorted;
}

static int compareSorted(DictEntry const *a, int64_t lengthOfA, DictEntry const *b, int64_t lengthOfB) {
    for (int64_t i = 0; i < lengthOfA && i < lengthOfB; i++)
        if (int order = compareKeys(a[i], b[i])) return order;
    if (lengthOfA != lengthOfB) return lengthOfA < lengthOfB ? -1 : 1;
    for (int64_t i = 0; i < lengthOfA; i++)
        if (int order = co::compare(a[i].value, b[i].value)) return order;
    return 0;
}

static int compareDicts(coObj const *objA, coObj const *objB) {
    auto const *a = static_cast<coDict const *>(objA);
    auto const *b = static_cast<coDict const *>(objB);
    int order = 0;
    if (compareInStep(a, b, &order)) return order;
    DictEntry *sortedA = sortedEntries(a);
    DictEntry *sortedB = sortedEntries(b);
    order = compareSorted(sortedA, a->table.length, sortedB, b->table.length);
    coMemFree(sortedA);
    coMemFree(sortedB);
    return order;
}

static coString *stringOfDict(coObj const *obj) {
    coString *text = coStringCreate();
    co::append(&text, U"{");
    Chars separator = U"";
    DictEntry entry;
    for (co::DictWalk walk(static_cast<coDict const *>(obj)); walk.next(&entry);) {
        co::Ref<coString> const value(coObjToString(entry.value));
        co::append(&text, separator);
        co::append(&text, entry.key->view());
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
    return makeDict(0);
}

int64_t coDictLength(struct coDict const *dict) {
    CO_ASSERT_GIVEN(dict);
    return dict->table.length;
}

static DictEntry entryAt(coDict const *dict, int64_t index) {
    CO_ASSERT_GIVEN(dict);
    CO_ASSERT(index >= 0 && index < dict->table.length, "index >= 0 && index < coDictLength( dict )");
    return dict->table.entries[dict->table.placeAt(index)];
}

struct coString *coDictKeyAt(struct coDict const *dict, int64_t index) {
    return co::retained(entryAt(dict, index).key);
}

struct coObj *coDictValueAt(struct coDict const *dict, int64_t index) {
    return co::retained(entryAt(dict, index).value);
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
    int64_t const place = dict->table.find(key, dict->table.hash(key));
    return place < 0 ? nullptr : dict->table.entries[place].value;
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

coObj **co::findSlot(coDict **dict, Chars key) {
    Table const &table = writable(dict)->table;
    int64_t const place = table.find(key, table.hash(key));
    return place < 0 ? nullptr : &table.entries[place].value;
}

void coDictSetStringKey(struct coDict **dict, struct coString *key, struct coObj *value) {
    CO_ASSERT_REFERENCE(dict);
    CO_ASSERT_GIVEN(key);
    CO_ASSERT_GIVEN(value);
    co::retain(value); // first, so that a dictionary that is put into itself is copied
    Table &table = writable(dict)->table;
    uint32_t hash = table.hash(key->view());
    if (int64_t const place = table.find(key->view(), hash); place >= 0) {
        co::release(std::exchange(table.entries[place].value, value));
        return;
    }
    if (table.used == table.capacity) {
        table.moveTo(table.length + 1);
        hash = table.hash(key->view());
    }
    table.add({co::retained(key), value}, hash);
}

void coDictDelStringKey(struct coDict **dict, struct coString const *key) {
    CO_ASSERT_REFERENCE(dict);
    CO_ASSERT_GIVEN(key);
    Table &table = writable(dict)->table;
    int64_t const place = table.find(key->view(), table.hash(key->view()));
    if (place < 0) return;
    DictEntry const removed = table.remove(place);
    co::release(removed.key);
    co::release(removed.value);
}

void coDictClear(struct coDict **dict) {
    CO_ASSERT_REFERENCE(dict);
    if (!co::isUnique(*dict)) {
        co::release(std::exchange(*dict, makeDict(0)));
        return;
    }
    Table const old = (*dict)->table;
    releaseEntries(*dict);
    (*dict)->table.init(0);
    old.freeBlock();
}
