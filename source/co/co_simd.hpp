// Widening, narrowing and searching of text, several characters at a time: with SSE2 on x86-64 and NEON on aarch64, which
// every processor of these kinds has, and one by one elsewhere. Nothing is read or written beyond the texts given.
//
// co::simd is what callers use. co::scalar says the same in plain code: it serves texts shorter than a block, and it is
// all there is on other processors.
#pragma once

#include <bit>
#include <co/co_types.h>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#if defined(__SSE2__)
#define CO_SIMD_SSE2 1
#include <emmintrin.h>
#elif defined(__aarch64__) && defined(__ARM_NEON) && !defined(__AARCH64EB__)
#define CO_SIMD_NEON 1
#include <arm_neon.h>
#endif

namespace co {

// What ends a header part: the end of its last line, and the empty line.
inline constexpr std::string_view emptyLine = "\r\n\r\n";

// US-ASCII characters of which runs are searched for.
struct Range {
    char low;
    char high;

    constexpr bool has(coChar ch) const {
        return ch >= static_cast<unsigned char>(low) && ch <= static_cast<unsigned char>(high);
    }
};

template <Range... ranges> struct RangesOf {
    static constexpr bool has(coChar ch) { return (ranges.has(ch) || ...); }
};

// All others, those beyond US-ASCII included.
template <class Set> struct AllBut {
    static constexpr bool has(coChar ch) { return !Set::has(ch); }
};

// What the texts that are named mostly consist of. It decides nothing: who searches looks at what follows.
using HostportChars = RangesOf<Range{'a', 'z'}, Range{'A', 'Z'}, Range{'-', ':'}>;
using UriChars = RangesOf<Range{'a', 'z'}, Range{'@', 'Z'}, Range{'-', ':'}>;
using UriWithParamsChars = RangesOf<Range{'a', 'z'}, Range{'@', 'Z'}, Range{'-', ';'}, Range{'=', '='}>;
using TokenChars = RangesOf<Range{'_', 'z'}, Range{'A', 'Z'}, Range{'0', '9'}, Range{'-', '.'}>;
using AlphanumChars = RangesOf<Range{'a', 'z'}, Range{'A', 'Z'}, Range{'0', '9'}>;

} // namespace co

namespace co::scalar {

// The place of the first `wanted`, or the text's size. Apart, so that its loop is not unrolled wherever it is used.
[[gnu::noinline]] inline size_t find(std::string_view text, char wanted) {
    size_t at = 0;
    while (at < text.size() && text[at] != wanted) at++;
    return at;
}

// All places of `wanted`, one after the other; the text's size when there are no more.
class Places {
public:
    Places(std::string_view whole, char wantedByte) : text(whole), wanted(wantedByte) {}

    size_t next() {
        for (; at < text.size(); at++) {
            seen |= static_cast<uint8_t>(text[at]);
            if (text[at] == wanted) return at++;
        }
        return at;
    }

