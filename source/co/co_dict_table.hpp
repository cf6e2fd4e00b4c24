// Tables of entries that have a text for a key, in the order in which the keys came: what dictionaries are made of.
//
// A few entries are searched one after the other. More than that have a hash table beside them; then a deleted entry
// leaves a gap behind, so that no other entry moves, and gaps are closed when they outnumber the entries. A Fenwick tree
// over the gaps of each block of entries finds an entry by position.
//
// An entry is copied as plain bytes, and a gap is one that is all zero. It has these members:
//
//     bool isGap() const;
//     Chars keyText() const;
//     void retain() const;                     what it refers to
//     void release() const;
//     void replaceBy(Entry const &taken);      one of the same key, with what that refers to
//     int compareValue(Entry const &) const;   with one of the same key
#pragma once

#include <algorithm>
#include <co/co_hash.hpp>
#include <co/co_memory.h>
#include <co/co_obj.hpp>
#include <co/co_string.hpp>
#include <cstring>

namespace co {

// fewEntries, largestUnhashed, or a larger power of two, for `room` entries.
int64_t tableCapacityFor(int64_t room);
void assertTableIndex(int64_t index, int64_t length);

struct TableSizes {
    static constexpr int64_t fewEntries = 4;
    static constexpr int64_t largestUnhashed = 8;
    static constexpr int64_t blockLength = 16;
    static constexpr uint32_t noPlace = UINT32_MAX;
};

// A member of an object (co_member.hpp), which holds what the entries refer to. They are kept in the table itself as long
// as they are few, else in one block for all four arrays.
template <class Entry> class Table : TableSizes {
public:
    int64_t length() const { return count; }

    // The entry of a key; null when there is none. Good until the table changes.
    Entry const *find(Chars key) const {
        int64_t const place = search(key, hash(key)).place;
        return place < 0 ? nullptr : &entries[place];
    }
    Entry const &at(int64_t index) const {
        assertTableIndex(index, count);
        return entries[placeAt(index)];
    }
    // The next entry of a walk that begins at place 0; null at the end.
    Entry const *next(int64_t *place) const {
        while (*place < used && entries[*place].isGap()) ++*place;
        return *place < used ? &entries[(*place)++] : nullptr;
    }

    // Takes over an entry: it replaces the one that has its key, or comes behind all.
    void set(Entry const &taken);
    void remove(Chars key);
    void clear();

    void init(int64_t room = 0);
    void copy(Table const &source); // with room for one more
    void poison();
    int compare(Table const &other) const;

private:
    // What a search for a key ends with: the place among the entries, or -1, and the slot that says so.
    struct Found {
        int64_t place;
        uint32_t slot;
    };

    bool hashed() const { return capacity > largestUnhashed; }
    int64_t blocks() const { return capacity / blockLength; }
    int64_t slots() const { return capacity * 2; } // at most half of them are taken: short ways to a free one

    uint32_t *hashes() const { return reinterpret_cast<uint32_t *>(entries + capacity); }
    uint32_t *gaps() const { return hashes() + capacity; }      // Fenwick tree, its first node at 0
    uint32_t *placeOfSlot() const { return gaps() + blocks(); } // open addressing, linear probing

    uint32_t hash(Chars key) const { return hashed() ? static_cast<uint32_t>(co::hash(key)) : 0; }
    uint32_t home(uint32_t hash) const { return hash & static_cast<uint32_t>(slots() - 1); }
    uint32_t after(uint32_t slot) const { return home(slot + 1); }

    int64_t blockSize() const;
    void freeBlock() const;
    void releaseEntries() const;
    Found search(Chars key, uint32_t hash) const;
    uint32_t freeSlot(uint32_t hash) const;
    int64_t placeAt(int64_t index) const;
    void add(Entry const &entry, uint32_t hash, uint32_t slot);
    void addAll(Table const &other);
    void moveTo(int64_t room);
    void countGap(int64_t place);
    void emptySlot(uint32_t free);
    bool compareInStep(Table const &other, int *order) const;
    Entry *sortedEntries() const;

    Entry *entries;
    int64_t count;    // without gaps
    int64_t used;     // with gaps
    int64_t capacity; // as tableCapacityFor says
    Entry few[fewEntries];
};

// Of the memory beside the table itself, in bytes.
template <class Entry> int64_t Table<Entry>::blockSize() const {
    auto constexpr entry = static_cast<int64_t>(sizeof(Entry));
    auto constexpr word = static_cast<int64_t>(sizeof(uint32_t));
    return capacity * entry + (hashed() ? (capacity + blocks() + slots()) * word : 0);
}

template <class Entry> void Table<Entry>::init(int64_t room) {
    count = used = 0;
    capacity = tableCapacityFor(room);
    entries = capacity == fewEntries ? few : static_cast<Entry *>(allocateBlock(blockSize()));
    if (!hashed()) return;
    std::memset(gaps(), 0, static_cast<size_t>(blocks()) * sizeof(uint32_t));
    std::memset(placeOfSlot(), 0xFF, static_cast<size_t>(slots()) * sizeof(uint32_t));
}

template <class Entry> void Table<Entry>::freeBlock() const {
    if (capacity > fewEntries) co::freeBlock(entries, blockSize());
}

template <class Entry> void Table<Entry>::releaseEntries() const {
    int64_t place = 0;
    while (Entry const *entry = next(&place)) entry->release();
}

template <class Entry> void Table<Entry>::poison() {
    releaseEntries();
    freeBlock();
    entries = released<Entry>();
}

template <class Entry> void Table<Entry>::clear() {
    releaseEntries();
    freeBlock();
    init();
}

template <class Entry> auto Table<Entry>::search(Chars key, uint32_t hash) const -> Found {
    if (!hashed()) {
        for (int64_t i = 0; i < used; i++)
            if (equal(entries[i].keyText(), key)) return {i, 0};
        return {-1, 0};
    }
    for (uint32_t slot = home(hash);; slot = after(slot)) {
        uint32_t const place = placeOfSlot()[slot];
        if (place == noPlace) return {-1, slot};
        if (hashes()[place] == hash && equal(entries[place].keyText(), key)) return {place, slot};
    }
}

// Where an entry goes whose key is not there; any number where there are no slots.
template <class Entry> uint32_t Table<Entry>::freeSlot(uint32_t hash) const {
    if (!hashed()) return 0;
    uint32_t slot = home(hash);
    while (placeOfSlot()[slot] != noPlace) slot = after(slot);
    return slot;
}

// The place of the entry that has `index` entries before it: first the blocks that lie before it, the largest stride
// first, then the way within its block.
template <class Entry> int64_t Table<Entry>::placeAt(int64_t index) const {
    if (used == count) return index;
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
        if (entries[place].isGap()) continue;
        if (index-- == 0) return place;
    }
}

