#include "values.hpp"

using namespace test;

namespace {

// Alert-Info and Error-Info, which differ in their names alone.
#define INFO(Type, name)                                                                                               \
    struct Type {                                                                                                      \
        using Info = struct quill##Type;                                                                               \
        static constexpr auto *create = quill##Type##Create;                                                           \
        static constexpr auto *iri = quill##Type##Iri;                                                                 \
        static constexpr auto *setIri = quill##Type##SetIri;                                                           \
        static constexpr auto *genericParams = quill##Type##GenericParams;                                             \
        static constexpr auto *setGenericParams = quill##Type##SetGenericParams;                                       \
        static constexpr char self[] = #name;                                                                          \
    };

INFO(AlertInfo, alertInfo)
INFO(ErrorInfo, errorInfo)

template <class Type> class QuillInfos : public testing::Test {};

using Infos = testing::Types<AlertInfo, ErrorInfo>;
TYPED_TEST_SUITE(QuillInfos, Infos);

TYPED_TEST(QuillInfos, CreatesWithoutParameters) {
    auto const info = own(TypeParam::create(str("http://h/\u00E9")));
    EXPECT_EQ(taken(TypeParam::iri(info.get())), "http://h/\u00E9");
    EXPECT_EQ(text(TypeParam::genericParams(info.get())), "");
    EXPECT_EQ(text(info), "<http://h/%C3%A9>");
}

TYPED_TEST(QuillInfos, DecodesAndEncodes) {
    expectCoded<typename TypeParam::Info>({
        {"<http://www.example.com/a.wav>", "<http://www.example.com/a.wav>", ""},
        {"<sip:a@[::1];x?y=z>;a=B;C=\"d e\";f=[::1]", "<sip:a@[::1];x?y=z>;a=B;c=\"d e\";f=[::1]", ""},
        {" \t<sip:h> \t; A = b ;c", "<sip:h>;a=b;c", "blanks"},
        {"<sip:h> ", "<sip:h>", "a blank behind the bracket"},
        {"<sip:h>;a;b;A=1", "<sip:h>;a=1;b", "the last one counts"},
        {"<sip:%c3%a9>;a=\"\u00E9\\\\\"", "<sip:%C3%A9>;a=\"\u00E9\\\\\"", "UTF-8 and escapes"},
    });
    auto const info = decode<typename TypeParam::Info>("<sip:%c3%a9>;A=b");
    EXPECT_EQ(taken(TypeParam::iri(info.get())), "sip:\u00E9");
    EXPECT_EQ(text(TypeParam::genericParams(info.get())), ";a=b");
}

TYPED_TEST(QuillInfos, Refuses) {
    expectRefused<typename TypeParam::Info>({
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

TYPED_TEST(QuillInfos, ChangesInPlaceOrOnACopy) {
    std::vector<Change<typename TypeParam::Info>> const changes{
        {"IRI", [](typename TypeParam::Info **info) { TypeParam::setIri(info, str("sip:g")); }, "<sip:g>;a"},
        {"parameters", [](typename TypeParam::Info **info) { TypeParam::setGenericParams(info, params(";b=1").get()); },
         "<sip:h>;b=1"},
    };
    expectChanges("<sip:h>;a", changes);
}

TYPED_TEST(QuillInfos, Compares) {
    expectAscending<typename TypeParam::Info>(
        {"<sip:a>;z", "<sip:b>", "<sip:b>;a", "<sip:b>;a=1", "<sip:b>;b", "<sip:c>"});
    EXPECT_TRUE(areEqual<typename TypeParam::Info>("<sip:b>;a=B;c", "<sip:b> ; C ; A = b"));
}

TYPED_TEST(QuillInfos, Asserts) {
    constexpr auto &unit = ValueFunctions<typename TypeParam::Info>::unit;
    auto const info = decode<typename TypeParam::Info>("<sip:h>");
    Preconditions<typename TypeParam::Info> const preconditions{TypeParam::self};
    preconditions.ofSort(info.get());
    preconditions.ofAll(TypeParam::iri, TypeParam::genericParams);
    Str const iri = str("sip:g"), blank = str("a b");
    preconditions.ofSetter(TypeParam::setIri, iri, info.get(), {blank}, "quillIriOk( iri )");
    preconditions.ofSetter(TypeParam::setGenericParams, params("").get(), info.get(), {nullptr}, "genericParams");
    EXPECT_ABORT(TypeParam::create(blank), unit, "quillIriOk( iri )");
}

} // namespace
