#include "objects.hpp"

#include <quill/quill_status_code.h>

using namespace test;

namespace {

constexpr char unit[] = "source/quill/quill_message";
constexpr char fragmentUnit[] = "source/quill/quill_message_fragment";
char const *const isMessage = "quillMessageFragmentIsRequest( fragment ) || quillMessageFragmentIsResponse( fragment )";

co::Ref<Message> message(std::string_view bytes) { return own(quillMessageTryDecode(buffer(bytes).get())); }

co::Ref<Message> request() { return message("INVITE sip:a@b SIP/2.0\r\nv: x\r\nl: 3\r\n\r\nabc"); }
co::Ref<Message> response() { return message("SIP/2.0 200 Fine\r\nv: x\r\nl: 3\r\n\r\nabc"); }

TEST(QuillMessage, IsMadeOfAFragment) {
    auto const frag = own(quillMessageFragmentCreateResponse(sip20().get(), 200));
    auto const msg = own(quillMessageCreate(frag.get()));
    EXPECT_EQ(own(quillMessageFragment(msg.get())).get(), frag.get()) << "shared, not copied";
    EXPECT_EQ(count(frag.get()), 2);
    EXPECT_ABORT(quillMessageCreate(own(quillMessageFragmentCreate()).get()), unit, isMessage);
    EXPECT_ABORT(quillMessageFragment(nullptr), unit, "msg");
}

TEST(QuillMessage, Creates) {
    struct {
        co::Ref<Message> msg;
        char const *expected;
    } const rows[] = {
        {own(quillMessageCreateRequest(sip20().get(), str("A"), str("b:c"))), "A b:c SIP/2.0"},
        {own(quillMessageCreateRequestCstr(sip20().get(), "AB", 1, "b:cd", 3)), "A b:c SIP/2.0"},
        {own(quillMessageCreateRequestWcstr(sip20().get(), L"A", -1, L"b:c", -1)), "A b:c SIP/2.0"},
        {own(quillMessageCreateResponse(sip20().get(), 200)), "SIP/2.0 200 [OK]"},
        {own(quillMessageCreateResponseWithReasonPhrase(sip20().get(), 200, str("x"))), "SIP/2.0 200 [x]"},
        {own(quillMessageCreateResponseWithReasonPhraseCstr(sip20().get(), 200, "xy", 1)), "SIP/2.0 200 [x]"},
        {own(quillMessageCreateResponseWithReasonPhraseWcstr(sip20().get(), 200, L"x", -1)), "SIP/2.0 200 [x]"},
    };
    for (auto const &row : rows) {
        EXPECT_EQ(describe(row.msg.get()), row.expected);
        EXPECT_EQ(count(own(quillMessageFragment(row.msg.get())).get()), 2);
    }
    EXPECT_ABORT(quillMessageCreateRequest(nullptr, str("A"), str("b:c")), fragmentUnit, "version");
    EXPECT_ABORT(quillMessageCreateResponse(sip20().get(), 99), fragmentUnit, "quillStatusCodeOk( sc )");
}

// Readers: what the fragment's operation of the same name says.

struct Read {
    char const *name;
    std::string (*ofMessage)(Message const *);
    std::string (*ofFragment)(Fragment const *);
};

std::string show(bool value) { return value ? "true" : "false"; }
std::string show(int64_t value) { return std::to_string(value); }
std::string show(coString *value) { return taken(value); }
std::string show(coBuffer *value) { return takenBytes(value); }
std::string show(coVector *value) { return std::to_string(coVectorLength(own(value).get())); }
std::string show(quillVersion *value) { return value ? taken(quillVersionToString(own(value).get())) : "(null)"; }
std::string show(Header *value) { return value ? lines(own(value).get()) : "(null)"; }

#define READ(Name, ...)                                                                                                \
    Read {                                                                                                             \
#Name, [](Message const *msg) { return show(quillMessage##Name(msg __VA_OPT__(, ) __VA_ARGS__)); },            \
            [](Fragment const *frag) { return show(quillMessageFragment##Name(frag __VA_OPT__(, ) __VA_ARGS__)); }       \
    }

Read const reads[] = {
    READ(IsRequest),
    READ(RequestMethod),
    READ(RequestIri),
    READ(IsResponse),
    READ(ResponseStatusCode),
    READ(ResponseReasonPhrase),
    READ(Version),
    READ(HeadersVector),
    READ(Header, str("via")),
    READ(Header, str("to")),
    READ(HeaderCstr, "vx", 1),
    READ(HeaderWcstr, L"v", -1),
    READ(HasHeader, str("via")),
    READ(HasHeader, str("to")),
    READ(HasHeaderCstr, "vx", 1),
    READ(HasHeaderWcstr, L"t", -1),
    READ(Body),
    READ(HasBody),
    READ(Encode),
};

TEST(QuillMessage, ReadsWhatTheFragmentReads) {
    for (auto const &msg : {request(), response(), message("SIP/2.0 100\r\n")}) {
        auto const frag = own(quillMessageFragment(msg.get()));
        for (Read const &read : reads) EXPECT_EQ(read.ofMessage(msg.get()), read.ofFragment(frag.get())) << read.name;
    }
    for (Read const &read : reads) EXPECT_ABORT(read.ofMessage(nullptr), unit, "msg");
    EXPECT_EQ(show(quillMessageIsRequest(request().get())), "true");
    EXPECT_EQ(show(quillMessageResponseStatusCode(response().get())), "200");
}

// Setters: what the fragment's operation of the same name does, with copy on write on both levels.

struct Change {
    char const *name;
    void (*ofMessage)(Message **);
    void (*ofFragment)(Fragment **);
    bool ofRequest;
    bool ofResponse;
};

#define CHANGE(ofRequest, ofResponse, Name, ...)                                                                       \
    Change {                                                                                                           \
#Name, [](Message **msg) { quillMessage##Name(msg __VA_OPT__(, ) __VA_ARGS__); },                              \
            [](Fragment **frag) { quillMessageFragment##Name(frag __VA_OPT__(, ) __VA_ARGS__); }, ofRequest,           \
            ofResponse       \
    }

Change const changes[] = {
    CHANGE(true, true, SetRequest, sip20().get(), str("BYE"), str("sip:x")),
    CHANGE(true, true, SetRequestCstr, sip20().get(), "BYEx", 3, "sip:xy", 5),
    CHANGE(true, true, SetRequestWcstr, sip20().get(), L"BYE", -1, L"sip:x", -1),
    CHANGE(true, false, SetRequestMethod, str("BYE")),
    CHANGE(true, false, SetRequestMethodCstr, "BYEx", 3),
    CHANGE(true, false, SetRequestMethodWcstr, L"BYE", -1),
    CHANGE(true, false, SetRequestIri, str("sip:x")),
    CHANGE(true, false, SetRequestIriCstr, "sip:xy", 5),
    CHANGE(true, false, SetRequestIriWcstr, L"sip:x", -1),
    CHANGE(true, true, SetResponse, sip20().get(), 404),
    CHANGE(true, true, SetResponseWithReasonPhrase, sip20().get(), 404, str("x")),
    CHANGE(true, true, SetResponseWithReasonPhraseCstr, sip20().get(), 404, "xy", 1),
    CHANGE(true, true, SetResponseWithReasonPhraseWcstr, sip20().get(), 404, L"x", -1),
    CHANGE(false, true, SetResponseStatusCode, 404, false),
    CHANGE(false, true, SetResponseStatusCode, 404, true),
    CHANGE(false, true, SetResponseReasonPhrase, str("x")),
    CHANGE(false, true, SetResponseReasonPhraseCstr, "xy", 1),
    CHANGE(false, true, SetResponseReasonPhraseWcstr, L"x", -1),
    CHANGE(true, true, SetVersion, own(quillVersionCreate(str("SIP"), str("3.0"))).get()),
    CHANGE(true, true, SetHeader, header("v", {"y"}).get()),
    CHANGE(true, true, DelHeader, str("v")),
    CHANGE(true, true, DelHeaderCstr, "vx", 1),
    CHANGE(true, true, DelHeaderWcstr, L"via", -1),
    CHANGE(true, true, SetBody, buffer("new").get()),
    CHANGE(true, true, DelBody),
};

void expectChange(Change const &row, co::Ref<Message> (*make)()) {
    SCOPED_TRACE(row.name);
    auto alone = make();
    std::string const before = describe(alone.get());
    Message const *identity = alone.get();
    Fragment const *fragIdentity = own(quillMessageFragment(alone.get())).get();
    row.ofMessage(alone.address());
    EXPECT_EQ(alone.get(), identity);
    EXPECT_EQ(own(quillMessageFragment(alone.get())).get(), fragIdentity) << "nobody else holds either";

    auto frag = own(quillMessageFragment(make().get()));
    row.ofFragment(frag.address());
    std::string const expected = describe(frag.get());
    EXPECT_NE(expected, before);
    EXPECT_EQ(describe(alone.get()), expected);
    EXPECT_TRUE(quillMessageIsRequest(alone.get()) != quillMessageIsResponse(alone.get()));

    auto mine = make(); // the message is shared
    co::Ref<Message> const other(co::retained(mine.get()));
    row.ofMessage(mine.address());
    EXPECT_NE(mine.get(), other.get());
    EXPECT_EQ(describe(mine.get()), expected);
    EXPECT_EQ(describe(other.get()), before);
    EXPECT_EQ(count(other.get()), 1);

    mine = make(); // the fragment is shared
    auto const copy = own(quillMessageCreateFrom(mine.get()));
    identity = mine.get();
    row.ofMessage(mine.address());
    EXPECT_EQ(mine.get(), identity);
    EXPECT_EQ(describe(mine.get()), expected);
    EXPECT_EQ(describe(copy.get()), before);
}

TEST(QuillMessage, ChangesCopyOnWriteOnBothLevels) {
    for (Change const &row : changes) {
        if (row.ofRequest) expectChange(row, request);
        if (row.ofResponse) expectChange(row, response);
    }
}

TEST(QuillMessage, SettersAssert) {
    for (Change const &row : changes) {
        Message *null = nullptr;
        EXPECT_ABORT(row.ofMessage(nullptr), unit, "msg");
        EXPECT_ABORT(row.ofMessage(&null), unit, "*msg");
        auto wrong = row.ofRequest ? response() : request();
        if (row.ofRequest && row.ofResponse) continue;
        EXPECT_DEATH(row.ofMessage(wrong.address()), "abort: source/quill/quill_message_fragment:.*->re[qs]");
    }
    auto msg = request();
    EXPECT_ABORT(quillMessageSetHeader(msg.address(), nullptr), fragmentUnit, "header");
    EXPECT_ABORT(quillMessageSetBody(msg.address(), nullptr), fragmentUnit, "body");
    EXPECT_ABORT(quillMessageSetRequestMethod(msg.address(), str("")), fragmentUnit, "quillMethodOk( method )");
}

TEST(QuillMessage, CopiesAreIndependent) {
    auto const source = response();
    auto copy = own(quillMessageCreateFrom(source.get()));
    quillMessageSetResponseStatusCode(copy.address(), 486, true);
    EXPECT_EQ(quillMessageResponseStatusCode(source.get()), 200);
    EXPECT_EQ(quillMessageResponseStatusCode(copy.get()), 486);
    EXPECT_EQ(taken(quillMessageResponseReasonPhrase(copy.get())), "Busy here");
}

TEST(QuillMessage, DecodesRequestsAndResponsesOnly) {
    EXPECT_EQ(describe(request().get()), "INVITE sip:a@b SIP/2.0\nVia=[x]\nContent-Length=[3]\nbody=[abc]");
    for (char const *bytes : {"From: a\r\n\r\n", "", "\r\n\r\nabc", "\r\n\r\n"}) {
        EXPECT_FALSE(message(bytes)) << bytes;
        EXPECT_NE(decoded(bytes), "(null)") << bytes;
    }
    for (char const *bytes : {"\r\nINVITE sip:a@b SIP/2.0\r\n\r\n", "x", "INVITE sip:a@b SIP/2.0\r\nl: 1\r\n\r\n"}) {
        EXPECT_FALSE(message(bytes)) << bytes;
        EXPECT_EQ(decoded(bytes), "(null)") << bytes;
    }
    EXPECT_ABORT(quillMessageTryDecode(nullptr), "source/quill/quill_message_fragment_decode", "buf");
}

} // namespace
