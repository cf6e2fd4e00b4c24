// Strings as the library's own units see them.
#pragma once

#include <co/co_obj.hpp>
#include <co/co_string.h>
#include <co/co_utf8.hpp>
#include <cstring>
#include <initializer_list>
#include <string_view>

// One allocation: the code points follow the header.
struct coString : coObj {
    int64_t length;
    int64_t capacity;

    // Negative, which is refused, for what is too much.
    static constexpr int64_t sizeFor(int64_t room) {
        return static_cast<int64_t>(sizeof(coObj) + 2 * sizeof(int64_t) + static_cast<uint64_t>(room) * sizeof(coChar));
    }
    int64_t size() const { return sizeFor(capacity); } // of its memory, in bytes
    coChar *chars() { return reinterpret_cast<coChar *>(this + 1); }
    coChar const *chars() const { return reinterpret_cast<coChar const *>(this + 1); }
    std::u32string_view view() const { return {chars(), static_cast<size_t>(length)}; }
};

extern "C" __attribute__((visibility("hidden"))) struct coSort const co___sort_CO_STRING;

namespace co {

// A span of code points, not owned.
using Chars = std::u32string_view;

inline Chars chars(coChar const *chs, int64_t length) { return {chs, static_cast<size_t>(length)}; }
inline int64_t length(Chars text) { return static_cast<int64_t>(text.size()); }
inline bool equal(Chars a, Chars b) {
    return a.size() == b.size() && (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(coChar)) == 0);
}

// A new string with room for `capacity` code points and none in it.
coString *makeString(int64_t capacity);
coString *makeString(Chars text);
// From UTF-8 that has been checked (co_utf8.hpp).
coString *makeStringFromUtf8(std::string_view valid);

// Room for `more` code points behind the string's end, which the caller then fills and counts.
coChar *appendSpace(coString **string, int64_t more);
void append(coString **string, Chars text);
void append(coString **string, std::initializer_list<Chars> texts); // one after the other

} // namespace co
