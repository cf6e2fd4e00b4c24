// The object header, sort records and modules as the library's own units see them, and counting.
#pragma once

#include <atomic>
#include <co/co_block.hpp>
#include <co/co_object.h>
#include <co/co_types.h>
#include <utility>

struct coObj {
    coSort const *itsSort;
    mutable std::atomic<int64_t> count;
};

// A sort record is an object itself: statically initialised, never released.
struct coSort : coObj {
    coModule const *module;
    char const *name;
    void (*freeFunc)(coObj *);
    int (*compareFunc)(coObj const *, coObj const *);
    coString *(*toStringFunc)(coObj const *);
    int64_t size;                       // of an object's memory, without its line; 0 where it is not known here
    int64_t (*sizeFunc)(coObj const *); // where each object has its own; 0 when that is not known any more
    bool keepsLine;                     // objects are WithLine
    void const *reserved[2];

    constexpr coSort(coSort const *sortOfSorts, coModule const *owner, char const *sortName, void (*free)(coObj *),
                     int (*compare)(coObj const *, coObj const *), coString *(*toString)(coObj const *),
                     int64_t objectSize = 0, int64_t (*sizeOfObject)(coObj const *) = nullptr, bool withLine = false)
        : coObj{sortOfSorts, 1}, module(owner), name(sortName), freeFunc(free), compareFunc(compare),
          toStringFunc(toString), size(objectSize), sizeFunc(sizeOfObject), keepsLine(withLine), reserved{} {}
};

struct coModuleRecord {
    int64_t format;
    char const *productName;
    char const *productFamily;
    int64_t releaseMajor;
    int64_t releaseMinor;
    int64_t releasePatch;
    char const *buildTime;
    char const *vendorName;
    char const *legalNotice;
    char const *name;
    char const *description;
    char const *version;
    char const *dependencies;
    char const *end;
};

struct coModule : coObj {
    coModuleRecord const *record;
    bool (*startup)();
    void *unused;
    void (*shutdown)();
    void *reserved[4];
    int64_t loads;

    constexpr coModule(coSort const *sortOfModules, coModuleRecord const *moduleRecord, bool (*start)(), void (*stop)())
        : coObj{sortOfModules, 1}, record(moduleRecord), startup(start), unused(nullptr), shutdown(stop), reserved{},
          loads(0) {}
};

extern "C" {
extern struct coModule co___module;
extern struct coSort const co___sort_CO_SORT;
extern struct coSort const co___sort_CO_MODULE;
}

namespace co {

// The pattern that is left in every slot after its reference is given up, so that a later use faults at once.
template <class T> T *released() {
    return reinterpret_cast<T *>(~std::uintptr_t{0}); // NOLINT(performance-no-int-to-ptr)
}

// Every object begins with its header, also where its type is only declared.
template <class T> coObj *header(T const *obj) { return reinterpret_cast<coObj *>(const_cast<T *>(obj)); }

// The count of an object that lives as long as the library is loaded. It always reads as shared and is never written, so
// that threads don't fight over the cache line of an object that all of them use.
inline constexpr int64_t immortal = int64_t{1} << 62;

template <class T> bool isImmortal(T const *obj) {
    return header(obj)->count.load(std::memory_order_relaxed) >= immortal;
}

// A locked instruction is a full fence on x86-64; elsewhere sequential consistency asks for what is needed.
template <class T> void retain(T const *obj) {
    if (!isImmortal(obj)) header(obj)->count.fetch_add(1, std::memory_order_seq_cst);
}

// The second reference to a new object, which nobody else has seen.
template <class T> void retainOwn(T const *obj) { header(obj)->count.store(2, std::memory_order_relaxed); }

// Who reads a count of 1 holds the last reference: nobody else can raise it, and no atomic write is needed.
template <class T> bool isUnique(T const *obj) { return header(obj)->count.load(std::memory_order_seq_cst) == 1; }

template <class T> void release(T *obj) {
    int64_t const count = header(obj)->count.load(std::memory_order_seq_cst);
    if (count == 1 || (count < immortal && header(obj)->count.fetch_sub(1, std::memory_order_seq_cst) == 1))
        co___ObjFree(header(obj));
}

// Gives up two references to one object.
template <class T> void releaseTwice(T *obj) {
    if (header(obj)->count.load(std::memory_order_seq_cst) == 2)
        header(obj)->count.store(1, std::memory_order_relaxed); // there is no third
    else
        release(obj);
    release(obj);
}

// Getters hand out references to objects that they see as const: sharing is not a change.
template <class T> T *retained(T const *obj) {
    if (obj) retain(obj);
    return const_cast<T *>(obj);
}

// An object that keeps the line it was read from, behind its members; an empty one where it was not read.
struct WithLine : coObj {
    int64_t lineLength;
};

// The size of an object's memory; 0 where it is not known.
inline int64_t sizeOf(coObj const *obj) {
    coSort const *sort = obj->itsSort;
    if (sort->keepsLine)
        return sort->size + static_cast<WithLine const *>(obj)->lineLength * static_cast<int64_t>(sizeof(coChar));
    return sort->sizeFunc ? sort->sizeFunc(obj) : sort->size;
}

template <class T> int compare(T const *a, T const *b) { return a == b ? 0 : coObjCompare(header(a), header(b)); }

// Memory for an object that no kept block is there for. Ends the process when there is none.
void *allocateNewObject(int64_t size);

// Sets the header of an object in memory that is there for it; the rest is left as it comes.
inline coObj *startObject(void *mem, coSort const *sort) {
    auto *obj = static_cast<coObj *>(mem);
    obj->itsSort = sort;
    obj->count.store(1, std::memory_order_relaxed);
    return obj;
}

// The same in memory of its own.
inline void *allocateObject(int64_t size, coSort const *sort) {
    void *mem = takeKeptBlock(size);
    if (!mem) mem = allocateNewObject(size);
    return startObject(mem, sort);
}

// An owned reference, given up at the end of the scope unless taken. For codecs, which leave by many ways.
template <class T> class Ref {
public:
    Ref() = default;
    explicit Ref(T *owned) : obj(owned) {}
    Ref(Ref &&other) noexcept : obj(other.take()) {}
    Ref &operator=(Ref &&other) noexcept {
        reset(other.take());
        return *this;
    }
    ~Ref() { reset(nullptr); }

    explicit operator bool() const { return obj; }
    T *get() const { return obj; }
    T *operator->() const { return obj; }
    T **address() { return &obj; } // for setters, which may replace the object
    T *take() { return std::exchange(obj, nullptr); }
    void reset(T *owned) {
        if (T *old = std::exchange(obj, owned)) co::release(old);
    }

private:
    T *obj = nullptr;
};

} // namespace co
