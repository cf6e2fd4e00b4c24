#include "values.hpp"

#include <nx/nx_address.h>

using namespace test;

namespace {

using Via = struct quillVia;

constexpr auto &unit = ValueFunctions<Via>::unit;
constexpr char whole[] = "SIP/2.0/UDP h:5060;ttl=1;maddr=m;received=192.0.2.1;rport;branch=z9hG4bK1;a=b";

co::Ref<nxAddress> address(std::string_view utf8) {
    std::u32string const chars = wide(utf8);
    return own(nxAddressTryCreateFromChars(chars.data(), static_cast<int64_t>(chars.size())));
}

std::string received(Via const *via) {
    auto const address = own(quillViaReceived(via));
    return address ? taken(nxAddressToStringShrink(address.get())) : "-";
}

TEST(QuillVia, CreatesWithoutParameters) {
    auto const via = own(quillViaCreate(sip20().get(), str("Tls-SCTP"), str("EXAMPLE.com")));
    EXPECT_EQ(own(quillViaVersion(via.get())).get(), sip20().get());
    EXPECT_EQ(taken(quillViaTransport(via.get())), "tls-sctp") << "lower case";
    EXPECT_EQ(taken(quillViaHost(via.get())), "EXAMPLE.com") << "as given";
    EXPECT_EQ(quillViaPort(via.get()), -1);
    EXPECT_EQ(quillViaTtl(via.get()), -1);
    EXPECT_EQ(quillViaMaddr(via.get()), nullptr);
    EXPECT_EQ(quillViaReceived(via.get()), nullptr);
    EXPECT_EQ(quillViaRportNumeric(via.get()), -1);
    EXPECT_EQ(quillViaBranch(via.get()), nullptr);
    EXPECT_EQ(text(quillViaGenericParams(via.get())), "");
    for (auto has : {quillViaHasPort, quillViaHasTtl, quillViaHasMaddr, quillViaHasReceived, quillViaHasRport,
                     quillViaHasRportEmpty, quillViaHasRportNumeric, quillViaHasBranch})
        EXPECT_FALSE(has(via.get()));
    EXPECT_EQ(text(via), "SIP/2.0/TLS-SCTP EXAMPLE.com");
}

TEST(QuillVia, CreatesWithPort) {
    auto const via = own(quillViaCreateWithPort(sip20().get(), str("tcp"), str("[2001:db8::1]"), 0));
    EXPECT_EQ(quillViaPort(via.get()), 0);
    EXPECT_TRUE(quillViaHasPort(via.get()));
    EXPECT_EQ(text(via), "SIP/2.0/TCP [2001:db8::1]:0");
}

TEST(QuillVia, CreatesADummy) {
    auto const via = own(quillViaCreateDummy(sip20().get()));
    EXPECT_EQ(text(via), "SIP/2.0/UDP localhost");
    EXPECT_EQ(taken(quillViaTransport(via.get())), "udp");
    auto const other = own(quillViaCreateDummy(sip20().get()));
    EXPECT_EQ(own(quillViaHost(via.get())).get(), own(quillViaHost(other.get())).get()) << "one string for all";
}

TEST(QuillVia, StartsAgain) {
    quill___ViaShutdown();
    quill___ViaStartup();
    EXPECT_EQ(text(own(quillViaCreateDummy(sip20().get()))), "SIP/2.0/UDP localhost");
}

TEST(QuillVia, DecodesAndEncodes) {
    expectCoded<Via>({
        {whole, whole, "everything, in the order in which it is written"},
        {"SIP/2.0/Udp 192.0.2.1:5060;branch=z9hG4bK1", "SIP/2.0/UDP 192.0.2.1:5060;branch=z9hG4bK1", ""},
        {"sip/2.0/udp h", "SIP/2.0/UDP h", "letter case"},
        {"SIP / 2.0 / UDP\t \th", "SIP/2.0/UDP h", "blanks"},
        {"SIP/2.0/UDP h : 5060 ; a = b ; c", "SIP/2.0/UDP h:5060;a=b;c", "blanks"},
        {"X/y.Z/a!b h", "X/y.z/A!B h", "any protocol and transport"},
        {"SIP/2.0/UDP h:00005", "SIP/2.0/UDP h:5", "leading zeros"},
        {"SIP/2.0/UDP h:0000000000000000000000005060", "SIP/2.0/UDP h:5060", "more of them than a number has digits"},
        {"SIP/2.0/uDp h", "SIP/2.0/UDP h", "a transport that is known"},
        {"SIP/2.0/Tls-Sctp h", "SIP/2.0/TLS-SCTP h", "one that is not"},
        {"SIP/2.0/UDP h:65535", "SIP/2.0/UDP h:65535", "the highest port"},
        {"SIP/2.0/UDP h:9223372036854775807", "SIP/2.0/UDP h:9223372036854775807", "the highest number"},
        {"SIP/2.0/UDP Example.COM.", "SIP/2.0/UDP Example.COM.", "the host as it is"},
        {"SIP/2.0/UDP [2001:DB8::1]:5", "SIP/2.0/UDP [2001:DB8::1]:5", ""},
        {"SIP/2.0/UDP xn--bcher-kva.example", "SIP/2.0/UDP xn--bcher-kva.example", "an IDN"},
        {"SIP/2.0/UDP h;branch=b;a;rport;received=::1;maddr=[::1];ttl=0",
         "SIP/2.0/UDP h;ttl=0;maddr=[::1];received=::1;rport;branch=b;a", "another order"},
        {"SIP/2.0/UDP h;TTL=1;MAddr=M;Received=1.2.3.4;RPORT;BRANCH=B;A=B",
         "SIP/2.0/UDP h;ttl=1;maddr=M;received=1.2.3.4;rport;branch=B;a=B", "names in any letter case"},
        {"SIP/2.0/UDP h;ttl = 1 ;\tbranch\t=\tb", "SIP/2.0/UDP h;ttl=1;branch=b", "blanks around EQUAL"},
        {"SIP/2.0/UDP h;ttl=1;ttl=2;branch=a;branch=b", "SIP/2.0/UDP h;ttl=2;branch=b", "the last one counts"},
        {"SIP/2.0/UDP h;ttl=255", "SIP/2.0/UDP h;ttl=255", "the highest ttl"},
        {"SIP/2.0/UDP h;ttl=256", "SIP/2.0/UDP h;ttl=256", "a generic parameter"},
        {"SIP/2.0/UDP h;ttl=99999999999999999999", "SIP/2.0/UDP h;ttl=99999999999999999999", "a generic parameter"},
        {"SIP/2.0/UDP h;ttl=x;ttl", "SIP/2.0/UDP h;ttl", "a generic parameter, the last one"},
        {"SIP/2.0/UDP h;ttl=300;ttl=3", "SIP/2.0/UDP h;ttl=3", "the number wins"},
        {"SIP/2.0/UDP h;maddr=\"m\"", "SIP/2.0/UDP h;maddr=\"m\"", "a generic parameter"},
        {"SIP/2.0/UDP h;received=2001:DB8:0:0:0:0:0:1", "SIP/2.0/UDP h;received=2001:db8::1", "the shortest text"},
        {"SIP/2.0/UDP h;received=::ffff:1.2.3.4", "SIP/2.0/UDP h;received=::ffff:1.2.3.4", ""},
        {"SIP/2.0/UDP h;received=gateway", "SIP/2.0/UDP h;received=gateway", "a generic parameter"},
        {"SIP/2.0/UDP h;received=[::1]", "SIP/2.0/UDP h;received=[::1]", "in brackets: a generic parameter"},
        {"SIP/2.0/UDP h;received=1.2.3", "SIP/2.0/UDP h;received=1.2.3", "no address: a generic parameter"},
        {"SIP/2.0/UDP h;RPort", "SIP/2.0/UDP h;rport", ""},
        {"SIP/2.0/UDP h;rport=5060", "SIP/2.0/UDP h;rport=5060", "a generic parameter"},
        {"SIP/2.0/UDP h;rport = 5060", "SIP/2.0/UDP h;rport=5060", "a generic parameter"},
        {"SIP/2.0/UDP h;rport=5060;rport", "SIP/2.0/UDP h;rport", "the member wins"},
        {"SIP/2.0/UDP h;branch=\"b\"", "SIP/2.0/UDP h;branch=\"b\"", "a generic parameter"},
        {"SIP/2.0/UDP h;branch", "SIP/2.0/UDP h;branch", "a generic parameter"},
        {"SIP/2.0/UDP h;ttlx=1;xttl=1", "SIP/2.0/UDP h;ttlx=1;xttl=1", "other names"},
        {"SIP/2.0/UDP h;a=\"\u00E9 \\\"\"", "SIP/2.0/UDP h;a=\"\u00E9 \\\"\"", "quotes and UTF-8"},
    });
}

TEST(QuillVia, Refuses) {
    expectRefused<Via>({
        {"", "nothing"},
        {"SIP/2.0/UDP", "no host"},
        {"SIP/2.0/UDP ", "no host"},
        {"SIP/2.0/UDPhost", "no blank before the host"},
        {"SIP/2.0 UDP h", "no slash"},
        {"SIP/UDP h", "no version"},
        {"/2.0/UDP h", "no name"},
        {" SIP/2.0/UDP h", "a blank in front"},
        {"SIP/2.0/UDP h ", "a blank behind"},
        {"SIP/2.0/UDP b\u00FCcher.example", "an IDN in its Unicode form"},
        {"SIP/2.0/UDP xn--\u00E9", "no host"},
        {"SIP/2.0/UDP xn--a-.b", "no host"},
        {"SIP/2.0/UDP xn--zzzzzzzzzzzz99999999999", "no valid A-label"},
        {"SIP/2.0/UDP a%41", "escaped"},
        {"SIP/2.0/UDP 2001:db8::1", "IPv6 without brackets"},
        {"SIP/2.0/UDP h:", "no port"},
        {"SIP/2.0/UDP h:x", "no port"},
        {"SIP/2.0/UDP h:-1", "no port"},
        {"SIP/2.0/UDP h:9223372036854775808", "more than the highest number"},
        {"SIP/2.0/UDP h;received=1.2.3.400", "an address is taken, and the last digit is no SEMI"},
        {"SIP/2.0/UDP h:1:2", "two ports"},
        {"SIP/2.0/UDP h;", "a semicolon at the end"},
        {"SIP/2.0/UDP h;;a", "two semicolons"},
        {"SIP/2.0/UDP h;=a", "no name"},
        {"SIP/2.0/UDP h;a=", "no value"},
        {"SIP/2.0/UDP h a", "something behind"},
        {"SIP/2.0/UDP h, SIP/2.0/UDP g", "two of them"},
        {"SIP/2.0/UDP h;rportx", "rport is taken, and x is no SEMI"},
        {"SIP/2.0/UDP h;rport x", "the same"},
        {"SIP/2.0/UDP h;ttl=1x", "the number is taken, and x is no SEMI"},
        {"SIP/2.0/UDP h;received=1.2.3.4.example", "the address is taken, and the rest is no SEMI"},
        {"SIP/2.0/UDP h;branch=b\"", "the token is taken"},
        {"SIP/2.0/UDP h;branch=\u00E9", "no value"},
        {"SIP/2.0/UDP h;\u00E9", "no name"},
        {"SIP/2.0/UDP h\r\n", "no blank"},
    });
}

TEST(QuillVia, KeepsWhatItReads) {
    auto const via = decode<Via>(whole);
    EXPECT_EQ(taken(quillVersionToString(own(quillViaVersion(via.get())).get())), "SIP/2.0");
    EXPECT_EQ(taken(quillViaTransport(via.get())), "udp");
    EXPECT_EQ(taken(quillViaHost(via.get())), "h");
    EXPECT_EQ(quillViaPort(via.get()), 5060);
    EXPECT_EQ(quillViaTtl(via.get()), 1);
    EXPECT_EQ(taken(quillViaMaddr(via.get())), "m");
    EXPECT_EQ(received(via.get()), "192.0.2.1");
    EXPECT_EQ(taken(quillViaBranch(via.get())), "z9hG4bK1");
    EXPECT_EQ(text(quillViaGenericParams(via.get())), ";a=b");
    for (auto has : {quillViaHasPort, quillViaHasTtl, quillViaHasMaddr, quillViaHasReceived, quillViaHasRport,
                     quillViaHasRportEmpty, quillViaHasBranch})
        EXPECT_TRUE(has(via.get()));
    EXPECT_FALSE(quillViaHasRportNumeric(via.get()));
    EXPECT_EQ(taken(quillViaHost(decode<Via>("SIP/2.0/UDP xn--bcher-kva.example").get())), "b\u00FCcher.example");
    EXPECT_EQ(taken(quillViaMaddr(decode<Via>("SIP/2.0/UDP h;maddr=xn--bcher-kva.example").get())),
              "b\u00FCcher.example");
}

TEST(QuillVia, LiftsWhatHasTheRightForm) {
    struct {
        std::string_view params;
        std::string_view generic; // what of it stays generic
    } const rows[] = {
        {";rport=5060", ";rport=5060"},
        {";rport=5060;rport", ";rport=5060"},
        {";received=10.0.0.1", ""},
        {";received=gateway", ";received=gateway"},
        {";ttl=256", ";ttl=256"},
        {";ttl=255", ""},
        {";maddr=\"m\"", ";maddr=\"m\""},
        {";maddr=-", ";maddr=-"},
        {";maddr=1.2.3.4", ""},
        {";branch=b", ""},
        {";a;B=C;d=\"e\"", ";a;b=C;d=\"e\""},
    };
    for (auto const &row : rows) {
        auto const via = decode<Via>("SIP/2.0/UDP h" + std::string(row.params));
        ASSERT_TRUE(via) << row.params;
        EXPECT_EQ(text(quillViaGenericParams(via.get())), row.generic) << row.params;
    }
    EXPECT_FALSE(quillViaHasRport(decode<Via>("SIP/2.0/UDP h;rport=5060").get()));
}

TEST(QuillVia, ChangesInPlaceOrOnACopy) {
    using Changes = std::vector<Change<Via>>;
    auto const version = own(quillVersionCreate(str("X"), str("1")));
    expectChanges<Via>(
        whole,
        Changes{
            {"version", [&](Via **via) { quillViaSetVersion(via, version.get()); },
             "X/1/UDP h:5060;ttl=1;maddr=m;received=192.0.2.1;rport;branch=z9hG4bK1;a=b"},
            {"transport", [](Via **via) { quillViaSetTransport(via, str("Tcp")); },
             "SIP/2.0/TCP h:5060;ttl=1;maddr=m;received=192.0.2.1;rport;branch=z9hG4bK1;a=b"},
            {"host", [](Via **via) { quillViaSetHost(via, str("b\u00FCcher")); },
             "SIP/2.0/UDP xn--bcher-kva:5060;ttl=1;maddr=m;received=192.0.2.1;rport;branch=z9hG4bK1;a=b"},
            {"port", [](Via **via) { quillViaSetPort(via, 0); },
             "SIP/2.0/UDP h:0;ttl=1;maddr=m;received=192.0.2.1;rport;branch=z9hG4bK1;a=b"},
            {"no port", quillViaDelPort, "SIP/2.0/UDP h;ttl=1;maddr=m;received=192.0.2.1;rport;branch=z9hG4bK1;a=b"},
            {"ttl", [](Via **via) { quillViaSetTtl(via, 255); },
             "SIP/2.0/UDP h:5060;ttl=255;maddr=m;received=192.0.2.1;rport;branch=z9hG4bK1;a=b"},
            {"no ttl", quillViaDelTtl, "SIP/2.0/UDP h:5060;maddr=m;received=192.0.2.1;rport;branch=z9hG4bK1;a=b"},
            {"maddr", [](Via **via) { quillViaSetMaddr(via, str("1.1.1.1")); },
             "SIP/2.0/UDP h:5060;ttl=1;maddr=1.1.1.1;received=192.0.2.1;rport;branch=z9hG4bK1;a=b"},
            {"no maddr", quillViaDelMaddr, "SIP/2.0/UDP h:5060;ttl=1;received=192.0.2.1;rport;branch=z9hG4bK1;a=b"},
            {"received", [](Via **via) { quillViaSetReceived(via, address("::1").get()); },
             "SIP/2.0/UDP h:5060;ttl=1;maddr=m;received=::1;rport;branch=z9hG4bK1;a=b"},
            {"no received", quillViaDelReceived, "SIP/2.0/UDP h:5060;ttl=1;maddr=m;rport;branch=z9hG4bK1;a=b"},
            {"rport with a number", [](Via **via) { quillViaSetRportNumeric(via, 1); },
             "SIP/2.0/UDP h:5060;ttl=1;maddr=m;received=192.0.2.1;rport=1;branch=z9hG4bK1;a=b"},
            {"empty rport", quillViaSetRportEmpty, whole},
            {"no rport", quillViaDelRport, "SIP/2.0/UDP h:5060;ttl=1;maddr=m;received=192.0.2.1;branch=z9hG4bK1;a=b"},
            {"branch", [](Via **via) { quillViaSetBranch(via, str("B")); },
             "SIP/2.0/UDP h:5060;ttl=1;maddr=m;received=192.0.2.1;rport;branch=B;a=b"},
            {"no branch", quillViaDelBranch, "SIP/2.0/UDP h:5060;ttl=1;maddr=m;received=192.0.2.1;rport;a=b"},
            {"parameters", [](Via **via) { quillViaSetGenericParams(via, params(";c").get()); },
             "SIP/2.0/UDP h:5060;ttl=1;maddr=m;received=192.0.2.1;rport;branch=z9hG4bK1;c"},
        });
    expectChanges<Via>("SIP/2.0/UDP h", Changes{
                                            {"port", quillViaDelPort, "SIP/2.0/UDP h"},
                                            {"ttl", quillViaDelTtl, "SIP/2.0/UDP h"},
                                            {"maddr", quillViaDelMaddr, "SIP/2.0/UDP h"},
                                            {"received", quillViaDelReceived, "SIP/2.0/UDP h"},
                                            {"rport", quillViaDelRport, "SIP/2.0/UDP h"},
                                            {"branch", quillViaDelBranch, "SIP/2.0/UDP h"},
                                        });
}

TEST(QuillVia, RportIsEmptyOrANumber) {
    auto via = decode<Via>("SIP/2.0/UDP h");
    quillViaSetRportNumeric(via.address(), 65535);
    EXPECT_TRUE(quillViaHasRport(via.get()) && quillViaHasRportNumeric(via.get()) && !quillViaHasRportEmpty(via.get()));
    EXPECT_EQ(quillViaRportNumeric(via.get()), 65535);
    quillViaSetRportEmpty(via.address());
    EXPECT_TRUE(quillViaHasRport(via.get()) && !quillViaHasRportNumeric(via.get()) && quillViaHasRportEmpty(via.get()));
    EXPECT_EQ(quillViaRportNumeric(via.get()), -1);
    quillViaSetRportNumeric(via.address(), 0);
    EXPECT_FALSE(quillViaHasRportEmpty(via.get()));
    EXPECT_EQ(text(via), "SIP/2.0/UDP h;rport=0");
    quillViaDelRport(via.address());
    EXPECT_FALSE(quillViaHasRport(via.get()) || quillViaHasRportNumeric(via.get()) || quillViaHasRportEmpty(via.get()));
    EXPECT_EQ(quillViaRportNumeric(via.get()), -1);
}

TEST(QuillVia, AMemberWinsOverAParameterOfItsName) {
    auto via = decode<Via>("SIP/2.0/UDP h");
    auto const generic = params(";x=1;TTL=x;maddr=\"x\";received=x;rport=x;branch=\"x\";y");
    quillViaSetGenericParams(via.address(), generic.get());
    EXPECT_EQ(text(via), "SIP/2.0/UDP h;x=1;ttl=x;maddr=\"x\";received=x;rport=x;branch=\"x\";y");
    quillViaSetTtl(via.address(), 7);
    quillViaSetRportNumeric(via.address(), 8);
    EXPECT_EQ(text(via), "SIP/2.0/UDP h;ttl=7;rport=8;x=1;maddr=\"x\";received=x;branch=\"x\";y");
    quillViaSetMaddr(via.address(), str("m"));
    quillViaSetReceived(via.address(), address("1.2.3.4").get());
    quillViaSetBranch(via.address(), str("b"));
    EXPECT_EQ(text(via), "SIP/2.0/UDP h;ttl=7;maddr=m;received=1.2.3.4;rport=8;branch=b;x=1;y");
    EXPECT_EQ(text(quillViaGenericParams(via.get())), ";x=1;ttl=x;maddr=\"x\";received=x;rport=x;branch=\"x\";y")
        << "they are left alone";
}

TEST(QuillVia, Compares) {
    expectAscending<Via>({
        "SIP/1.0/UDP z",
        "SIP/2.0/TCP z",
        "SIP/2.0/UDP a:9",
        "SIP/2.0/UDP b;ttl=9;maddr=z;received=::9;branch=z;z",
        "SIP/2.0/UDP b:1;maddr=z;received=::9;branch=z;z",
        "SIP/2.0/UDP b:1;ttl=0;maddr=z;received=::9;branch=z;z",
        "SIP/2.0/UDP b:1;ttl=1;received=::9;branch=z;z",
        "SIP/2.0/UDP b:1;ttl=1;maddr=a;received=::9;branch=z;z",
        "SIP/2.0/UDP b:1;ttl=1;maddr=b;branch=z;z",
        "SIP/2.0/UDP b:1;ttl=1;maddr=b;received=::1;z",
        "SIP/2.0/UDP b:1;ttl=1;maddr=b;received=::1;branch=a;z",
        "SIP/2.0/UDP b:1;ttl=1;maddr=b;received=::1;branch=b",
        "SIP/2.0/UDP b:1;ttl=1;maddr=b;received=::1;branch=b;a",
        "SIP/2.0/UDP b:2",
        "SIP/2.0/UDP c",
        "X/2.0/UDP a",
    });
    EXPECT_TRUE(areEqual<Via>("SIP/2.0/UDP h", "sip / 2.0 / udp  h"));
    EXPECT_TRUE(areEqual<Via>("SIP/2.0/UDP h;branch=b;ttl=1;x=Y", "SIP/2.0/UDP h;ttl=1;X=y;branch=b"));
    EXPECT_FALSE(areEqual<Via>("SIP/2.0/UDP h", "SIP/2.0/UDP H")) << "hosts are as given";
    EXPECT_FALSE(areEqual<Via>("SIP/2.0/UDP h;branch=b", "SIP/2.0/UDP h;branch=B"));
}

TEST(QuillVia, RportDoesNotTakePartInComparison) {
    auto const none = decode<Via>("SIP/2.0/UDP h");
    auto numeric = decode<Via>("SIP/2.0/UDP h");
    quillViaSetRportNumeric(numeric.address(), 5060);
    auto const empty = decode<Via>("SIP/2.0/UDP h;rport");
    EXPECT_TRUE(quillViaEquals(none.get(), numeric.get()));
    EXPECT_TRUE(quillViaEquals(none.get(), empty.get()));
    EXPECT_TRUE(quillViaEquals(numeric.get(), empty.get()));
    EXPECT_FALSE(areEqual<Via>("SIP/2.0/UDP h", "SIP/2.0/UDP h;rport=5060")) << "a generic parameter does";
}

TEST(QuillVia, CopiesKeepAllMembers) {
    auto via = decode<Via>(whole);
    EXPECT_EQ(text(own(quillViaCreateFrom(via.get()))), whole);
    quillViaSetRportNumeric(via.address(), 9);
    EXPECT_EQ(quillViaRportNumeric(own(quillViaCreateFrom(via.get())).get()), 9);
}

TEST(QuillVia, Asserts) {
    auto const via = decode<Via>(whole);
    auto const version = sip20();
    Str const good = str("h"), bad = str("a b");
    Preconditions<Via> const preconditions{"via"};
    preconditions.ofSort(via.get());
    preconditions.ofAll(quillViaVersion, quillViaTransport, quillViaHost, quillViaPort, quillViaHasPort,
                        quillViaDelPort, quillViaTtl, quillViaHasTtl, quillViaDelTtl, quillViaMaddr, quillViaHasMaddr,
                        quillViaDelMaddr, quillViaReceived, quillViaHasReceived, quillViaDelReceived,
                        quillViaRportNumeric, quillViaHasRport, quillViaHasRportNumeric, quillViaHasRportEmpty,
                        quillViaSetRportEmpty, quillViaDelRport, quillViaBranch, quillViaHasBranch, quillViaDelBranch,
                        quillViaGenericParams);
    preconditions.ofSetter(quillViaSetVersion, version.get(), via.get(), {nullptr}, "version");
    preconditions.ofSetter(quillViaSetTransport, good, via.get(), {bad}, "quillTransportOk( transport )");
    preconditions.ofSetter(quillViaSetHost, good, via.get(), {bad}, "quillHostOk( host )");
    preconditions.ofSetter(quillViaSetPort, 1, via.get(), {-1}, "quillPortOk( port )");
    preconditions.ofSetter(quillViaSetTtl, 1, via.get(), {-1, 256}, "quillTtlOk( ttl )");
    preconditions.ofSetter(quillViaSetMaddr, good, via.get(), {bad}, "quillHostOk( host )");
    preconditions.ofSetter(quillViaSetReceived, address("::1").get(), via.get(), {nullptr}, "received");
    preconditions.ofSetter(quillViaSetRportNumeric, 1, via.get(), {-1}, "quillPortOk( rport )");
    preconditions.ofSetter(quillViaSetBranch, good, via.get(), {bad}, "quillBranchOk( branch )");
    preconditions.ofSetter(quillViaSetGenericParams, params("").get(), via.get(), {nullptr}, "params");
    EXPECT_ABORT(quillViaCreate(nullptr, good, good), unit, "version");
    EXPECT_ABORT(quillViaCreate(version.get(), bad, good), unit, "quillTransportOk( transport )");
    EXPECT_ABORT(quillViaCreate(version.get(), good, bad), unit, "quillHostOk( host )");
    EXPECT_ABORT(quillViaCreateWithPort(nullptr, good, good, 1), unit, "version");
    EXPECT_ABORT(quillViaCreateWithPort(version.get(), bad, good, 1), unit, "quillTransportOk( transport )");
    EXPECT_ABORT(quillViaCreateWithPort(version.get(), good, bad, 1), unit, "quillHostOk( host )");
    EXPECT_ABORT(quillViaCreateWithPort(version.get(), good, good, -1), unit, "quillPortOk( port )");
    EXPECT_ABORT(quillViaCreateDummy(nullptr), unit, "version");
}

} // namespace