template <class Entry> void Table<Entry>::set(Entry const &taken) {
    uint32_t newHash = hash(taken.keyText());
    Found found = search(taken.keyText(), newHash);
    if (found.place >= 0) {
        entries[found.place].replaceBy(taken);
        return;
    }
    if (used == capacity) {
        moveTo(count + 1);
        newHash = hash(taken.keyText());
        found.slot = freeSlot(newHash);
    }
    add(taken, newHash, found.slot);
}

// Behind all entries; there must be room.
template <class Entry> void Table<Entry>::add(Entry const &entry, uint32_t hash, uint32_t slot) {
    if (hashed()) {
        placeOfSlot()[slot] = static_cast<uint32_t>(used);
        hashes()[used] = hash;
    }
    entries[used++] = entry;
    count++;
}

// The entries of another table, without its gaps, into an empty one: in one go, and then their slots.
template <class Entry> void Table<Entry>::addAll(Table const &other) {
    for (int64_t i = 0; i < other.used; i++) {
        Entry const &entry = other.entries[i];
        if (entry.isGap()) continue;
        if (hashed()) hashes()[used] = other.hashed() ? other.hashes()[i] : hash(entry.keyText());
        entries[used++] = entry;
    }
    count = used;
    if (!hashed()) return;
    for (int64_t place = 0; place < used; place++)
        placeOfSlot()[freeSlot(hashes()[place])] = static_cast<uint32_t>(place);
}

