// A hash of texts that nobody outside of the process can foresee: SipHash-1-3 (Aumasson and Bernstein).
#pragma once

#include <co/co_string.hpp>

namespace co {

struct HashKey {
    uint64_t first;
    uint64_t second;
};

// SipHash-1-3 of the code points: of US-ASCII alone, each as one byte, or else each as four, the least significant one
// first.
uint64_t sipHash(HashKey key, Chars text);

// Of US-ASCII alone: the same of its letters in lower case.
uint64_t sipHashIgnoringCase(HashKey key, std::string_view ascii);
uint64_t sipHashIgnoringCase(HashKey key, Chars ascii);

// The key that this process has drawn at random; the same at every call.
HashKey processHashKey();

inline uint64_t hash(Chars text) { return sipHash(processHashKey(), text); }
template <class Text> uint64_t hashIgnoringCase(Text ascii) { return sipHashIgnoringCase(processHashKey(), ascii); }

} // namespace co
