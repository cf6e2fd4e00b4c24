// What has to hold of any bytes that are read as messages.
#pragma once

#include <cstddef>
#include <cstdint>

namespace fuzz {

// Decodes the bytes as a datagram and as a stream, in pieces whose lengths the bytes themselves give. Ends the process
// where something is wrong. The module must have been started.
void checkMessage(uint8_t const *bytes, size_t length);

} // namespace fuzz
