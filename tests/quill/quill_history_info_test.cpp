#include "values.hpp"

using namespace test;

namespace {

using History = struct quillHistoryInfo;

constexpr char whole[] = "\"A\" <sip:h>;index=1.1.2;rc=1;mp=1.0;np=2;x=1";

TEST(QuillHistoryInfo, CreatesWithAnIndex) {
    auto const history = own(quillHistoryInfoCreate(str("tel:1"), str("1.1")));
    EXPECT_EQ(taken(quillHistoryInfoIri(history.get())), "tel:1");
    EXPECT_EQ(taken(quillHistoryInfoIndex(history.get())), "1.1");
    for (auto get : {quillHistoryInfoDisplayName, quillHistoryInfoRc, quillHistoryInfoMp, quillHistoryInfoNp})
        EXPECT_EQ(get(history.get()), nullptr);
    for (auto has :
         {quillHistoryInfoHasDisplayName, quillHistoryInfoHasRc, quillHistoryInfoHasMp, quillHistoryInfoHasNp})
        EXPECT_FALSE(has(history.get()));
    EXPECT_EQ(text(quillHistoryInfoGenericParams(history.get())), "");
    EXPECT_EQ(text(history), "<tel:1>;index=1.1");
}

TEST(QuillHistoryInfo, DecodesAndEncodes) {
    expectCoded<History>({
        {whole, whole, "everything, in the order in which it is written"},
        {"<sip:h?Reason=SIP%3Bcause%3D302>;index=1", "<sip:h?Reason=SIP%3Bcause%3D302>;index=1", ""},
        {"<sip:h> ; x ; NP = 1 ; Mp=2;rC=3;INDEX=0", "<sip:h>;index=0;rc=3;mp=2;np=1;x", "order, case, blanks"},
        {"<sip:h>;index=1;index=2;rc=1;rc=2", "<sip:h>;index=2;rc=2", "the last one counts"},
        {"<sip:h>;index=x;index=1", "<sip:h>;index=1", "the member wins"},
        {"<sip:h>;index=1;index=x", "<sip:h>;index=1", "the member wins"},
        {"<sip:h>;index=1;rc=x;mp;np=\"1\"", "<sip:h>;index=1;rc=x;mp;np=\"1\"", "generic parameters"},
        {"A B<sip:h>;index=1", "\"A B\" <sip:h>;index=1", ""},
        {"<sip:%c3%a9>;index=10.20.30", "<sip:%C3%A9>;index=10.20.30", ""},
    });
    auto const history = decode<History>(whole);
    EXPECT_EQ(taken(quillHistoryInfoIri(history.get())), "sip:h");
    EXPECT_EQ(taken(quillHistoryInfoDisplayName(history.get())), "A");
    EXPECT_EQ(taken(quillHistoryInfoIndex(history.get())), "1.1.2");
    EXPECT_EQ(taken(quillHistoryInfoRc(history.get())), "1");
    EXPECT_EQ(taken(quillHistoryInfoMp(history.get())), "1.0");
    EXPECT_EQ(taken(quillHistoryInfoNp(history.get())), "2");
    EXPECT_EQ(text(quillHistoryInfoGenericParams(history.get())), ";x=1");
    for (auto has :
         {quillHistoryInfoHasDisplayName, quillHistoryInfoHasRc, quillHistoryInfoHasMp, quillHistoryInfoHasNp})
        EXPECT_TRUE(has(history.get()));
}

TEST(QuillHistoryInfo, Refuses) {
    expectRefused<History>({
        {"", "nothing"},
        {"<sip:h>", "no index"},
        {"<sip:h>;x", "no index"},
        {"<sip:h>;index", "no index"},
        {"<sip:h>;index=01", "no valid index"},
        {"<sip:h>;index=a", "no valid index"},
        {"<sip:h>;index=\"1\"", "no valid index"},
        {"<sip:h>;indexes=1", "another name"},
        {"<sip:h>;index=1x", "the index is taken"},
        {"<sip:h>;index=1.", "a dot without a number makes it generic"},
        {"sip:h;index=1", "a bare address"},
        {"A sip:h;index=1", "a display name without brackets"},
        {"<sip:h>;index=1;", "a semicolon at the end"},
        {"<sip:h>;index=1,<sip:h>;index=2", "two of them"},
    });
}

TEST(QuillHistoryInfo, ChangesInPlaceOrOnACopy) {
    std::vector<Change<History>> const changes{
        {"IRI", [](History **history) { quillHistoryInfoSetIri(history, str("sip:g")); }, "\"A\" <sip:g>;index=1;x"},
        {"display name", [](History **history) { quillHistoryInfoSetDisplayName(history, str("B")); },
         "\"B\" <sip:h>;index=1;x"},
        {"no display name", quillHistoryInfoDelDisplayName, "<sip:h>;index=1;x"},
        {"index", [](History **history) { quillHistoryInfoSetIndex(history, str("0.0")); },
         "\"A\" <sip:h>;index=0.0;x"},
        {"rc", [](History **history) { quillHistoryInfoSetRc(history, str("2")); }, "\"A\" <sip:h>;index=1;rc=2;x"},
        {"no rc", quillHistoryInfoDelRc, "\"A\" <sip:h>;index=1;x"},
        {"mp", [](History **history) { quillHistoryInfoSetMp(history, str("2")); }, "\"A\" <sip:h>;index=1;mp=2;x"},
        {"no mp", quillHistoryInfoDelMp, "\"A\" <sip:h>;index=1;x"},
        {"np", [](History **history) { quillHistoryInfoSetNp(history, str("2")); }, "\"A\" <sip:h>;index=1;np=2;x"},
        {"no np", quillHistoryInfoDelNp, "\"A\" <sip:h>;index=1;x"},
        {"parameters", [](History **history) { quillHistoryInfoSetGenericParams(history, params(";y").get()); },
         "\"A\" <sip:h>;index=1;y"},
    };
    expectChanges("A <sip:h>;index=1;x", changes);
    expectChanges<History>(whole, {{"rc", quillHistoryInfoDelRc, "\"A\" <sip:h>;index=1.1.2;mp=1.0;np=2;x=1"},
                                   {"mp", quillHistoryInfoDelMp, "\"A\" <sip:h>;index=1.1.2;rc=1;np=2;x=1"},
                                   {"np", quillHistoryInfoDelNp, "\"A\" <sip:h>;index=1.1.2;rc=1;mp=1.0;x=1"}});
}

TEST(QuillHistoryInfo, AMemberWinsOverAParameterOfItsName) {
    auto history = decode<History>("<sip:h>;index=1");
    quillHistoryInfoSetGenericParams(history.address(), params(";y;index=x;rc=x;mp=x;np=x").get());
    EXPECT_EQ(text(history), "<sip:h>;index=1;y;rc=x;mp=x;np=x");
    quillHistoryInfoSetMp(history.address(), str("1"));
    EXPECT_EQ(text(history), "<sip:h>;index=1;mp=1;y;rc=x;np=x");
    quillHistoryInfoSetRc(history.address(), str("2"));
    quillHistoryInfoSetNp(history.address(), str("3"));
    EXPECT_EQ(text(history), "<sip:h>;index=1;rc=2;mp=1;np=3;y");
}

TEST(QuillHistoryInfo, Compares) {
    expectAscending<History>({
        "Z <sip:a>;index=9",
        "<sip:b>;index=9",
        "A <sip:b>;index=0;rc=9",
        "A <sip:b>;index=1;mp=9;np=9;z",
        "A <sip:b>;index=1;rc=1;np=9;z",
        "A <sip:b>;index=1;rc=1;mp=1;z",
        "A <sip:b>;index=1;rc=1;mp=1;np=1",
        "A <sip:b>;index=1;rc=1;mp=1;np=1;a",
        "A <sip:b>;index=1;rc=1;mp=1;np=2",
        "A <sip:b>;index=1;rc=1;mp=2",
        "A <sip:b>;index=1;rc=2",
        "A <sip:b>;index=10",
        "A <sip:b>;index=2",
        "B <sip:b>;index=1",
        "<sip:c>;index=1",
    });
    EXPECT_TRUE(areEqual<History>("A<sip:b>;index=1;X=Y;rc=2", "\"A\" <sip:b>;rc=2;x=y;INDEX=1"));
}

TEST(QuillHistoryInfo, Asserts) {
    constexpr auto &unit = ValueFunctions<History>::unit;
    auto const history = decode<History>("<sip:h>;index=1");
    Preconditions<History> const preconditions{"historyInfo"};
    preconditions.ofSort(history.get());
    preconditions.ofAll(quillHistoryInfoIri, quillHistoryInfoDisplayName, quillHistoryInfoHasDisplayName,
                        quillHistoryInfoDelDisplayName, quillHistoryInfoIndex, quillHistoryInfoRc,
                        quillHistoryInfoHasRc, quillHistoryInfoDelRc, quillHistoryInfoMp, quillHistoryInfoHasMp,
                        quillHistoryInfoDelMp, quillHistoryInfoNp, quillHistoryInfoHasNp, quillHistoryInfoDelNp,
                        quillHistoryInfoGenericParams);
    Str const iri = str("sip:g"), one = str("1"), blank = str("a b"), lineEnd = str("\n");
    preconditions.ofSetter(quillHistoryInfoSetIri, iri, history.get(), {blank}, "quillIriOk( iri )");
    preconditions.ofSetter(quillHistoryInfoSetDisplayName, blank, history.get(), {lineEnd},
                           "quillDisplayNameOk( displayName )");
    preconditions.ofSetter(quillHistoryInfoSetIndex, one, history.get(), {blank}, "quillHistoryInfoIndexOk( index )");
    preconditions.ofSetter(quillHistoryInfoSetRc, one, history.get(), {blank}, "quillHistoryInfoIndexOk( rc )");
    preconditions.ofSetter(quillHistoryInfoSetMp, one, history.get(), {blank}, "quillHistoryInfoIndexOk( mp )");
    preconditions.ofSetter(quillHistoryInfoSetNp, one, history.get(), {blank}, "quillHistoryInfoIndexOk( np )");
    preconditions.ofSetter(quillHistoryInfoSetGenericParams, params("").get(), history.get(), {nullptr},
                           "genericParams");
    EXPECT_ABORT(quillHistoryInfoCreate(blank, one), unit, "quillIriOk( iri )");
    EXPECT_ABORT(quillHistoryInfoCreate(iri, blank), unit, "quillHistoryInfoIndexOk( index )");
}

} // namespace
