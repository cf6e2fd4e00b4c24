#include <arpa/inet.h>
#include <array>
#include <co/co_ip.hpp>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <string>
#include <support/text.hpp>

namespace {

struct Row {
    char const *text;
    int64_t length;
    char const *why;
};

TEST(Ipv4Length, Table) {
    Row const rows[] = {
        {"192.0.2.1", 9, "whole"},
        {"0.0.0.0", 7, "smallest"},
        {"255.255.255.255", 15, "largest"},
        {"1.2.3.4.5", 7, "four octets"},
        {"1.2.3.256", 8, "as many digits as make an octet"},
        {"1.2.3.2555", 9, "as many digits as make an octet"},
        {"1.2.3.04", 7, "no leading zero: 0 is the octet"},
        {"1.2.3.00", 7, "no leading zero: 0 is the octet"},
        {"01.2.3.4", 0, "no leading zero"},
        {"1.02.3.4", 0, "no leading zero"},
        {"256.2.3.4", 0, "25 is not followed by a dot"},
        {"1.2.3", 0, "three octets"},
        {"1.2.3.", 0, "three octets and a dot"},
        {"1.2..4", 0, "an empty octet"},
        {".1.2.3.4", 0, "an empty octet"},
        {"", 0, "empty"},
        {"a", 0, "a letter"},
        {"1.2.3.4:5060", 7, "what follows is not of concern"},
        {"1.2.3.a", 0, "a letter"},
        {"\u0661.2.3.4", 0, "ASCII digits only"},
        {"-1.2.3.4", 0, "no sign"},
        {" 1.2.3.4", 0, "no blank"},
    };
    for (Row const &row : rows) EXPECT_EQ(co::ipv4Length(test::wide(row.text)), row.length) << row.text << row.why;
}

TEST(Ipv6Length, Table) {
    Row const rows[] = {
        {"::", 2, "unspecified"},
        {"::1", 3, "loopback"},
        {"1::", 3, "the gap at the end"},
        {"2001:db8::1", 11, "the gap inside"},
        {"2001:DB8::AbC", 13, "either letter case"},
        {"1:2:3:4:5:6:7:8", 15, "eight groups"},
        {"1:2:3:4:5:6:7:8:9", 15, "eight groups and no more"},
        {"1:2:3:4:5:6:7:8::", 15, "eight groups and no gap"},
        {"1:2:3:4:5:6:7::", 15, "the gap may be one group"},
        {"::2:3:4:5:6:7:8", 15, "the gap may be one group"},
        {"::1:2:3:4:5:6:7:8", 15, "the gap is one group at least"},
        {"1:2:3:4:5:6:7", 0, "seven groups"},
        {"1:2:3:4:5:6:7:", 0, "seven groups"},
        {"1:2:3:4:5:6:7:89abc", 18, "a group has four digits"},
        {"::12345", 6, "a group has four digits"},
        {"12345::", 0, "five digits, then no colon"},
        {"::1::2", 3, "one gap"},
        {"1:::2", 3, "one gap"},
        {":::", 2, "one gap"},
        {"::1:", 3, "a colon alone ends it"},
        {":1", 0, "a colon alone"},
        {":", 0, "a colon alone"},
        {"", 0, "empty"},
        {"1", 0, "one group"},
        {"::ffff:192.0.2.1", 16, "an IPv4 address at the end"},
        {"::192.0.2.1", 11, "an IPv4 address at the end"},
        {"::192.0.2.256", 12, "the longest IPv4 address"},
        {"::192.0.2", 5, "no IPv4 address: a group"},
        {"::1a.0.2.1", 4, "no IPv4 address: a group"},
        {"::1.2.3.4:5", 9, "nothing after an IPv4 address"},
        {"1:2:3:4:5:6:1.2.3.4", 19, "six groups and an IPv4 address"},
        {"1:2:3:4:5:6:7:1.2.3.4", 15, "seven groups and no room for an IPv4 address"},
        {"1:2:3:4:5:1.2.3.4", 0, "an IPv4 address too early"},
        {"1:2:3:4:5::1.2.3.4", 18, "five groups, a gap and an IPv4 address"},
        {"1:2:3:4:5:6::1.2.3.4", 14, "no room for gap and IPv4 address"},
        {"1.2.3.4", 0, "an IPv4 address alone"},
        {"1.2.3.4::", 0, "an IPv4 address at the beginning"},
        {"fe80::1%eth0", 7, "no zone"},
        {"[::1]", 0, "no brackets"},
        {"::1]", 3, "no brackets"},
        {"::g", 2, "no hex digit"},
    };
    for (Row const &row : rows) EXPECT_EQ(co::ipv6Length(test::wide(row.text)), row.length) << row.text << row.why;
}

// The C library's reading of a whole text.
bool isAddress(int family, std::string const &text, uint8_t *bytes) {
    return text.find('\0') == std::string::npos && inet_pton(family, text.c_str(), bytes) == 1;
}

struct Prefix {
    int64_t length = 0;
    std::array<uint8_t, 16> bytes{};
};

Prefix longest(int family, std::string const &text) {
    Prefix prefix;
    for (size_t length = 1; length <= text.size(); length++) {
        std::array<uint8_t, 16> bytes{};
        if (isAddress(family, text.substr(0, length), bytes.data())) prefix = {static_cast<int64_t>(length), bytes};
    }
    return prefix;
}

// The text in memory of its own, so that a look beyond its end is noticed.
void expectLongest(std::string const &text) {
    size_t const size = text.size();
    auto const copy = std::make_unique<coChar[]>(size);
    std::copy(text.begin(), text.end(), copy.get());
    Prefix four;
    Prefix six;
    four.length = co::ipv4Length({copy.get(), size}, four.bytes.data());
    six.length = co::ipv6Length({copy.get(), size}, six.bytes.data());
    for (auto const &[family, found] : {std::pair(AF_INET, four), std::pair(AF_INET6, six)}) {
        Prefix const wanted = longest(family, text);
        ASSERT_EQ(found.length, wanted.length) << family << " " << text;
        ASSERT_EQ(found.bytes, wanted.bytes) << family << " " << text;
    }
}

class IpText {
public:
    // A few of the characters that addresses are made of.
    std::string anything() {
        std::string text;
        for (unsigned count = below(20); count; count--) text += letters[below(letters.size())];
        return text;
    }

