// Preconditions. A broken one ends the process through co___Abort with the unit's path and the condition's text.
#pragma once

#include <co/co_object.h>

// Cold: what leads there stands apart from the code that runs.
extern "C" [[gnu::cold]] void co___Abort(char const *message, char const *file, int64_t line, char const *condition);

// Every unit says `#define CO_UNIT "source/<directory>/<unit>"` before it uses one of these.
//
// The text is given beside the condition, not made from it: it is part of the interface, blanks included, and must
// survive any formatter.
#define CO_ASSERT_SAYING(message, condition, text)                                                                     \
    do {                                                                                                               \
        if (!(condition)) [[unlikely]]                                                                                 \
            co___Abort(message, CO_UNIT, __LINE__, text);                                                              \
    } while (false)

#define CO_ASSERT(condition, text) CO_ASSERT_SAYING(nullptr, condition, text)

// An object that must be given: the text is its name.
#define CO_ASSERT_GIVEN(object) CO_ASSERT(object, #object)

// The address of a reference, and the reference.
#define CO_ASSERT_REFERENCE(reference)                                                                                 \
    do {                                                                                                               \
        CO_ASSERT(reference, #reference);                                                                              \
        CO_ASSERT(*(reference), "*" #reference);                                                                       \
    } while (false)

// A value that must pass its validator: "quillQvalueOk( qvalue )".
#define CO_ASSERT_OK(ok, value) CO_ASSERT(ok(value), #ok "( " #value " )")

// The two preconditions of every function that takes code points and their count.
#define CO_ASSERT_TEXT(chs, length)                                                                                    \
    do {                                                                                                               \
        CO_ASSERT((length) >= 0, #length " >= 0");                                                                     \
        CO_ASSERT((chs) || (length) == 0, #chs " || " #length " == 0");                                                \
    } while (false)
