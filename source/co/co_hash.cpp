// SipHash-1-3 and the key of the process. Contract: co_hash.hpp.

#define CO_UNIT "source/co/co_hash"

#include <bit>
#include <cerrno>
#include <co/co_assert.hpp>
#include <co/co_hash.hpp>
#include <sys/random.h>
#include <type_traits>

using co::Chars;

namespace {

struct SipState {
    uint64_t v0, v1, v2, v3;

    explicit SipState(co::HashKey key)
        : v0(key.first ^ 0x736F6D6570736575), v1(key.second ^ 0x646F72616E646F6D), v2(key.first ^ 0x6C7967656E657261),
          v3(key.second ^ 0x7465646279746573) {}

    [[gnu::always_inline]] void round() {
        v0 += v1;
        v2 += v3;
        v1 = std::rotl(v1, 13) ^ v0;
        v3 = std::rotl(v3, 16) ^ v2;
        v0 = std::rotl(v0, 32);
        v2 += v1;
        v0 += v3;
        v1 = std::rotl(v1, 17) ^ v2;
        v3 = std::rotl(v3, 21) ^ v0;
        v2 = std::rotl(v2, 32);
    }

    void absorb(uint64_t word) {
        v3 ^= word;
        round();
        v0 ^= word;
    }

    uint64_t finish() {
        v2 ^= 0xFF;
        round();
        round();
        round();
        return v0 ^ v1 ^ v2 ^ v3;
    }
};

uint64_t drawWord() {
    uint64_t word = 0;
    ssize_t count = 0;
    do count = getrandom(&word, sizeof word, 0);
    while (count < 0 && errno == EINTR);
    CO_ASSERT_SAYING("no random numbers", count == static_cast<ssize_t>(sizeof word), "count == sizeof word");
    return word;
}

// Zero until it is drawn. Whoever comes first settles it for all; a half of the key means nothing without its value,
// so that no order among other memory is needed.
uint64_t settled(std::atomic<uint64_t> &half) {
    if (uint64_t const known = half.load(std::memory_order_relaxed)) [[likely]]
        return known;
    uint64_t const drawn = drawWord() | 1;
    uint64_t expected = 0;
    return half.compare_exchange_strong(expected, drawn, std::memory_order_relaxed) ? drawn : expected;
}

} // namespace

// Up to eight characters as the bytes of a word, the first one in the lowest; what is more than a byte of one shows in
// `all` of them.
template <class Char> static uint64_t packed(std::basic_string_view<Char> text, coChar *all) {
    uint64_t word = 0;
    int shift = 0;
    for (Char const ch : text) {
        auto const code = static_cast<std::make_unsigned_t<Char>>(ch);
        *all |= code;
        word |= uint64_t{code} << shift;
        shift += 8;
    }
    return word;
}

static uint64_t hashWide(SipState state, Chars text) {
    size_t const even = text.size() & ~size_t{1};
    for (size_t i = 0; i < even; i += 2) state.absorb(uint64_t{text[i]} | uint64_t{text[i + 1]} << 32);
    uint64_t const last = even < text.size() ? uint64_t{text[even]} : 0;
    state.absorb(last | static_cast<uint64_t>(text.size() * sizeof(coChar)) << 56);
    return state.finish();
}

uint64_t co::sipHash(HashKey key, Chars text) {
    SipState state(key);
    coChar all = 0;
    size_t at = 0;
    for (; at + 8 <= text.size(); at += 8) state.absorb(packed(text.substr(at, 8), &all));
    state.absorb(packed(text.substr(at), &all) | static_cast<uint64_t>(text.size()) << 56);
    return all < 0x80 ? state.finish() : hashWide(SipState(key), text);
}

// Of the eight US-ASCII characters of a word. Adding sets a byte's highest bit from a certain character on.
static uint64_t lowerCase(uint64_t word) {
    constexpr uint64_t each = 0x0101010101010101;
    uint64_t const fromA = word + each * (0x80 - 'A');
    uint64_t const behindZ = word + each * (0x7F - 'Z');
    return word | ((fromA ^ behindZ) & each * 0x80) >> 2;
}

template <class Char> static uint64_t hashInLowerCase(SipState state, std::basic_string_view<Char> ascii) {
    coChar all = 0; // is known
    size_t at = 0;
    for (; at + 8 <= ascii.size(); at += 8) state.absorb(lowerCase(packed(ascii.substr(at, 8), &all)));
    state.absorb(lowerCase(packed(ascii.substr(at), &all)) | static_cast<uint64_t>(ascii.size()) << 56);
    return state.finish();
}

uint64_t co::sipHashIgnoringCase(HashKey key, std::string_view ascii) { return hashInLowerCase(SipState(key), ascii); }
uint64_t co::sipHashIgnoringCase(HashKey key, Chars ascii) { return hashInLowerCase(SipState(key), ascii); }

co::HashKey co::processHashKey() {
    static constinit std::atomic<uint64_t> first{0};
    static constinit std::atomic<uint64_t> second{0};
    return {settled(first), settled(second)};
}
