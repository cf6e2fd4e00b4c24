// Objects, sorts and modules. Contract: co_object.h.

#define CO_UNIT "source/co/co_object"

#include <cinttypes>
#include <co/co.h>
#include <co/co_assert.hpp>
#include <co/co_obj.hpp>
#include <co/co_string.hpp>
#include <cstdio>
#include <cstdlib>
#include <cstring>

static constexpr coModuleRecord record{2,    "Quill",        "Quill", 0,  1, 0, "", "Quill", "Apache License 2.0",
                                       "co", "base objects", "0.0",   "", ""};

constinit coModule co___module{&co___sort_CO_MODULE, &record, nullptr, nullptr};
constinit coSort const co___sort_CO_SORT{&co___sort_CO_SORT, &co___module, "CO_SORT", nullptr, nullptr, nullptr};
constinit coSort const co___sort_CO_MODULE{&co___sort_CO_SORT, &co___module, "CO_MODULE", nullptr, nullptr, nullptr};

void co___Abort(char const *message, char const *file, int64_t line, char const *condition) {
    std::fprintf(stderr, "abort: %s%s%s:%" PRId64 ": %s\n", message ? message : "", message ? ": " : "", file, line,
                 condition);
    std::abort();
}

void *co::allocateNewObject(int64_t size) {
    void *mem = allocateNewBlock(size);
    CO_ASSERT_SAYING("out of memory", mem, "mem");
    return mem;
}

struct coObj *co___ObjCreate(int64_t size, struct coSort const *sort) {
    CO_ASSERT(size >= static_cast<int64_t>(sizeof(coObj)), "size >= sizeof(struct coObj)");
    CO_ASSERT_GIVEN(sort);
    auto *obj = static_cast<coObj *>(co::allocateObject(size, sort));
    std::memset(static_cast<void *>(obj + 1), 0, static_cast<size_t>(size) - sizeof(coObj));
    return obj;
}

// Apart, so that a string's way needs no stack.
[[gnu::noinline]] static void freeOther(coObj *obj, coSort const *sort) {
    int64_t const size = co::sizeOf(obj); // asked while the object is whole
    if (sort->freeFunc) sort->freeFunc(obj);
    co::freeBlock(obj, size);
}

void co___ObjFree(struct coObj *obj) {
    coSort const *sort = obj->itsSort;
    if (sort != &co___sort_CO_STRING) return freeOther(obj, sort);
    co::freeBlock(obj, static_cast<coString const *>(obj)->size()); // most objects are strings, which hold nothing
}

struct coSort const *coObjSort(struct coObj const *obj) {
    CO_ASSERT_GIVEN(obj);
    return obj->itsSort;
}

void coObjRetain(struct coObj *obj) {
    CO_ASSERT_GIVEN(obj);
    co::retain(obj);
}

void coObjRelease(struct coObj *obj) {
    CO_ASSERT_GIVEN(obj);
    co::release(obj);
}

int coObjCompare(struct coObj const *objA, struct coObj const *objB) {
    CO_ASSERT_GIVEN(objA);
    CO_ASSERT_GIVEN(objB);
    if (objA == objB) return 0;
    if (objA->itsSort != objB->itsSort) {
        if (int order = std::strcmp(objA->itsSort->name, objB->itsSort->name)) return order < 0 ? -1 : 1;
        return objA->itsSort < objB->itsSort ? -1 : 1;
    }
    if (objA->itsSort->compareFunc) return objA->itsSort->compareFunc(objA, objB);
    return objA < objB ? -1 : 1;
}

struct coString *coObjToString(struct coObj const *obj) {
    CO_ASSERT_GIVEN(obj);
    if (obj->itsSort->toStringFunc) return obj->itsSort->toStringFunc(obj);
    char text[128];
    std::snprintf(text, sizeof text, "<%s %p>", obj->itsSort->name, static_cast<void const *>(obj));
    return coStringCreateFromCstr(text, -1);
}

void coModuleLoad(struct coModule *module) {
    CO_ASSERT_GIVEN(module);
    if (module->loads++ == 0 && module->startup) CO_ASSERT(module->startup(), "module->startup()");
}

void coModuleUnload(struct coModule *module) {
    CO_ASSERT_GIVEN(module);
    CO_ASSERT(module->loads > 0, "module->loads > 0");
    if (--module->loads == 0 && module->shutdown) module->shutdown();
}