    // Whether all that was searched is US-ASCII: what stands before the last place, and what may have been searched with it.
    bool sawAsciiAlone() const { return seen < 0x80; }

private:
    std::string_view text;
    char wanted;
    size_t at = 0;
    unsigned seen = 0;
};

inline bool emptyLineEndsAt(std::string_view text, size_t last) {
    constexpr size_t before = emptyLine.size() - 1;
    return last >= before && std::memcmp(text.data() + last - before, emptyLine.data(), emptyLine.size()) == 0;
}

// The place of the first empty line whose last byte is at `from` or behind it, or the text's size.
inline size_t findEmptyLine(std::string_view text, size_t from) {
    for (size_t at = from; at < text.size(); at++)
        if (text[at] == '\n' && emptyLineEndsAt(text, at)) return at + 1 - emptyLine.size();
    return text.size();
}

// How many leading characters are US-ASCII.
inline size_t asciiRun(std::string_view text) {
    constexpr uint64_t highBits = 0x8080808080808080;
    size_t count = 0;
    for (uint64_t word = 0; count + sizeof word <= text.size(); count += sizeof word) {
        std::memcpy(&word, text.data() + count, sizeof word);
        if (word & highBits) break;
    }
    while (count < text.size() && static_cast<uint8_t>(text[count]) < 0x80) count++;
    return count;
}

inline size_t asciiRun(std::u32string_view text) {
    size_t count = 0;
    while (count < text.size() && text[count] < 0x80) count++;
    return count;
}

// How many leading characters are members. Apart, so that its loop is not unrolled wherever it is used.
template <class Members> [[gnu::noinline]] inline size_t run(std::u32string_view text) {
    size_t count = 0;
    while (count < text.size() && Members::has(text[count])) count++;
    return count;
}

// How many leading characters are members or dots; 0 where a dot begins them or follows another one.
template <class Members> [[gnu::noinline]] inline size_t dottedRun(std::u32string_view text) {
    bool isDot = true; // as if one stood before the text
    size_t count = 0;
    for (; count < text.size() && (text[count] == U'.' || Members::has(text[count])); count++) {
        if (isDot && text[count] == U'.') return 0;
        isDot = text[count] == U'.';
    }
    return count;
}

// Whether a code point is in a text.
inline bool contains(std::u32string_view text, coChar wanted) {
    for (coChar const ch : text)
        if (ch == wanted) return true;
    return false;
}

inline void copy(coChar *to, std::u32string_view text) {
    for (coChar const ch : text) *to++ = ch;
}

// Sets words of eight bytes to zero.
inline void clearWords(char *words, size_t count) { std::memset(words, 0, 8 * count); }

// US-ASCII to code points.
inline void widen(coChar *chars, std::string_view ascii) {
    for (char const byte : ascii) *chars++ = static_cast<uint8_t>(byte);
}

// The leading US-ASCII characters to bytes; returns their number. Room is needed for no more than these.
inline size_t narrow(uint8_t *bytes, std::u32string_view text) {
    size_t count = 0;
    for (; count < text.size() && text[count] < 0x80; count++) bytes[count] = static_cast<uint8_t>(text[count]);
    return count;
}

} // namespace co::scalar

#if defined(CO_SIMD_SSE2) || defined(CO_SIMD_NEON)

namespace co::simd {

// What the processors have in common: a block of bytes, and a mask that says which of its bytes have the highest bit set.

inline constexpr size_t blockSize = 16;
inline constexpr size_t wideSize = 8; // characters that are widened or narrowed at once

#if defined(CO_SIMD_SSE2)

using Block = __m128i;
using Mask = unsigned;
inline constexpr size_t maskStep = 1; // bits for each byte

inline Block load(char const *at) { return _mm_loadu_si128(reinterpret_cast<__m128i const *>(at)); }
inline Block load(coChar const *at) { return _mm_loadu_si128(reinterpret_cast<__m128i const *>(at)); }
template <class T> void store(T *to, Block block) { _mm_storeu_si128(reinterpret_cast<__m128i *>(to), block); }
inline Block zeroes() { return _mm_setzero_si128(); }
inline Block equal(Block block, char wanted) { return _mm_cmpeq_epi8(block, _mm_set1_epi8(wanted)); }
inline Block either(Block a, Block b) { return _mm_or_si128(a, b); }
inline Block inRange(Block block, char low, char high) { // moved to the end of what a byte can be
    Block const moved = _mm_add_epi8(block, _mm_set1_epi8(static_cast<char>(127 - high)));
    return _mm_cmpgt_epi8(moved, _mm_set1_epi8(static_cast<char>(126 - (high - low))));
}
inline Mask highBits(Block block) { return static_cast<Mask>(_mm_movemask_epi8(block)); }
inline size_t first(Mask mask) { return static_cast<size_t>(std::countr_zero(mask)); }

// The places of a byte are looked for in longer steps.
inline constexpr size_t stepSize = 4 * blockSize;
using StepMask = uint64_t;

[[gnu::always_inline]] inline StepMask equalInStep(char const *at, char wanted, Block *seen) {
    auto const part = [=](size_t i) {
        Block const block = load(at + i);
        *seen = either(*seen, block);
        return StepMask{highBits(equal(block, wanted))} << i;
    };
    return (part(0) | part(16)) | (part(32) | part(48));
}
inline size_t first(StepMask mask) { return static_cast<size_t>(std::countr_zero(mask)); }
inline StepMask withoutFirst(StepMask mask) { return mask & (mask - 1); }
inline StepMask behind(StepMask mask, size_t places) { return mask >> places; } // from a place in the step on
inline StepMask ahead(StepMask mask, size_t places) { return mask << places; }

inline Block equalChars(Block fourChars, coChar wanted) {
    return _mm_cmpeq_epi32(fourChars, _mm_set1_epi32(static_cast<int>(wanted)));
}

inline void widenOnce(coChar *chars, char const *ascii) {
    Block const zero = _mm_setzero_si128();
    Block const pairs = _mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<__m128i const *>(ascii)), zero);
    _mm_storeu_si128(reinterpret_cast<__m128i *>(chars), _mm_unpacklo_epi16(pairs, zero));
    _mm_storeu_si128(reinterpret_cast<__m128i *>(chars + 4), _mm_unpackhi_epi16(pairs, zero));
}

