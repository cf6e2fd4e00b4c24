// Tables of default texts by code.
#pragma once

#include <algorithm>
#include <co/co_string.hpp>
#include <iterator>

namespace quill {

struct CodeText {
    int64_t code;
    co::Chars text;
};

constexpr bool isBefore(CodeText const &a, CodeText const &b) { return a.code < b.code; }

// Sorted, and no code twice.
template <size_t n> constexpr bool isOrdered(CodeText const (&table)[n]) {
    for (size_t i = 1; i < n; i++)
        if (!isBefore(table[i - 1], table[i])) return false;
    return true;
}

// A new string with the code's text, or null where the table has none.
template <size_t n> coString *textOfCode(CodeText const (&table)[n], int64_t code) {
    auto const *found = std::lower_bound(std::begin(table), std::end(table), CodeText{code, {}}, isBefore);
    return found != std::end(table) && found->code == code ? co::makeString(found->text) : nullptr;
}

} // namespace quill
