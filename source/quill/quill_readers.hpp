// The values that lists begin with, which nearly everybody who decodes a list asks for. A list has room for such a value
// before its lines, makes it there, and reads it of the first one.
#pragma once

#include <quill/quill_lifted.hpp>

namespace quill {

struct ValueKind {
    int64_t room; // in code points
    // Makes the value in the room before a line, which it keeps, and reads it of that, which then goes on behind it.
    coObj *(*make)(co::Chars line);
    bool (*read)(coObj *value, co::Chars *line);
};

extern ValueKind const contactKind;
extern ValueKind const routeKind; // as a list has it: in brackets
extern ValueKind const viaKind;

template <class T, ValueReader<T> readValue> constexpr ValueKind valueKind() {
    constexpr int64_t room = sizeof(T) / sizeof(coChar);
    return {room,
            [](co::Chars line) {
                void *const mem = const_cast<coChar *>(line.data()) - room;
                return co::header(co::makeIn<T>(mem, co::length(line)));
            },
            [](coObj *value, co::Chars *line) { return readValue(static_cast<T *>(value), line); }};
}

} // namespace quill
