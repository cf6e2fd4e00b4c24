// One value of a Via header field. Grammar and contract: quill_via.h.

#define CO_UNIT "source/quill/quill_via"

#include <algorithm>
#include <loc/loc_skip.h>
#include <nx/nx_address.h>
#include <nx/nx_dns.hpp>
#include <quill/quill_branch.h>
#include <quill/quill_family.hpp>
#include <quill/quill_host.h>
#include <quill/quill_lifted.hpp>
#include <quill/quill_port.h>
#include <quill/quill_readers.hpp>
#include <quill/quill_transport.h>
#include <quill/quill_transport.hpp>
#include <quill/quill_ttl.h>
#include <quill/quill_version.h>
#include <quill/quill_via.h>

struct quillVia : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_VIA;

    co::Slot<quillVersion> version; // never null
    co::TextSlot transport;         // never null, lower case
    co::TextSlot host;              // never null
    co::Int port;
    co::Int ttl;
    co::TextSlot maddr;
    co::Slot<nxAddress> received;
    co::Flag rportEmpty; // never together with a number
    co::Int rportNumeric;
    co::TextSlot branch;
    quill::ParamsSlot genericParams;

    void setRport(bool empty, int64_t numeric) {
        rportEmpty.set(empty);
        rportNumeric.set(numeric);
    }

    static constexpr auto members() {
        return std::tuple(&quillVia::version, &quillVia::transport, &quillVia::host, &quillVia::port, &quillVia::ttl,
                          &quillVia::maddr, &quillVia::received, &quillVia::rportEmpty, &quillVia::rportNumeric,
                          &quillVia::branch, &quillVia::genericParams);
    }
    // Without rport: it says how to answer, not who sent.
    static constexpr auto comparison() {
        return std::tuple(&quillVia::version, &quillVia::transport, &quillVia::host, &quillVia::port, &quillVia::ttl,
                          &quillVia::maddr, &quillVia::received, &quillVia::branch, &quillVia::genericParams);
    }
};

QUILL_DEFINE_VALUE(Via, VIA, via)
CO_DEFINE_OBJECT_MEMBER(quillVia, via, Version, version, quillVersion, version)
CO_DEFINE_STRING_MEMBER(quillVia, via, Transport, transport, quillTransportOk, transport, quillTransportNormalize)
CO_DEFINE_STRING_MEMBER(quillVia, via, Host, host, quillHostOk, host, co::asGiven)
CO_DEFINE_OPTIONAL_INT_MEMBER(quillVia, via, Port, port, quillPortOk, port)
CO_DEFINE_OPTIONAL_INT_MEMBER(quillVia, via, Ttl, ttl, quillTtlOk, ttl)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillVia, via, Maddr, maddr, quillHostOk, host, co::asGiven)
CO_DEFINE_OPTIONAL_OBJECT_MEMBER(quillVia, via, Received, received, nxAddress, received)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillVia, via, Branch, branch, quillBranchOk, branch, co::asGiven)
CO_DEFINE_OBJECT_MEMBER(quillVia, via, GenericParams, genericParams, quillGenericParams, params)

// rport, which is one parameter in two members.

int64_t quillViaRportNumeric(struct quillVia const *via) {
    CO_ASSERT_GIVEN(via);
    return via->rportNumeric.get();
}

bool quillViaHasRport(struct quillVia const *via) {
    CO_ASSERT_GIVEN(via);
    return via->rportNumeric || via->rportEmpty.get();
}

bool quillViaHasRportNumeric(struct quillVia const *via) {
    CO_ASSERT_GIVEN(via);
    return static_cast<bool>(via->rportNumeric);
}

bool quillViaHasRportEmpty(struct quillVia const *via) {
    CO_ASSERT_GIVEN(via);
    return via->rportEmpty.get();
}

void quillViaSetRportNumeric(struct quillVia **via, int64_t rport) {
    CO_ASSERT_REFERENCE(via);
    CO_ASSERT_OK(quillPortOk, rport);
    co::writable(via)->setRport(false, rport);
}

void quillViaSetRportEmpty(struct quillVia **via) {
    CO_ASSERT_REFERENCE(via);
    co::writable(via)->setRport(true, -1);
}

void quillViaDelRport(struct quillVia **via) {
    CO_ASSERT_REFERENCE(via);
    co::writable(via)->setRport(false, -1);
}

// Texts that live from start-up to shut-down: the names of the lifted parameters, and the parts of a dummy.

enum { ttl, maddr, received, rport, branch, udp, localhost };

