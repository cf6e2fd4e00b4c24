#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <co/co_assert.hpp>
#include <co/co_string.hpp>
#include <cstdio>
#include <gtest/gtest.h>
#include <nx/nx_address.h>
#include <random>
#include <string>
#include <support/text.hpp>

namespace {

co::Ref<nxAddress> address(std::string_view text) {
    std::u32string const chars = test::wide(text);
    return co::Ref<nxAddress>(nxAddressTryCreateFromChars(chars.data(), static_cast<int64_t>(chars.size())));
}

std::string shrunk(std::string_view text) {
    co::Ref<nxAddress> const parsed = address(text);
    return parsed ? test::taken(nxAddressToStringShrink(parsed.get())) : "(null)";
}

struct Row {
    char const *text;
    char const *shrunk;
    char const *why;
};

TEST(Address, Text) {
    Row const rows[] = {
        {"192.0.2.1", "192.0.2.1", "IPv4"},
        {"0.0.0.0", "0.0.0.0", "IPv4, smallest"},
        {"255.255.255.255", "255.255.255.255", "IPv4, largest"},
        {"::", "::", "unspecified"},
        {"::1", "::1", "loopback"},
        {"2001:DB8:0:0:0:0:0:1", "2001:db8::1", "lower case, zeros left out"},
        {"2001:0db8:0000:0000:0000:0000:0002:0001", "2001:db8::2:1", "no leading zeros (RFC 5952, 4.1)"},
        {"2001:db8::1:1:1:1:1", "2001:db8:0:1:1:1:1:1", "one zero group stays (RFC 5952, 4.2.2)"},
        {"2001:0:0:1:0:0:0:1", "2001:0:0:1::1", "the longest run (RFC 5952, 4.2.3)"},
        {"2001:db8:0:0:1:0:0:1", "2001:db8::1:0:0:1", "the first of two (RFC 5952, 4.2.3)"},
        {"1:2:3:4:5:6:0:0", "1:2:3:4:5:6::", "a run at the end"},
        {"0:0:3:4:5:6:7:8", "::3:4:5:6:7:8", "a run at the beginning"},
        {"0:2:3:4:5:6:7:0", "0:2:3:4:5:6:7:0", "no run"},
        {"1:2:3:4:5:6:7::", "1:2:3:4:5:6:7:0", "a gap of one group is written out"},
        {"::ffff:c000:201", "::ffff:192.0.2.1", "IPv4-mapped (RFC 5952, 5)"},
        {"::FFFF:192.0.2.1", "::ffff:192.0.2.1", "IPv4-mapped (RFC 5952, 5)"},
        {"::ffff:0:0", "::ffff:0.0.0.0", "IPv4-mapped, all zero"},
        {"::fffe:192.0.2.1", "::fffe:c000:201", "another prefix"},
        {"::192.0.2.1", "::c000:201", "IPv4-compatible addresses are no more (RFC 4291, 2.5.5.1)"},
        {"64:ff9b::192.0.2.33", "64:ff9b::c000:221", "translated"},
    };
    for (Row const &row : rows) EXPECT_EQ(shrunk(row.text), row.shrunk) << row.text << ": " << row.why;
}

TEST(Address, NoAddress) {
    for (char const *text : {"",
                             " ",
                             "a",
                             "1.2.3",
                             "1.2.3.4.5",
                             "1.2.3.256",
                             "01.2.3.4",
                             "1.2.3.04",
                             "1.2.3.4 ",
                             " 1.2.3.4",
                             "1.2.3.4:5060",
                             "0x1.2.3.4",
                             "1",
                             "127.1",
                             "[::1]",
                             "::1%eth0",
                             "fe80::1%1",
                             ":::",
                             ":1",
                             "1:",
                             "::1:",
                             "1::2::3",
                             "12345::",
                             "1:2:3:4:5:6:7",
                             "1:2:3:4:5:6:7:8:9",
                             "1:2:3:4:5:6:7:8::",
                             "::1:2:3:4:5:6:7:8",
                             "::1.2.3",
                             "::1.2.3.256",
                             "::01.2.3.4",
                             "::1.2.3.4:5",
                             "1.2.3.4::",
                             "1:2:3:4:5:6:7:1.2.3.4",
                             "::1/64",
                             "g::",
                             "\u0661.2.3.4",
                             "\uFF11::"})
        EXPECT_FALSE(address(text)) << text;
    EXPECT_FALSE(co::Ref<nxAddress>(nxAddressTryCreateFromChars(nullptr, 0)));
    EXPECT_FALSE(co::Ref<nxAddress>(nxAddressTryCreateFromChars(U"::1\0", 4))) << "a null character";
}

TEST(Address, Order) {
    char const *const ascending[] = {"0.0.0.0", "1.2.3.4", "1.2.3.5", "127.0.0.1", "128.0.0.1", "255.255.255.255",
                                     "::",      "::1",     "::1:0",   "7f00::",    "8000::",    "ffff::"};
    for (size_t i = 0; i < std::size(ascending); i++)
        for (size_t k = 0; k < std::size(ascending); k++) {
            co::Ref<nxAddress> const a = address(ascending[i]);
            co::Ref<nxAddress> const b = address(ascending[k]);
            EXPECT_EQ(nxAddressCompare(a.get(), b.get()), i < k ? -1 : i > k) << ascending[i] << " " << ascending[k];
            EXPECT_EQ(nxAddressEquals(a.get(), b.get()), i == k) << ascending[i] << " " << ascending[k];
        }
    EXPECT_TRUE(nxAddressEquals(address("::A").get(), address("0:0::0:000a").get())) << "the text is not kept";
}

TEST(Address, Family) {
    co::Ref<nxAddress> const one = address("2001:DB8::1");
    EXPECT_EQ(nxAddressSort(), coObjSort(nxAddressObj(one.get())));
    EXPECT_EQ(nxAddressFrom(nxAddressObj(one.get())), one.get());
    EXPECT_EQ(nxAddressFrom(nullptr), nullptr);
    nxAddressRetain(one.get());
    EXPECT_EQ(test::count(nxAddressObj(one.get())), 2);
    nxAddressRelease(one.get());
    EXPECT_EQ(test::count(nxAddressObj(one.get())), 1);
    EXPECT_EQ(test::taken(nxAddressToString(one.get())), "2001:db8::1");
    EXPECT_EQ(test::taken(coObjToString(nxAddressObj(one.get()))), "2001:db8::1");
}

TEST(AddressDeathTest, Preconditions) {
    char const *const unit = "source/nx/nx_address";
    EXPECT_ABORT(nxAddressTryCreateFromChars(U"", -1), unit, "count >= 0");
    EXPECT_ABORT(nxAddressTryCreateFromChars(nullptr, 1), unit, "chars || count == 0");
    EXPECT_ABORT(nxAddressToStringShrink(nullptr), unit, "address");
    EXPECT_ABORT(nxAddressRetain(nullptr), unit, "obj", "stdfunc retain");
    EXPECT_ABORT(nxAddressRelease(nullptr), unit, "obj", "stdfunc release");
    EXPECT_ABORT(nxAddressToString(nullptr), unit, "obj", "stdfunc tostring");
    EXPECT_ABORT(nxAddressFrom(coStringObj(test::str("::1"))), unit, "!obj || coObjSort(obj)==&nx___sort_NX_ADDRESS",
                 "stdfunc from");
    EXPECT_ABORT(nxAddressCompare(nullptr, address("::").get()), unit, "objA", "stdfunc compare a");
    EXPECT_ABORT(nxAddressCompare(address("::").get(), nullptr), unit, "objB", "stdfunc compare b");
}

// The C library as the judge. It reads exactly the same texts; it writes IPv4-compatible addresses, which RFC 4291
// deprecates, in mixed notation too.

using Bytes = std::array<uint8_t, 16>;

std::string written(int family, Bytes const &bytes) {
    char text[INET6_ADDRSTRLEN];
    return inet_ntop(family, bytes.data(), text, sizeof text);
}

bool isIpv4Compatible(Bytes const &bytes) {
    return std::all_of(bytes.begin(), bytes.begin() + 12, [](uint8_t byte) { return byte == 0; }) &&
           (bytes[12] || bytes[13]);
}

std::string expected(std::string const &text) {
    Bytes bytes{};
    if (inet_pton(AF_INET, text.c_str(), bytes.data()) == 1) return written(AF_INET, bytes);
    if (inet_pton(AF_INET6, text.c_str(), bytes.data()) != 1) return "(null)";
    if (!isIpv4Compatible(bytes)) return written(AF_INET6, bytes);
    char groups[16];
    std::snprintf(groups, sizeof groups, "::%x:%x", unsigned{bytes[12]} << 8 | bytes[13],
                  unsigned{bytes[14]} << 8 | bytes[15]);
    return groups;
}

class Random {
public:
    Bytes bytes() {
        Bytes result{};
        for (size_t i = 0; i < 16; i += 2) {
            if (below(2)) continue;
            result[i] = below(2) ? 0 : static_cast<uint8_t>(below(256));
            result[i + 1] = below(4) ? static_cast<uint8_t>(below(256)) : 0;
        }
        if (below(8) == 0) std::fill_n(result.begin(), 12, uint8_t{0});
        if (below(8) == 0) std::fill_n(result.begin(), 10, uint8_t{0}), result[10] = result[11] = 0xFF;
        return result;
    }

    std::string mutated() {
        static constexpr std::string_view letters = "0123456789abfFg:::...% ]";
        std::string text = written(below(3) ? AF_INET6 : AF_INET, bytes());
        for (size_t changes = below(3); changes; changes--) {
            size_t const place = below(text.size());
            switch (below(3)) {
            case 0:
                text.erase(place, 1);
                break;
            case 1:
                text.insert(place, 1, letters[below(letters.size())]);
                break;
            default:
                text += letters[below(letters.size())];
            }
            if (text.empty()) text = ":";
        }
        return text;
    }

private:
    size_t below(size_t limit) { return random() % limit; }

    std::mt19937 random{5952};
};

TEST(Address, ReadsAndWritesLikeTheCLibrary) {
    Random random;
    int addresses = 0;
    for (int i = 0; i < 50'000; i++) {
        std::string const text = random.mutated();
        std::string const shrink = shrunk(text);
        ASSERT_EQ(shrink, expected(text)) << text;
        if (shrink == "(null)") continue;
        addresses++;
        ASSERT_EQ(shrunk(shrink), shrink) << text;
    }
    EXPECT_GT(addresses, 10'000);
}

} // namespace
