#include "values.hpp"

using namespace test;

namespace {

using CallInfo = struct quillCallInfo;

TEST(QuillCallInfo, CreatesWithoutParameters) {
    auto const info = own(quillCallInfoCreate(str("http://h/")));
    EXPECT_EQ(taken(quillCallInfoIri(info.get())), "http://h/");
    EXPECT_EQ(quillCallInfoPurpose(info.get()), nullptr);
    EXPECT_FALSE(quillCallInfoHasPurpose(info.get()));
    EXPECT_EQ(text(quillCallInfoGenericParams(info.get())), "");
    EXPECT_EQ(text(info), "<http://h/>");
}

TEST(QuillCallInfo, DecodesAndEncodes) {
    expectCoded<CallInfo>({
        {"<http://h/a.jpg> ;purpose=icon", "<http://h/a.jpg>;purpose=icon", ""},
        {"<http://h/>;Purpose=icon", "<http://h/>;purpose=icon", "the name in any letter case"},
        {"<http://h/>;purpose=ICON", "<http://h/>;purpose=icon", "the purpose in lower case"},
        {" <http://h/> ; a = B ; purpose = card ; c", "<http://h/>;purpose=card;a=B;c", "the purpose comes first"},
        {"<http://h/>;purpose=a;purpose=b", "<http://h/>;purpose=b", "the last one counts"},
        {"<http://h/>;purpose=\"icon\"", "<http://h/>;purpose=\"icon\"", "a generic parameter"},
        {"<http://h/>;purpose;a", "<http://h/>;purpose;a", "a generic parameter"},
        {"<http://h/>;purpose=[::1];purpose=icon", "<http://h/>;purpose=icon", "the member wins"},
        {"<http://h/>;purposes=a", "<http://h/>;purposes=a", "another name"},
        {"<sip:%c3%a9>;a=\"\u00E9\"", "<sip:%C3%A9>;a=\"\u00E9\"", "UTF-8"},
    });
    auto const info = decode<CallInfo>("<sip:%c3%a9>;Purpose=Card;b");
    EXPECT_EQ(taken(quillCallInfoIri(info.get())), "sip:\u00E9");
    EXPECT_EQ(taken(quillCallInfoPurpose(info.get())), "card");
    EXPECT_TRUE(quillCallInfoHasPurpose(info.get()));
    EXPECT_EQ(text(quillCallInfoGenericParams(info.get())), ";b");
}

TEST(QuillCallInfo, Refuses) {
    expectRefused<CallInfo>({
        {"", "nothing"},
        {"http://h/;purpose=icon", "no brackets"},
        {"\"A\" <http://h/>", "a display name"},
        {"<>", "no URI"},
        {"<http://h/", "an open bracket"},
        {"<http://h/>;", "a semicolon at the end"},
        {"<http://h/>;purpose=", "no value"},
        {"<http://h/>;purpose=a b", "something behind"},
        {"<http://h/>purpose=icon", "no semicolon"},
        {"<http://h/>,<http://g/>", "two of them"},
    });
}

TEST(QuillCallInfo, ChangesInPlaceOrOnACopy) {
    std::vector<Change<CallInfo>> const changes{
        {"IRI", [](CallInfo **info) { quillCallInfoSetIri(info, str("sip:g")); }, "<sip:g>;purpose=icon;a"},
        {"purpose", [](CallInfo **info) { quillCallInfoSetPurpose(info, str("CARD")); }, "<sip:h>;purpose=card;a"},
        {"no purpose", quillCallInfoDelPurpose, "<sip:h>;a"},
        {"parameters", [](CallInfo **info) { quillCallInfoSetGenericParams(info, params(";b").get()); },
         "<sip:h>;purpose=icon;b"},
    };
    expectChanges("<sip:h>;purpose=icon;a", changes);
    expectChanges<CallInfo>("<sip:h>", {{"no purpose", quillCallInfoDelPurpose, "<sip:h>"}});
}

TEST(QuillCallInfo, AMemberWinsOverAParameterOfItsName) {
    auto info = decode<CallInfo>("<sip:h>");
    quillCallInfoSetGenericParams(info.address(), params(";a;Purpose=x;b").get());
    EXPECT_EQ(text(info), "<sip:h>;a;purpose=x;b");
    quillCallInfoSetPurpose(info.address(), str("icon"));
    EXPECT_EQ(text(info), "<sip:h>;purpose=icon;a;b");
}

TEST(QuillCallInfo, Compares) {
    expectAscending<CallInfo>(
        {"<sip:a>;purpose=z", "<sip:b>;z", "<sip:b>;purpose=a", "<sip:b>;purpose=a;a", "<sip:b>;purpose=b", "<sip:c>"});
    EXPECT_TRUE(areEqual<CallInfo>("<sip:b>;purpose=ICON;x=Y", "<sip:b>;x=y;Purpose=icon"));
}

TEST(QuillCallInfo, Asserts) {
    constexpr auto &unit = ValueFunctions<CallInfo>::unit;
    auto const info = decode<CallInfo>("<sip:h>");
    Preconditions<CallInfo> const preconditions{"callInfo"};
    preconditions.ofSort(info.get());
    preconditions.ofAll(quillCallInfoIri, quillCallInfoPurpose, quillCallInfoHasPurpose, quillCallInfoDelPurpose,
                        quillCallInfoGenericParams);
    Str const iri = str("sip:g"), blank = str("a b"), one = str("1");
    preconditions.ofSetter(quillCallInfoSetIri, iri, info.get(), {blank}, "quillIriOk( iri )");
    preconditions.ofSetter(quillCallInfoSetPurpose, one, info.get(), {blank}, "quillPurposeOk( purpose )");
    preconditions.ofSetter(quillCallInfoSetGenericParams, params("").get(), info.get(), {nullptr}, "genericParams");
    EXPECT_ABORT(quillCallInfoCreate(blank), unit, "quillIriOk( iri )");
}

} // namespace
