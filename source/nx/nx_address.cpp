// Internet addresses. Contract: nx_address.h.

#define CO_UNIT "source/nx/nx_address"

#include <algorithm>
#include <co/co_assert.hpp>
#include <co/co_family.hpp>
#include <co/co_format.hpp>
#include <co/co_ip.hpp>
#include <cstring>
#include <nx/nx_address.h>
#include <nx/nx_module.hpp>

enum class Version : uint8_t { ipv4, ipv6 };

struct nxAddress : coObj {
    Version version;
    uint8_t bytes[16]; // in network order; of an IPv4 address the first four, the others zero

    int group(int i) const { return bytes[2 * i] << 8 | bytes[2 * i + 1]; }
};

static int compareAddresses(coObj const *objA, coObj const *objB) {
    auto const *a = static_cast<nxAddress const *>(objA);
    auto const *b = static_cast<nxAddress const *>(objB);
    if (a->version != b->version) return a->version < b->version ? -1 : 1;
    int const order = std::memcmp(a->bytes, b->bytes, sizeof a->bytes);
    return (order > 0) - (order < 0);
}

static coString *stringOfAddress(coObj const *obj) {
    return nxAddressToStringShrink(static_cast<nxAddress const *>(obj));
}

extern "C" struct coSort const nx___sort_NX_ADDRESS;
constinit coSort const nx___sort_NX_ADDRESS{&co___sort_CO_SORT, &nx___module,    "NX_ADDRESS",     nullptr,
                                            compareAddresses,   stringOfAddress, sizeof(nxAddress)};

CO_DEFINE_FAMILY(nxAddress, nx___sort_NX_ADDRESS)

struct nxAddress *nxAddressTryCreateFromChars(coChar const *chars, int64_t count) {
    CO_ASSERT_TEXT(chars, count);
    co::Chars const text = co::chars(chars, count);
    uint8_t bytes[16] = {};
    bool const isIpv4 = count > 0 && co::ipv4Length(text, bytes) == count;
    if (!isIpv4 && (count == 0 || co::ipv6Length(text, bytes) != count)) return nullptr;
    auto *address = static_cast<nxAddress *>(co::allocateObject(sizeof(nxAddress), &nx___sort_NX_ADDRESS));
    address->version = isIpv4 ? Version::ipv4 : Version::ipv6;
    std::copy_n(bytes, sizeof bytes, address->bytes);
    return address;
}

static void appendIpv4(coString **text, uint8_t const *bytes) {
    for (int i = 0; i < 4; i++) {
        if (i > 0) co::append(text, U".");
        co::appendInt(text, bytes[i], 10, 0, false, co::Case::lower);
    }
}

// A run of groups: from `first` to before `end`.
struct Run {
    int first;
    int end;

    int length() const { return end - first; }
};

// The run that "::" stands for (RFC 5952, 4.2): the longest of zeros, the first of those; two groups at least.
static Run zeros(nxAddress const *address, int groups) {
    Run longest{groups, groups};
    for (int i = 0; i < groups; i++) {
        Run run{i, i};
        while (run.end < groups && address->group(run.end) == 0) run.end++;
        if (run.length() >= 2 && run.length() > longest.length()) longest = run;
        i = run.end;
    }
    return longest;
}

static void appendGroups(coString **text, nxAddress const *address, Run run) {
    for (int i = run.first; i < run.end; i++) {
        if (i > run.first) co::append(text, U":");
        co::appendInt(text, address->group(i), 16, 0, false, co::Case::lower);
    }
}

static bool isIpv4Mapped(nxAddress const *address) {
    constexpr uint8_t prefix[12] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF}; // RFC 4291, 2.5.5.2
    return std::equal(prefix, prefix + 12, address->bytes);
}

struct coString *nxAddressToStringShrink(struct nxAddress const *address) {
    CO_ASSERT_GIVEN(address);
    coString *text = co::makeString(40);
    if (address->version == Version::ipv4) {
        appendIpv4(&text, address->bytes);
    } else if (isIpv4Mapped(address)) {
        co::append(&text, U"::ffff:");
        appendIpv4(&text, address->bytes + 12);
    } else {
        Run const gap = zeros(address, 8);
        appendGroups(&text, address, {0, gap.first});
        if (gap.length() > 0) co::append(&text, U"::");
        appendGroups(&text, address, {gap.end, 8});
    }
    return text;
}