inline void widenBlock(coChar *chars, char const *ascii) {
    Block const zero = _mm_setzero_si128();
    Block const bytes = load(ascii);
    Block const low = _mm_unpacklo_epi8(bytes, zero);
    Block const high = _mm_unpackhi_epi8(bytes, zero);
    store(chars, _mm_unpacklo_epi16(low, zero));
    store(chars + 4, _mm_unpackhi_epi16(low, zero));
    store(chars + 8, _mm_unpacklo_epi16(high, zero));
    store(chars + 12, _mm_unpackhi_epi16(high, zero));
}

inline bool isAscii(Block fourChars) {
    Block const beyond = _mm_and_si128(fourChars, _mm_set1_epi32(~0x7F));
    return highBits(_mm_cmpeq_epi32(beyond, _mm_setzero_si128())) == 0xFFFF;
}

// Twice eight code points as bytes; those beyond a byte become some byte that is no US-ASCII character but NUL.
inline Block narrowed(coChar const *low, coChar const *high) {
    Block const lowPairs = _mm_packs_epi32(load(low), load(low + 4));
    Block const highPairs = _mm_packs_epi32(load(high), load(high + 4));
    return _mm_packus_epi16(lowPairs, highPairs);
}

inline void narrowOnce(uint8_t *bytes, Block low, Block high) {
    Block const pairs = _mm_packs_epi32(low, high);
    _mm_storel_epi64(reinterpret_cast<__m128i *>(bytes), _mm_packus_epi16(pairs, pairs));
}

#else

using Block = uint8x16_t;
using Mask = uint64_t;
inline constexpr size_t maskStep = 4; // bits for each byte

inline Block load(char const *at) { return vld1q_u8(reinterpret_cast<uint8_t const *>(at)); }
inline Block load(coChar const *at) { return vld1q_u8(reinterpret_cast<uint8_t const *>(at)); }
template <class T> void store(T *to, Block block) { vst1q_u8(reinterpret_cast<uint8_t *>(to), block); }
inline Block zeroes() { return vdupq_n_u8(0); }
inline Block equal(Block block, char wanted) { return vceqq_u8(block, vdupq_n_u8(static_cast<uint8_t>(wanted))); }
inline Block either(Block a, Block b) { return vorrq_u8(a, b); }
inline Block inRange(Block block, char low, char high) {
    Block const moved = vsubq_u8(block, vdupq_n_u8(static_cast<uint8_t>(low)));
    return vcleq_u8(moved, vdupq_n_u8(static_cast<uint8_t>(high - low)));
}
inline Mask highBits(Block block) {
    Block const spread = vcltzq_s8(vreinterpretq_s8_u8(block));
    return vget_lane_u64(vreinterpret_u64_u8(vshrn_n_u16(vreinterpretq_u16_u8(spread), 4)), 0);
}
inline size_t first(Mask mask) { return static_cast<size_t>(std::countr_zero(mask)) / 4; }

inline constexpr size_t stepSize = blockSize;
using StepMask = Mask;

inline StepMask equalInStep(char const *at, char wanted, Block *seen) {
    *seen = either(*seen, load(at));
    return highBits(equal(load(at), wanted));
}
inline StepMask withoutFirst(StepMask mask) { return mask & ~(StepMask{0xF} << std::countr_zero(mask)); }
inline StepMask behind(StepMask mask, size_t places) { return mask >> (4 * places); }
inline StepMask ahead(StepMask mask, size_t places) { return mask << (4 * places); }

inline Block equalChars(Block fourChars, coChar wanted) {
    return vreinterpretq_u8_u32(vceqq_u32(vreinterpretq_u32_u8(fourChars), vdupq_n_u32(wanted)));
}

