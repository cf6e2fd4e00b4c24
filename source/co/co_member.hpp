// Members of objects, and what the free, copy and compare functions do with a type's list of them.
//
// A type names its members twice at most: members() in declaration order, comparison() in the order that decides.
#pragma once

#include <co/co_obj.hpp>
#include <co/co_string.hpp>
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

// A new object of a type with members, all absent.
template <class T> T *make() {
    auto *obj = static_cast<T *>(allocateObject(sizeof(T), &T::sort));
    std::apply([&](auto... m) { ((obj->*m).init(), ...); }, T::members());
    return obj;
}

// A new object that shares the members of another.
template <class T> T *makeCopy(T const *source) {
    auto *obj = static_cast<T *>(allocateObject(sizeof(T), &T::sort));
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
