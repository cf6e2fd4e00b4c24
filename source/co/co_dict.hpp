// Dictionaries as the library's own units see them: borrowed answers, and a walk that costs the same with and without
// deletions.
#pragma once

#include <co/co_dict.h>
#include <co/co_obj.hpp>
#include <co/co_string.hpp>

extern "C" struct coSort const co___sort_CO_DICT;

namespace co {

// An immortal dictionary without entries.
extern coDict emptyDict;

// The value of a key, borrowed, or null.
coObj *find(coDict const *dict, Chars key);

// Where the value of a key stands, for a change in place, in a dictionary that is the caller's own then; null when there
// is none. Good until the dictionary changes.
coObj **findSlot(coDict **dict, Chars key);

struct DictEntry {
    coString *key;
    coObj *value;
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