inline void widenOnce(coChar *chars, char const *ascii) {
    uint16x8_t const pairs = vmovl_u8(vld1_u8(reinterpret_cast<uint8_t const *>(ascii)));
    vst1q_u8(reinterpret_cast<uint8_t *>(chars), vreinterpretq_u8_u32(vmovl_u16(vget_low_u16(pairs))));
    vst1q_u8(reinterpret_cast<uint8_t *>(chars + 4), vreinterpretq_u8_u32(vmovl_u16(vget_high_u16(pairs))));
}

inline void widenBlock(coChar *chars, char const *ascii) {
    widenOnce(chars, ascii);
    widenOnce(chars + wideSize, ascii + wideSize);
}

inline bool isAscii(Block fourChars) { return vmaxvq_u32(vreinterpretq_u32_u8(fourChars)) < 0x80; }

inline Block narrowed(coChar const *low, coChar const *high) {
    auto const four = [](coChar const *at) { return vqmovn_u32(vreinterpretq_u32_u8(load(at))); };
    auto const eight = [=](coChar const *at) { return vqmovn_u16(vcombine_u16(four(at), four(at + 4))); };
    return vcombine_u8(eight(low), eight(high));
}

inline void narrowOnce(uint8_t *bytes, Block low, Block high) {
    uint16x4_t const lowPairs = vmovn_u32(vreinterpretq_u32_u8(low));
    uint16x4_t const highPairs = vmovn_u32(vreinterpretq_u32_u8(high));
    vst1_u8(bytes, vmovn_u16(vcombine_u16(lowPairs, highPairs)));
}

#endif

// The first of `size` places that a mask says yes for. `maskAt` gives the mask of a block of places, of which there is one
// at least. The last block overlaps the one before it, which has nothing.
template <class MaskAt> [[gnu::always_inline]] inline size_t firstPlace(size_t size, MaskAt maskAt) {
    size_t const last = size - blockSize;
    for (size_t at = 0;; at = at + blockSize < last ? at + blockSize : last) {
        if (Mask const mask = maskAt(at)) return at + first(mask);
        if (at == last) return size;
    }
}

[[gnu::always_inline]] inline size_t find(std::string_view text, char wanted) {
    if (text.size() < blockSize) return scalar::find(text, wanted);
    return firstPlace(text.size(), [&](size_t at) { return highBits(equal(load(text.data() + at), wanted)); });
}

// To be a local variable of a loop, whose registers it then lives in.
class Places {
public:
    Places(std::string_view whole, char wantedByte) : text(whole), wanted(wantedByte) {}

    [[gnu::always_inline]] size_t next() {
        while (mask == 0) {
            if (searched >= text.size()) return text.size();
            mask = searchStep();
        }
        size_t const place = searched - stepSize + first(mask);
        mask = withoutFirst(mask);
        return place;
    }

    bool sawAsciiAlone() const { return !highBits(seen); } // where what is wanted is one of its characters

private:
    // The last step overlaps the one before it.
    [[gnu::always_inline]] StepMask searchStep() {
        char const *const step = text.data() + searched;
        size_t const left = text.size() - searched;
        searched += stepSize;
        if (left >= stepSize) return equalInStep(step, wanted, &seen);
        if (text.size() < stepSize) return equalInShort(text, wanted, &seen);
        return behind(equalInStep(step + left - stepSize, wanted, &seen), stepSize - left);
    }

    [[gnu::noinline]] static StepMask equalInShort(std::string_view text, char wanted, Block *seen) {
        char step[stepSize];
        std::memset(step, wanted ^ 1, sizeof step);
        std::memcpy(step, text.data(), text.size());
        return equalInStep(step, wanted, seen);
    }

    std::string_view const text;
    char const wanted;
    size_t searched = 0;
    StepMask mask = 0; // of the places in the step that was searched last
    Block seen{};      // the bits of all bytes that were searched
};

// The places of a step where an empty line may end: of LFs that stand two places behind another one, and of those in the
// first two places, of which that is not known.
[[gnu::always_inline]] inline StepMask emptyLineEnds(char const *step) {
    Block unused{};
    StepMask const feeds = equalInStep(step, '\n', &unused);
    StepMask const firstTwo = ~ahead(~StepMask{0}, 2);
    return feeds & (ahead(feeds, 2) | firstTwo);
}

// The first of these that is one, or the text's size.
[[gnu::always_inline]] inline size_t firstEmptyLine(std::string_view text, size_t step, StepMask ends) {
    for (; ends != 0; ends = withoutFirst(ends)) {
        size_t const last = step + first(ends);
        if (scalar::emptyLineEndsAt(text, last)) return last + 1 - emptyLine.size();
    }
    return text.size();
}

