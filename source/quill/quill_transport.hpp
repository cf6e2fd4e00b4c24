// The transports that all messages share the strings of.
#pragma once

#include <co/co_string.hpp>

namespace quill {

// The shared string of a registered transport, in lower case, borrowed; null for other texts.
coString *knownTransport(co::Chars text);

void startTransports();
void stopTransports();

} // namespace quill
