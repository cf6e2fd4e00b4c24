// Transports (RFC 3261, 25.1). Contracts: quill_transport.h, quill_transport.hpp.

#define CO_UNIT "source/quill/quill_transport"

#include <algorithm>
#include <array>
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

// Up to four letters as one number, the same in both cases; 0 for texts that are longer or not ASCII. Other characters
// never make the number of letters.
constexpr uint32_t keyOf(co::Chars text) {
    constexpr coChar caseBit = 0x20;
    if (text.size() > sizeof(uint32_t)) return 0;
    uint32_t key = 0;
    coChar all = 0;
    for (coChar ch : text) {
        key = key << 8 | ch | caseBit;
        all |= ch;
    }
    return all < 0x80 ? key : 0;
}

constexpr auto keys = [] {
    std::array<uint32_t, std::size(texts)> all{};
    std::transform(std::begin(texts), std::end(texts), all.begin(), keyOf);
    return all;
}();

} // namespace

namespace quill {

coString *knownTransport(co::Chars text) {
    auto const found = std::find(keys.begin(), keys.end(), keyOf(text));
    return found < keys.end() ? transports[found - keys.begin()] : nullptr;
}

void startTransports() {
    for (size_t i = 0; i < std::size(texts); i++) startShared(&transports[i], co::makeString(texts[i]));
}

void stopTransports() {
    for (coString *&transport : transports) stopShared(&transport);
}

} // namespace quill
