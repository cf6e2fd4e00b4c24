#include "values.hpp"

using namespace test;

namespace {

using Diversion = struct quillDiversion;

constexpr char whole[] = "\"A\" <sip:h>;reason=user-busy;counter=1;limit=2;privacy=full;screen=yes;x=1";

TEST(QuillDiversion, CreatesWithoutParameters) {
    auto const diversion = own(quillDiversionCreate(str("tel:1")));
    EXPECT_EQ(taken(quillDiversionIri(diversion.get())), "tel:1");
    for (auto get : {quillDiversionDisplayName, quillDiversionReason, quillDiversionPrivacy, quillDiversionScreen})
        EXPECT_EQ(get(diversion.get()), nullptr);
    EXPECT_EQ(quillDiversionCounter(diversion.get()), -1);
    EXPECT_EQ(quillDiversionLimit(diversion.get()), -1);
    for (auto has : {quillDiversionHasDisplayName, quillDiversionHasReason, quillDiversionHasCounter,
                     quillDiversionHasLimit, quillDiversionHasPrivacy, quillDiversionHasScreen})
        EXPECT_FALSE(has(diversion.get()));
    EXPECT_EQ(text(quillDiversionGenericParams(diversion.get())), "");
    EXPECT_EQ(text(diversion), "<tel:1>");
}

TEST(QuillDiversion, DecodesAndEncodes) {
    expectCoded<Diversion>({
        {whole, whole, "everything, in the order in which it is written"},
        {"sip:h;reason=no-answer", "<sip:h>;reason=no-answer", "a bare address"},
        {"<sip:h> ; x ; SCREEN = No ; Privacy=OFF;LIMIT=09;counter=00;Reason=User-Busy",
         "<sip:h>;reason=user-busy;counter=0;limit=9;privacy=off;screen=no;x", "order, letter case, blanks, zeros"},
        {"<sip:h>;reason=\"No Answer\"", "<sip:h>;reason=\"no answer\"", "quoted again where it is no token"},
        {"<sip:h>;reason=\"Busy\"", "<sip:h>;reason=busy", "without quotes where it is one"},
        {"<sip:h>;reason=\"\u00C9\\\"\"", "<sip:h>;reason=\"\u00E9\\\"\"", "lower case beyond US-ASCII, and escapes"},
        {"<sip:h>;reason=\"\";privacy=\"\";screen=\"\"", "<sip:h>;reason=\"\";privacy=\"\";screen=\"\"", "empty texts"},
        {"<sip:h>;reason=\"\\\"A\\\"\"", "<sip:h>;reason=\"a\"", "a text in quotes is written as it is"},
        {"<sip:h>;privacy=\"A b\";screen=\"C d\"", "<sip:h>;privacy=\"a b\";screen=\"c d\"", ""},
        {"<sip:h>;counter=99;limit=99", "<sip:h>;counter=99;limit=99", "the highest numbers"},
        {"<sip:h>;counter=x;limit=\"1\"", "<sip:h>;counter=x;limit=\"1\"", "generic parameters"},
        {"<sip:h>;counter;limit;reason;privacy;screen", "<sip:h>;counter;limit;reason;privacy;screen",
         "generic parameters"},
        {"<sip:h>;reason=[::1]", "<sip:h>;reason=[::1]", "a generic parameter"},
        {"<sip:h>;reason=a;reason=b;counter=1;counter=2", "<sip:h>;reason=b;counter=2", "the last one counts"},
        {"<sip:h>;reason=[::1];reason=a", "<sip:h>;reason=a", "the member wins"},
        {"<sip:h>;reasons=1;counters=1", "<sip:h>;reasons=1;counters=1", "other names"},
    });
}

TEST(QuillDiversion, KeepsWhatItReads) {
    auto const diversion =
        decode<Diversion>("A B <sip:%c3%a9>;reason=\"No \\Answer\";counter=1;limit=2;privacy=FULL;screen=\"Y\";z");
    EXPECT_EQ(taken(quillDiversionIri(diversion.get())), "sip:\u00E9");
    EXPECT_EQ(taken(quillDiversionDisplayName(diversion.get())), "A B");
    EXPECT_EQ(taken(quillDiversionReason(diversion.get())), "no answer") << "without quotes";
    EXPECT_EQ(quillDiversionCounter(diversion.get()), 1);
    EXPECT_EQ(quillDiversionLimit(diversion.get()), 2);
    EXPECT_EQ(taken(quillDiversionPrivacy(diversion.get())), "full");
    EXPECT_EQ(taken(quillDiversionScreen(diversion.get())), "y");
    EXPECT_EQ(text(quillDiversionGenericParams(diversion.get())), ";z");
    for (auto has : {quillDiversionHasDisplayName, quillDiversionHasReason, quillDiversionHasCounter,
                     quillDiversionHasLimit, quillDiversionHasPrivacy, quillDiversionHasScreen})
        EXPECT_TRUE(has(diversion.get()));
}

TEST(QuillDiversion, Refuses) {
    expectRefused<Diversion>({
        {"", "nothing"},
        {"<sip:h>;counter=100", "two digits are taken"},
        {"<sip:h>;limit=1x", "the digits are taken"},
        {"<sip:h>;reason=a\"b\"", "the token is taken"},
        {"<sip:h>;reason=\"a\"b", "the quoted string is taken"},
        {"<sip:h>;reason=\"a", "an open quote"},
        {"<sip:h>;reason=", "no value"},
        {"<sip:h>;", "a semicolon at the end"},
        {"<sip:h", "an open bracket"},
        {"A sip:h", "a display name without brackets"},
        {"<sip:h>,<sip:g>", "two of them"},
    });
}

TEST(QuillDiversion, ChangesInPlaceOrOnACopy) {
    std::vector<Change<Diversion>> const changes{
        {"IRI", [](Diversion **diversion) { quillDiversionSetIri(diversion, str("sip:g")); }, "\"A\" <sip:g>;x"},
        {"display name", [](Diversion **diversion) { quillDiversionSetDisplayName(diversion, str("B")); },
         "\"B\" <sip:h>;x"},
        {"no display name", quillDiversionDelDisplayName, "<sip:h>;x"},
        {"reason", [](Diversion **diversion) { quillDiversionSetReason(diversion, str("Away")); },
         "\"A\" <sip:h>;reason=away;x"},
        {"quoted reason", [](Diversion **diversion) { quillDiversionSetReason(diversion, str("\"A\u00C9 \\\"\"")); },
         "\"A\" <sip:h>;reason=\"a\u00E9 \\\"\";x"},
        {"no reason", quillDiversionDelReason, "\"A\" <sip:h>;x"},
        {"counter", [](Diversion **diversion) { quillDiversionSetCounter(diversion, 99); },
         "\"A\" <sip:h>;counter=99;x"},
        {"no counter", quillDiversionDelCounter, "\"A\" <sip:h>;x"},
        {"limit", [](Diversion **diversion) { quillDiversionSetLimit(diversion, 0); }, "\"A\" <sip:h>;limit=0;x"},
        {"no limit", quillDiversionDelLimit, "\"A\" <sip:h>;x"},
        {"privacy", [](Diversion **diversion) { quillDiversionSetPrivacy(diversion, str("URI")); },
         "\"A\" <sip:h>;privacy=uri;x"},
        {"no privacy", quillDiversionDelPrivacy, "\"A\" <sip:h>;x"},
        {"screen", [](Diversion **diversion) { quillDiversionSetScreen(diversion, str("\"Y N\"")); },
         "\"A\" <sip:h>;screen=\"y n\";x"},
        {"no screen", quillDiversionDelScreen, "\"A\" <sip:h>;x"},
        {"parameters", [](Diversion **diversion) { quillDiversionSetGenericParams(diversion, params(";y").get()); },
         "\"A\" <sip:h>;y"},
    };
    expectChanges("A <sip:h>;x", changes);
    std::vector<Change<Diversion>> const deletions{
        {"reason", quillDiversionDelReason, "\"A\" <sip:h>;counter=1;limit=2;privacy=full;screen=yes;x=1"},
        {"counter", quillDiversionDelCounter, "\"A\" <sip:h>;reason=user-busy;limit=2;privacy=full;screen=yes;x=1"},
        {"limit", quillDiversionDelLimit, "\"A\" <sip:h>;reason=user-busy;counter=1;privacy=full;screen=yes;x=1"},
        {"privacy", quillDiversionDelPrivacy, "\"A\" <sip:h>;reason=user-busy;counter=1;limit=2;screen=yes;x=1"},
        {"screen", quillDiversionDelScreen, "\"A\" <sip:h>;reason=user-busy;counter=1;limit=2;privacy=full;x=1"},
    };
    expectChanges(whole, deletions);
}

TEST(QuillDiversion, AMemberWinsOverAParameterOfItsName) {
    auto diversion = decode<Diversion>("<sip:h>");
    char const generic[] = ";y;reason=[::1];counter=x;limit=x;privacy=[::1];screen=[::1];z";
    quillDiversionSetGenericParams(diversion.address(), params(generic).get());
    EXPECT_EQ(text(diversion), std::string("<sip:h>") + generic);
    quillDiversionSetLimit(diversion.address(), 1);
    EXPECT_EQ(text(diversion), "<sip:h>;limit=1;y;reason=[::1];counter=x;privacy=[::1];screen=[::1];z");
    quillDiversionSetReason(diversion.address(), str("a"));
    quillDiversionSetCounter(diversion.address(), 2);
    quillDiversionSetPrivacy(diversion.address(), str("b"));
    quillDiversionSetScreen(diversion.address(), str("c"));
    EXPECT_EQ(text(diversion), "<sip:h>;reason=a;counter=2;limit=1;privacy=b;screen=c;y;z");
}

TEST(QuillDiversion, Compares) {
    expectAscending<Diversion>({
        "Z <sip:a>;reason=z",
        "<sip:b>;reason=z",
        "A <sip:b>;counter=9;limit=9;privacy=z;screen=z;z",
        "A <sip:b>;reason=a;limit=9;privacy=z;screen=z;z",
        "A <sip:b>;reason=a;counter=0;privacy=z;screen=z;z",
        "A <sip:b>;reason=a;counter=0;limit=0;screen=z;z",
        "A <sip:b>;reason=a;counter=0;limit=0;privacy=a;z",
        "A <sip:b>;reason=a;counter=0;limit=0;privacy=a;screen=a",
        "A <sip:b>;reason=a;counter=0;limit=0;privacy=a;screen=a;a",
        "A <sip:b>;reason=a;counter=0;limit=0;privacy=a;screen=b",
        "A <sip:b>;reason=a;counter=0;limit=0;privacy=b",
        "A <sip:b>;reason=a;counter=0;limit=1",
        "A <sip:b>;reason=a;counter=1",
        "A <sip:b>;reason=b",
        "B <sip:b>",
        "<sip:c>",
    });
    EXPECT_TRUE(areEqual<Diversion>("sip:b;reason=\"BUSY\"", "<sip:b>;Reason=busy"));
}

TEST(QuillDiversion, Asserts) {
    constexpr auto &unit = ValueFunctions<Diversion>::unit;
    auto const diversion = decode<Diversion>("sip:h");
    Preconditions<Diversion> const preconditions{"diversion"};
    preconditions.ofSort(diversion.get());
    preconditions.ofAll(quillDiversionIri, quillDiversionDisplayName, quillDiversionHasDisplayName,
                        quillDiversionDelDisplayName, quillDiversionReason, quillDiversionHasReason,
                        quillDiversionDelReason, quillDiversionCounter, quillDiversionHasCounter,
                        quillDiversionDelCounter, quillDiversionLimit, quillDiversionHasLimit, quillDiversionDelLimit,
                        quillDiversionPrivacy, quillDiversionHasPrivacy, quillDiversionDelPrivacy, quillDiversionScreen,
                        quillDiversionHasScreen, quillDiversionDelScreen, quillDiversionGenericParams);
    Str const iri = str("sip:g"), token = str("a"), blank = str("a b"), lineEnd = str("\n"), empty = str("");
    preconditions.ofSetter(quillDiversionSetIri, iri, diversion.get(), {blank}, "quillIriOk( iri )");
    preconditions.ofSetter(quillDiversionSetDisplayName, blank, diversion.get(), {lineEnd},
                           "quillDisplayNameOk( displayName )");
    preconditions.ofSetter(quillDiversionSetReason, token, diversion.get(), {blank, empty},
                           "quillDiversionReasonOk( reason )");
    preconditions.ofSetter(quillDiversionSetCounter, 1, diversion.get(), {-1, 100},
                           "quillDiversionCounterOk( counter )");
    preconditions.ofSetter(quillDiversionSetLimit, 1, diversion.get(), {-1, 100}, "quillDiversionLimitOk( limit )");
    preconditions.ofSetter(quillDiversionSetPrivacy, token, diversion.get(), {blank, empty},
                           "quillDiversionPrivacyOk( privacy )");
    preconditions.ofSetter(quillDiversionSetScreen, token, diversion.get(), {blank, empty},
                           "quillDiversionScreenOk( screen )");
    preconditions.ofSetter(quillDiversionSetGenericParams, params("").get(), diversion.get(), {nullptr},
                           "genericParams");
    EXPECT_ABORT(quillDiversionCreate(blank), unit, "quillIriOk( iri )");
}

} // namespace
