#include "single_headers.hpp"

#include <cstdio>
#include <quill/quill.h>

namespace test {

namespace {

template <class T> T *as(coObj const *obj) { return reinterpret_cast<T *>(const_cast<coObj *>(obj)); }
template <class T> coObj *generic(T *obj) { return reinterpret_cast<coObj *>(obj); }

// A call that takes the address of a typed reference, through the address of an untyped one.
template <class T, class Call> void through(coObj **hdr, Call const &call) {
    if (!hdr) return call(static_cast<T **>(nullptr));
    T *typed = as<T>(*hdr);
    call(&typed);
    *hdr = generic(typed);
}

std::string textOf(coString *owned) { return owned ? taken(owned) : "(absent)"; }

std::string textOf(int64_t number) { return number == -1 ? "(absent)" : std::to_string(number); }

std::string textOf(bool flag) { return flag ? "true" : "false"; }

std::string textOf(coTime *owned) { return taken(coTimeToString(own(owned).get())); }

std::string textOf(quillGenericParams *owned) { return taken(quillGenericParamsToString(own(owned).get())); }

co::Ref<quillGenericParams> paramsFrom(std::string const &text) {
    if (text == "(null)") return {};
    std::u32string const chars = wide(text);
    return own(quill___GenericParamsTryDecode(chars.data(), static_cast<int64_t>(chars.size())));
}

co::Ref<coTime> timeFrom(std::string const &text) {
    if (text == "(null)") return {};
    int fields[6];
    if (std::sscanf(text.c_str(), "%d-%d-%dT%d:%d:%dZ", &fields[0], &fields[1], &fields[2], &fields[3], &fields[4],
                    &fields[5]) != 6)
        return {};
    auto time = own(coTimeCreate());
    coTimeSetYear(time.address(), fields[0]);
    coTimeSetMonth(time.address(), fields[1]);
    coTimeSetDay(time.address(), fields[2]);
    coTimeSetHour(time.address(), fields[3]);
    coTimeSetMinute(time.address(), fields[4]);
    coTimeSetSecond(time.address(), fields[5]);
    return time;
}

using Texts = std::vector<std::string>;

#define GET(Type, Name)                                                                                                \
    [](coObj const *hdr) { return textOf(quillHeader##Type##Name(as<struct quillHeader##Type>(hdr))); }
#define SET(Type, Name, from)                                                                                          \
    [](coObj **hdr, std::string const &text) {                                                                         \
        through<struct quillHeader##Type>(hdr,                                                                         \
                                          [&](auto **typed) { quillHeader##Type##Set##Name(typed, from(text)); });     \
    }
#define HAS(Type, Name) [](coObj const *hdr) { return quillHeader##Type##Has##Name(as<struct quillHeader##Type>(hdr)); }
#define DEL(Type, Name)                                                                                                \
    [](coObj **hdr) {                                                                                                  \
        through<struct quillHeader##Type>(hdr, [](auto **typed) { quillHeader##Type##Del##Name(typed); });             \
    }

#define TEXT(Type, Name, condition, ...)                                                                               \
    Part {                                                                                                             \
#Name, Part::Kind::text, false, condition, "", __VA_ARGS__, GET(Type, Name), SET(Type, Name, str), {}, {}      \
    }
#define OPTIONAL_TEXT(Type, Name, condition, param, ...)                                                               \
    Part {                                                                                                             \
#Name, Part::Kind::text, true, condition, param, __VA_ARGS__, GET(Type, Name), SET(Type, Name, str),           \
            HAS(Type, Name), DEL(Type, Name)                                                                           \
    }
#define NUMBER(Type, Name, condition, ...)                                                                             \
    Part {                                                                                                             \
#Name, Part::Kind::number, false, condition, "", __VA_ARGS__, GET(Type, Name), SET(Type, Name, std::stoll),    \
            {}, {}                                                                                                     \
    }
#define OPTIONAL_SECONDS(Type, Name, argument, param)                                                                  \
    Part {                                                                                                             \
#Name, Part::Kind::number, true, "quillDeltaSecondsOk( " argument " )", param, SECONDS, GET(Type, Name),       \
            SET(Type, Name, std::stoll), HAS(Type, Name), DEL(Type, Name)                                              \
    }
#define PARAMS(Type)                                                                                                   \
    Part {                                                                                                             \
        "GenericParams", Part::Kind::params, false, "genericParams", "", Texts{"", ";a=1", ";a=1;b", ";b"},            \
            Texts{"(null)"}, GET(Type, GenericParams),                                                                 \
            [](coObj **hdr, std::string const &text) {                                                                 \
                auto const params = paramsFrom(text);                                                                  \
                through<struct quillHeader##Type>(                                                                     \
                    hdr, [&](auto **typed) { quillHeader##Type##SetGenericParams(typed, params.get()); });             \
            },                                                                                                         \
            {}, {}                                                                                                     \
    }

// What parts of one kind may be, and what they may not.
#define SECONDS                                                                                                        \
    Texts{"0", "60", "9223372036854775807"}, Texts { "-1", "-9223372036854775808" }
#define TOKENS                                                                                                         \
    Texts{"a", "b-1.%"}, Texts { "", "a b", "a;" }
#define TAGS                                                                                                           \
    Texts{"A", "a", "b-1.%"}, Texts { "", "a b", "a;" }
#define IRIS                                                                                                           \
    Texts{"sip:a@b", "sip:a@c;x=1", "tel:+49"}, Texts { "", "a", "sip:", "sip:a b" }
#define DISPLAY_NAMES                                                                                                  \
    Texts{"", "Bob", "b \"c\"", "é"}, Texts { "a\r", "\n" }
#define CALL_IDS                                                                                                       \
    Texts{"A", "a", "a@b"}, Texts { "", "a@", "a b" }
#define METHODS                                                                                                        \
    Texts{"INVITE", "invite"}, Texts { "", "IN VITE" }
#define RESPONSE_NUMS                                                                                                  \
    Texts{"1", "4294967295"}, Texts { "0", "-1", "4294967296" }
#define CSEQS                                                                                                          \
    Texts{"0", "2147483647"}, Texts { "-1", "2147483648" }
#define PRODUCTS                                                                                                       \
    Texts{"a/1 (x) b", "b"}, Texts { "", "a/", "a/1 " }
#define TRIMMED_TEXTS                                                                                                  \
    Texts{"", "North Shore", "é"}, Texts { "a\r\n", "\x7f" }
#define UUIDS                                                                                                          \
    Texts{"0123456789abcdef0123456789abcdef", "zzzzzzzzzzzzzzzzzzzzzzzzzzzzzzzz"}, Texts {                             \
        "", "0123456789abcdef0123456789abcde", "0123456789abcdef0123456789abcdef0", "0123456789ABCDEF0123456789ABCDEF" \
    }

#define IRI(Type) TEXT(Type, Iri, "quillIriOk( iri )", IRIS)
#define DISPLAY_NAME(Type) OPTIONAL_TEXT(Type, DisplayName, "quillDisplayNameOk( displayName )", "", DISPLAY_NAMES)
#define TAG(Type) OPTIONAL_TEXT(Type, Tag, "quillTagOk( tag )", "tag", TAGS)
#define EPID(Type)                                                                                                     \
    OPTIONAL_TEXT(Type, Epid, "quillEpidOk( epid )", "epid", Texts{"A", "a"}, (Texts{"", "a b", "12345678901234567"}))
#define DELTA_SECONDS(Type) NUMBER(Type, DeltaSeconds, "quillDeltaSecondsOk( deltaSeconds )", SECONDS)

#define SINGLE(Type, SORT, unit, field, line, ...)                                                                     \
    SingleHeader {                                                                                                     \
#Type, "QUILL_HEADER_" #SORT, "source/quill/quill_header_" unit, field, line,                                  \
            &quill___sort_QUILL_HEADER_##SORT, &quill___Cos##Type, quill___Header##Type##Startup,                      \
            quill___Header##Type##Shutdown, quill___Header##Type##FreeFunc, quillHeader##Type##Sort,                   \
            [](coObj *hdr) { quillHeader##Type##Retain(as<struct quillHeader##Type>(hdr)); },                          \
            [](coObj *hdr) { quillHeader##Type##Release(as<struct quillHeader##Type>(hdr)); },                         \
            [](coObj const *hdr) { return quillHeader##Type##Obj(as<struct quillHeader##Type>(hdr)); },                \
            [](coObj const *obj) { return generic(quillHeader##Type##From(obj)); },                                    \
            [](coObj const *hdr) { return quillHeader##Type##ToString(as<struct quillHeader##Type>(hdr)); },           \
            quill___Header##Type##CompareFunc,                                                                         \
            [](coObj const *a, coObj const *b) {                                                                       \
                return quillHeader##Type##Compare(as<struct quillHeader##Type>(a), as<struct quillHeader##Type>(b));   \
            },                                                                                                         \
            [](coObj const *a, coObj const *b) {                                                                       \
                return quillHeader##Type##Equals(as<struct quillHeader##Type>(a), as<struct quillHeader##Type>(b));    \
            },                                                                                                         \
            [](coObj const *source) {                                                                                  \
                return generic(quillHeader##Type##CreateFrom(as<struct quillHeader##Type>(source)));                   \
            },                                                                                                         \
            [](coObj const *hdr) { return quillHeader##Type##Encode(as<struct quillHeader##Type>(hdr)); },             \
            [](Header const *header) { return generic(quillHeader##Type##TryDecode(header)); },                        \
            [](coObj const *hdr) { return quillHeader##Type##Store(as<struct quillHeader##Type>(hdr)); },              \
            [](coStore const *store) { return generic(quillHeader##Type##TryRestore(store)); },                        \
            quillHeader##Type##PresentInMessage,                                                                       \
            [](coObj const *hdr, Message **msg) {                                                                      \
                quillHeader##Type##EncodeToMessage(as<struct quillHeader##Type>(hdr), msg);                            \
            },                                                                                                         \
            [](Message const *msg) { return generic(quillHeader##Type##TryDecodeFromMessage(msg)); },                  \
            quillHeader##Type##RemoveFromMessage, {       \
            __VA_ARGS__                                                                                                \
        }                                                                                                              \
    }

#define ADDRESS(Type, SORT, unit, field)                                                                               \
    SINGLE(Type, SORT, unit, field, "\"Bob\" <sip:a@b>;x=1", IRI(Type), DISPLAY_NAME(Type), PARAMS(Type))
#define DIALOG_END(Type, SORT, unit, field)                                                                            \
    SINGLE(Type, SORT, unit, field, "\"Bob\" <sip:a@b>;tag=t;epid=e;x=1", IRI(Type), DISPLAY_NAME(Type), TAG(Type),    \
           EPID(Type), PARAMS(Type))

std::vector<SingleHeader> makeSingleHeaders() {
    return {
        SINGLE(CallId, CALL_ID, "call_id", "Call-Id", "a@b", TEXT(CallId, CallId, "quillCallIdOk( callId )", CALL_IDS)),
        SINGLE(ContentDisposition, CONTENT_DISPOSITION, "content_disposition", "Content-Disposition",
               "session;handling=required;x=1",
               TEXT(ContentDisposition, DispositionType, "quillDispositionTypeOk( dispositionType )", TOKENS),
               OPTIONAL_TEXT(ContentDisposition, Handling, "quillHandlingOk( handling )", "handling", TOKENS),
               PARAMS(ContentDisposition)),
        SINGLE(Cseq, CSEQ, "cseq", "Cseq", "1 INVITE", NUMBER(Cseq, Cseq, "quillCseqOk( cseq )", CSEQS),
               TEXT(Cseq, Method, "quillMethodOk( method )", METHODS)),
        SINGLE(Date, DATE, "date", "Date", "Mon, 01 Jan 2024 00:00:00 GMT",
               Part{"Time",
                    Part::Kind::time,
                    false,
                    "time",
                    "",
                    {"0001-01-01T00:00:00Z", "2024-02-29T23:59:59Z", "2024-02-29T23:59:60Z", "9999-12-31T00:00:00Z"},
                    {"(null)"},
                    GET(Date, Time),
                    [](coObj **hdr, std::string const &text) {
                        auto const time = timeFrom(text);
                        through<quillHeaderDate>(hdr, [&](auto **typed) { quillHeaderDateSetTime(typed, time.get()); });
                    },
                    {},
                    {}}),
        SINGLE(
            Event, EVENT, "event", "Event", "presence.winfo;id=7;x=1",
            TEXT(Event, EventType, "quillEventTypeOk( eventType )", Texts{"A", "a", "a.b.c"}, (Texts{"", "a.", "a b"})),
            OPTIONAL_TEXT(Event, Id, "quillTokenOk( id )", "id", TAGS), PARAMS(Event)),
        SINGLE(Expires, EXPIRES, "expires", "Expires", "3600", DELTA_SECONDS(Expires)),
        DIALOG_END(From, FROM, "from", "From"),
        SINGLE(MaxForwards, MAX_FORWARDS, "max_forwards", "Max-Forwards", "70",
               NUMBER(MaxForwards, MaxForwards, "quillMaxForwardsOk( maxForwards )", Texts{"0", "255"},
                      (Texts{"-1", "256"}))),
        SINGLE(MinExpires, MIN_EXPIRES, "min_expires", "Min-Expires", "60", DELTA_SECONDS(MinExpires)),
        SINGLE(MinSe, MIN_SE, "min_se", "Min-Se", "90;x=1", DELTA_SECONDS(MinSe), PARAMS(MinSe)),
        SINGLE(Organization, ORGANIZATION, "organization", "Organization", "North Shore",
               TEXT(Organization, Organization, "quillOrganizationOk( organization )", TRIMMED_TEXTS)),
        ADDRESS(PCalledPartyId, P_CALLED_PARTY_ID, "p_called_party_id", "P-Called-Party-Id"),
        SINGLE(Priority, PRIORITY, "priority", "Priority", "urgent",
               TEXT(Priority, PriorityValue, "quillPriorityValueOk( priorityValue )", TOKENS)),
        SINGLE(Rack, RACK, "rack", "Rack", "3 2 INVITE",
               NUMBER(Rack, ResponseNum, "quillResponseNumOk( responseNum )", RESPONSE_NUMS),
               NUMBER(Rack, Cseq, "quillCseqOk( cseq )", CSEQS),
               TEXT(Rack, Method, "quillMethodOk( method )", METHODS)),
        ADDRESS(ReferTo, REFER_TO, "refer_to", "Refer-To"),
        SINGLE(ReferredBy, REFERRED_BY, "referred_by", "Referred-By", "\"Bob\" <sip:a@b>;cid=\"c@d\";x=1",
               IRI(ReferredBy), DISPLAY_NAME(ReferredBy),
               OPTIONAL_TEXT(ReferredBy, Cid, "quillSipCleanMsgIdOk( cid )", "cid", Texts{"A@b", "a@b"},
                             (Texts{"", "a", "\"a@b\""})),
               PARAMS(ReferredBy)),
        ADDRESS(RemotePartyId, REMOTE_PARTY_ID, "remote_party_id", "Remote-Party-Id"),
        SINGLE(Replaces, REPLACES, "replaces", "Replaces", "a@b;from-tag=f;to-tag=t;early-only;x=1",
               TEXT(Replaces, CallId, "quillCallIdOk( callId )", CALL_IDS),
               OPTIONAL_TEXT(Replaces, FromTag, "quillTagOk( fromTag )", "from-tag", TAGS),
               OPTIONAL_TEXT(Replaces, ToTag, "quillTagOk( toTag )", "to-tag", TAGS),
               Part{"EarlyOnly",
                    Part::Kind::flag,
                    false,
                    "",
                    "early-only",
                    {"false", "true"},
                    {},
                    GET(Replaces, EarlyOnly),
                    [](coObj **hdr, std::string const &text) {
                        through<quillHeaderReplaces>(
                            hdr, [&](auto **typed) { quillHeaderReplacesSetEarlyOnly(typed, text == "true"); });
                    },
                    {},
                    {}},
               PARAMS(Replaces)),
        ADDRESS(ReplyTo, REPLY_TO, "reply_to", "Reply-To"),
        SINGLE(RetryAfter, RETRY_AFTER, "retry_after", "Retry-After", "5;duration=60;x=1", DELTA_SECONDS(RetryAfter),
               OPTIONAL_SECONDS(RetryAfter, Duration, "duration", "duration"), PARAMS(RetryAfter)),
        SINGLE(Rseq, RSEQ, "rseq", "Rseq", "988789",
               NUMBER(Rseq, ResponseNum, "quillResponseNumOk( responseNum )", RESPONSE_NUMS)),
        SINGLE(Server, SERVER, "server", "Server", "a/1 (x) b",
               TEXT(Server, Server, "quillServerOk( server )", PRODUCTS)),
        SINGLE(SessionExpires, SESSION_EXPIRES, "session_expires", "Session-Expires", "1800;refresher=uac;x=1",
               DELTA_SECONDS(SessionExpires),
               OPTIONAL_TEXT(SessionExpires, Refresher, "quillRefresherOk( refresher )", "refresher",
                             Texts{"uac", "uas"}, (Texts{"", "ua", "uacx"})),
               PARAMS(SessionExpires)),
        SINGLE(SessionId, SESSION_ID, "session_id", "Session-Id",
               "0123456789abcdef0123456789abcdef;remote=00000000000000000000000000000000;x=1",
               TEXT(SessionId, LocalUuid, "quillSessUuidOk( localUuid )", UUIDS),
               OPTIONAL_TEXT(SessionId, RemoteUuid, "quillSessUuidOk( remoteUuid )", "remote", UUIDS),
               PARAMS(SessionId)),
        SINGLE(Subject, SUBJECT, "subject", "Subject", "Lunch, today",
               TEXT(Subject, Subject, "quillSubjectOk( subject )", TRIMMED_TEXTS)),
        SINGLE(SubscriptionState, SUBSCRIPTION_STATE, "subscription_state", "Subscription-State",
               "terminated;reason=probation;expires=1;retry-after=2;x=1",
               TEXT(SubscriptionState, SubstateValue, "quillSubstateValueOk( substateValue )", TOKENS),
               OPTIONAL_TEXT(SubscriptionState, Reason, "quillEventReasonValueOk( reason )", "reason", TOKENS),
               OPTIONAL_SECONDS(SubscriptionState, Expires, "expires", "expires"),
               OPTIONAL_SECONDS(SubscriptionState, RetryAfter, "retryAfter", "retry-after"), PARAMS(SubscriptionState)),
        SINGLE(Timestamp, TIMESTAMP, "timestamp", "Timestamp", "54.21 0.5",
               TEXT(Timestamp, TimestampValue, "quillTimestampValueOk( timestampValue )", Texts{"5", "54.21 0.5"},
                    (Texts{"", ".5", "5 x"}))),
        DIALOG_END(To, TO, "to", "To"),
        SINGLE(UserAgent, USER_AGENT, "user_agent", "User-Agent", "a/1 (x) b",
               TEXT(UserAgent, UserAgent, "quillUserAgentOk( userAgent )", PRODUCTS)),
    };
}

} // namespace

co::Ref<coObj> SingleHeader::decode(std::string_view text) const { return own(tryDecode(header(field, {text}).get())); }

std::string SingleHeader::encoded(coObj const *hdr) const {
    auto const header = own(encode(hdr));
    if (quillMessageHeaderLinesLength(header.get()) != 1) return "not one line: " + lines(header.get());
    return taken(quillMessageHeaderLineAt(header.get(), 0));
}

std::string SingleHeader::describe(coObj const *hdr) const {
    if (!hdr) return "(null)";
    std::string text;
    for (Part const &part : parts) {
        std::string const value = part.get(hdr);
        if (value == "(absent)" || value == "false" || (part.kind == Part::Kind::params && value.empty())) continue;
        text += (text.empty() ? "" : " ") + part.name + "=" + value;
    }
    return text;
}

std::vector<SingleHeader> const &singleHeaders() {
    static std::vector<SingleHeader> const headers = makeSingleHeaders();
    return headers;
}

SingleHeader const &singleHeader(std::string_view type) {
    for (SingleHeader const &header : singleHeaders())
        if (header.type == type) return header;
    ADD_FAILURE() << "no such header: " << type;
    return singleHeaders().front();
}

void expectReadings(std::string_view type, std::vector<Reading> const &readings) {
    SingleHeader const &header = singleHeader(type);
    for (Reading const &reading : readings) {
        SCOPED_TRACE(header.type + ": " + reading.line + " (" + reading.why + ")");
        auto const hdr = header.decode(reading.line);
        EXPECT_EQ(header.describe(hdr.get()), reading.parts ? reading.parts : "(null)");
        if (!hdr) continue;
        std::string const written = header.encoded(hdr.get());
        EXPECT_EQ(written, reading.written ? reading.written : reading.line);
        auto const again = header.decode(written);
        ASSERT_TRUE(again);
        EXPECT_TRUE(header.equals(again.get(), hdr.get()));
    }
}

} // namespace test
