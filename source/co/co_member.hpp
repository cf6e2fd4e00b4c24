// Members of objects, and what the free, copy and compare functions do with a type's list of them.
//
// A type names its members twice at most: members() in declaration order, comparison() in the order that decides. A
// member's class says how many of its words hold references; what is not a reference is plain data, absent when it is zero
// unless init() says otherwise. What is common to all types is no template, and nothing that is seldom needed is written
// out in one: the code that a message runs through has to fit into the processor's cache.
#pragma once

#include <co/co_obj.hpp>
#include <co/co_simd.hpp>
#include <co/co_string.hpp>
#include <co/co_unicode.hpp>
#include <tuple>

namespace co {

// A reference to an object, or null for absent.
template <class T> class Slot {
public:
    using Target = T;
    static constexpr size_t references = 1; // how many of its first words hold one

    Slot() = default;
    constexpr explicit Slot(T *owned) : obj(owned) {}

    T *get() const { return obj; }
    T *operator->() const { return obj; }
    explicit operator bool() const { return obj; }
    T *retained() const { return co::retained(obj); }
    T **address() { return &obj; } // for a setter that may replace the object

    void set(T *value) { adopt(co::retained(value)); }
    void adopt(T *value) {
        if (T *old = std::exchange(obj, value)) release(old);
    }
    void clear() { adopt(nullptr); }

    // Absent before present.
    int compare(Slot const &other) const {
        if (!obj || !other.obj) return (obj != nullptr) - (other.obj != nullptr);
        return co::compare(obj, other.obj);
    }

private:
    T *obj;
};

// A piece of the line that an object keeps behind its members: its place from a word of the object, in code points, so
// that it holds in a copy too.
struct Piece {
    uint32_t distance; // 0 for none
    uint32_t length;

    static Piece of(Chars text, void const *word) {
        auto const distance = text.data() - static_cast<coChar const *>(word);
        return {static_cast<uint32_t>(distance), static_cast<uint32_t>(text.size())};
    }
    Chars from(void const *word) const { return {static_cast<coChar const *>(word) + distance, length}; }
};

// A text: a string, or a piece of the line that the object was read from and keeps (WithLine); null or no piece for
// absent. A string of a piece is made for whoever asks for one, so that reading makes none that nobody looks at.
class TextSlot {
public:
    static constexpr size_t references = 1;

    Chars view() const { return string ? string->view() : piece.from(this); }
    explicit operator bool() const { return string || piece.distance; }
    coString *retained() const {
        if (string) return co::retained(string);
        return piece.distance ? makeString(piece.from(this)) : nullptr;
    }

    void set(coString *value) { adopt(co::retained(value)); }
    void adopt(coString *value) {
        piece = {};
        if (coString *old = std::exchange(string, value)) release(old);
    }
    void clear() { adopt(nullptr); }

    // A piece of the line behind the object that this is a member of.
    void setPiece(Chars text) {
        if (string) clear();
        piece = Piece::of(text, this);
    }

    // Of a text that nobody else has seen.
    void toAsciiLower() { makeAsciiLower(const_cast<coChar *>(view().data()), view().size()); }

    // Absent before present.
    int compare(TextSlot const &other) const {
        if (!*this || !other) return static_cast<bool>(*this) - static_cast<bool>(other);
        int const order = view().compare(other.view());
        return (order > 0) - (order < 0);
    }

private:
    coString *string;
    Piece piece; // from this slot; while there is no string
};

inline constexpr int64_t longestLine = INT32_MAX; // that a slot can point into

template <class T> coChar *lineOf(T const *obj) { return reinterpret_cast<coChar *>(const_cast<T *>(obj) + 1); }

// A signed 64-bit integer; -1 for absent.
class Int {
public:
    static constexpr size_t references = 0;

    int64_t get() const { return number; }
    explicit operator bool() const { return number != -1; }
    void set(int64_t value) { number = value; }
    void clear() { number = -1; }

    void init() { clear(); }
    int compare(Int const &other) const { return (number > other.number) - (number < other.number); }

private:
    int64_t number;
};

class Flag {
public:
    static constexpr size_t references = 0;

    bool get() const { return flag; }
    void set(bool value) { flag = value; }

