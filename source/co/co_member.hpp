// Members of objects, and what the free, copy and compare functions do with a type's list of them.
//
// A type names its members twice at most: members() in declaration order, comparison() in the order that decides.
#pragma once

#include <co/co_obj.hpp>
#include <co/co_string.hpp>
#include <co/co_unicode.hpp>
#include <functional>
#include <tuple>

namespace co {

// A reference to an object, or null for absent.
template <class T> class Slot {
public:
    using Target = T;

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

    void init() { obj = nullptr; }
    void copy(Slot const &source) { obj = source.retained(); }
    void poison() {
        if (T *old = std::exchange(obj, co::released<T>())) release(old);
    }
    // Absent before present.
    int compare(Slot const &other) const {
        if (!obj || !other.obj) return (obj != nullptr) - (other.obj != nullptr);
        return co::compare(obj, other.obj);
    }

private:
    T *obj;
};

// A text: a string, or a piece of the line that the object was read from and keeps (WithLine); null or no piece for
// absent. A string of a piece is made for whoever asks for one, so that reading makes none that nobody looks at.
class TextSlot {
public:
    Chars view() const { return string ? string->view() : piece(); }
    explicit operator bool() const { return string || distance; }
    coString *retained() const {
        if (string) return co::retained(string);
        return distance ? makeString(piece()) : nullptr;
    }

    void set(coString *value) { adopt(co::retained(value)); }
    void adopt(coString *value) {
        distance = length = 0;
        if (coString *old = std::exchange(string, value)) release(old);
    }
    void clear() { adopt(nullptr); }

    // A piece of the line behind the object that this is a member of.
    void setPiece(Chars text) {
        clear();
        distance = static_cast<uint32_t>(text.data() - base());
        length = static_cast<uint32_t>(text.size());
    }

    // Of a text that nobody else has seen.
    void toAsciiLower() { makeAsciiLower(const_cast<coChar *>(view().data()), view().size()); }

    void init() {
        string = nullptr;
        distance = length = 0;
    }
    void copy(TextSlot const &source) { // of an object whose line is copied as well
        string = co::retained(source.string);
        distance = source.distance;
        length = source.length;
    }
    void poison() {
        if (coString *old = std::exchange(string, co::released<coString>())) release(old);
    }
    // Absent before present.
    int compare(TextSlot const &other) const {
        if (!*this || !other) return static_cast<bool>(*this) - static_cast<bool>(other);
        int const order = view().compare(other.view());
        return (order > 0) - (order < 0);
    }

private:
    coChar const *base() const { return reinterpret_cast<coChar const *>(this); }
    Chars piece() const { return {base() + distance, length}; }

    coString *string;
    uint32_t distance; // of the piece from this slot, in code points, so that it holds in a copy too; 0 for none
    uint32_t length;
};

// An object that keeps the line it was read from, behind its members; an empty one where it was not read.
struct WithLine : coObj {
    int64_t lineLength;
};

inline constexpr int64_t longestLine = INT32_MAX; // that a slot can point into

template <class T> constexpr int64_t sizeWithLine(int64_t lineLength) {
    return static_cast<int64_t>(sizeof(T)) + lineLength * static_cast<int64_t>(sizeof(coChar));
}
template <class T> coChar *lineOf(T const *obj) { return reinterpret_cast<coChar *>(const_cast<T *>(obj) + 1); }

// A signed 64-bit integer; -1 for absent.
class Int {
public:
    int64_t get() const { return number; }
    explicit operator bool() const { return number != -1; }
    void set(int64_t value) { number = value; }
    void clear() { number = -1; }

    void init() { clear(); }
    void copy(Int const &source) { number = source.number; }
    void poison() {}
    int compare(Int const &other) const { return (number > other.number) - (number < other.number); }

private:
    int64_t number;
};

class Flag {
public:
    bool get() const { return flag; }
    void set(bool value) { flag = value; }

    void init() { flag = false; }
    void copy(Flag const &source) { flag = source.flag; }
    void poison() {}
    int compare(Flag const &other) const { return flag - other.flag; }

private:
    bool flag;
};

// How a sort tells the size of its objects where they are not all of one size.
template <class T> constexpr auto sizeFunction() -> int64_t (*)(coObj const *) {
    if constexpr (std::is_base_of_v<WithLine, T>)
        return [](coObj const *obj) { return sizeWithLine<T>(static_cast<T const *>(obj)->lineLength); };
    else
        return nullptr;
}

// A new object of a type with members, their values left open, with room for a line.
template <class T> T *allocateWithLine(int64_t lineLength) {
    auto *obj = static_cast<T *>(allocateObject(sizeWithLine<T>(lineLength), &T::sort));
    if constexpr (std::is_base_of_v<WithLine, T>) obj->lineLength = lineLength;
    return obj;
}

// A new object of a type with members, all absent; a line is left to be filled.
template <class T> T *make(int64_t lineLength = 0) {
    auto *obj = allocateWithLine<T>(lineLength);
    std::apply([&](auto... m) { ((obj->*m).init(), ...); }, T::members());
    return obj;
}

// A new WithLine, which keeps a copy of the line. The caller goes on with that: what is found there can be kept.
template <class T> T *makeWithLine(Chars *line) {
    T *obj = make<T>(length(*line));
    if (!line->empty()) std::memcpy(lineOf(obj), line->data(), line->size() * sizeof(coChar));
    *line = chars(lineOf(obj), length(*line));
    return obj;
}

// Sets a text of an object: a piece of its line where the text is one, else a string.
template <class T> void keep(T *obj, TextSlot T::*slot, Chars text) {
    std::less_equal<> const before; // also of places in different blocks
    bool const isPiece = before(lineOf(obj), text.data()) && before(text.data(), lineOf(obj) + obj->lineLength) &&
                         obj->lineLength <= longestLine;
    if (isPiece)
        (obj->*slot).setPiece(text);
    else
        (obj->*slot).adopt(makeString(text));
}

// The same of a text whose ASCII letters are to be lower case: a piece is changed where it stands.
template <class T> void keepLower(T *obj, TextSlot T::*slot, Chars text) {
    keep(obj, slot, text);
    (obj->*slot).toAsciiLower();
}

// A new object that shares the members of another.
template <class T> T *makeCopy(T const *source) {
    int64_t length = 0;
    if constexpr (std::is_base_of_v<WithLine, T>) length = source->lineLength;
    T *obj = allocateWithLine<T>(length);
    std::memcpy(lineOf(obj), lineOf(source), static_cast<size_t>(length) * sizeof(coChar));
    std::apply([&](auto... m) { ((obj->*m).copy(source->*m), ...); }, T::members());
    return obj;
}

// Gives up the members in declaration order and leaves the all-ones pattern in their slots.
template <class T> void freeMembers(coObj *obj) {
    std::apply([&](auto... m) { ((static_cast<T *>(obj)->*m).poison(), ...); }, T::members());
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
