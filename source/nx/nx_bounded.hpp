// Texts of a known greatest length, without allocation.
#pragma once

#include <algorithm>
#include <co/co_string.hpp>

namespace nx {

// What goes beyond the capacity is refused, with false.
template <size_t capacity> class Bounded {
public:
    co::Chars view() const { return {chars, count}; }
    size_t size() const { return count; }
    coChar &operator[](size_t i) { return chars[i]; }
    void truncate(size_t size) { count = size; }

    bool append(coChar ch) { return insert(count, ch); }
    bool append(co::Chars text) {
        if (text.size() > capacity - count) return false;
        std::copy(text.begin(), text.end(), chars + count);
        count += text.size();
        return true;
    }
    bool insert(size_t at, coChar ch) {
        if (count == capacity) return false;
        std::copy_backward(chars + at, chars + count, chars + count + 1);
        chars[at] = ch;
        count++;
        return true;
    }

private:
    coChar chars[capacity];
    size_t count = 0;
};

// A label of a domain name, in either form: the ASCII form has 63 octets at most (RFC 1035, 2.3.4), the other one is
// never longer.
using Label = Bounded<63>;

} // namespace nx
