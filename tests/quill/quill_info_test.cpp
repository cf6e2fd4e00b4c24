#include "values.hpp"

using namespace test;

namespace {

using Info = struct quillAlertInfo;

TEST(QuillAlertInfo, CreatesWithoutParameters) {
    auto const info = own(quillAlertInfoCreate(str("http://h/\u00E9")));
    EXPECT_EQ(taken(quillAlertInfoIri(info.get())), "http://h/\u00E9");
    EXPECT_EQ(text(quillAlertInfoGenericParams(info.get())), "");
    EXPECT_EQ(text(info), "<http://h/%C3%A9>");
}

TEST(QuillAlertInfo, DecodesAndEncodes) {
    expectCoded<Info>({
        {"<http://www.example.com/a.wav>", "<http://www.example.com/a.wav>", ""},
        {"<sip:a@[::1];x?y=z>;a=B;C=\"d e\";f=[::1]", "<sip:a@[::1];x?y=z>;a=B;c=\"d e\";f=[::1]", ""},
        {" \t<sip:h> \t; A = b ;c", "<sip:h>;a=b;c", "blanks"},
        {"<sip:h> ", "<sip:h>", "a blank behind the bracket"},
        {"<sip:h>;a;b;A=1", "<sip:h>;a=1;b", "the last one counts"},
        {"<sip:%c3%a9>;a=\"\u00E9\\\\\"", "<sip:%C3%A9>;a=\"\u00E9\\\\\"", "UTF-8 and escapes"},
    });
    auto const info = decode<Info>("<sip:%c3%a9>;A=b");
    EXPECT_EQ(taken(quillAlertInfoIri(info.get())), "sip:\u00E9");
    EXPECT_EQ(text(quillAlertInfoGenericParams(info.get())), ";a=b");
}

TEST(QuillAlertInfo, Refuses) {
    expectRefused<Info>({
        {"", "nothing"},
        {"sip:h", "no brackets"},
        {"<>", "no URI"},
        {"<h>", "no scheme"},
        {"<sip:h", "an open bracket"},
        {"\"A\" <sip:h>", "a display name"},
        {"<sip:%zz>", "no escape"},
        {"<sip:h>;", "a semicolon at the end"},
        {"<sip:h>;a;", "a semicolon at the end"},
        {"<sip:h>;a=", "no value"},
        {"<sip:h>a", "no semicolon"},
        {"<sip:h>;a b", "something behind"},
        {"<sip:h>;a ", "a blank behind"},
        {"<sip:h>;a=\"b", "an open quote"},
        {"<sip:h>;a=[::g]", "no host"},
        {"<sip:h>,<sip:g>", "two of them"},
    });
}

TEST(QuillAlertInfo, ChangesInPlaceOrOnACopy) {
    std::vector<Change<Info>> const changes{
        {"IRI", [](Info **info) { quillAlertInfoSetIri(info, str("sip:g")); }, "<sip:g>;a"},
        {"parameters", [](Info **info) { quillAlertInfoSetGenericParams(info, params(";b=1").get()); }, "<sip:h>;b=1"},
    };
    expectChanges("<sip:h>;a", changes);
}

TEST(QuillAlertInfo, Compares) {
    expectAscending<Info>({"<sip:a>;z", "<sip:b>", "<sip:b>;a", "<sip:b>;a=1", "<sip:b>;b", "<sip:c>"});
    EXPECT_TRUE(areEqual<Info>("<sip:b>;a=B;c", "<sip:b> ; C ; A = b"));
}

TEST(QuillAlertInfo, Asserts) {
    constexpr auto &unit = ValueFunctions<Info>::unit;
    auto const info = decode<Info>("<sip:h>");
    Preconditions<Info> const preconditions{"alertInfo"};
    preconditions.ofSort(info.get());
    preconditions.ofAll(quillAlertInfoIri, quillAlertInfoGenericParams);
    Str const iri = str("sip:g"), blank = str("a b");
    preconditions.ofSetter(quillAlertInfoSetIri, iri, info.get(), {blank}, "quillIriOk( iri )");
    preconditions.ofSetter(quillAlertInfoSetGenericParams, params("").get(), info.get(), {nullptr}, "genericParams");
    EXPECT_ABORT(quillAlertInfoCreate(blank), unit, "quillIriOk( iri )");
}

} // namespace
