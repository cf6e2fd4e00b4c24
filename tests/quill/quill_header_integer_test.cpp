// Headers whose value is a number, or begins with numbers: Cseq, Expires, Max-Forwards, Min-Expires, Rack, Rseq.

#include "single_headers.hpp"

#include <quill/quill_header_cseq.h>
#include <quill/quill_header_expires.h>
#include <quill/quill_header_max_forwards.h>
#include <quill/quill_header_min_expires.h>
#include <quill/quill_header_rack.h>
#include <quill/quill_header_rseq.h>

using namespace test;

namespace {

TEST(QuillHeaderInteger, Seconds) {
    for (char const *type : {"Expires", "MinExpires"})
        expectReadings(type, {
                                 {"0", "DeltaSeconds=0", nullptr, "the least"},
                                 {"3600", "DeltaSeconds=3600", nullptr, ""},
                                 {"0060", "DeltaSeconds=60", "60", "zeros before"},
                                 {"9223372036854775807", "DeltaSeconds=9223372036854775807", nullptr, "the most"},
                                 {"9223372036854775808", nullptr, nullptr, "one more"},
                                 {"99999999999999999999999", nullptr, nullptr, "many more"},
                                 {"-1", nullptr, nullptr, "negative"},
                                 {"+1", nullptr, nullptr, "a sign"},
                                 {" 1", nullptr, nullptr, "a blank before"},
                                 {"1 ", nullptr, nullptr, "a blank behind"},
                                 {"1;a", nullptr, nullptr, "no parameters"},
                                 {"1.5", nullptr, nullptr, "a fraction"},
                                 {"0x1", nullptr, nullptr, "another base"},
                                 {"٣", nullptr, nullptr, "digits of another script"},
                                 {"Thu, 01 Dec 1994 16:00:00 GMT", nullptr, nullptr, "a date"},
                                 {"", nullptr, nullptr, "nothing"},
                             });
}

TEST(QuillHeaderInteger, Hops) {
    expectReadings("MaxForwards", {
                                      {"0", "MaxForwards=0", nullptr, "the least"},
                                      {"70", "MaxForwards=70", nullptr, ""},
                                      {"255", "MaxForwards=255", nullptr, "the most"},
                                      {"256", nullptr, nullptr, "one more"},
                                      {"070", "MaxForwards=70", "70", "zeros before"},
                                      {"-1", nullptr, nullptr, "negative"},
                                      {"7 0", nullptr, nullptr, "two numbers"},
                                      {"", nullptr, nullptr, "nothing"},
                                  });
}

TEST(QuillHeaderInteger, ResponseNumbers) {
    expectReadings("Rseq", {
                               {"1", "ResponseNum=1", nullptr, "the least"},
                               {"988789", "ResponseNum=988789", nullptr, ""},
                               {"4294967295", "ResponseNum=4294967295", nullptr, "the most"},
                               {"4294967296", nullptr, nullptr, "one more"},
                               {"0", nullptr, nullptr, "one less"},
                               {"-1", nullptr, nullptr, "negative"},
                               {"01", "ResponseNum=1", "1", "zeros before"},
                               {"1 ", nullptr, nullptr, "a blank behind"},
                               {"", nullptr, nullptr, "nothing"},
                           });
}

TEST(QuillHeaderInteger, SequenceNumbersAndMethods) {
    expectReadings("Cseq", {
                               {"1 INVITE", "Cseq=1 Method=INVITE", nullptr, ""},
                               {"1   INVITE", "Cseq=1 Method=INVITE", "1 INVITE", "more blanks"},
                               {"1\tINVITE", "Cseq=1 Method=INVITE", "1 INVITE", "a tab"},
                               {"0 invite", "Cseq=0 Method=invite", nullptr, "the letter case of methods counts"},
                               {"007 ACK", "Cseq=7 Method=ACK", "7 ACK", "zeros before"},
                               {"2147483647 X", "Cseq=2147483647 Method=X", nullptr, "the most"},
                               {"2147483648 X", nullptr, nullptr, "one more"},
                               {"99999999999999999999 X", nullptr, nullptr, "many more"},
                               {"1INVITE", nullptr, nullptr, "no blank"},
                               {"-1 INVITE", nullptr, nullptr, "negative"},
                               {" 1 INVITE", nullptr, nullptr, "a blank before"},
                               {"1 INVITE ", nullptr, nullptr, "a blank behind"},
                               {"1 IN VITE", nullptr, nullptr, "two methods"},
                               {"1 INVITE;x", nullptr, nullptr, "no parameters"},
                               {"1 2 INVITE", nullptr, nullptr, "two numbers"},
                               {"1 ", nullptr, nullptr, "no method"},
                               {"1", nullptr, nullptr, "neither"},
                               {"INVITE", nullptr, nullptr, "no number"},
                               {" INVITE", nullptr, nullptr, "a blank for the number"},
                               {"", nullptr, nullptr, "nothing"},
                               {"1 2", "Cseq=1 Method=2", nullptr, "digits are a token"},
                           });
}

TEST(QuillHeaderInteger, Acknowledgements) {
    expectReadings(
        "Rack", {
                    {"776656 1 INVITE", "ResponseNum=776656 Cseq=1 Method=INVITE", nullptr, ""},
                    {"1 \t 2  INVITE", "ResponseNum=1 Cseq=2 Method=INVITE", "1 2 INVITE", "more blanks"},
                    {"01 002 x", "ResponseNum=1 Cseq=2 Method=x", "1 2 x", "zeros before"},
                    {"4294967295 2147483647 A", "ResponseNum=4294967295 Cseq=2147483647 Method=A", nullptr, "the most"},
                    {"4294967296 1 A", nullptr, nullptr, "a response number too large"},
                    {"1 2147483648 A", nullptr, nullptr, "a sequence number too large"},
                    {"0 1 A", nullptr, nullptr, "a response number too small"},
                    {"1 0 A", "ResponseNum=1 Cseq=0 Method=A", nullptr, "the least sequence number"},
                    {"1 -1 A", nullptr, nullptr, "negative"},
                    {"1 1A", nullptr, nullptr, "no blank"},
                    {"1 1", nullptr, nullptr, "no method"},
                    {"1 1 ", nullptr, nullptr, "nor behind a blank"},
                    {"1 INVITE", nullptr, nullptr, "one number"},
                    {"1 1 A B", nullptr, nullptr, "two methods"},
                    {"1 1 A ", nullptr, nullptr, "a blank behind"},
                    {" 1 1 A", nullptr, nullptr, "a blank before"},
                    {"1,1 A", nullptr, nullptr, "a comma"},
                    {"", nullptr, nullptr, "nothing"},
                });
}

TEST(QuillHeaderInteger, MethodsFromOtherTexts) {
    auto hdr = own(quillHeaderCseqCreate(1, str("INVITE")));
    quillHeaderCseqSetMethodCstr(hdr.address(), "ACKs", 3);
    EXPECT_EQ(taken(quillHeaderCseqMethod(hdr.get())), "ACK");
    quillHeaderCseqSetMethodCstr(hdr.address(), "BYE", -1);
    EXPECT_EQ(taken(quillHeaderCseqMethod(hdr.get())), "BYE");
    quillHeaderCseqSetMethodWcstr(hdr.address(), L"OPTIONS", -1);
    EXPECT_EQ(taken(quillHeaderCseqMethod(hdr.get())), "OPTIONS");
    auto const held = own(co::retained(hdr.get()));
    quillHeaderCseqSetMethodWcstr(hdr.address(), L"CANCEL!", 6);
    EXPECT_EQ(taken(quillHeaderCseqMethod(hdr.get())), "CANCEL");
    EXPECT_EQ(taken(quillHeaderCseqMethod(held.get())), "OPTIONS");
    EXPECT_ABORT(quillHeaderCseqSetMethodCstr(hdr.address(), "", -1), "source/quill/quill_header_cseq",
                 "quillMethodOk( method )");
    EXPECT_ABORT(quillHeaderCseqSetMethodWcstr(nullptr, L"A", -1), "source/quill/quill_header_cseq", "hdr");
}

TEST(QuillHeaderInteger, AreCreatedOfValidNumbers) {
    std::string const unit = "source/quill/quill_header_";
    EXPECT_ABORT(quillHeaderCseqCreate(-1, str("A")), unit + "cseq", "quillCseqOk( cseq )");
    EXPECT_ABORT(quillHeaderCseqCreate(1, str("")), unit + "cseq", "quillMethodOk( method )");
    EXPECT_ABORT(quillHeaderExpiresCreate(-1), unit + "expires", "quillDeltaSecondsOk( deltaSeconds )");
    EXPECT_ABORT(quillHeaderMinExpiresCreate(-1), unit + "min_expires", "quillDeltaSecondsOk( deltaSeconds )");
    EXPECT_ABORT(quillHeaderMaxForwardsCreate(256), unit + "max_forwards", "quillMaxForwardsOk( maxForwards )");
    EXPECT_ABORT(quillHeaderRackCreate(0, 1, str("A")), unit + "rack", "quillResponseNumOk( responseNum )");
    EXPECT_ABORT(quillHeaderRackCreate(1, -1, str("A")), unit + "rack", "quillCseqOk( cseq )");
    EXPECT_ABORT(quillHeaderRackCreate(1, 1, str("")), unit + "rack", "quillMethodOk( method )");
    EXPECT_ABORT(quillHeaderRseqCreate(0), unit + "rseq", "quillResponseNumOk( responseNum )");
    EXPECT_EQ(taken(quillHeaderRackToString(own(quillHeaderRackCreate(3, 2, str("A"))).get())), "3 2 A");
}

} // namespace
