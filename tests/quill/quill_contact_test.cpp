#include "values.hpp"

using namespace test;

namespace {

using Contact = struct quillContact;

constexpr char instance[] = "<urn:uuid:00000000-0000-1000-8000-AABBCCDDEEFF>";
constexpr char whole[] = "\"A\" <sip:h>;q=0.500;expires=60;rc=1;mp=1.2;np=0;+sip.instance=\"<urn:a>\";+sip.src;"
                         "+sip.srs;x=1";

TEST(QuillContact, CreatesWithoutParameters) {
    auto const contact = own(quillContactCreate(str("sip:h")));
    EXPECT_EQ(taken(quillContactIri(contact.get())), "sip:h");
    EXPECT_EQ(quillContactDisplayName(contact.get()), nullptr);
    EXPECT_EQ(text(quillContactGenericParams(contact.get())), "");
    EXPECT_EQ(quillContactQvalue(contact.get()), -1);
    EXPECT_EQ(quillContactExpires(contact.get()), -1);
    for (auto get : {quillContactRc, quillContactMp, quillContactNp, quillContactSipInstance})
        EXPECT_EQ(get(contact.get()), nullptr);
    for (auto is :
         {quillContactHasDisplayName, quillContactHasQvalue, quillContactHasExpires, quillContactHasRc,
          quillContactHasMp, quillContactHasNp, quillContactHasSipInstance, quillContactSipSrc, quillContactSipSrs})
        EXPECT_FALSE(is(contact.get()));
    EXPECT_EQ(text(contact), "<sip:h>");
}

TEST(QuillContact, DecodesAndEncodes) {
    std::string const device = "<sip:h>;+sip.instance=\"" + std::string(instance) + "\"";
    expectCoded<Contact>({
        {whole, whole, "everything, in the order in which it is written"},
        {"sip:10.0.0.1;q=0.5", "<sip:10.0.0.1>;q=0.500", "parameters of a bare address belong to the value"},
        {"<sip:10.0.0.1;q=0.5>", "<sip:10.0.0.1;q=0.5>", "those within brackets to the URI"},
        {"\"A B\" <sip:h>;expires=60;x=1", "\"A B\" <sip:h>;expires=60;x=1", ""},
        {"<sip:h> ; x ; +sip.srs;+SIP.Src ; NP = 1 ;Mp=2;rC=3;Expires=4;Q=1",
         "<sip:h>;q=1.000;expires=4;rc=3;mp=2;np=1;+sip.src;+sip.srs;x", "another order, letter case and blanks"},
        {device, device, ""},
        {"<sip:h>;q=0", "<sip:h>;q=0.000", ""},
        {"<sip:h>;q=1.", "<sip:h>;q=1.000", ""},
        {"<sip:h>;q=2", "<sip:h>;q=2", "a generic parameter"},
        {"<sip:h>;q=\"1\"", "<sip:h>;q=\"1\"", "a generic parameter"},
        {"<sip:h>;q", "<sip:h>;q", "a generic parameter"},
        {"<sip:h>;qq=1", "<sip:h>;qq=1", "another name"},
        {"<sip:h>;q=2;q=1", "<sip:h>;q=1.000", "the member wins"},
        {"<sip:h>;q=1;q=0.1", "<sip:h>;q=0.100", "the last one counts"},
        {"<sip:h>;expires=007", "<sip:h>;expires=7", "leading zeros"},
        {"<sip:h>;expires=9223372036854775808", "<sip:h>;expires=9223372036854775808", "a generic parameter"},
        {"<sip:h>;expires=x", "<sip:h>;expires=x", "a generic parameter"},
        {"<sip:h>;rc=01", "<sip:h>;rc=01", "a generic parameter"},
        {"<sip:h>;mp=a;np", "<sip:h>;mp=a;np", "generic parameters"},
        {"<sip:h>;+sip.instance=x", "<sip:h>;+sip.instance=x", "a generic parameter"},
        {"<sip:h>;+sip.instance=\"x\"", "<sip:h>;+sip.instance=\"x\"", "a generic parameter"},
        {"<sip:h>;+sip.instance=\"<urn:a> \"", "<sip:h>;+sip.instance=\"<urn:a> \"", "a generic parameter"},
        {"<sip:h>;+sip.ice;+u.x=\"<a>\"", "<sip:h>;+sip.ice;+u.x=\"<a>\"", "other feature tags"},
    });
    EXPECT_EQ(taken(quillContactSipInstance(decode<Contact>(device).get())), instance);
}

TEST(QuillContact, Refuses) {
    expectRefused<Contact>({
        {"*", "no value"},
        {"", "nothing"},
        {"<sip:h>;+sip.srcx", "the flag is taken, and x is no SEMI"},
        {"<sip:h>;+sip.src=1", "the flag is taken, and EQUAL is no SEMI"},
        {"<sip:h>;+sip.srs x", "the flag is taken"},
        {"<sip:h>;q=1.5", "1. is taken"},
        {"<sip:h>;q=0.1234", "three decimals are taken"},
        {"<sip:h>;expires=1x", "the digits are taken"},
        {"<sip:h>;rc=1x", "the index is taken"},
        {"<sip:h>;", "a semicolon at the end"},
        {"<sip:h>;+sip.instance=\"<urn:a>", "an open quote"},
        {"<sip:h>, <sip:g>", "two of them"},
        {"<sip:h> x", "something behind"},
    });
}

TEST(QuillContact, KeepsWhatItReads) {
    auto const contact = decode<Contact>(whole);
    EXPECT_EQ(taken(quillContactIri(contact.get())), "sip:h");
    EXPECT_EQ(taken(quillContactDisplayName(contact.get())), "A");
    EXPECT_EQ(text(quillContactGenericParams(contact.get())), ";x=1");
    EXPECT_EQ(quillContactQvalue(contact.get()), 500);
    EXPECT_EQ(quillContactExpires(contact.get()), 60);
    EXPECT_EQ(taken(quillContactRc(contact.get())), "1");
    EXPECT_EQ(taken(quillContactMp(contact.get())), "1.2");
    EXPECT_EQ(taken(quillContactNp(contact.get())), "0");
    EXPECT_EQ(taken(quillContactSipInstance(contact.get())), "<urn:a>");
    for (auto is :
         {quillContactHasDisplayName, quillContactHasQvalue, quillContactHasExpires, quillContactHasRc,
          quillContactHasMp, quillContactHasNp, quillContactHasSipInstance, quillContactSipSrc, quillContactSipSrs})
        EXPECT_TRUE(is(contact.get()));
}

TEST(QuillContact, ChangesInPlaceOrOnACopy) {
    std::vector<Change<Contact>> const changes{
        {"IRI", [](Contact **contact) { quillContactSetIri(contact, str("sip:g")); }, "<sip:g>;q=1.000;x"},
        {"display name", [](Contact **contact) { quillContactSetDisplayName(contact, str("B")); },
         "\"B\" <sip:h>;q=1.000;x"},
        {"no display name", quillContactDelDisplayName, "<sip:h>;q=1.000;x"},
        {"parameters", [](Contact **contact) { quillContactSetGenericParams(contact, params(";b=1").get()); },
         "<sip:h>;q=1.000;b=1"},
        {"q-value", [](Contact **contact) { quillContactSetQvalue(contact, 7); }, "<sip:h>;q=0.007;x"},
        {"no q-value", quillContactDelQvalue, "<sip:h>;x"},
        {"expires", [](Contact **contact) { quillContactSetExpires(contact, 0); }, "<sip:h>;q=1.000;expires=0;x"},
        {"no expires", quillContactDelExpires, "<sip:h>;q=1.000;x"},
        {"rc", [](Contact **contact) { quillContactSetRc(contact, str("1.1")); }, "<sip:h>;q=1.000;rc=1.1;x"},
        {"no rc", quillContactDelRc, "<sip:h>;q=1.000;x"},
        {"mp", [](Contact **contact) { quillContactSetMp(contact, str("1.1")); }, "<sip:h>;q=1.000;mp=1.1;x"},
        {"no mp", quillContactDelMp, "<sip:h>;q=1.000;x"},
        {"np", [](Contact **contact) { quillContactSetNp(contact, str("1.1")); }, "<sip:h>;q=1.000;np=1.1;x"},
        {"no np", quillContactDelNp, "<sip:h>;q=1.000;x"},
        {"instance", [](Contact **contact) { quillContactSetSipInstance(contact, str("<a>")); },
         "<sip:h>;q=1.000;+sip.instance=\"<a>\";x"},
        {"no instance", quillContactDelSipInstance, "<sip:h>;q=1.000;x"},
    };
    expectChanges("<sip:h>;q=1;x", changes);
    expectChanges<Contact>(whole, {{"no expires", quillContactDelExpires,
                                    "\"A\" <sip:h>;q=0.500;rc=1;mp=1.2;np=0;+sip.instance=\"<urn:a>\";+sip.src;"
                                    "+sip.srs;x=1"}});
}

TEST(QuillContact, FlagsChangeInPlaceAlsoWhereShared) {
    struct {
        bool (*get)(Contact const *);
        void (*set)(Contact **, bool);
        char const *expected;
    } const flags[] = {
        {quillContactSipSrc, quillContactSetSipSrc, "<sip:h>;+sip.src"},
        {quillContactSipSrs, quillContactSetSipSrs, "<sip:h>;+sip.srs"},
    };
    for (auto const &flag : flags) {
        auto mine = decode<Contact>("<sip:h>");
        co::Ref<Contact> const other(co::retained(mine.get()));
        flag.set(mine.address(), true);
        EXPECT_EQ(mine.get(), other.get()) << "no copy";
        EXPECT_TRUE(flag.get(other.get())) << "the other holder sees it";
        EXPECT_EQ(text(other), flag.expected);
        flag.set(mine.address(), false);
        EXPECT_FALSE(flag.get(other.get()));
        EXPECT_EQ(text(mine), "<sip:h>");
    }
}

TEST(QuillContact, AMemberWinsOverAParameterOfItsName) {
    auto contact = decode<Contact>("<sip:h>");
    char const generic[] = ";y;q=x;expires=x;rc=x;mp=x;np=x;+sip.instance=x;+sip.src=x;+sip.srs=x;z";
    quillContactSetGenericParams(contact.address(), params(generic).get());
    EXPECT_EQ(text(contact), std::string("<sip:h>") + generic);
    quillContactSetSipSrs(contact.address(), true);
    quillContactSetMp(contact.address(), str("1"));
    EXPECT_EQ(text(contact), "<sip:h>;mp=1;+sip.srs;y;q=x;expires=x;rc=x;np=x;+sip.instance=x;+sip.src=x;z");
    quillContactSetQvalue(contact.address(), 0);
    quillContactSetExpires(contact.address(), 1);
    quillContactSetRc(contact.address(), str("2"));
    quillContactSetNp(contact.address(), str("3"));
    quillContactSetSipInstance(contact.address(), str("<a>"));
    quillContactSetSipSrc(contact.address(), true);
    EXPECT_EQ(text(contact), "<sip:h>;q=0.000;expires=1;rc=2;mp=1;np=3;+sip.instance=\"<a>\";+sip.src;+sip.srs;y;z");
    EXPECT_EQ(text(quillContactGenericParams(contact.get())), generic) << "they are left alone";
}

TEST(QuillContact, Compares) {
    expectAscending<Contact>({
        "\"Z\" <sip:a>;q=1",
        "<sip:b>;q=1",
        "\"A\" <sip:b>;expires=9;rc=9;mp=9;np=9;+sip.instance=\"<z>\";z",
        "\"A\" <sip:b>;q=0;rc=9;mp=9;np=9;+sip.instance=\"<z>\";z",
        "\"A\" <sip:b>;q=0;expires=0;mp=9;np=9;+sip.instance=\"<z>\";z",
        "\"A\" <sip:b>;q=0;expires=0;rc=0;np=9;+sip.instance=\"<z>\";z",
        "\"A\" <sip:b>;q=0;expires=0;rc=0;mp=0;+sip.instance=\"<z>\";z",
        "\"A\" <sip:b>;q=0;expires=0;rc=0;mp=0;np=0;z",
        "\"A\" <sip:b>;q=0;expires=0;rc=0;mp=0;np=0;+sip.instance=\"<a>\"",
        "\"A\" <sip:b>;q=0;expires=0;rc=0;mp=0;np=0;+sip.instance=\"<a>\";a",
        "\"A\" <sip:b>;q=0;expires=0;rc=0;mp=0;np=1",
        "\"A\" <sip:b>;q=0;expires=0;rc=0;mp=1",
        "\"A\" <sip:b>;q=0;expires=0;rc=1",
        "\"A\" <sip:b>;q=0;expires=1",
        "\"A\" <sip:b>;q=0.001",
        "\"B\" <sip:b>",
        "<sip:c>",
    });
    EXPECT_TRUE(areEqual<Contact>("<sip:h>", "<sip:h>;+sip.src"));
    EXPECT_TRUE(areEqual<Contact>("<sip:h>;+sip.src", "<sip:h>;+sip.srs"));
    EXPECT_TRUE(areEqual<Contact>("sip:h;q=1", "<sip:h>;Q=1.000"));
}

TEST(QuillContact, CopiesKeepAllMembers) {
    EXPECT_EQ(text(own(quillContactCreateFrom(decode<Contact>(whole).get()))), whole);
}

TEST(QuillContact, Asserts) {
    constexpr auto &unit = ValueFunctions<Contact>::unit;
    auto const contact = decode<Contact>("<sip:h>");
    Preconditions<Contact> const preconditions{"contact"};
    preconditions.ofSort(contact.get());
    preconditions.ofAll(quillContactIri, quillContactDisplayName, quillContactHasDisplayName,
                        quillContactDelDisplayName, quillContactGenericParams, quillContactQvalue,
                        quillContactHasQvalue, quillContactDelQvalue, quillContactExpires, quillContactHasExpires,
                        quillContactDelExpires, quillContactRc, quillContactHasRc, quillContactDelRc, quillContactMp,
                        quillContactHasMp, quillContactDelMp, quillContactNp, quillContactHasNp, quillContactDelNp,
                        quillContactSipInstance, quillContactHasSipInstance, quillContactDelSipInstance,
                        quillContactSipSrc, quillContactSipSrs);
    Str const iri = str("sip:g"), one = str("1"), blank = str("a b"), lineEnd = str("\r"), inBrackets = str("<a>");
    preconditions.ofSetter(quillContactSetIri, iri, contact.get(), {blank}, "quillIriOk( iri )");
    preconditions.ofSetter(quillContactSetDisplayName, blank, contact.get(), {lineEnd},
                           "quillDisplayNameOk( displayName )");
    preconditions.ofSetter(quillContactSetGenericParams, params("").get(), contact.get(), {nullptr}, "genericParams");
    preconditions.ofSetter(quillContactSetQvalue, 1, contact.get(), {-1, 1001}, "quillQvalueOk( qvalue )");
    preconditions.ofSetter(quillContactSetExpires, 1, contact.get(), {-1}, "quillDeltaSecondsOk( deltaSeconds )");
    preconditions.ofSetter(quillContactSetRc, one, contact.get(), {blank}, "quillHistoryInfoIndexOk( rc )");
    preconditions.ofSetter(quillContactSetMp, one, contact.get(), {blank}, "quillHistoryInfoIndexOk( mp )");
    preconditions.ofSetter(quillContactSetNp, one, contact.get(), {blank}, "quillHistoryInfoIndexOk( np )");
    preconditions.ofSetter(quillContactSetSipInstance, inBrackets, contact.get(), {one},
                           "quillSipInstanceOk( sipInstance )");
    preconditions.ofSetter(quillContactSetSipSrc, true, contact.get(), {}, "");
    preconditions.ofSetter(quillContactSetSipSrs, true, contact.get(), {}, "");
    EXPECT_ABORT(quillContactCreate(blank), unit, "quillIriOk( iri )");
}

} // namespace
