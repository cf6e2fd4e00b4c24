// Transports (RFC 3261, 25.1). Contracts: quill_transport.h, quill_transport.hpp.

#define CO_UNIT "source/quill/quill_transport"

#include <algorithm>
#include <array>
#include <iterator>
#include <quill/quill_family.hpp>
#include <quill/quill_scalar.hpp>
#include <quill/quill_transport.h>
#include <quill/quill_transport.hpp>

QUILL_DEFINE_TEXT_VALUE(Transport, transport, quill___SkipTransport)
QUILL_DEFINE_LOWER_NORMALIZE(Transport, transport)

namespace {

// The registered ones (RFC 3261, 25.1; RFC 4168; RFC 7118), what is sent most first.
constexpr co::Chars texts[] = {U"udp", U"tcp", U"tls", U"ws", U"wss", U"sctp"};

coString *transports[std::size(texts)];

// The characters in lower case behind a one as one number; 0 of too many, and of what is not US-ASCII.
constexpr uint64_t packed(co::Chars text) {
    uint64_t number = 1;
    for (coChar const ch : text) {
        if (ch >= 0x80 || text.size() >= sizeof number) return 0;
        number = number << 8 | co::asciiLower(ch);
    }
    return number;
}

constexpr auto numbers =
    std::apply([](auto const &...text) { return std::array{packed(text)...}; }, std::to_array(texts));

} // namespace

namespace quill {

coString *knownTransport(co::Chars text) {
    auto const *known = std::find(numbers.begin(), numbers.end(), packed(text));
    return known == numbers.end() ? nullptr : transports[known - numbers.begin()];
}

void startTransports() {
    for (size_t i = 0; i < std::size(texts); i++) startShared(&transports[i], co::makeString(texts[i]));
}

void stopTransports() {
    for (coString *&transport : transports) stopShared(&transport);
}

} // namespace quill
