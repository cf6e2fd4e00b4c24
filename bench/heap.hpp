// What a program asks of the heap, the library's calls included: heap.cpp stands in for malloc and its like. For one
// thread at a time.
#pragma once

#include <cstdint>

namespace heap {

inline int64_t calls;   // of malloc, calloc, realloc and their like
inline int64_t asked;   // bytes
inline bool watched;    // whether what lives is followed, which costs time
inline int64_t live;    // bytes of what was allocated and not freed while it was watched
inline int64_t highest; // of these

struct Use {
    int64_t asked;
    int64_t highest;
};

// What some work asks for, and the most that it holds at any time.
template <class Work> Use use(Work const &work) {
    int64_t const before = asked;
    live = highest = 0;
    watched = true;
    work();
    watched = false;
    return {asked - before, highest};
}

} // namespace heap