static constexpr co::Chars texts[] = {U"ttl", U"maddr", U"received", U"rport", U"branch", U"udp", U"localhost"};

static constinit struct coString *statics[std::size(texts)] = {};

void quill___ViaStartup(void) {
    for (size_t i = 0; i < std::size(statics); i++) quill::start(&statics[i], co::makeString(texts[i]));
    quill::startTransports();
}

void quill___ViaShutdown(void) {
    for (struct coString *&slot : statics) quill::stop(&slot);
    quill::stopTransports();
}

// Creation.

static quillVia *makeVia(quillVersion *version, coString const *transport, coString *host) {
    auto *via = co::make<quillVia>();
    via->version.set(version);
    via->transport.adopt(quillTransportNormalize(transport));
    via->host.set(host);
    return via;
}

struct quillVia *quillViaCreate(struct quillVersion *version, struct coString *transport, struct coString *host) {
    CO_ASSERT_GIVEN(version);
    CO_ASSERT_OK(quillTransportOk, transport);
    CO_ASSERT_OK(quillHostOk, host);
    return makeVia(version, transport, host);
}

struct quillVia *quillViaCreateWithPort(struct quillVersion *version, struct coString *transport, struct coString *host,
                                        int64_t port) {
    CO_ASSERT_GIVEN(version);
    CO_ASSERT_OK(quillTransportOk, transport);
    CO_ASSERT_OK(quillHostOk, host);
    CO_ASSERT_OK(quillPortOk, port);
    quillVia *via = makeVia(version, transport, host);
    via->port.set(port);
    return via;
}

struct quillVia *quillViaCreateDummy(struct quillVersion *version) {
    return quillViaCreate(version, statics[udp], statics[localhost]);
}

// The codec.

namespace {

// "received" EQUAL ( IPv6address / IPv4address ): an address without brackets, never a name.
struct ReceivedParam {
    static constexpr co::Chars name = texts[received];

    int64_t take(quillVia *via, co::Chars text) const {
        int64_t const at = quill::takeNameEqual(text, name);
        if (at == 0) return 0;
        co::Chars const rest = quill::from(text, at);
        int64_t const ipV6 = quill::measure(loc___SkipIpV6Address, rest);
        int64_t const count = ipV6 ? ipV6 : quill::measure(loc___SkipIpV4Address, rest);
        if (count == 0) return 0;
        nxAddress *ina = nxAddressTryCreateFromChars(rest.data(), count);
        CO_ASSERT_GIVEN(ina); // what the scanners take is an address
        via->received.adopt(ina);
        return at + count;
    }
    bool isSet(quillVia const &via) const { return static_cast<bool>(via.received); }
    void encode(coString **text, quillVia const &via) const {
        quill::appendTakenParam(text, name, nxAddressToStringShrink(via.received.get()));
    }
};

// "rport" alone. With a value it is read as a generic parameter, never as a number.
struct RportParam {
    static constexpr co::Chars name = texts[rport];

    int64_t take(quillVia *via, co::Chars text) const {
        int64_t const count = quill::takeName(text, name);
        if (count == 0 || quill::measure(quill___SkipEqual, quill::from(text, count)) > 0) return 0;
        via->setRport(true, -1);
        return count;
    }
    bool isSet(quillVia const &via) const { return via.rportEmpty.get() || via.rportNumeric; }
    void encode(coString **text, quillVia const &via) const {
        if (via.rportEmpty.get()) return quill::appendParam(text, name);
        quill::appendTakenParam(text, name, quill___PortEncode(via.rportNumeric.get()));
    }
};

} // namespace

static constexpr std::tuple lifted{
    quill::IntParam{texts[ttl], quill___SkipTtl, quill___TtlTryDecode, quill___TtlEncode, &quillVia::ttl},
    quill::CodedParam{texts[maddr], quill___SkipHost, quill___HostTryDecode, quill___HostEncode, &quillVia::maddr},
    ReceivedParam{},
    RportParam{},
    quill::TextParam{texts[branch], quill___SkipBranch, &quillVia::branch},
};

// With the slash behind it.
static void appendVersion(coString **text, quillVersion const *version) {
    if (quillVersionIsSip20(version)) return co::append(text, U"SIP/2.0/");
    co::Ref<coString> const other(quill___VersionEncode(version));
    co::append(text, {other->view(), U"/"});
}

// The transport is a token: US-ASCII.
static void appendTransport(coString **text, co::Chars transport) {
    std::transform(transport.begin(), transport.end(), co::appendSpace(text, co::length(transport)), co::asciiUpper);
    (*text)->length += co::length(transport);
}

