// Buffers as the library's own units see them.
#pragma once

#include <co/co_buffer.h>
#include <co/co_obj.hpp>
#include <cstring>
#include <string_view>

// The bytes are bytes[head] to bytes[head + length - 1]. They follow the object in the same allocation until the buffer
// outgrows it.
struct coBuffer : coObj {
    uint8_t *bytes;
    int64_t head;
    int64_t length;
    int64_t capacity;

    uint8_t const *begin() const { return bytes + head; }
    uint8_t *end() { return bytes + head + length; }
    std::string_view view() const { return {reinterpret_cast<char const *>(begin()), static_cast<size_t>(length)}; }
};

extern "C" struct coSort const co___sort_CO_BUFFER;

namespace co {

// A new, empty buffer with room for `capacity` bytes.
coBuffer *makeBuffer(int64_t capacity);

// Room for `more` bytes behind the buffer's end, which the caller then fills and counts.
uint8_t *appendSpace(coBuffer **buffer, int64_t more);
void append(coBuffer **buffer, std::string_view bytes);

// Copies bytes to where there is room for them; returns the end of what it wrote.
inline uint8_t *put(uint8_t *to, std::string_view bytes) {
    if (!bytes.empty()) std::memcpy(to, bytes.data(), bytes.size());
    return to + bytes.size();
}

} // namespace co