// The last step overlaps the one before it.
inline size_t findEmptyLine(std::string_view text, size_t from) {
    for (; text.size() - from >= stepSize; from += stepSize) {
        size_t const place = firstEmptyLine(text, from, emptyLineEnds(text.data() + from));
        if (place < text.size()) return place;
    }
    size_t const left = text.size() - from;
    if (left < blockSize || text.size() < stepSize) return scalar::findEmptyLine(text, from);
    StepMask const ends = emptyLineEnds(text.data() + text.size() - stepSize);
    return firstEmptyLine(text, from, behind(ends, stepSize - left));
}

template <class... Blocks> Block eitherOf(Block first, Blocks... others) {
    ((first = either(first, others)), ...);
    return first;
}
template <Range... ranges> Block membersOf(RangesOf<ranges...> /*set*/, Block bytes) {
    return eitherOf(inRange(bytes, ranges.low, ranges.high)...);
}
template <class Set> Block othersThan(Set set, Block bytes) { return equal(membersOf(set, bytes), '\0'); }
template <class Set> Block othersThan(AllBut<Set> /*set*/, Block bytes) { return membersOf(Set{}, bytes); }

// Of a text that is shorter than a block the halves overlap.
template <class Members> size_t run(std::u32string_view text) {
    if (text.size() < wideSize) return scalar::run<Members>(text);
    auto const others = [](coChar const *low, coChar const *high) {
        return highBits(othersThan(Members{}, narrowed(low, high)));
    };
    coChar const *const start = text.data();
    if (text.size() >= blockSize)
        return firstPlace(text.size(), [=](size_t at) { return others(start + at, start + at + wideSize); });
    size_t const half = text.size() - wideSize;
    Mask const mask = others(start, start + half);
    if (mask == 0) return text.size();
    return first(mask) < wideSize ? first(mask) : first(mask) - wideSize + half;
}

// The places of what is neither member nor dot, and of the dots before the first of these.
struct DottedPlaces {
    Mask others;
    Mask dots;

    bool hasTwoDots(Mask before) const { return dots & (dots << maskStep | before); }
    Mask last() const { return dots >> (maskStep * (blockSize - 1)); }
};

// `inOrder` puts the mask of a block into the order of the text.
template <class Members, class Order> DottedPlaces dottedPlaces(Block bytes, Order inOrder) {
    Block const dots = equal(bytes, '.');
    Mask const others = inOrder(highBits(equal(either(dots, membersOf(Members{}, bytes)), '\0')));
    return {others, inOrder(highBits(dots)) & (others - 1) & ~others};
}

// Of a text that is shorter than a block the halves overlap, of another one the last block and the one before it, which
// has no two dots.
template <class Members> size_t dottedRun(std::u32string_view text) {
    constexpr Mask dot = 1; // as if one stood before the text
    if (text.size() < wideSize) return scalar::dottedRun<Members>(text);
    coChar const *const start = text.data();
    if (text.size() < blockSize) {
        size_t const half = text.size() - wideSize;
        auto const joined = [half](Mask mask) {
            constexpr size_t halfStep = maskStep * wideSize;
            return (mask & ((Mask{1} << halfStep) - 1)) | mask >> halfStep << (maskStep * half);
        };
        auto const found = dottedPlaces<Members>(narrowed(start, start + half), joined);
        if (found.hasTwoDots(dot)) return 0;
        return found.others ? first(found.others) : text.size();
    }
    size_t const last = text.size() - blockSize;
    Mask before = dot;
    for (size_t at = 0;;) {
        auto const same = [](Mask mask) { return mask; };
        auto const found = dottedPlaces<Members>(narrowed(start + at, start + at + wideSize), same);
        if (found.hasTwoDots(before)) return 0;
        if (found.others) return at + first(found.others);
        if (at == last) return text.size();
        before = at + blockSize <= last ? found.last() : 0;
        at = at + blockSize <= last ? at + blockSize : last;
    }
}

inline size_t asciiRun(std::string_view text) {
    if (text.size() < blockSize) return scalar::asciiRun(text);
    constexpr size_t step = 4 * blockSize;
    size_t at = 0;
    for (char const *bytes = text.data(); at + step <= text.size(); at += step, bytes += step) {
        Block const half = either(load(bytes), load(bytes + blockSize));
        Block const otherHalf = either(load(bytes + 2 * blockSize), load(bytes + 3 * blockSize));
        if (highBits(either(half, otherHalf))) break;
    }
    if (text.size() - at < blockSize) at = text.size() - blockSize;
    return at + firstPlace(text.size() - at, [&](size_t i) { return highBits(load(text.data() + at + i)); });
}

