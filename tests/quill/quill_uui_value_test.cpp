#include "values.hpp"

using namespace test;

namespace {

using Uui = struct quillUuiValue;

TEST(QuillUuiValue, CreatesWithoutParameters) {
    auto const uui = own(quillUuiValueCreate(str("Ab")));
    EXPECT_EQ(taken(quillUuiValueUuiData(uui.get())), "Ab") << "as given";
    for (auto get : {quillUuiValueEncoding, quillUuiValuePurpose, quillUuiValueContent})
        EXPECT_EQ(get(uui.get()), nullptr);
    for (auto has : {quillUuiValueHasEncoding, quillUuiValueHasPurpose, quillUuiValueHasContent})
        EXPECT_FALSE(has(uui.get()));
    EXPECT_EQ(text(quillUuiValueGenericParams(uui.get())), "");
    EXPECT_EQ(text(uui), "Ab");
    EXPECT_EQ(text(own(quillUuiValueCreate(str("")))), "") << "an empty text can stand in quotes";
}

TEST(QuillUuiValue, DecodesAndEncodes) {
    expectCoded<Uui>({
        {"56a390f3d2b7310023a2;purpose=isdn-uui", "56a390f3d2b7310023a2;purpose=isdn-uui", ""},
        {"A ; x ; CONTENT = C ; Purpose=P;encoding=HEX", "A;encoding=HEX;purpose=P;content=C;x",
         "order, letter case, blanks; values as given"},
        {"\"abc\"", "abc", "quoted data that is a token"},
        {" \"abc\";encoding=hex", "abc;encoding=hex", "blanks before a quoted string"},
        {"\"a b\";encoding=hex", ";encoding=hex", "data that is no token is not written"},
        {"\"\"", "", "the same"},
        {"\"\u00E9\\\"\";x=1", ";x=1", "the same"},
        {"a;encoding=\"hex\"", "a;encoding=\"hex\"", "a generic parameter"},
        {"a;purpose;content=[::1]", "a;purpose;content=[::1]", "generic parameters"},
        {"a;purpose=x;purpose=y", "a;purpose=y", "the last one counts"},
        {"a;purpose=\"x\";purpose=y", "a;purpose=y", "the member wins"},
        {"a;encodings=b", "a;encodings=b", "another name"},
    });
    auto const uui = decode<Uui>("\"a b\\\"\";Encoding=Hex;purpose=P;content=C;x");
    EXPECT_EQ(taken(quillUuiValueUuiData(uui.get())), "a b\"");
    EXPECT_EQ(taken(quillUuiValueEncoding(uui.get())), "Hex");
    EXPECT_EQ(taken(quillUuiValuePurpose(uui.get())), "P");
    EXPECT_EQ(taken(quillUuiValueContent(uui.get())), "C");
    EXPECT_EQ(text(quillUuiValueGenericParams(uui.get())), ";x");
    for (auto has : {quillUuiValueHasEncoding, quillUuiValueHasPurpose, quillUuiValueHasContent})
        EXPECT_TRUE(has(uui.get()));
}

TEST(QuillUuiValue, Refuses) {
    expectRefused<Uui>({
        {"", "nothing"},
        {";encoding=hex", "no data"},
        {" a", "a blank before a token"},
        {"a ", "a blank behind"},
        {"a;", "a semicolon at the end"},
        {"a;encoding=", "no value"},
        {"a;encoding=b c", "something behind"},
        {"\"a", "an open quote"},
        {"\"a\"b", "no semicolon"},
        {"\"a\n\"", "a line end"},
        {"a,b", "two of them"},
        {"\u00E9", "not ASCII"},
    });
}

TEST(QuillUuiValue, ChangesInPlaceOrOnACopy) {
    std::vector<Change<Uui>> const changes{
        {"data", [](Uui **uui) { quillUuiValueSetUuiData(uui, str("D")); }, "D;x"},
        {"data that is no token", [](Uui **uui) { quillUuiValueSetUuiData(uui, str("a b")); }, ";x"},
        {"encoding", [](Uui **uui) { quillUuiValueSetEncoding(uui, str("Hex")); }, "a;encoding=Hex;x"},
        {"no encoding", quillUuiValueDelEncoding, "a;x"},
        {"purpose", [](Uui **uui) { quillUuiValueSetPurpose(uui, str("P")); }, "a;purpose=P;x"},
        {"no purpose", quillUuiValueDelPurpose, "a;x"},
        {"content", [](Uui **uui) { quillUuiValueSetContent(uui, str("C")); }, "a;content=C;x"},
        {"no content", quillUuiValueDelContent, "a;x"},
        {"parameters", [](Uui **uui) { quillUuiValueSetGenericParams(uui, params(";y").get()); }, "a;y"},
    };
    expectChanges("a;x", changes);
    expectChanges<Uui>("a;encoding=e;purpose=p;content=c",
                       {{"no encoding", quillUuiValueDelEncoding, "a;purpose=p;content=c"},
                        {"no purpose", quillUuiValueDelPurpose, "a;encoding=e;content=c"},
                        {"no content", quillUuiValueDelContent, "a;encoding=e;purpose=p"}});
}

TEST(QuillUuiValue, AMemberWinsOverAParameterOfItsName) {
    auto uui = decode<Uui>("a");
    quillUuiValueSetGenericParams(uui.address(), params(";Encoding=\"x\";purpose=\"x\";content=\"x\";y").get());
    EXPECT_EQ(text(uui), "a;encoding=\"x\";purpose=\"x\";content=\"x\";y");
    quillUuiValueSetPurpose(uui.address(), str("p"));
    EXPECT_EQ(text(uui), "a;purpose=p;encoding=\"x\";content=\"x\";y");
    quillUuiValueSetEncoding(uui.address(), str("e"));
    quillUuiValueSetContent(uui.address(), str("c"));
    EXPECT_EQ(text(uui), "a;encoding=e;purpose=p;content=c;y");
}

TEST(QuillUuiValue, Compares) {
    expectAscending<Uui>({
        "A;encoding=z",
        "a;purpose=z;content=z;z",
        "a;encoding=a;content=z;z",
        "a;encoding=a;purpose=a;z",
        "a;encoding=a;purpose=a;content=a",
        "a;encoding=a;purpose=a;content=a;a",
        "a;encoding=a;purpose=a;content=b",
        "a;encoding=a;purpose=b",
        "a;encoding=b",
        "\"a b\"",
        "b",
    });
    EXPECT_TRUE(areEqual<Uui>("a;x=Y", "\"a\" ; X=y"));
    EXPECT_FALSE(areEqual<Uui>("a;encoding=hex", "a;encoding=HEX")) << "as given";
}

TEST(QuillUuiValue, HasItsNamesBetweenStartAndStop) {
    EXPECT_EQ(utf8(quill___UuiValueEncoding), "encoding");
    EXPECT_EQ(utf8(quill___UuiValuePurpose), "purpose");
    EXPECT_EQ(utf8(quill___UuiValueContent), "content");
    quill___UuiValueShutdown();
    for (coString const *name : {quill___UuiValueEncoding, quill___UuiValuePurpose, quill___UuiValueContent})
        EXPECT_EQ(reinterpret_cast<uintptr_t>(name), ~uintptr_t{0});
    quill___UuiValueStartup();
    EXPECT_EQ(utf8(quill___UuiValueEncoding), "encoding");
}

TEST(QuillUuiValue, Asserts) {
    constexpr auto &unit = ValueFunctions<Uui>::unit;
    auto const uui = decode<Uui>("a");
    Preconditions<Uui> const preconditions{"uuiValue"};
    preconditions.ofSort(uui.get());
    preconditions.ofAll(quillUuiValueUuiData, quillUuiValueEncoding, quillUuiValueHasEncoding, quillUuiValueDelEncoding,
                        quillUuiValuePurpose, quillUuiValueHasPurpose, quillUuiValueDelPurpose, quillUuiValueContent,
                        quillUuiValueHasContent, quillUuiValueDelContent, quillUuiValueGenericParams);
    Str const token = str("a"), blank = str("a b"), lineEnd = str("a\n");
    preconditions.ofSetter(quillUuiValueSetUuiData, blank, uui.get(), {lineEnd},
                           "quillTokenOk( uuiData ) || quillQuotableStringOk( uuiData )");
    preconditions.ofSetter(quillUuiValueSetEncoding, token, uui.get(), {blank}, "quillTokenOk( encoding )");
    preconditions.ofSetter(quillUuiValueSetPurpose, token, uui.get(), {blank}, "quillTokenOk( purpose )");
    preconditions.ofSetter(quillUuiValueSetContent, token, uui.get(), {blank}, "quillTokenOk( content )");
    preconditions.ofSetter(quillUuiValueSetGenericParams, params("").get(), uui.get(), {nullptr}, "genericParams");
    EXPECT_ABORT(quillUuiValueCreate(lineEnd), unit, "quillTokenOk( uuiData ) || quillQuotableStringOk( uuiData )");
}

} // namespace
