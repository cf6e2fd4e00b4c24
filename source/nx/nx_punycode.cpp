// Punycode. Contract: nx_punycode.hpp. Names and steps are those of RFC 3492, 6.

#include <nx/nx_punycode.hpp>

namespace {

// RFC 3492, 5.
constexpr uint32_t base = 36;
constexpr uint32_t tmin = 1;
constexpr uint32_t tmax = 26;
constexpr uint32_t skew = 38;
constexpr uint32_t damp = 700;
constexpr uint32_t initialBias = 72;
constexpr coChar initialN = 0x80;
constexpr coChar delimiter = U'-';

constexpr coChar lastCodePoint = 0x10FFFF;
// No label has a delta beyond this: each code point passes each place of the label once at most.
constexpr uint64_t largestDelta = (uint64_t{lastCodePoint} + 1) * 64;

uint32_t adapt(uint64_t delta, uint64_t points, bool first) {
    delta = first ? delta / damp : delta / 2;
    delta += delta / points;
    uint32_t k = 0;
    for (; delta > (base - tmin) * tmax / 2; k += base) delta /= base - tmin;
    return k + static_cast<uint32_t>((base - tmin + 1) * delta / (delta + skew));
}

uint32_t threshold(uint32_t k, uint32_t bias) { return std::clamp(k, bias + tmin, bias + tmax) - bias; }

coChar digitChar(uint64_t digit) { return static_cast<coChar>(digit < 26 ? U'a' + digit : U'0' + digit - 26); }

// The value of a digit, or `base`.
uint32_t digitValue(coChar ch) {
    if (ch >= U'a' && ch <= U'z') return ch - U'a';
    if (ch >= U'0' && ch <= U'9') return ch - U'0' + 26;
    return base;
}

// A generalised variable-length integer (RFC 3492, 3.3).
bool appendInteger(uint64_t value, uint32_t bias, nx::Label &encoded) {
    for (uint32_t k = base;; k += base) {
        uint32_t const t = threshold(k, bias);
        if (value < t) return encoded.append(digitChar(value));
        if (!encoded.append(digitChar(t + (value - t) % (base - t)))) return false;
        value = (value - t) / (base - t);
    }
}

// The same, taken from the beginning of the text.
bool takeInteger(co::Chars &text, uint32_t bias, uint64_t &value) {
    value = 0;
    uint64_t weight = 1;
    for (uint32_t k = base;; k += base) {
        if (text.empty()) return false;
        uint32_t const digit = digitValue(text.front());
        if (digit == base) return false;
        text.remove_prefix(1);
        value += digit * weight;
        if (value > largestDelta) return false;
        uint32_t const t = threshold(k, bias);
        if (digit < t) return true;
        weight *= base - t;
        if (weight > largestDelta) return false;
    }
}

} // namespace

bool nx::encodePunycode(co::Chars text, Label &encoded) {
    size_t basic = 0;
    for (coChar ch : text) {
        if (ch >= initialN) continue;
        if (!encoded.append(ch)) return false;
        basic++;
    }
    if (basic > 0 && !encoded.append(delimiter)) return false;

    coChar n = initialN;
    uint64_t delta = 0;
    uint32_t bias = initialBias;
    for (size_t handled = basic; handled < text.size(); delta++, n++) {
        coChar next = lastCodePoint;
        for (coChar ch : text) next = ch >= n ? std::min(next, ch) : next;
        delta += uint64_t{next - n} * (handled + 1);
        n = next;
        for (coChar ch : text) {
            if (ch > lastCodePoint) return false;
            delta += ch < n;
            if (ch != n) continue;
            if (!appendInteger(delta, bias, encoded)) return false;
            bias = adapt(delta, handled + 1, handled == basic);
            delta = 0;
            handled++;
        }
    }
    return true;
}

bool nx::decodePunycode(co::Chars text, Label &decoded) {
    size_t const at = text.rfind(delimiter);
    if (at != co::Chars::npos && at > 0) {
        if (!decoded.append(text.substr(0, at))) return false;
        text.remove_prefix(at + 1);
    }
    uint64_t n = initialN;
    uint64_t i = 0;
    uint32_t bias = initialBias;
    for (bool first = true; !text.empty(); first = false) {
        uint64_t delta;
        if (!takeInteger(text, bias, delta)) return false;
        uint64_t const points = decoded.size() + 1;
        bias = adapt(delta, points, first);
        i += delta;
        n += i / points;
        i %= points;
        if (n > lastCodePoint || !decoded.insert(i, static_cast<coChar>(n))) return false;
        i++;
    }
    return true;
}