    // Tokens of addresses in any order, which are an address more often.
    std::string tokens() {
        std::string text;
        for (unsigned count = 1 + below(12); count; count--) {
            text += std::array{"1", "0", "ffff", "12a", "255", "256", "00", "abcde"}[below(8)];
            text += std::array{":", ":", ":", ":", "::", ".", ".", ""}[below(8)];
        }
        return text;
    }

    // An address with one change.
    std::string mutated() {
        std::array<uint8_t, 16> bytes{};
        for (uint8_t &byte : bytes) byte = below(2) ? 0 : static_cast<uint8_t>(below(256));
        char buffer[INET6_ADDRSTRLEN];
        std::string text = inet_ntop(below(3) ? AF_INET6 : AF_INET, bytes.data(), buffer, sizeof buffer);
        auto const place = static_cast<std::ptrdiff_t>(below(text.size()));
        char const letter = letters[below(letters.size())];
        switch (below(4)) {
        case 0:
            text.erase(text.begin() + place);
            break;
        case 1:
            text.insert(text.begin() + place, letter);
            break;
        case 2:
            text[static_cast<size_t>(place)] = letter;
            break;
        default:
            text += letter;
        }
        return text;
    }

private:
    unsigned below(size_t limit) { return static_cast<unsigned>(random() % limit); }

    std::string_view letters = "0123456789abfFg:::...% ]";
    std::mt19937 random{20240229};
};

TEST(IpLength, IsTheLongestAddress) {
    IpText text;
    for (int i = 0; i < 20'000; i++) {
        ASSERT_NO_FATAL_FAILURE(expectLongest(text.anything()));
        ASSERT_NO_FATAL_FAILURE(expectLongest(text.tokens()));
        ASSERT_NO_FATAL_FAILURE(expectLongest(text.mutated()));
    }
}

TEST(IpLength, LeavesTheBytesWithoutAnAddress) {
    uint8_t bytes[16];
    std::fill_n(bytes, 16, uint8_t{0xA5});
    EXPECT_EQ(co::ipv4Length(U"1.2.3", bytes), 0);
    EXPECT_EQ(co::ipv6Length(U"1:2:3", bytes), 0);
    for (uint8_t byte : bytes) EXPECT_EQ(byte, 0xA5);
}

} // namespace
