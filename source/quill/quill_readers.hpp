// The values that lists begin with, which nearly everybody who decodes a list asks for. A list has room for such a value
// before its lines, makes it there, and reads it of the first one.
#pragma once

#include <quill/quill_lifted.hpp>

namespace quill {

struct ValueKind {
    int64_t room; // in code points
    // The value at the start of a line, in the room before that, which it keeps; the line then goes on behind it. Null
    // where there is none.
    coObj *(*tryRead)(co::Chars *line);
};

extern ValueKind const contactKind;
extern ValueKind const routeKind; // as a list has it: in brackets
extern ValueKind const viaKind;

template <class T, ValueReader<T> readValue> constexpr ValueKind valueKind() {
    constexpr int64_t room = sizeof(T) / sizeof(coChar);
    return {room, [](co::Chars *line) -> coObj * {
                T *value = co::makeIn<T>(const_cast<coChar *>(line->data()) - room, co::length(*line));
                if (readValue(value, line)) return value;
                co::freeMembers<T>(value);
                return nullptr;
            }};
}

} // namespace quill
