// IP addresses as text. Contract: co_ip.hpp.

#include <algorithm>
#include <co/co_ip.hpp>

namespace {

struct Number {
    size_t digits = 0;
    uint16_t value = 0;
};

// dec-octet (RFC 3986, 3.2.2): as many digits as make one.
Number octet(co::Chars text) {
    Number number;
    unsigned value = 0;
    for (coChar ch : text) {
        if (ch < U'0' || ch > U'9') break;
        value = value * 10 + (ch - U'0');
        if (value > 255) break;
        number = {number.digits + 1, static_cast<uint16_t>(value)};
        if (value == 0) break;
    }
    return number;
}

unsigned hexDigit(coChar ch) {
    if (ch >= U'0' && ch <= U'9') return ch - U'0';
    if (ch >= U'a' && ch <= U'f') return ch - U'a' + 10;
    if (ch >= U'A' && ch <= U'F') return ch - U'A' + 10;
    return 16;
}

// h16 = 1*4HEXDIG
Number group(co::Chars text) {
    Number number;
    for (coChar ch : text.substr(0, 4)) {
        unsigned const digit = hexDigit(ch);
        if (digit == 16) break;
        number = {number.digits + 1, static_cast<uint16_t>(unsigned{number.value} << 4 | digit)};
    }
    return number;
}

constexpr int allGroups = 8;

// The 16-bit groups as they are read, and where "::" stands among them. It stands for one group at least.
struct Groups {
    uint16_t values[allGroups] = {};
    int count = 0;
    int gap = -1;

    void add(unsigned value) { values[count++] = static_cast<uint16_t>(value); }
    bool hasGap() const { return gap >= 0; }
    bool isComplete() const { return hasGap() || count == allGroups; }
    bool isFull() const { return count == (hasGap() ? allGroups - 1 : allGroups); }
    bool mayEndWithIpv4() const { return hasGap() ? count <= allGroups - 3 : count == allGroups - 2; }

    void write(uint8_t *bytes) const {
        std::fill_n(bytes, 16, uint8_t{0});
        for (int i = 0; i < count; i++) {
            int const place = hasGap() && i >= gap ? i + allGroups - count : i;
            bytes[2 * place] = static_cast<uint8_t>(values[i] >> 8);
            bytes[2 * place + 1] = static_cast<uint8_t>(values[i] & 0xFF);
        }
    }
};

// Reads groups until no longer beginning can be an address; the length of the longest that is one. Whatever completes
// an address is counted at once, so that what was read when it ends is that address.
size_t readGroups(co::Chars text, Groups &groups) {
    size_t complete = 0;
    size_t i = 0;
    if (text.starts_with(U"::")) {
        groups.gap = 0;
        complete = i = 2;
    }
    while (!groups.isFull()) {
        co::Chars const rest = text.substr(i);
        uint8_t bytes[4];
        if (groups.mayEndWithIpv4()) {
            if (int64_t const length = co::ipv4Length(rest, bytes)) {
                groups.add(static_cast<unsigned>(bytes[0] << 8 | bytes[1]));
                groups.add(static_cast<unsigned>(bytes[2] << 8 | bytes[3]));
                return i + static_cast<size_t>(length);
            }
        }
        Number const number = group(rest);
        if (number.digits == 0) break;
        groups.add(number.value);
        i += number.digits;
        if (groups.isComplete()) complete = i;

        co::Chars const next = text.substr(i, 2);
        if (!groups.hasGap() && groups.count < allGroups && next == U"::") {
            groups.gap = groups.count;
            complete = i += 2;
        } else if (next.starts_with(U':')) {
            i++;
        } else {
            break;
        }
    }
    return complete;
}

} // namespace

int64_t co::ipv4Length(Chars text, uint8_t *fourBytes) {
    uint8_t bytes[4];
    size_t i = 0;
    for (uint8_t &byte : bytes) {
        if (&byte != bytes && !text.substr(i++).starts_with(U'.')) return 0;
        Number const number = octet(text.substr(i));
        if (number.digits == 0) return 0;
        byte = static_cast<uint8_t>(number.value);
        i += number.digits;
    }
    if (fourBytes) std::copy_n(bytes, 4, fourBytes);
    return static_cast<int64_t>(i);
}

int64_t co::ipv6Length(Chars text, uint8_t *sixteenBytes) {
    Groups groups;
    size_t const length = readGroups(text, groups);
    if (length && sixteenBytes) groups.write(sixteenBytes);
    return static_cast<int64_t>(length);
}