    int compare(Flag const &other) const { return flag - other.flag; }

private:
    bool flag;
};

// What is common to the types.

// A new object of the sort's size and a line, which is left to be filled; else all zero behind its header.
void *makeZeroed(coSort const *sort, int64_t lineLength);
// A new object of the same bytes, its line included, whose references are not counted yet.
[[gnu::noinline]] void *copyBytes(coObj const *source);
// Frees the block of an object that holds nothing any more. Like copyBytes it is not written out where it is called,
// since every type calls it.
[[gnu::noinline]] void freeMemory(coObj *obj, int64_t size);
void retainMember(coObj const *member);
void releaseMember(coObj *member);

// Calls `use` with each word of a member that may hold a reference. Each slot has a type of its own, so that what stands
// there is moved as bytes.
template <class Member, class Use> void forEachReference(Member *member, Use use) {
    for (size_t i = 0; i < Member::references; i++) use(reinterpret_cast<char *>(member) + i * sizeof(void *));
}

inline coObj *referenceIn(void const *word) {
    coObj *member;
    std::memcpy(&member, word, sizeof member);
    return member;
}

template <class Member> void initUnlessZero(Member &member) {
    if constexpr (requires { member.init(); }) member.init();
}

// A member may hold more than its references: onCopied() is called in a copy, whose references are counted by then,
// onFreed() while all is whole.
template <class Member> void notifyCopied(Member &member) {
    if constexpr (requires { member.onCopied(); }) member.onCopied();
}
template <class Member> void notifyFreed(Member &member) {
    if constexpr (requires { member.onFreed(); }) member.onFreed();
}

// All members absent, of an object that is zero behind its header.
template <class T> T *initMembers(void *zeroed, int64_t lineLength) {
    auto *obj = static_cast<T *>(zeroed);
    if constexpr (std::is_base_of_v<WithLine, T>) obj->lineLength = lineLength;
    std::apply([obj](auto... m) { (initUnlessZero(obj->*m), ...); }, T::members());
    return obj;
}

// A new object of a type with members, all absent; a line is left to be filled.
template <class T> T *make(int64_t lineLength = 0) {
    return initMembers<T>(makeZeroed(&T::sort, lineLength), lineLength);
}

// The same within the memory of another object, which has room for it and frees its members. Nobody retains it.
template <class T> T *makeIn(void *mem, int64_t lineLength) {
    coObj *obj = startObject(mem, &T::sort);
    simd::clearWords(reinterpret_cast<char *>(obj + 1), (sizeof(T) - sizeof(coObj)) / 8);
    return initMembers<T>(obj, lineLength);
}

// The line of a WithLine of any type, by its sort.
inline coChar *lineBehind(coObj *obj) {
    return reinterpret_cast<coChar *>(reinterpret_cast<char *>(obj) + obj->itsSort->size);
}

// A new WithLine, which keeps a copy of the line. The caller goes on with that: what is found there can be kept.
template <class T> T *makeWithLine(Chars *line) {
    T *obj = make<T>(length(*line));
    if (!line->empty()) std::memcpy(lineOf(obj), line->data(), line->size() * sizeof(coChar));
    *line = chars(lineOf(obj), length(*line));
    return obj;
}

// Sets a text of an object to a piece of the line that it keeps.
template <class T> void keep(T *obj, TextSlot T::*slot, Chars piece) {
    if (obj->lineLength > longestLine) return (obj->*slot).adopt(makeString(piece));
    (obj->*slot).setPiece(piece);
}

// The same of a text whose ASCII letters are to be lower case: they are changed where they stand.
template <class T> void keepLower(T *obj, TextSlot T::*slot, Chars piece) {
    keep(obj, slot, piece);
    (obj->*slot).toAsciiLower();
}

// A new object that shares the members of another.
template <class T> T *makeCopy(T const *source) {
    auto *copied = static_cast<T *>(copyBytes(source));
    auto const retainIn = [](void const *word) {
        if (coObj const *member = referenceIn(word)) retainMember(member);
    };
    std::apply([&](auto... m) { (forEachReference(&(copied->*m), retainIn), ...); }, T::members());
    std::apply([&](auto... m) { (notifyCopied(copied->*m), ...); }, T::members());
    return copied;
}

// Gives up the members and leaves the all-ones pattern in their slots.
template <class T> void freeMembers(coObj *obj) {
    std::apply([&](auto... m) { (notifyFreed(static_cast<T *>(obj)->*m), ...); }, T::members());
    auto const releaseIn = [](void *word) {
        coObj *const member = referenceIn(word);
        coObj *const none = released<coObj>();
        std::memcpy(word, &none, sizeof none);
        if (member) releaseMember(member);
    };
    std::apply([&](auto... m) { (forEachReference(&(static_cast<T *>(obj)->*m), releaseIn), ...); }, T::members());
}

// Gives up a reference to an object of a type with members, of which nothing need be looked up when it was the last one.
template <class T> void releaseOf(T *obj) {
    int64_t const count = obj->count.load(std::memory_order_seq_cst);
    if (count >= immortal || (count != 1 && obj->count.fetch_sub(1, std::memory_order_seq_cst) != 1)) return;
    int64_t size = sizeof(T);
    if constexpr (std::is_base_of_v<WithLine, T>) size += obj->lineLength * static_cast<int64_t>(sizeof(coChar));
    freeMembers<T>(obj);
    freeMemory(obj, size);
}

// The first difference decides.
template <class T> int compareMembers(T const *a, T const *b) {
    int order = 0;
    std::apply([&](auto... m) { static_cast<void>(((order = (a->*m).compare(b->*m)) || ...)); }, T::comparison());
    return order;
}

// Copy on write: afterwards the caller's reference is the only one to its object.
template <class T> T *writable(T **reference) {
    T *obj = *reference;
    if (isUnique(obj)) return obj;
    *reference = makeCopy(obj);
    release(obj);
    return *reference;
}

// Normaliser of members that are stored as they are given.
inline coString *asGiven(coString const *text) { return retained(text); }

} // namespace co