// The last step overlaps the one before it.
inline size_t asciiRun(std::u32string_view text) {
    auto const isAsciiAt = [&](size_t at) {
        return isAscii(either(load(text.data() + at), load(text.data() + at + 4)));
    };
    size_t at = 0;
    while (at + wideSize <= text.size() && isAsciiAt(at)) at += wideSize;
    bool const isLast = at > 0 && text.size() - at < wideSize;
    if (isLast && isAsciiAt(text.size() - wideSize)) return text.size();
    return at + scalar::asciiRun(text.substr(at));
}

// Copies to a place that does not overlap the text. Most texts are shorter than a call takes; the last block overlaps the
// one before it.
inline void copy(coChar *to, std::u32string_view text) {
    constexpr size_t step = blockSize / sizeof(coChar);
    constexpr size_t longest = 4 * step;
    if (text.size() < step) return scalar::copy(to, text);
    if (text.size() > longest) return static_cast<void>(std::memcpy(to, text.data(), text.size() * sizeof(coChar)));
    size_t const last = text.size() - step;
    for (size_t at = 0; at < last; at += step) store(to + at, load(text.data() + at));
    store(to + last, load(text.data() + last));
}

// Where a compiler takes a place for cold it makes a string instruction of memset, which starts slowly, and what reads the
// zeroes next waits for it.
inline void clearWords(char *words, size_t count) {
    constexpr size_t step = 4; // words that are set at once
    auto const clear = [](char *place) {
        store(place, zeroes());
        store(place + blockSize, zeroes());
    };
    if (count < step) return scalar::clearWords(words, count);
    char *const last = words + 8 * (count - step);
    for (; words < last; words += 8 * step) clear(words);
    clear(last);
}

// The last step overlaps the one before it.
inline void widen(coChar *chars, std::string_view ascii) {
    char const *const bytes = ascii.data();
    if (ascii.size() < wideSize) return scalar::widen(chars, ascii);
    if (ascii.size() < blockSize) {
        size_t const half = ascii.size() - wideSize;
        widenOnce(chars, bytes);
        return widenOnce(chars + half, bytes + half);
    }
    size_t const last = ascii.size() - blockSize;
    for (size_t at = 0; at < last; at += blockSize) widenBlock(chars + at, bytes + at);
    widenBlock(chars + last, bytes + last);
}

// The last step overlaps the one before it.
inline size_t narrow(uint8_t *bytes, std::u32string_view text) {
    auto const narrowAt = [&](size_t at) {
        Block const low = load(text.data() + at);
        Block const high = load(text.data() + at + 4);
        bool const all = isAscii(either(low, high));
        if (all) narrowOnce(bytes + at, low, high);
        return all;
    };
    size_t at = 0;
    while (at + wideSize <= text.size() && narrowAt(at)) at += wideSize;
    bool const isLast = at > 0 && text.size() - at < wideSize;
    if (isLast && narrowAt(text.size() - wideSize)) return text.size();
    return at + scalar::narrow(bytes + at, text.substr(at));
}

// The last step overlaps the one before it.
inline bool contains(std::u32string_view text, coChar wanted) {
    constexpr size_t step = 16;
    if (text.size() < step) return scalar::contains(text, wanted);
    auto const isAt = [&](size_t at) {
        auto const four = [&](size_t i) { return equalChars(load(text.data() + at + i), wanted); };
        return highBits(either(either(four(0), four(4)), either(four(8), four(12)))) != 0;
    };
    for (size_t at = 0; at + step < text.size(); at += step)
        if (isAt(at)) return true;
    return isAt(text.size() - step);
}

} // namespace co::simd

#else

namespace co {
namespace simd = scalar;
}

#endif

namespace co {

// The place of the first CR LF, or the text's size.
inline size_t findLineEnd(std::string_view text) {
    for (size_t at = 0; at < text.size(); at++) {
        at += simd::find(std::string_view(text.data() + at, text.size() - at), '\r');
        if (at + 1 < text.size() && text[at + 1] == '\n') return at;
    }
    return text.size();
}

} // namespace co
