#include "values.hpp"

using namespace test;

namespace {

using Reason = struct quillReason;

TEST(QuillReason, CreatesWithoutParameters) {
    auto const reason = own(quillReasonCreate(str("Sip")));
    EXPECT_EQ(taken(quillReasonProtocol(reason.get())), "Sip") << "as given";
    EXPECT_EQ(quillReasonCause(reason.get()), nullptr);
    EXPECT_EQ(quillReasonText(reason.get()), nullptr);
    EXPECT_FALSE(quillReasonHasCause(reason.get()) || quillReasonHasText(reason.get()));
    EXPECT_EQ(text(quillReasonGenericParams(reason.get())), "");
    EXPECT_EQ(text(reason), "Sip");
}

TEST(QuillReason, DecodesAndEncodes) {
    expectCoded<Reason>({
        {"Q.850;cause=16;text=\"Terminated\"", "Q.850;cause=16;text=\"Terminated\"", ""},
        {"SIP ;cause=200 ;text=\"Call completed elsewhere\"", "SIP;cause=200;text=\"Call completed elsewhere\"", ""},
        {"q.850 ; x ; TEXT = \"a\\b\" ; Cause = 016", "q.850;cause=016;text=\"ab\";x", "order, case, blanks, zeros"},
        {"SIP;cause=99999999999999999999", "SIP;cause=99999999999999999999", "digits are kept as text"},
        {"SIP;cause=abc", "SIP;cause=abc", "a generic parameter"},
        {"SIP;cause", "SIP;cause", "a generic parameter"},
        {"SIP;cause=\"1\";text=a", "SIP;cause=\"1\";text=a", "generic parameters"},
        {"SIP;cause=abc;cause=1", "SIP;cause=1", "the member wins"},
        {"SIP;cause=1;cause=2;text=\"a\";text=\"b\"", "SIP;cause=2;text=\"b\"", "the last one counts"},
        {"SIP;text=\"\"", "SIP;text=\"\"", "an empty text is one"},
        {"SIP;text=\"\u00E9\\\"\\\\\"", "SIP;text=\"\u00E9\\\"\\\\\"", "UTF-8 and escapes"},
        {"SIP;text=\"a  b\"", "SIP;text=\"a \\ b\"", "two blanks are kept apart"},
        {"SIP;causes=1;texts=\"a\"", "SIP;causes=1;texts=\"a\"", "other names"},
    });
    auto const reason = decode<Reason>("Q.850;cause=16;text=\"a \\\"b\\\"\";x=Y");
    EXPECT_EQ(taken(quillReasonProtocol(reason.get())), "Q.850");
    EXPECT_EQ(taken(quillReasonCause(reason.get())), "16");
    EXPECT_EQ(taken(quillReasonText(reason.get())), "a \"b\"");
    EXPECT_TRUE(quillReasonHasCause(reason.get()) && quillReasonHasText(reason.get()));
    EXPECT_EQ(text(quillReasonGenericParams(reason.get())), ";x=Y");
    EXPECT_EQ(text(quillReasonGenericParams(decode<Reason>("SIP;cause=abc").get())), ";cause=abc");
}

TEST(QuillReason, Refuses) {
    expectRefused<Reason>({
        {"", "nothing"},
        {";cause=1", "no protocol"},
        {"\"SIP\"", "no token"},
        {" SIP", "a blank in front"},
        {"SIP ", "a blank behind"},
        {"SIP;", "a semicolon at the end"},
        {"SIP cause=1", "no semicolon"},
        {"SIP;cause=", "no value"},
        {"SIP;cause=1x", "the digits are taken"},
        {"SIP;text=\"a", "an open quote"},
        {"SIP;text=\"a\\\"", "an open quote"},
        {"SIP;text=\"a\"b", "something behind"},
        {"SIP;text=\"a\rb\"", "a line end"},
        {"SIP;text=\"a\\\nb\"", "an escaped line end"},
        {"SIP,Q.850", "two of them"},
    });
}

TEST(QuillReason, ChangesInPlaceOrOnACopy) {
    std::vector<Change<Reason>> const changes{
        {"protocol", [](Reason **reason) { quillReasonSetProtocol(reason, str("Q.850")); },
         "Q.850;cause=1;text=\"a\";x"},
        {"cause", [](Reason **reason) { quillReasonSetCause(reason, str("00")); }, "SIP;cause=00;text=\"a\";x"},
        {"no cause", quillReasonDelCause, "SIP;text=\"a\";x"},
        {"text", [](Reason **reason) { quillReasonSetText(reason, str("\"")); }, "SIP;cause=1;text=\"\\\"\";x"},
        {"no text", quillReasonDelText, "SIP;cause=1;x"},
        {"parameters", [](Reason **reason) { quillReasonSetGenericParams(reason, params(";y").get()); },
         "SIP;cause=1;text=\"a\";y"},
    };
    expectChanges("SIP;cause=1;text=\"a\";x", changes);
    expectChanges<Reason>("SIP", {{"no cause", quillReasonDelCause, "SIP"}, {"no text", quillReasonDelText, "SIP"}});
}

TEST(QuillReason, AMemberWinsOverAParameterOfItsName) {
    auto reason = decode<Reason>("SIP");
    quillReasonSetGenericParams(reason.address(), params(";CAUSE=x;text=x;y").get());
    EXPECT_EQ(text(reason), "SIP;cause=x;text=x;y");
    quillReasonSetText(reason.address(), str("a"));
    EXPECT_EQ(text(reason), "SIP;text=\"a\";cause=x;y");
    quillReasonSetCause(reason.address(), str("1"));
    EXPECT_EQ(text(reason), "SIP;cause=1;text=\"a\";y");
}

TEST(QuillReason, Compares) {
    expectAscending<Reason>({"A;cause=9;text=\"z\";z", "B;text=\"z\";z", "B;cause=1;z", "B;cause=1;text=\"a\"",
                             "B;cause=1;text=\"a\";a", "B;cause=1;text=\"b\"", "B;cause=2", "C", "a"});
    EXPECT_TRUE(areEqual<Reason>("SIP;cause=1;x=Y", "SIP ; X=y;CAUSE=1"));
    EXPECT_FALSE(areEqual<Reason>("SIP;cause=1", "SIP;cause=01")) << "causes are texts";
    EXPECT_FALSE(areEqual<Reason>("SIP", "sip")) << "protocols are as given";
}

TEST(QuillReason, Asserts) {
    constexpr auto &unit = ValueFunctions<Reason>::unit;
    auto const reason = decode<Reason>("SIP");
    Preconditions<Reason> const preconditions{"reason"};
    preconditions.ofSort(reason.get());
    preconditions.ofAll(quillReasonProtocol, quillReasonCause, quillReasonHasCause, quillReasonDelCause,
                        quillReasonText, quillReasonHasText, quillReasonDelText, quillReasonGenericParams);
    Str const one = str("1"), blank = str("a b"), empty = str(""), lineEnd = str("\n");
    preconditions.ofSetter(quillReasonSetProtocol, one, reason.get(), {blank, empty},
                           "quillReasonProtocolOk( reasonProtocol )");
    preconditions.ofSetter(quillReasonSetCause, one, reason.get(), {blank, empty}, "quillReasonCauseOk( reasonCause )");
    preconditions.ofSetter(quillReasonSetText, one, reason.get(), {lineEnd}, "quillReasonTextOk( reasonText )");
    preconditions.ofSetter(quillReasonSetGenericParams, params("").get(), reason.get(), {nullptr}, "genericParams");
    EXPECT_ABORT(quillReasonCreate(blank), unit, "quillReasonProtocolOk( reasonProtocol )");
}

} // namespace
