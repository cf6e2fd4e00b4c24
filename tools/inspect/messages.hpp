// From bytes to messages.
#ifndef QUILL_INSPECT_MESSAGES_HPP
#define QUILL_INSPECT_MESSAGES_HPP

#include "objects.hpp"
#include <functional>
#include <optional>
#include <string>

namespace inspect {

using Take = std::function<void(quillMessage const *)>;

/// Both give each message to @p take as soon as it is decoded, and return what is wrong with the bytes after the last
/// one, or nothing when all of them decoded.
/// @{
using Trouble = std::optional<std::string>;

/// The bytes are one datagram, which is one message.
Trouble decodeDatagram(coBuffer const *bytes, Take const &take);

/// The bytes are what came in on a connection: messages, with keep-alives in between.
Trouble decodeStream(coBuffer const *bytes, Take const &take);
/// @}

} // namespace inspect

#endif
