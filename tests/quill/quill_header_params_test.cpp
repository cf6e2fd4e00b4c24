// Headers that hold one value and parameters: Content-Disposition, Event, Min-Se, Replaces, Retry-After, Session-Expires,
// Session-Id, Subscription-State.

#include "single_headers.hpp"

#include <quill/quill_header_content_disposition.h>
#include <quill/quill_header_event.h>
#include <quill/quill_header_min_se.h>
#include <quill/quill_header_replaces.h>
#include <quill/quill_header_retry_after.h>
#include <quill/quill_header_session_expires.h>
#include <quill/quill_header_session_id.h>
#include <quill/quill_header_subscription_state.h>

using namespace test;

namespace {

TEST(QuillHeaderParams, Dispositions) {
    expectReadings(
        "ContentDisposition",
        {
            {"session", "DispositionType=session", nullptr, ""},
            {"Session;Handling=Required", "DispositionType=session Handling=required", "session;handling=required",
             "kept in lower case"},
            {"icon ; x ; handling = optional", "DispositionType=icon Handling=optional GenericParams=;x",
             "icon;handling=optional;x", "blanks; written first"},
            {"a;handling=x;handling=y", "DispositionType=a Handling=y", "a;handling=y", "the last"},
            {"a;handling", "DispositionType=a GenericParams=;handling", nullptr, "no value: generic"},
            {"a;handling=\"x\"", "DispositionType=a GenericParams=;handling=\"x\"", nullptr, "no token: generic"},
            {"a;handlings=x", "DispositionType=a GenericParams=;handlings=x", nullptr, "another name"},
            {"a;handling=", nullptr, nullptr, "nothing"},
            {"a;handling=x y", nullptr, nullptr, "more than a token"},
            {"a b", nullptr, nullptr, "two tokens"},
            {"a ", nullptr, nullptr, "a blank behind"},
            {" a", nullptr, nullptr, "a blank before"},
            {";handling=x", nullptr, nullptr, "no type"},
            {"", nullptr, nullptr, "nothing"},
        });
}

TEST(QuillHeaderParams, Events) {
    expectReadings("Event", {
                                {"presence", "EventType=presence", nullptr, ""},
                                {"presence.winfo;id=1", "EventType=presence.winfo Id=1", nullptr, "a template"},
                                {"Presence;ID=A", "EventType=Presence Id=A", "Presence;id=A", "letter case"},
                                {"a;x=1;id=2", "EventType=a Id=2 GenericParams=;x=1", "a;id=2;x=1", "written first"},
                                {"a;id", "EventType=a GenericParams=;id", nullptr, "no value: generic"},
                                {"a;idx=1", "EventType=a GenericParams=;idx=1", nullptr, "another name"},
                                {"a;id=[::1]", "EventType=a GenericParams=;id=[::1]", nullptr, "no token: generic"},
                                {"a;id=1(", nullptr, nullptr, "no semicolon behind the token"},
                                {"a.", nullptr, nullptr, "nothing behind the dot"},
                                {"a..b", nullptr, nullptr, "nothing between two"},
                                {".a", nullptr, nullptr, "nothing before it"},
                                {"", nullptr, nullptr, "nothing"},
                            });
}

TEST(QuillHeaderParams, EventsFromOtherTexts) {
    EXPECT_EQ(taken(quillHeaderEventToString(own(quillHeaderEventCreateCstr("dialog!", 6)).get())), "dialog");
    EXPECT_EQ(taken(quillHeaderEventToString(own(quillHeaderEventCreateCstr("dialog", -1)).get())), "dialog");
    EXPECT_EQ(taken(quillHeaderEventToString(own(quillHeaderEventCreateWcstr(L"reg", -1)).get())), "reg");
    auto hdr = own(quillHeaderEventCreateWcstr(L"refer.", 5));
    EXPECT_EQ(taken(quillHeaderEventToString(hdr.get())), "refer");
    quillHeaderEventSetEventTypeCstr(hdr.address(), "conference;", 10);
    EXPECT_EQ(taken(quillHeaderEventEventType(hdr.get())), "conference");
    auto const held = own(co::retained(hdr.get()));
    quillHeaderEventSetEventTypeWcstr(hdr.address(), L"kpml", -1);
    EXPECT_EQ(taken(quillHeaderEventEventType(hdr.get())), "kpml");
    EXPECT_EQ(taken(quillHeaderEventEventType(held.get())), "conference");
    char const *unit = "source/quill/quill_header_event";
    EXPECT_ABORT(quillHeaderEventCreateCstr("a.", -1), unit, "quillEventTypeOk( eventType )");
    EXPECT_ABORT(quillHeaderEventCreateWcstr(L"", -1), unit, "quillEventTypeOk( eventType )");
    EXPECT_ABORT(quillHeaderEventSetEventTypeCstr(hdr.address(), "", -1), unit, "quillEventTypeOk( eventType )");
    EXPECT_ABORT(quillHeaderEventSetEventTypeWcstr(nullptr, L"a", -1), unit, "hdr");
}

TEST(QuillHeaderParams, SessionTimers) {
    expectReadings("MinSe", {
                                {"90", "DeltaSeconds=90", nullptr, ""},
                                {"90 ; A = b", "DeltaSeconds=90 GenericParams=;a=b", "90;a=b", "blanks"},
                                {"0090", "DeltaSeconds=90", "90", "zeros before"},
                                {"9223372036854775807", "DeltaSeconds=9223372036854775807", nullptr, "the most"},
                                {"9223372036854775808", nullptr, nullptr, "one more"},
                                {"90x", nullptr, nullptr, "something behind it"},
                                {"90 ", nullptr, nullptr, "a blank behind"},
                                {" 90", nullptr, nullptr, "a blank before"},
                                {"-1", nullptr, nullptr, "negative"},
                                {"-0", nullptr, nullptr, "a sign"},
                                {"x", nullptr, nullptr, "no number"},
                                {";a", nullptr, nullptr, "no number, a parameter"},
                                {"", nullptr, nullptr, "nothing"},
                            });
    expectReadings(
        "SessionExpires",
        {
            {"1800", "DeltaSeconds=1800", nullptr, ""},
            {"1800;refresher=uas", "DeltaSeconds=1800 Refresher=uas", nullptr, ""},
            {"1800 ; Refresher = UAC", "DeltaSeconds=1800 Refresher=uac", "1800;refresher=uac", "kept in lower case"},
            {"1;x;refresher=uas", "DeltaSeconds=1 Refresher=uas GenericParams=;x", "1;refresher=uas;x",
             "written first"},
            {"1;refresher=uac;refresher=uas", "DeltaSeconds=1 Refresher=uas", "1;refresher=uas", "the last"},
            {"1;refresher=proxy", "DeltaSeconds=1 GenericParams=;refresher=proxy", nullptr, "neither: generic"},
            {"1;refresher=ua", "DeltaSeconds=1 GenericParams=;refresher=ua", nullptr, "neither: generic"},
            {"1;refresher", "DeltaSeconds=1 GenericParams=;refresher", nullptr, "no value: generic"},
            {"1;refresher=uacx", nullptr, nullptr, "no semicolon behind uac"},
            {"1;refresher=\"uac\"", "DeltaSeconds=1 GenericParams=;refresher=\"uac\"", nullptr, "quoted: generic"},
            {"1(x)", nullptr, nullptr, "no comment here"},
            {"", nullptr, nullptr, "nothing"},
        });
}

TEST(QuillHeaderParams, Replacements) {
    expectReadings(
        "Replaces",
        {
            {"a@b;to-tag=7;from-tag=8", "CallId=a@b FromTag=8 ToTag=7", "a@b;from-tag=8;to-tag=7",
             "written in their own order"},
            {"a", "CallId=a", nullptr, "without tags"},
            {"A;FROM-TAG=X;To-Tag=Y", "CallId=A FromTag=X ToTag=Y", "A;from-tag=X;to-tag=Y", "letter case"},
            {"a;early-only", "CallId=a EarlyOnly=true", nullptr, "the flag"},
            {"a ; Early-Only ; x", "CallId=a EarlyOnly=true GenericParams=;x", "a;early-only;x",
             "letter case and blanks"},
            {"a;early-only;early-only", "CallId=a EarlyOnly=true", "a;early-only", "twice"},
            {"a;early-only=1", "CallId=a GenericParams=;early-only=1", nullptr, "with a value: generic"},
            {"a;early-only = 1", "CallId=a GenericParams=;early-only=1", "a;early-only=1", "with blanks too"},
            {"a;early-only=", nullptr, nullptr, "with EQUAL, but no value"},
            {"a;early-onlyx", nullptr, nullptr, "no semicolon behind the flag"},
            {"a;early", "CallId=a GenericParams=;early", nullptr, "another name"},
            {"a;from-tag", "CallId=a GenericParams=;from-tag", nullptr, "no value: generic"},
            {"a;to-tag=\"x\"", "CallId=a GenericParams=;to-tag=\"x\"", nullptr, "no token: generic"},
            {"a;to-tag=x@y", nullptr, nullptr, "no semicolon behind the token"},
            {"a;from-tagx=1", "CallId=a GenericParams=;from-tagx=1", nullptr, "another name"},
            {"a;from-tag=x;from-tag=y", "CallId=a FromTag=y", "a;from-tag=y", "the last"},
            {"a@;to-tag=1", nullptr, nullptr, "no Call-Id"},
            {";to-tag=1", nullptr, nullptr, "no Call-Id"},
            {"a, b", nullptr, nullptr, "two of them"},
            {"", nullptr, nullptr, "nothing"},
        });
    // A flag and a parameter of its name: the flag is what is written.
    auto const both = singleHeader("Replaces").decode("a;early-only=1;early-only");
    EXPECT_EQ(singleHeader("Replaces").describe(both.get()), "CallId=a EarlyOnly=true GenericParams=;early-only=1");
    EXPECT_EQ(singleHeader("Replaces").encoded(both.get()), "a;early-only");
}

TEST(QuillHeaderParams, Retries) {
    expectReadings(
        "RetryAfter",
        {
            {"5", "DeltaSeconds=5", nullptr, ""},
            {"18000;duration=3600", "DeltaSeconds=18000 Duration=3600", nullptr, ""},
            {"120 (I'm in a meeting)", "DeltaSeconds=120", "120", "the comment is not kept"},
            {"5(x)", "DeltaSeconds=5", "5", "without a blank"},
            {"5 (x) ", "DeltaSeconds=5", "5", "blanks belong to the comment"},
            {"5 (a (b) \\) c)", "DeltaSeconds=5", "5", "nested, and escaped"},
            {"5 (x);duration=3", "DeltaSeconds=5 Duration=3", "5;duration=3", "both"},
            {"5 (x) ; y ; DURATION = 3", "DeltaSeconds=5 Duration=3 GenericParams=;y", "5;duration=3;y", "blanks"},
            {"5 ", "DeltaSeconds=5", "5", "blanks and no comment"},
            {"5 \t;y", "DeltaSeconds=5 GenericParams=;y", "5;y", "blanks, no comment, a parameter"},
            {"5;duration=abc", "DeltaSeconds=5 GenericParams=;duration=abc", nullptr, "no number: generic"},
            {"5;duration=99999999999999999999", "DeltaSeconds=5 GenericParams=;duration=99999999999999999999", nullptr,
             "too large: generic"},
            {"5;duration", "DeltaSeconds=5 GenericParams=;duration", nullptr, "no value: generic"},
            {"5;duration=3x", nullptr, nullptr, "no semicolon behind the number"},
            {"5;duration=1;duration=2", "DeltaSeconds=5 Duration=2", "5;duration=2", "the last"},
            {"5 x", nullptr, nullptr, "no comment"},
            {"5 (x", nullptr, nullptr, "an open comment"},
            {"5 (x) y", nullptr, nullptr, "something behind it"},
            {"5 (x) (y)", nullptr, nullptr, "two comments"},
            {"5;y (x)", nullptr, nullptr, "a comment behind a parameter"},
            {"(x)", nullptr, nullptr, "no number"},
            {"-1", nullptr, nullptr, "negative"},
            {" 5", nullptr, nullptr, "a blank before"},
            {"9223372036854775808", nullptr, nullptr, "too large"},
            {"", nullptr, nullptr, "nothing"},
        });
    std::string const deep = "5 " + std::string(50000, '(') + "x" + std::string(50000, ')');
    EXPECT_TRUE(singleHeader("RetryAfter").decode(deep)) << "any depth";
    EXPECT_FALSE(singleHeader("RetryAfter").decode(deep.substr(0, deep.size() - 1)));
}

TEST(QuillHeaderParams, SessionIdentifiers) {
    std::string const local = "ab30317f1a784dc48ff824d0d3715d86";
    std::string const remote = "47755a9de7794ba387653f2099600ef2";
    std::string const nil(32, '0');
    auto const reads = [](std::string const &line, std::string const &parts, char const *why) {
        expectReadings("SessionId", {{line.c_str(), parts.c_str(), nullptr, why}});
    };
    auto const fails = [](std::string const &line, char const *why) {
        expectReadings("SessionId", {{line.c_str(), nullptr, nullptr, why}});
    };
    reads(local, "LocalUuid=" + local, "the old form");
    reads(local + ";remote=" + remote, "LocalUuid=" + local + " RemoteUuid=" + remote, "both");
    reads(local + ";remote=" + nil, "LocalUuid=" + local + " RemoteUuid=" + nil, "nil");
    reads(local + ";remote=" + remote + ";x", "LocalUuid=" + local + " RemoteUuid=" + remote + " GenericParams=;x", "");
    reads(std::string(32, 'z'), "LocalUuid=" + std::string(32, 'z'), "the whole alphabet");
    reads(local + ";remote=abc", "LocalUuid=" + local + " GenericParams=;remote=abc", "too short: generic");
    reads(local + ";remote", "LocalUuid=" + local + " GenericParams=;remote", "no value: generic");
    reads(local + ";remote=" + std::string(32, 'A'),
          "LocalUuid=" + local + " GenericParams=;remote=" + std::string(32, 'A'), "upper case: generic");
    fails(local + ";remote=" + remote + "0", "no semicolon behind the 32nd character");
    fails(local + "0", "33 characters");
    fails(local.substr(1), "31 characters");
    fails(std::string(32, 'A'), "upper case");
    fails(local + " ", "a blank behind");
    fails("", "nothing");

    auto const upper = singleHeader("SessionId").decode(local + " ; REMOTE = " + remote);
    EXPECT_EQ(singleHeader("SessionId").encoded(upper.get()), local + ";remote=" + remote);
}

TEST(QuillHeaderParams, SubscriptionStates) {
    expectReadings(
        "SubscriptionState",
        {
            {"active;expires=60", "SubstateValue=active Expires=60", nullptr, ""},
            {"Terminated;Reason=NoResource;Retry-After=5", "SubstateValue=terminated Reason=noresource RetryAfter=5",
             "terminated;reason=noresource;retry-after=5", "kept in lower case"},
            {"x;retry-after=1;y;expires=2;reason=z", "SubstateValue=x Reason=z Expires=2 RetryAfter=1 GenericParams=;y",
             "x;reason=z;expires=2;retry-after=1;y", "written in their own order"},
            {"pending ; expires = 007", "SubstateValue=pending Expires=7", "pending;expires=7", "blanks and zeros"},
            {"a;expires=x", "SubstateValue=a GenericParams=;expires=x", nullptr, "no number: generic"},
            {"a;expires=99999999999999999999", "SubstateValue=a GenericParams=;expires=99999999999999999999", nullptr,
             "too large: generic"},
            {"a;retry-after=-1", "SubstateValue=a GenericParams=;retry-after=-1", nullptr, "negative: generic"},
            {"a;reason=\"x\"", "SubstateValue=a GenericParams=;reason=\"x\"", nullptr, "no token: generic"},
            {"a;reason", "SubstateValue=a GenericParams=;reason", nullptr, "no value: generic"},
            {"a;expires=1;expires=2", "SubstateValue=a Expires=2", "a;expires=2", "the last"},
            {"a;expires=1x", nullptr, nullptr, "no semicolon behind the number"},
            {"a;reason=x y", nullptr, nullptr, "more than a token"},
            {"a;expires=", nullptr, nullptr, "nothing"},
            {"a b", nullptr, nullptr, "two states"},
            {" a", nullptr, nullptr, "a blank before"},
            {";expires=1", nullptr, nullptr, "no state"},
            {"", nullptr, nullptr, "nothing"},
        });
}

TEST(QuillHeaderParams, AreKeptInTheirNormalForm) {
    auto disposition = own(quillHeaderContentDispositionCreate(str("SESSION")));
    EXPECT_EQ(taken(quillHeaderContentDispositionDispositionType(disposition.get())), "session");
    quillHeaderContentDispositionSetDispositionType(disposition.address(), str("Icon"));
    quillHeaderContentDispositionSetHandling(disposition.address(), str("Optional"));
    EXPECT_EQ(taken(quillHeaderContentDispositionToString(disposition.get())), "icon;handling=optional");
    auto expires = own(quillHeaderSessionExpiresCreate(1));
    quillHeaderSessionExpiresSetRefresher(expires.address(), str("UAS"));
    EXPECT_EQ(taken(quillHeaderSessionExpiresToString(expires.get())), "1;refresher=uas");
    auto state = own(quillHeaderSubscriptionStateCreate(str("ACTIVE")));
    EXPECT_EQ(taken(quillHeaderSubscriptionStateSubstateValue(state.get())), "active");
    quillHeaderSubscriptionStateSetSubstateValue(state.address(), str("Terminated"));
    quillHeaderSubscriptionStateSetReason(state.address(), str("Rejected"));
    EXPECT_EQ(taken(quillHeaderSubscriptionStateToString(state.get())), "terminated;reason=rejected");
    auto event = own(quillHeaderEventCreate(str("Presence")));
    quillHeaderEventSetId(event.address(), str("X"));
    EXPECT_EQ(taken(quillHeaderEventToString(event.get())), "Presence;id=X");
}

TEST(QuillHeaderParams, AreCreatedOfAValidValueAlone) {
    auto const hdr = own(quillHeaderReplacesCreate(str("a@b")));
    EXPECT_EQ(singleHeader("Replaces").describe(quillHeaderReplacesObj(hdr.get())), "CallId=a@b");
    EXPECT_FALSE(quillHeaderReplacesEarlyOnly(hdr.get()));
    auto const state = own(quillHeaderSubscriptionStateCreate(str("active")));
    EXPECT_EQ(quillHeaderSubscriptionStateExpires(state.get()), -1);
    EXPECT_EQ(quillHeaderSubscriptionStateRetryAfter(state.get()), -1);

    std::string const unit = "source/quill/quill_header_";
    EXPECT_ABORT(quillHeaderContentDispositionCreate(str("")), unit + "content_disposition",
                 "quillDispositionTypeOk( dispositionType )");
    EXPECT_ABORT(quillHeaderEventCreate(str("a.")), unit + "event", "quillEventTypeOk( eventType )");
    EXPECT_ABORT(quillHeaderMinSeCreate(-1), unit + "min_se", "quillDeltaSecondsOk( deltaSeconds )");
    EXPECT_ABORT(quillHeaderReplacesCreate(str("")), unit + "replaces", "quillCallIdOk( callId )");
    EXPECT_ABORT(quillHeaderRetryAfterCreate(-1), unit + "retry_after", "quillDeltaSecondsOk( deltaSeconds )");
    EXPECT_ABORT(quillHeaderSessionExpiresCreate(-1), unit + "session_expires", "quillDeltaSecondsOk( deltaSeconds )");
    EXPECT_ABORT(quillHeaderSessionIdCreate(str("a")), unit + "session_id", "quillSessUuidOk( localUuid )");
    EXPECT_ABORT(quillHeaderSubscriptionStateCreate(str("")), unit + "subscription_state",
                 "quillSubstateValueOk( substateValue )");
}

} // namespace
