// The methods that all messages share the strings of.
#pragma once

#include <co/co_string.hpp>
#include <string_view>

namespace quill {

// The shared string of a registered method, borrowed; null for other texts.
coString *knownMethod(std::string_view text);

void startMethods();
void stopMethods();

} // namespace quill
