// Dictionaries as the library's own units see them: borrowed answers, and a walk that costs the same with and without
// deletions.
#pragma once

#include <co/co_dict.h>
#include <co/co_obj.hpp>
#include <co/co_string.hpp>

extern "C" struct coSort const co___sort_CO_DICT;

namespace co {

// The value of a key, borrowed, or null.
coObj *find(coDict const *dict, Chars key);

// As coDictSetStringKey, but takes both over.
void setTaken(coDict **dict, coString *key, coObj *value);

struct DictEntry {
    coString *key;
    coObj *value;

    bool isGap() const { return !key; }
    Chars keyText() const { return key->view(); }
    void retain() const {
        co::retain(key);
        co::retain(value);
    }
    void release() const {
        if (value == header(key)) return releaseTwice(key); // in a set
        co::release(key);
        co::release(value);
    }
    // The key stays the same string.
    void replaceBy(DictEntry const &taken) {
        co::release(std::exchange(value, taken.value));
        co::release(taken.key);
    }
    int compareValue(DictEntry const &other) const { return co::compare(value, other.value); }
};

// A walk through the entries in order; the dictionary must not change meanwhile.
class DictWalk {
public:
    explicit DictWalk(coDict const *walked) : dict(walked), place(0) {}
    // The next entry, borrowed; false at the end.
    bool next(DictEntry *entry);

private:
    coDict const *dict;
    int64_t place;
};

} // namespace co
