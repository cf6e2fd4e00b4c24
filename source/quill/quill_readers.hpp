// The values that lists begin with, which nearly everybody who decodes a list asks for. A list makes such a value with
// room for the line, puts the line there, and reads it.
#pragma once

#include <quill/quill_lifted.hpp>

namespace quill {

struct ValueKind {
    coObj *(*make)(int64_t lineLength);
    bool (*read)(coObj *value, co::Chars *line); // the value at the start of its own line, which then goes on behind it
};

extern ValueKind const contactKind;
extern ValueKind const routeKind; // as a list has it: in brackets
extern ValueKind const viaKind;

template <class T, ValueReader<T> readValue> constexpr ValueKind valueKind() {
    return {[](int64_t lineLength) { return co::header(co::make<T>(lineLength)); },
            [](coObj *value, co::Chars *line) { return readValue(static_cast<T *>(value), line); }};
}

} // namespace quill
