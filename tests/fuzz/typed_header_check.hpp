// What has to hold of the typed headers of any message.
#pragma once

#include <cstddef>
#include <cstdint>

namespace fuzz {

// Decodes the bytes as a message, every typed header of it, and every element of its lists, and writes all of them
// again. Ends the process where something is wrong. The module must have been started.
void checkTypedHeaders(uint8_t const *bytes, size_t length);

} // namespace fuzz