// A host that isn't written as it is has to be a string first.
static void appendHost(coString **text, co::TextSlot const &host) {
    if (quill::isWhole(quill___SkipHost, host.view())) return co::append(text, host.view());
    co::Ref<coString> const kept(host.retained());
    co::Ref<coString> const written(quill___HostEncode(kept.get()));
    co::append(text, written->view());
}

// With the blank before it.
static void appendSentBy(coString **text, quillVia const *via) {
    co::append(text, U" ");
    appendHost(text, via->host);
    if (!via->port) return;
    co::append(text, U":");
    co::appendInt(text, via->port.get(), 10, 0, false, co::Case::lower);
}

// With room for all but parameters that few values have, so that it seldom grows; and little more, since a list keeps it.
static coString *makeTextFor(quillVia const *via) {
    int64_t room = std::ssize(U"SIP/2.0/ ") + std::ssize(U";branch=");
    for (co::TextSlot const *part : {&via->transport, &via->host, &via->branch}) room += co::length(part->view());
    if (via->port) room += std::ssize(U":65535");
    if (via->received) room += std::ssize(U";received=255.255.255.255");
    if (via->rportEmpty.get() || via->rportNumeric) room += std::ssize(U";rport=65535");
    return co::makeString(room);
}

struct coString *quill___ViaEncode(struct quillVia const *via) {
    CO_ASSERT_GIVEN(via);
    coString *text = makeTextFor(via);
    appendVersion(&text, via->version.get());
    appendTransport(&text, via->transport.view());
    appendSentBy(&text, via);
    quill::appendParams(&text, *via, lifted);
    return text;
}

namespace {

// The name of a host that is its own Unicode form, as most are, is kept as it stands.
bool takeHost(quillVia *via, quill::Reader *reader) {
    bool isOrdinary = false;
    co::Chars const host = reader->take([&](co::Chars text) { return quill::hostLength(text, &isOrdinary); });
    if (reader->failed) return false;
    if (isOrdinary || nx::isPlain(host))
        co::keep(via, &quillVia::host, host);
    else
        via->host.adopt(quill___HostTryDecode(host.data(), co::length(host)));
    return static_cast<bool>(via->host);
}

// The line stays as it is: a list may keep no other text of it.
void keepTransport(quillVia *via, co::Chars transport) {
    if (coString *known = quill::knownTransport(transport)) return via->transport.set(known);
    via->transport.adopt(quill::makeMapped<co::asciiLower>(transport));
}

// [ COLON port ]
bool takePort(quillVia *via, quill::Reader *reader) {
    int64_t const colon = quill::rules::colon(reader->rest);
    if (colon < 0) return true;
    reader->rest = quill::from(reader->rest, colon);
    int64_t port;
    int64_t const digits = quill::takeDecimal(reader->rest, quillPortOk, &port);
    reader->rest = quill::from(reader->rest, digits);
    via->port.set(port);
    return digits > 0 && via->port;
}

} // namespace

// protocol-name SLASH protocol-version SLASH; nearly always the same
static quillVersion *takeVersion(quill::Reader *reader) {
    constexpr co::Chars usual = U"SIP/2.0/";
    if (co::equal(reader->rest.substr(0, usual.size()), usual)) {
        reader->rest.remove_prefix(usual.size() - 1);
        reader->take(quill::rules::slash);
        return quillVersionCreateSip20();
    }
    co::Chars const version = reader->take(quill::rules::version);
    reader->take(quill::rules::slash);
    return reader->failed ? nullptr : quill___VersionTryDecode(version.data(), co::length(version));
}

// sent-protocol LWS sent-by *( SEMI via-params ); sent-by = host [ COLON port ]
static bool readVia(quillVia *via, co::Chars *line) {
    quill::Reader reader{*line};
    via->version.adopt(takeVersion(&reader));
    co::Chars const transport = reader.take(quill::rules::token);
    reader.take(quill::rules::lws);
    if (reader.failed || !via->version) return false;
    if (!takeHost(via, &reader) || !takePort(via, &reader)) return false;
    keepTransport(via, transport);
    *line = quill::readParams(via, reader.rest, lifted);
    return true;
}

constinit quill::ValueKind const quill::viaKind = valueKind<quillVia, readVia>();

struct quillVia *quill___ViaTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    return quill::tryReadWhole<quillVia>(co::chars(chs, length), readVia);
}