// New memory for `room` entries, without gaps. Not from few to few.
template <class Entry> void Table<Entry>::moveTo(int64_t room) {
    Table const old = *this;
    init(room);
    addAll(old);
    old.freeBlock();
}

template <class Entry> void Table<Entry>::copy(Table const &source) {
    init(source.count + 1);
    addAll(source);
    int64_t place = 0;
    while (Entry const *entry = next(&place)) entry->retain();
}

// Removing.

template <class Entry> void Table<Entry>::countGap(int64_t place) {
    for (int64_t node = place / blockLength + 1; node <= blocks(); node += node & -node) gaps()[node - 1]++;
}

// Frees a slot and moves those behind it that were only there because it was taken.
template <class Entry> void Table<Entry>::emptySlot(uint32_t free) {
    for (uint32_t slot = after(free); placeOfSlot()[slot] != noPlace; slot = after(slot)) {
        uint32_t const wayFromHome = home(slot - hashes()[placeOfSlot()[slot]]);
        if (wayFromHome < home(slot - free)) continue;
        placeOfSlot()[free] = placeOfSlot()[slot];
        free = slot;
    }
    placeOfSlot()[free] = noPlace;
}

template <class Entry> void Table<Entry>::remove(Chars key) {
    Found const found = search(key, hash(key));
    if (found.place < 0) return;
    Entry const removed = entries[found.place];
    count--;
    if (hashed()) {
        emptySlot(found.slot);
        countGap(found.place);
        entries[found.place] = {};
        if (count * 2 < used) moveTo(count);
    } else {
        std::copy(entries + found.place + 1, entries + used, entries + found.place);
        used--;
    }
    removed.release();
}

// Comparison, without regard to the order in which the keys came: the sorted keys as a sequence, then the values.

template <class Entry> int compareKeys(Entry const &a, Entry const &b) { return a.keyText().compare(b.keyText()); }

// Where both have the same keys in the same order nothing needs to be sorted: of the values that differ, the one with
// the smallest key decides. False when the keys are not the same.
template <class Entry> bool Table<Entry>::compareInStep(Table const &other, int *order) const {
    if (count != other.count) return false;
    *order = 0;
    Entry const *deciding = nullptr;
    int64_t place = 0;
    int64_t placeOfOther = 0;
    while (Entry const *entry = next(&place)) {
        Entry const *same = other.next(&placeOfOther);
        if (!equal(entry->keyText(), same->keyText())) return false;
        if (deciding && compareKeys(*deciding, *entry) < 0) continue;
        int const here = entry->compareValue(*same);
        if (here == 0) continue;
        *order = here;
        deciding = entry;
    }
    return true;
}

template <class Entry> Entry *Table<Entry>::sortedEntries() const {
    auto *sorted = static_cast<Entry *>(coMemAllocN(count, sizeof(Entry)));
    Entry *end = sorted;
    int64_t place = 0;
    while (Entry const *entry = next(&place)) *end++ = *entry;
    std::sort(sorted, end, [](Entry const &a, Entry const &b) { return compareKeys(a, b) < 0; });
    return sorted;
}

template <class Entry> int compareSorted(Entry const *a, int64_t countOfA, Entry const *b, int64_t countOfB) {
    for (int64_t i = 0; i < countOfA && i < countOfB; i++)
        if (int order = compareKeys(a[i], b[i])) return order < 0 ? -1 : 1;
    if (countOfA != countOfB) return countOfA < countOfB ? -1 : 1;
    for (int64_t i = 0; i < countOfA; i++)
        if (int order = a[i].compareValue(b[i])) return order;
    return 0;
}

template <class Entry> int Table<Entry>::compare(Table const &other) const {
    int order = 0;
    if (compareInStep(other, &order)) return order;
    Entry *sorted = sortedEntries();
    Entry *sortedOther = other.sortedEntries();
    order = compareSorted(sorted, count, sortedOther, other.count);
    coMemFree(sorted);
    coMemFree(sortedOther);
    return order;
}

} // namespace co
