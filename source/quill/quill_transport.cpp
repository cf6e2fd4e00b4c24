// Transports (RFC 3261, 25.1). Contracts: quill_transport.h, quill_transport.hpp.

#define CO_UNIT "source/quill/quill_transport"

#include <iterator>
#include <quill/quill_family.hpp>
#include <quill/quill_scalar.hpp>
#include <quill/quill_skip.hpp>
#include <quill/quill_transport.h>
#include <quill/quill_transport.hpp>

QUILL_DEFINE_TEXT_VALUE(Transport, transport, quill___SkipTransport)
QUILL_DEFINE_LOWER_NORMALIZE(Transport, transport)

namespace {

// The registered ones (RFC 3261, 25.1; RFC 4168; RFC 7118), what is sent most first.
constexpr co::Chars texts[] = {U"udp", U"tcp", U"tls", U"ws", U"wss", U"sctp"};

coString *transports[std::size(texts)];

} // namespace

namespace quill {

coString *knownTransport(co::Chars text) {
    for (size_t i = 0; i < std::size(texts); i++)
        if (texts[i].size() == text.size() && foldedPrefix(text, texts[i]) > 0) return transports[i];
    return nullptr;
}

void startTransports() {
    for (size_t i = 0; i < std::size(texts); i++) startShared(&transports[i], co::makeString(texts[i]));
}

void stopTransports() {
    for (coString *&transport : transports) stopShared(&transport);
}

} // namespace quill
