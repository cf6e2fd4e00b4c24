// Vectors as the library's own units see them.
#pragma once

#include <co/co_obj.hpp>
#include <co/co_vector.h>

// The elements are items[head] to items[head + length - 1]: both ends can be changed without moving the rest. The items
// are the few in the object itself until it outgrows them.
struct coVector : coObj {
    coObj **items;
    int64_t head;
    int64_t length;
    int64_t capacity;
    static constexpr int64_t fewItems = 4;
    coObj *few[fewItems];

    coObj *at(int64_t index) const { return items[head + index]; }
};

extern "C" struct coSort const co___sort_CO_VECTOR;

namespace co {

extern coVector emptyVector; // immortal: for what begins without elements

// Appends and takes over a reference.
void appendTaken(coVector **vector, coObj *obj);

// Element `index` of a vector of strings, borrowed.
inline coString *stringAt(coVector const *vector, int64_t index) {
    return reinterpret_cast<coString *>(vector->at(index));
}

} // namespace co
