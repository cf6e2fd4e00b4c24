// Headers whose value is one text: Call-Id, Organization, Priority, Server, Subject, Timestamp, User-Agent.

#include "single_headers.hpp"

#include <quill/quill_header_call_id.h>
#include <quill/quill_header_organization.h>
#include <quill/quill_header_priority.h>
#include <quill/quill_header_server.h>
#include <quill/quill_header_subject.h>
#include <quill/quill_header_timestamp.h>
#include <quill/quill_header_user_agent.h>

using namespace test;

namespace {

TEST(QuillHeaderText, CallIds) {
    expectReadings("CallId",
                   {
                       {"a84b4c76e66710@pc33.atlanta.com", "CallId=a84b4c76e66710@pc33.atlanta.com", nullptr, ""},
                       {"a", "CallId=a", nullptr, "one word"},
                       {"A", "CallId=A", nullptr, "the letter case counts"},
                       {"(<\"[]\">)@{\\}", "CallId=(<\"[]\">)@{\\}", nullptr, "a word holds much"},
                       {"a@", nullptr, nullptr, "no word behind the at"},
                       {"@a", nullptr, nullptr, "none before it"},
                       {"a@b@c", nullptr, nullptr, "two of them"},
                       {"a b", nullptr, nullptr, "a blank"},
                       {" a", nullptr, nullptr, "a blank before"},
                       {"a ", nullptr, nullptr, "a blank behind"},
                       {"a;b", nullptr, nullptr, "no parameters"},
                       {"a,b", nullptr, nullptr, "no list"},
                       {"", nullptr, nullptr, "nothing"},
                   });
}

TEST(QuillHeaderText, TrimmedTexts) {
    for (std::string const type : {"Organization", "Subject"}) {
        std::string const shore = type + "=North Shore";
        std::string const empty = type + "=";
        expectReadings(type,
                       {
                           {"North Shore", shore.c_str(), nullptr, "as it is"},
                           {"  North \t  Shore\t", shore.c_str(), "North Shore", "one space for each run of blanks"},
                           {"", empty.c_str(), nullptr, "may be empty"},
                           {" \t ", empty.c_str(), "", "nothing but blanks"},
                           {"a\x01", nullptr, nullptr, "a control"},
                           {"a\rb", nullptr, nullptr, "CR"},
                           {"a\nb", nullptr, nullptr, "LF"},
                           {"\x7f", nullptr, nullptr, "DEL"},
                       });
    }
    expectReadings("Subject",
                   {{"Mittagessen für zwei, 中饭", "Subject=Mittagessen für zwei, 中饭", nullptr, "any language"}});
}

TEST(QuillHeaderText, ProductsOfServers) {
    for (std::string const type : {"Server", "UserAgent"}) {
        auto const reads = [&](char const *line) {
            std::string const parts = type + "=" + line;
            expectReadings(type, {{line, parts.c_str(), nullptr, "kept as it is"}});
        };
        for (char const *line :
             {"a", "a/1", "a / 1", "a/1 b/2", "a\t b", "(x)", "a (x) b", " (x)", "a (b (c)) d", "A/1"})
            reads(line);
        for (char const *line : {"", "a/", "a/1 ", " a", "a,b", "(x", "x)", "a;b", "a/1/2", "a \"b\""})
            expectReadings(type, {{line, nullptr, nullptr, "no products"}});
    }
}

TEST(QuillHeaderText, Timestamps) {
    expectReadings("Timestamp", {
                                    {"54", "TimestampValue=54", nullptr, "seconds"},
                                    {"54.", "TimestampValue=54.", nullptr, "a dot and nothing"},
                                    {"54.21", "TimestampValue=54.21", nullptr, "with a fraction"},
                                    {"54 0.5", "TimestampValue=54 0.5", nullptr, "with a delay"},
                                    {"54\t 5.", "TimestampValue=54\t 5.", nullptr, "blanks are kept"},
                                    {"54 ", "TimestampValue=54 ", nullptr, "blanks and no delay"},
                                    {".5", nullptr, nullptr, "no digit first"},
                                    {"54 .5", nullptr, nullptr, "none in the delay"},
                                    {"54 1 2", nullptr, nullptr, "two delays"},
                                    {" 54", nullptr, nullptr, "a blank before"},
                                    {"-1", nullptr, nullptr, "a sign"},
                                    {"", nullptr, nullptr, "nothing"},
                                });
}

TEST(QuillHeaderText, Priorities) {
    expectReadings("Priority", {
                                   {"emergency", "PriorityValue=emergency", nullptr, ""},
                                   {"Non-Urgent", "PriorityValue=non-urgent", "non-urgent", "kept in lower case"},
                                   {"Psst", "PriorityValue=psst", "psst", "any token"},
                                   {"urgent ", nullptr, nullptr, "a blank behind"},
                                   {" urgent", nullptr, nullptr, "a blank before"},
                                   {"very urgent", nullptr, nullptr, "two tokens"},
                                   {"urgent;x", nullptr, nullptr, "no parameters"},
                                   {"", nullptr, nullptr, "nothing"},
                               });
}

struct NamedPriority {
    char const *text;
    quillHeaderPriority *(*create)();
    bool (*is)(quillHeaderPriority const *);
    void (*set)(quillHeaderPriority **);
};

TEST(QuillHeaderText, PrioritiesThatTheRfcNames) {
    NamedPriority const named[] = {
        {"emergency", quillHeaderPriorityCreateEmergency, quillHeaderPriorityIsEmergency,
         quillHeaderPrioritySetEmergency},
        {"urgent", quillHeaderPriorityCreateUrgent, quillHeaderPriorityIsUrgent, quillHeaderPrioritySetUrgent},
        {"normal", quillHeaderPriorityCreateNormal, quillHeaderPriorityIsNormal, quillHeaderPrioritySetNormal},
        {"non-urgent", quillHeaderPriorityCreateNonUrgent, quillHeaderPriorityIsNonUrgent,
         quillHeaderPrioritySetNonUrgent},
    };
    char const *unit = "source/quill/quill_header_priority";
    quillHeaderPriority *null = nullptr;
    for (NamedPriority const &priority : named) {
        auto hdr = own(priority.create());
        EXPECT_EQ(taken(quillHeaderPriorityPriorityValue(hdr.get())), priority.text);
        for (NamedPriority const &other : named) EXPECT_EQ(other.is(hdr.get()), other.text == priority.text);

        auto changed = own(quillHeaderPriorityCreate(str("OTHER")));
        EXPECT_FALSE(priority.is(changed.get()));
        quillHeaderPriority *const before = changed.get();
        priority.set(changed.address());
        EXPECT_EQ(changed.get(), before);
        EXPECT_TRUE(priority.is(changed.get()));
        EXPECT_TRUE(quillHeaderPriorityEquals(changed.get(), hdr.get()));

        auto const held = own(quillHeaderPriorityCreate(str("other")));
        auto copy = own(co::retained(held.get()));
        priority.set(copy.address());
        EXPECT_TRUE(priority.is(copy.get()));
        EXPECT_FALSE(priority.is(held.get()));

        EXPECT_ABORT(priority.is(nullptr), unit, "hdr");
        EXPECT_ABORT(priority.set(nullptr), unit, "hdr");
        EXPECT_ABORT(priority.set(&null), unit, "*hdr");
    }
    auto const upper = own(quillHeaderPriorityCreate(str("URGENT")));
    EXPECT_TRUE(quillHeaderPriorityIsUrgent(upper.get()));
}

TEST(QuillHeaderText, AreKeptInTheirNormalForm) {
    auto organization = own(quillHeaderOrganizationCreate(str("  North \t Shore ")));
    EXPECT_EQ(taken(quillHeaderOrganizationOrganization(organization.get())), "North Shore");
    quillHeaderOrganizationSetOrganization(organization.address(), str(" South  "));
    EXPECT_EQ(taken(quillHeaderOrganizationOrganization(organization.get())), "South");
    auto subject = own(quillHeaderSubjectCreate(str("  Need \t more ")));
    EXPECT_EQ(taken(quillHeaderSubjectSubject(subject.get())), "Need more");
    quillHeaderSubjectSetSubject(subject.address(), str(" \t "));
    EXPECT_EQ(taken(quillHeaderSubjectSubject(subject.get())), "");
    auto priority = own(quillHeaderPriorityCreate(str("a")));
    quillHeaderPrioritySetPriorityValue(priority.address(), str("Non-URGENT"));
    EXPECT_TRUE(quillHeaderPriorityIsNonUrgent(priority.get()));
    auto const server = own(quillHeaderServerCreate(str("A/1  (X)")));
    EXPECT_EQ(taken(quillHeaderServerServer(server.get())), "A/1  (X)");
}

TEST(QuillHeaderText, AreCreatedOfValidTexts) {
    std::string const unit = "source/quill/quill_header_";
    EXPECT_ABORT(quillHeaderCallIdCreate(str("a@")), unit + "call_id", "quillCallIdOk( callId )");
    EXPECT_ABORT(quillHeaderOrganizationCreate(str("\n")), unit + "organization",
                 "quillOrganizationOk( organization )");
    EXPECT_ABORT(quillHeaderPriorityCreate(str("")), unit + "priority", "quillPriorityValueOk( priorityValue )");
    EXPECT_ABORT(quillHeaderServerCreate(str("")), unit + "server", "quillServerOk( server )");
    EXPECT_ABORT(quillHeaderSubjectCreate(str("\n")), unit + "subject", "quillSubjectOk( subject )");
    EXPECT_ABORT(quillHeaderTimestampCreate(str("a")), unit + "timestamp", "quillTimestampValueOk( timestampValue )");
    EXPECT_ABORT(quillHeaderUserAgentCreate(str("")), unit + "user_agent", "quillUserAgentOk( userAgent )");
    EXPECT_ABORT(quillHeaderCallIdCreate(nullptr), "source/quill/quill_call_id", "callId");
}

} // namespace
