// The order in which the units with static objects start and stop.
#pragma once

#include <span>

namespace quill {

using Step = void (*)();

std::span<Step const> startUps();
std::span<Step const> shutDowns();

} // namespace quill
