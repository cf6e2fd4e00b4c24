// Buffers as the library's own units see them.
#pragma once

#include <co/co_buffer.h>
#include <co/co_obj.hpp>
#include <cstring>
#include <string_view>

// The bytes are bytes[head] to bytes[head + length - 1]. They follow the object in the same allocation until the buffer
// outgrows it. Those of a long buffer may be lent to another one, which has no capacity of its own: nothing is written
// to them as long as either lives.
struct coBuffer : coObj {
    uint8_t *bytes;
    int64_t head;
    int64_t length;
    int64_t capacity;
    coBuffer *lender; // null where the bytes are the buffer's own

    uint8_t const *begin() const { return bytes + head; }
    uint8_t *end() { return bytes + head + length; }
    // Whether so many bytes can be put behind the end as it is.
    bool hasSpace(int64_t more) const { return co::isUnique(this) && capacity - head - length >= more; }
    // How much memory lives as long as the buffer.
    int64_t heldSize() const { return lender ? lender->capacity : capacity; }
    std::string_view view() const { return {reinterpret_cast<char const *>(begin()), static_cast<size_t>(length)}; }
};

extern "C" struct coSort const co___sort_CO_BUFFER;

namespace co {

// Where a copy would go through more memory than processors keep close at hand.
inline constexpr int64_t longBuffer = 1 << 20;

// A new, empty buffer with room for `capacity` bytes.
coBuffer *makeBuffer(int64_t capacity);

// Room for `more` bytes behind the buffer's end, which the caller then fills and counts.
uint8_t *appendSpace(coBuffer **buffer, int64_t more);

// Copies bytes to where there is room for them; returns the end of what it wrote.
inline uint8_t *put(uint8_t *to, std::string_view bytes) {
    if (!bytes.empty()) std::memcpy(to, bytes.data(), bytes.size());
    return to + bytes.size();
}

// Where there is room for them.
inline void appendInPlace(coBuffer *buffer, std::string_view bytes) {
    uint8_t *end = buffer->end();
    buffer->length += static_cast<int64_t>(bytes.size()); // first: it need not wait for the copy
    put(end, bytes);
}

// Apart, so that an append that finds room is short.
void appendWithMoreSpace(coBuffer **buffer, std::string_view bytes);

inline void append(coBuffer **buffer, std::string_view bytes) {
    coBuffer *const target = *buffer;
    if (!target->hasSpace(static_cast<int64_t>(bytes.size()))) return appendWithMoreSpace(buffer, bytes);
    appendInPlace(target, bytes);
}

} // namespace co
