#include "values.hpp"

using namespace test;

namespace {

using Encoding = struct quillAcceptEncoding;

TEST(QuillAcceptEncoding, Creates) {
    auto const any = own(quillAcceptEncodingCreate());
    EXPECT_EQ(quillAcceptEncodingContentCoding(any.get()), nullptr);
    EXPECT_FALSE(quillAcceptEncodingHasContentCoding(any.get()));
    EXPECT_EQ(quillAcceptEncodingQvalue(any.get()), -1);
    EXPECT_FALSE(quillAcceptEncodingHasQvalue(any.get()));
    EXPECT_EQ(text(quillAcceptEncodingGenericParams(any.get())), "");
    EXPECT_EQ(text(any), "*");
    auto const gzip = own(quillAcceptEncodingCreateWithContentCoding(str("GZip")));
    EXPECT_EQ(taken(quillAcceptEncodingContentCoding(gzip.get())), "gzip");
    EXPECT_TRUE(quillAcceptEncodingHasContentCoding(gzip.get()));
    EXPECT_EQ(text(gzip), "gzip");
}

TEST(QuillAcceptEncoding, DecodesAndEncodes) {
    expectCoded<Encoding>({
        {"*", "*", "the wildcard"},
        {"*;q=0", "*;q=0.000", ""},
        {"**", "**", "a coding"},
        {"*x", "*x", "a coding"},
        {"gzip;q=0.5", "gzip;q=0.500", ""},
        {"GZip;Q=1", "gzip;q=1.000", "letter case"},
        {"gzip ; a = B ; q = 0.25", "gzip;q=0.250;a=B", "blanks; the q-value comes first"},
        {"gzip;quux=1", "gzip;quux=1", "another name"},
        {"gzip;q=2", "gzip;q=2", "a generic parameter"},
        {"gzip;q;a", "gzip;q;a", "a generic parameter"},
        {"gzip;q=2;q=1", "gzip;q=1.000", "the member wins"},
        {"gzip;q=1;q=0.1;a;A=1", "gzip;q=0.100;a=1", "the last one counts"},
        {"gzip;a=\"\u00E9\"", "gzip;a=\"\u00E9\"", "UTF-8"},
    });
    EXPECT_FALSE(quillAcceptEncodingHasContentCoding(decode<Encoding>("*;q=1").get()));
    auto const gzip = decode<Encoding>("GZIP;Q=0.5;a");
    EXPECT_EQ(taken(quillAcceptEncodingContentCoding(gzip.get())), "gzip");
    EXPECT_EQ(quillAcceptEncodingQvalue(gzip.get()), 500);
    EXPECT_TRUE(quillAcceptEncodingHasQvalue(gzip.get()));
    EXPECT_EQ(text(quillAcceptEncodingGenericParams(gzip.get())), ";a");
}

TEST(QuillAcceptEncoding, Refuses) {
    expectRefused<Encoding>({
        {"", "nothing"},
        {";q=1", "no coding"},
        {"\"gzip\"", "no token"},
        {" gzip", "a blank in front"},
        {"gzip ", "a blank behind"},
        {"* ;", "a semicolon at the end"},
        {"gzip;q=1.5", "1. is taken"},
        {"gzip;q=", "no value"},
        {"gzip q=1", "no semicolon"},
        {"gzip,*", "two of them"},
        {"\u00E9", "not ASCII"},
    });
}

TEST(QuillAcceptEncoding, ChangesInPlaceOrOnACopy) {
    std::vector<Change<Encoding>> const changes{
        {"coding", [](Encoding **encoding) { quillAcceptEncodingSetContentCoding(encoding, str("Identity")); },
         "identity;q=1.000;a"},
        {"no coding", quillAcceptEncodingDelContentCoding, "*;q=1.000;a"},
        {"q-value", [](Encoding **encoding) { quillAcceptEncodingSetQvalue(encoding, 0); }, "gzip;q=0.000;a"},
        {"no q-value", quillAcceptEncodingDelQvalue, "gzip;a"},
        {"parameters", [](Encoding **encoding) { quillAcceptEncodingSetGenericParams(encoding, params(";b").get()); },
         "gzip;q=1.000;b"},
    };
    expectChanges("gzip;q=1;a", changes);
    expectChanges<Encoding>(
        "*", {{"no coding", quillAcceptEncodingDelContentCoding, "*"}, {"no q", quillAcceptEncodingDelQvalue, "*"}});
}

TEST(QuillAcceptEncoding, AMemberWinsOverAParameterOfItsName) {
    auto encoding = decode<Encoding>("gzip;q=2;a");
    EXPECT_EQ(text(encoding), "gzip;q=2;a");
    quillAcceptEncodingSetQvalue(encoding.address(), 1);
    EXPECT_EQ(text(encoding), "gzip;q=0.001;a");
    EXPECT_EQ(text(quillAcceptEncodingGenericParams(encoding.get())), ";q=2;a");
}

TEST(QuillAcceptEncoding, ComparesCodingQvalueParameters) {
    expectAscending<Encoding>({"*;z", "*;q=1", "a;z", "a;q=0;z", "a;q=0.001", "a;q=0.001;a", "a;q=1", "b"});
    EXPECT_TRUE(areEqual<Encoding>("GZIP;q=1;x=Y", "gzip;X=y;Q=1.000"));
}

TEST(QuillAcceptEncoding, Asserts) {
    constexpr auto &unit = ValueFunctions<Encoding>::unit;
    auto const encoding = decode<Encoding>("gzip");
    Preconditions<Encoding> const preconditions{"acceptEncoding"};
    preconditions.ofSort(encoding.get());
    preconditions.ofAll(quillAcceptEncodingContentCoding, quillAcceptEncodingHasContentCoding,
                        quillAcceptEncodingDelContentCoding, quillAcceptEncodingQvalue, quillAcceptEncodingHasQvalue,
                        quillAcceptEncodingDelQvalue, quillAcceptEncodingGenericParams);
    Str const token = str("a"), blank = str("a b"), empty = str("");
    preconditions.ofSetter(quillAcceptEncodingSetContentCoding, token, encoding.get(), {blank, empty},
                           "quillContentCodingOk( contentCoding )");
    preconditions.ofSetter(quillAcceptEncodingSetQvalue, 1, encoding.get(), {-1, 1001}, "quillQvalueOk( qvalue )");
    preconditions.ofSetter(quillAcceptEncodingSetGenericParams, params("").get(), encoding.get(), {nullptr},
                           "genericParams");
    EXPECT_ABORT(quillAcceptEncodingCreateWithContentCoding(blank), "source/quill/quill_content_coding",
                 "quillContentCodingOk( contentCoding )");
    EXPECT_ABORT(quillAcceptEncodingQvalue(nullptr), unit, "acceptEncoding");
}

} // namespace
