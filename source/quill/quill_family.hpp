// What every type of this module defines by a macro line, over co_family.hpp. A commented specimen: docs/families.md.
#pragma once

#include <co/co_family.hpp>
#include <quill/quill_internal.h>
#include <type_traits>

// The sort record of `struct quill<Type>`, named QUILL_<SORT>, its free function and the standard family. `compare` and
// `toString` are the sort's functions, or nullptr for the base library's default.
#define QUILL_DEFINE_SORT(Type, SORT, compare, toString)                                                               \
    void quill___##Type##FreeFunc(struct coObj *obj) { co::freeMembers<struct quill##Type>(obj); }                     \
    constinit struct coSort const quill___sort_QUILL_##SORT{                                                           \
        &co___sort_CO_SORT,         &quill___module, "QUILL_" #SORT,                                                   \
        quill___##Type##FreeFunc,   compare,         toString,                                                         \
        sizeof(struct quill##Type), nullptr,         std::is_base_of_v<co::WithLine, struct quill##Type>};             \
    CO_DEFINE_FAMILY_RELEASED(quill##Type, quill___sort_QUILL_##SORT, co::releaseOf)

// A new object that shares the members of another.
#define QUILL_DEFINE_CREATE_FROM(Type)                                                                                 \
    struct quill##Type *quill##Type##CreateFrom(struct quill##Type const *source) {                                    \
        CO_ASSERT_GIVEN(source);                                                                                       \
        return co::makeCopy(source);                                                                                   \
    }

// The sort's compare function: members in the order of comparison(), the first difference decides. `a` and `b` are the
// names in the condition texts: acceptA, acceptB.
#define QUILL_DEFINE_COMPARE(Type, a, b)                                                                               \
    int quill___##Type##CompareFunc(struct coObj const *objA, struct coObj const *objB) {                              \
        struct quill##Type const *a = quill##Type##From(objA);                                                         \
        CO_ASSERT_GIVEN(a);                                                                                            \
        struct quill##Type const *b = quill##Type##From(objB);                                                         \
        CO_ASSERT_GIVEN(b);                                                                                            \
        return co::compareMembers(a, b);                                                                               \
    }

// The sort's to-string function: the wire text.
#define QUILL_DEFINE_TO_STRING(Type)                                                                                   \
    struct coString *quill___##Type##ToStringFunc(struct coObj const *obj) {                                           \
        return quill___##Type##Encode(quill##Type##From(obj));                                                         \
    }

// All of it for a value, whose text form is its wire text.
#define QUILL_DEFINE_VALUE(Type, SORT, self)                                                                           \
    QUILL_DEFINE_SORT(Type, SORT, quill___##Type##CompareFunc, quill___##Type##ToStringFunc)                           \
    QUILL_DEFINE_CREATE_FROM(Type)                                                                                     \
    QUILL_DEFINE_COMPARE(Type, self##A, self##B)                                                                       \
    QUILL_DEFINE_TO_STRING(Type)

namespace quill {

// A static object of a unit: made by the unit's start-up, given up by its shut-down, which leaves the all-ones pattern
// whether or not there was one.
template <class T> void start(T **slot, T *created) { *slot = created; }

template <class T> void stop(T **slot) {
    if (*slot) co::release(*slot);
    *slot = co::released<T>();
}

// The same for an object that every message holds: immortal in between, so that threads don't fight over its count.
template <class T> void startShared(T **slot, T *created) {
    co::header(created)->count.store(co::immortal, std::memory_order_relaxed);
    *slot = created;
}

template <class T> void stopShared(T **slot) {
    if (*slot) co::header(*slot)->count.store(1, std::memory_order_relaxed);
    stop(slot);
}

} // namespace quill
