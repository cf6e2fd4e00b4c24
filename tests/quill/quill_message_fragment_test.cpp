#include "objects.hpp"

#include <quill/quill_status_code.h>

using namespace test;

namespace {

constexpr char unit[] = "source/quill/quill_message_fragment";

co::Ref<Fragment> request() {
    return own(quillMessageFragmentCreateRequest(sip20().get(), str("INVITE"), str("sip:a@b")));
}

co::Ref<Fragment> response() {
    return own(quillMessageFragmentCreateResponseWithReasonPhrase(sip20().get(), 200, str("Fine")));
}

co::Ref<quillVersion> version3() { return own(quillVersionCreate(str("SIP"), str("3.0"))); }

// Whether the members are those of one of the three states.
void expectInvariant(Fragment const *frag) {
    bool const isRequest = quillMessageFragmentIsRequest(frag);
    bool const isResponse = quillMessageFragmentIsResponse(frag);
    bool const isNeither = quillMessageFragmentIsNeitherRequestNorResponse(frag);
    EXPECT_EQ(isRequest + isResponse + isNeither, 1);
    EXPECT_EQ(bool(own(quillMessageFragmentRequestMethod(frag))), isRequest);
    EXPECT_EQ(bool(own(quillMessageFragmentRequestIri(frag))), isRequest);
    EXPECT_EQ(quillMessageFragmentResponseStatusCode(frag) != QUILL_STATUS_CODE_INVALID, isResponse);
    EXPECT_EQ(bool(own(quillMessageFragmentResponseReasonPhrase(frag))), isResponse);
    EXPECT_EQ(quillMessageFragmentHasVersion(frag), !isNeither);
    EXPECT_EQ(bool(own(quillMessageFragmentVersion(frag))), !isNeither);
}

TEST(QuillMessageFragment, IsNeitherAtFirst) {
    auto const frag = own(quillMessageFragmentCreate());
    expectInvariant(frag.get());
    EXPECT_TRUE(quillMessageFragmentIsNeitherRequestNorResponse(frag.get()));
    EXPECT_EQ(quillMessageFragmentResponseStatusCode(frag.get()), -1);
    EXPECT_FALSE(quillMessageFragmentHasBody(frag.get()));
    EXPECT_EQ(quillMessageFragmentBody(frag.get()), nullptr);
    EXPECT_EQ(describe(frag.get()), "-");
}

TEST(QuillMessageFragment, CreatesRequestsAndResponses) {
    struct {
        co::Ref<Fragment> frag;
        char const *expected;
    } const rows[] = {
        {request(), "INVITE sip:a@b SIP/2.0"},
        {own(quillMessageFragmentCreateRequestCstr(sip20().get(), "ACKx", 3, "sip:ax", 5)), "ACK sip:a SIP/2.0"},
        {own(quillMessageFragmentCreateRequestWcstr(sip20().get(), L"ack", -1, L"sip:\u00E4", -1)),
         "ack sip:\u00E4 SIP/2.0"},
        {own(quillMessageFragmentCreateResponse(sip20().get(), 404)), "SIP/2.0 404 [Not found]"},
        {own(quillMessageFragmentCreateResponse(sip20().get(), 999)), "SIP/2.0 999 [Unknown reason \"999\"]"},
        {response(), "SIP/2.0 200 [Fine]"},
        {own(quillMessageFragmentCreateResponseWithReasonPhrase(sip20().get(), 100, str(""))), "SIP/2.0 100 []"},
        {own(quillMessageFragmentCreateResponseWithReasonPhraseCstr(version3().get(), 200, "OKx", 2)),
         "SIP/3.0 200 [OK]"},
        {own(quillMessageFragmentCreateResponseWithReasonPhraseWcstr(sip20().get(), 200, L"\u20AC\r\n", -1)),
         "SIP/2.0 200 [\u20AC\r\n]"},
    };
    for (auto const &row : rows) {
        EXPECT_EQ(describe(row.frag.get()), row.expected);
        expectInvariant(row.frag.get());
        EXPECT_EQ(count(row.frag.get()), 1);
    }
}

struct Change {
    char const *why;
    void (*change)(Fragment **);
    char const *ofRequest; // null where this is no state for it
    char const *ofResponse;
    char const *ofNeither;
};

Change const changes[] = {
    {"request", [](Fragment **f) { quillMessageFragmentSetRequest(f, version3().get(), str("BYE"), str("sip:c")); },
     "BYE sip:c SIP/3.0", "BYE sip:c SIP/3.0", "BYE sip:c SIP/3.0"},
    {"request, UTF-8",
     [](Fragment **f) { quillMessageFragmentSetRequestCstr(f, sip20().get(), "BYEx", 3, "sip:c", -1); },
     "BYE sip:c SIP/2.0", "BYE sip:c SIP/2.0", "BYE sip:c SIP/2.0"},
    {"request, wide",
     [](Fragment **f) { quillMessageFragmentSetRequestWcstr(f, sip20().get(), L"BYE", -1, L"sip:cd", 5); },
     "BYE sip:c SIP/2.0", "BYE sip:c SIP/2.0", "BYE sip:c SIP/2.0"},
    {"response", [](Fragment **f) { quillMessageFragmentSetResponse(f, version3().get(), 404); },
     "SIP/3.0 404 [Not found]", "SIP/3.0 404 [Not found]", "SIP/3.0 404 [Not found]"},
    {"response with a phrase",
     [](Fragment **f) { quillMessageFragmentSetResponseWithReasonPhrase(f, sip20().get(), 100, str("x")); },
     "SIP/2.0 100 [x]", "SIP/2.0 100 [x]", "SIP/2.0 100 [x]"},
    {"response with a phrase, UTF-8",
     [](Fragment **f) { quillMessageFragmentSetResponseWithReasonPhraseCstr(f, sip20().get(), 999, "xy", 1); },
     "SIP/2.0 999 [x]", "SIP/2.0 999 [x]", "SIP/2.0 999 [x]"},
    {"response with a phrase, wide",
     [](Fragment **f) { quillMessageFragmentSetResponseWithReasonPhraseWcstr(f, sip20().get(), 100, L"x", -1); },
     "SIP/2.0 100 [x]", "SIP/2.0 100 [x]", "SIP/2.0 100 [x]"},
    {"neither", [](Fragment **f) { quillMessageFragmentSetNeitherRequestNorResponse(f); }, "-", "-", "-"},
    {"version", [](Fragment **f) { quillMessageFragmentSetVersion(f, version3().get()); }, "INVITE sip:a@b SIP/3.0",
     "SIP/3.0 200 [Fine]", nullptr},
    {"method", [](Fragment **f) { quillMessageFragmentSetRequestMethod(f, str("BYE")); }, "BYE sip:a@b SIP/2.0",
     nullptr, nullptr},
    {"method, UTF-8", [](Fragment **f) { quillMessageFragmentSetRequestMethodCstr(f, "BYEx", 3); },
     "BYE sip:a@b SIP/2.0", nullptr, nullptr},
    {"method, wide", [](Fragment **f) { quillMessageFragmentSetRequestMethodWcstr(f, L"BYE", -1); },
     "BYE sip:a@b SIP/2.0", nullptr, nullptr},
    {"IRI", [](Fragment **f) { quillMessageFragmentSetRequestIri(f, str("sip:c")); }, "INVITE sip:c SIP/2.0", nullptr,
     nullptr},
    {"IRI, UTF-8", [](Fragment **f) { quillMessageFragmentSetRequestIriCstr(f, "sip:cx", 5); }, "INVITE sip:c SIP/2.0",
     nullptr, nullptr},
    {"IRI, wide", [](Fragment **f) { quillMessageFragmentSetRequestIriWcstr(f, L"tel:1", -1); }, "INVITE tel:1 SIP/2.0",
     nullptr, nullptr},
    {"code, phrase kept", [](Fragment **f) { quillMessageFragmentSetResponseStatusCode(f, 404, false); }, nullptr,
     "SIP/2.0 404 [Fine]", nullptr},
    {"code, phrase replaced", [](Fragment **f) { quillMessageFragmentSetResponseStatusCode(f, 404, true); }, nullptr,
     "SIP/2.0 404 [Not found]", nullptr},
    {"phrase", [](Fragment **f) { quillMessageFragmentSetResponseReasonPhrase(f, str("")); }, nullptr, "SIP/2.0 200 []",
     nullptr},
    {"phrase, UTF-8", [](Fragment **f) { quillMessageFragmentSetResponseReasonPhraseCstr(f, "xy", 1); }, nullptr,
     "SIP/2.0 200 [x]", nullptr},
    {"phrase, wide", [](Fragment **f) { quillMessageFragmentSetResponseReasonPhraseWcstr(f, L"x", -1); }, nullptr,
     "SIP/2.0 200 [x]", nullptr},
    {"header", [](Fragment **f) { quillMessageFragmentSetHeader(f, header("T", {"x"}).get()); },
     "INVITE sip:a@b SIP/2.0\nTo=[x]", "SIP/2.0 200 [Fine]\nTo=[x]", "-\nTo=[x]"},
    {"no header", [](Fragment **f) { quillMessageFragmentDelHeader(f, str("x")); }, "INVITE sip:a@b SIP/2.0",
     "SIP/2.0 200 [Fine]", "-"},
    {"no headers", [](Fragment **f) { quillMessageFragmentClearHeaders(f); }, "INVITE sip:a@b SIP/2.0",
     "SIP/2.0 200 [Fine]", "-"},
    {"body", [](Fragment **f) { quillMessageFragmentSetBody(f, buffer("abc").get()); },
     "INVITE sip:a@b SIP/2.0\nbody=[abc]", "SIP/2.0 200 [Fine]\nbody=[abc]", "-\nbody=[abc]"},
    {"no body", [](Fragment **f) { quillMessageFragmentDelBody(f); }, "INVITE sip:a@b SIP/2.0", "SIP/2.0 200 [Fine]",
     "-"},
};

void expectChange(Change const &row, co::Ref<Fragment> (*make)(), char const *expected) {
    if (!expected) return;
    SCOPED_TRACE(row.why);
    auto alone = make();
    Fragment const *identity = alone.get();
    row.change(alone.address());
    EXPECT_EQ(alone.get(), identity) << "nobody else holds it";
    EXPECT_EQ(describe(alone.get()), expected);
    expectInvariant(alone.get());

    auto mine = make();
    std::string const before = describe(mine.get());
    auto const copy = own(quillMessageFragmentCreateFrom(mine.get()));
    co::Ref<Fragment> const other(co::retained(mine.get()));
    row.change(mine.address());
    EXPECT_NE(mine.get(), other.get());
    EXPECT_EQ(count(mine.get()), 1);
    EXPECT_EQ(count(other.get()), 1);
    EXPECT_EQ(describe(mine.get()), expected);
    EXPECT_EQ(describe(other.get()), before);
    EXPECT_EQ(describe(copy.get()), before);
}

TEST(QuillMessageFragment, ChangesCopyOnWriteInEveryState) {
    for (Change const &row : changes) {
        expectChange(row, request, row.ofRequest);
        expectChange(row, response, row.ofResponse);
        expectChange(
            row, [] { return own(quillMessageFragmentCreate()); }, row.ofNeither);
    }
}

TEST(QuillMessageFragment, MemberSettersNeedTheirState) {
    std::string const isRequest = "(*frag)->requestMethod";
    std::string const isResponse = "(*frag)->responseStatusCode != QUILL_STATUS_CODE_INVALID";
    auto asked = request();
    auto answered = response();
    auto neither = own(quillMessageFragmentCreate());
    for (auto *frag : {&answered, &neither}) { // the state is looked at before the value
        EXPECT_ABORT(quillMessageFragmentSetRequestMethod(frag->address(), str("")), unit, isRequest);
        EXPECT_ABORT(quillMessageFragmentSetRequestIri(frag->address(), str("")), unit, isRequest);
    }
    for (auto *frag : {&asked, &neither}) {
        EXPECT_ABORT(quillMessageFragmentSetResponseStatusCode(frag->address(), 99, true), unit, isResponse);
        EXPECT_ABORT(quillMessageFragmentSetResponseReasonPhrase(frag->address(), nullptr), unit,
                     "(*frag)->responseReasonPhrase");
    }
    EXPECT_ABORT(quillMessageFragmentSetVersion(neither.address(), nullptr), unit, "(*frag)->version");
}

TEST(QuillMessageFragment, SettersAssertAddressObjectValues) {
    Fragment *null = nullptr;
    auto asked = request();
    auto answered = response();
    auto const sip = sip20();
    auto const setNull = [&](Fragment **frag, char const *condition) {
        EXPECT_ABORT(quillMessageFragmentSetRequest(frag, nullptr, str(""), str("")), unit, condition);
        EXPECT_ABORT(quillMessageFragmentSetResponseWithReasonPhrase(frag, nullptr, 0, str("")), unit, condition);
        EXPECT_ABORT(quillMessageFragmentSetResponse(frag, nullptr, 0), unit, condition);
        EXPECT_ABORT(quillMessageFragmentSetNeitherRequestNorResponse(frag), unit, condition);
        EXPECT_ABORT(quillMessageFragmentSetVersion(frag, nullptr), unit, condition);
        EXPECT_ABORT(quillMessageFragmentSetRequestMethod(frag, str("")), unit, condition);
        EXPECT_ABORT(quillMessageFragmentSetRequestIri(frag, str("")), unit, condition);
        EXPECT_ABORT(quillMessageFragmentSetResponseStatusCode(frag, 0, false), unit, condition);
        EXPECT_ABORT(quillMessageFragmentSetResponseReasonPhrase(frag, nullptr), unit, condition);
        EXPECT_ABORT(quillMessageFragmentSetHeader(frag, nullptr), unit, condition);
        EXPECT_ABORT(quillMessageFragmentDelHeader(frag, str("")), unit, condition);
        EXPECT_ABORT(quillMessageFragmentClearHeaders(frag), unit, condition);
        EXPECT_ABORT(quillMessageFragmentSetBody(frag, nullptr), unit, condition);
        EXPECT_ABORT(quillMessageFragmentDelBody(frag), unit, condition);
    };
    setNull(nullptr, "frag");
    setNull(&null, "*frag");

    std::string const method = "quillMethodOk( method )";
    std::string const iri = "quillIriOk( iri )";
    std::string const code = "quillStatusCodeOk( sc )";
    EXPECT_ABORT(quillMessageFragmentSetRequest(asked.address(), nullptr, str(""), str("")), unit, "version");
    EXPECT_ABORT(quillMessageFragmentSetRequest(asked.address(), sip.get(), str("A B"), str("")), unit, method);
    EXPECT_ABORT(quillMessageFragmentSetRequest(asked.address(), sip.get(), str("A"), str("b")), unit, iri);
    EXPECT_ABORT(quillMessageFragmentCreateRequest(nullptr, str(""), str("")), unit, "version");
    EXPECT_ABORT(quillMessageFragmentCreateRequestCstr(sip.get(), "", -1, "", -1), unit, method);
    EXPECT_ABORT(quillMessageFragmentCreateRequestWcstr(sip.get(), L"A", -1, L"sip:", -1), unit, iri);
    EXPECT_ABORT(quillMessageFragmentSetRequestMethod(asked.address(), str("")), unit, method);
    EXPECT_ABORT(quillMessageFragmentSetRequestMethodCstr(asked.address(), "\xC3\xA4", -1), unit, method);
    EXPECT_ABORT(quillMessageFragmentSetRequestIri(asked.address(), str("sip:a b")), unit, iri);
    EXPECT_ABORT(quillMessageFragmentSetRequestIriWcstr(asked.address(), L"", -1), unit, iri);

    EXPECT_ABORT(quillMessageFragmentSetResponse(asked.address(), nullptr, 99), unit, "version");
    EXPECT_ABORT(quillMessageFragmentSetResponse(asked.address(), sip.get(), 99), unit, code);
    EXPECT_ABORT(quillMessageFragmentSetResponseWithReasonPhrase(asked.address(), nullptr, 99, nullptr), unit,
                 "version");
    EXPECT_ABORT(quillMessageFragmentSetResponseWithReasonPhrase(asked.address(), sip.get(), 1000, nullptr), unit,
                 code);
    EXPECT_ABORT(quillMessageFragmentSetResponseWithReasonPhrase(asked.address(), sip.get(), 200, nullptr),
                 "source/quill/quill_reason_phrase", "reasonPhrase");
    EXPECT_ABORT(quillMessageFragmentCreateResponse(sip.get(), -1), unit, code);
    EXPECT_ABORT(quillMessageFragmentSetResponseStatusCode(answered.address(), 99, false), unit, code);
    EXPECT_ABORT(quillMessageFragmentSetResponseReasonPhrase(answered.address(), nullptr),
                 "source/quill/quill_reason_phrase", "reasonPhrase");
    EXPECT_ABORT(quillMessageFragmentSetVersion(asked.address(), nullptr), unit, "version");
    EXPECT_ABORT(quillMessageFragmentSetHeader(asked.address(), nullptr), unit, "header");
    EXPECT_ABORT(quillMessageFragmentSetBody(asked.address(), nullptr), unit, "body");
    EXPECT_ABORT(quillMessageFragmentDelHeader(asked.address(), str("")), "source/quill/quill_message_header",
                 "quillMessageHeaderNameOk( name )");
}

TEST(QuillMessageFragment, ReadersAssertTheFragment) {
    EXPECT_ABORT(quillMessageFragmentIsRequest(nullptr), unit, "frag");
    EXPECT_ABORT(quillMessageFragmentIsResponse(nullptr), unit, "frag");
    EXPECT_ABORT(quillMessageFragmentIsNeitherRequestNorResponse(nullptr), unit, "frag");
    EXPECT_ABORT(quillMessageFragmentRequestMethod(nullptr), unit, "frag");
    EXPECT_ABORT(quillMessageFragmentRequestIri(nullptr), unit, "frag");
    EXPECT_ABORT(quillMessageFragmentResponseStatusCode(nullptr), unit, "frag");
    EXPECT_ABORT(quillMessageFragmentResponseReasonPhrase(nullptr), unit, "frag");
    EXPECT_ABORT(quillMessageFragmentVersion(nullptr), unit, "frag");
    EXPECT_ABORT(quillMessageFragmentHasVersion(nullptr), unit, "frag");
    EXPECT_ABORT(quillMessageFragmentHeadersVector(nullptr), unit, "frag");
    EXPECT_ABORT(quillMessageFragmentHeader(nullptr, str("")), unit, "frag");
    EXPECT_ABORT(quillMessageFragmentHasHeader(nullptr, str("")), unit, "frag");
    EXPECT_ABORT(quillMessageFragmentHeaderContentLength(nullptr), unit, "frag");
    EXPECT_ABORT(quillMessageFragmentBody(nullptr), unit, "frag");
    EXPECT_ABORT(quillMessageFragmentHasBody(nullptr), unit, "frag");
}

TEST(QuillMessageFragment, MethodsKeepTheirCase) {
    auto const frag = own(quillMessageFragmentCreateRequest(sip20().get(), str("iNvItE"), str("SIP:A@B")));
    EXPECT_EQ(describe(frag.get()), "iNvItE SIP:A@B SIP/2.0");
}

TEST(QuillMessageFragment, KeepsItsArguments) {
    auto const version = version3();
    Str const method = str("X");
    Str const iri = str("sip:a");
    auto const frag = own(quillMessageFragmentCreateRequest(version.get(), method, iri));
    EXPECT_EQ(own(quillMessageFragmentVersion(frag.get())).get(), version.get());
    EXPECT_EQ(own(quillMessageFragmentRequestMethod(frag.get())).get(), method.get());
    EXPECT_EQ(own(quillMessageFragmentRequestIri(frag.get())).get(), iri.get());
    auto const body = buffer("abc");
    auto mine = own(quillMessageFragmentCreate());
    quillMessageFragmentSetBody(mine.address(), body.get());
    EXPECT_EQ(own(quillMessageFragmentBody(mine.get())).get(), body.get());
}

TEST(QuillMessageFragment, HasOneHeaderOfEachName) {
    auto frag = own(quillMessageFragmentCreate());
    auto const via = header("v", {"1", "2"});
    quillMessageFragmentSetHeader(frag.address(), via.get());
    quillMessageFragmentSetHeader(frag.address(), header("t", {"x"}).get());
    for (char const *name : {"v", "V", "Via", "vIA"}) {
        EXPECT_EQ(own(quillMessageFragmentHeader(frag.get(), str(name))).get(), via.get());
        EXPECT_TRUE(quillMessageFragmentHasHeader(frag.get(), str(name)));
    }
    EXPECT_EQ(own(quillMessageFragmentHeaderCstr(frag.get(), "vx", 1)).get(), via.get());
    EXPECT_EQ(own(quillMessageFragmentHeaderWcstr(frag.get(), L"via", -1)).get(), via.get());
    EXPECT_TRUE(quillMessageFragmentHasHeaderCstr(frag.get(), "vx", 1));
    EXPECT_TRUE(quillMessageFragmentHasHeaderWcstr(frag.get(), L"v", -1));
    EXPECT_EQ(quillMessageFragmentHeader(frag.get(), str("f")), nullptr);
    EXPECT_FALSE(quillMessageFragmentHasHeaderCstr(frag.get(), "vx", -1));

    quillMessageFragmentSetHeader(frag.address(), header("VIA", {"3"}).get());
    EXPECT_EQ(describe(frag.get()), "-\nVia=[3]\nTo=[x]") << "replaced in its place";
    quillMessageFragmentDelHeaderCstr(frag.address(), "vx", 1);
    EXPECT_EQ(describe(frag.get()), "-\nTo=[x]");
    quillMessageFragmentDelHeaderWcstr(frag.address(), L"f", -1);
    EXPECT_EQ(describe(frag.get()), "-\nTo=[x]");
    quillMessageFragmentSetHeader(frag.address(), via.get());
    EXPECT_EQ(describe(frag.get()), "-\nTo=[x]\nVia=[1][2]");
    auto const vector = own(quillMessageFragmentHeadersVector(frag.get()));
    EXPECT_EQ(count(vector.get()), 1) << "a new vector";
    quillMessageFragmentClearHeaders(frag.address());
    EXPECT_EQ(describe(frag.get()), "-");
    EXPECT_EQ(coVectorLength(vector.get()), 2);
    EXPECT_ABORT(quillMessageFragmentHeader(frag.get(), str("")), "source/quill/quill_message_header",
                 "quillMessageHeaderNameOk( name )");
    EXPECT_ABORT(quillMessageFragmentHasHeaderCstr(frag.get(), "a b", -1), "source/quill/quill_message_header",
                 "quillMessageHeaderNameOk( name )");
}

// Names of known fields, few others and many others, in each form of text.
TEST(QuillMessageFragment, FindsHeadersByNamesOfAnyForm) {
    for (int others : {1, 8, 9, 100}) {
        auto frag = own(quillMessageFragmentCreate());
        std::vector<std::string> names{"Via", "v", "content-LENGTH", "L"};
        for (int i = 0; i < others; i++) names.push_back("x-" + std::to_string(i) + "-A");
        for (std::string const &name : names) {
            auto const header = own(quillMessageHeaderCreate(str(name)));
            quillMessageFragmentSetHeader(frag.address(), header.get());
        }
        for (std::string const &name : names) {
            std::string const longer = name + "b";
            std::wstring const wide(name.begin(), name.end());
            auto const length = static_cast<int64_t>(name.size());
            EXPECT_TRUE(quillMessageFragmentHasHeader(frag.get(), str(name)));
            EXPECT_TRUE(quillMessageFragmentHasHeaderCstr(frag.get(), name.c_str(), -1));
            EXPECT_TRUE(quillMessageFragmentHasHeaderCstr(frag.get(), longer.c_str(), length));
            EXPECT_TRUE(quillMessageFragmentHasHeaderWcstr(frag.get(), wide.c_str(), -1));
            EXPECT_FALSE(quillMessageFragmentHasHeaderCstr(frag.get(), longer.c_str(), -1));
            EXPECT_EQ(own(quillMessageFragmentHeaderCstr(frag.get(), longer.c_str(), length)).get(),
                      own(quillMessageFragmentHeader(frag.get(), str(name))).get());
        }
        for (std::string const &name : {names[1], names[3], names.back()}) {
            quillMessageFragmentDelHeaderCstr(frag.address(), name.c_str(), -1);
            EXPECT_FALSE(quillMessageFragmentHasHeader(frag.get(), str(name)));
        }
        EXPECT_FALSE(quillMessageFragmentHasHeader(frag.get(), str("Via")));
    }
}

TEST(QuillMessageFragment, RefusesNamesInUtf8LikeStrings) {
    auto const frag = own(quillMessageFragmentCreate());
    char const headerUnit[] = "source/quill/quill_message_header";
    char const ok[] = "quillMessageHeaderNameOk( name )";
    for (char const *name : {"", "a b", "a:", "\u00E4", "\xFF", "Via "})
        EXPECT_ABORT(quillMessageFragmentHasHeaderCstr(frag.get(), name, -1), headerUnit, ok);
    EXPECT_ABORT(quillMessageFragmentHasHeaderCstr(frag.get(), "Via", 4), headerUnit, ok);
    EXPECT_ABORT(quillMessageFragmentHasHeaderCstr(frag.get(), nullptr, 0), headerUnit, ok);
    EXPECT_ABORT(quillMessageFragmentHeaderCstr(frag.get(), nullptr, -1), "source/co/co_string", "text || length == 0");
    EXPECT_ABORT(quillMessageFragmentHeaderCstr(frag.get(), "a", -2), "source/co/co_string", "length >= -1");
}

TEST(QuillMessageFragment, HasAContentLengthHeader) {
    auto frag = own(quillMessageFragmentCreate());
    EXPECT_EQ(quillMessageFragmentHeaderContentLength(frag.get()), nullptr);
    auto const length = header("l", {"99"});
    quillMessageFragmentSetHeader(frag.address(), length.get());
    EXPECT_EQ(own(quillMessageFragmentHeaderContentLength(frag.get())).get(), length.get());
}

TEST(QuillMessageFragment, HeadersAndBodyStayThroughAllStates) {
    auto frag = request();
    quillMessageFragmentSetHeader(frag.address(), header("v", {"1"}).get());
    quillMessageFragmentSetBody(frag.address(), buffer("").get());
    std::string const rest = "\nVia=[1]\nbody=[]";
    EXPECT_EQ(describe(frag.get()), "INVITE sip:a@b SIP/2.0" + rest);
    quillMessageFragmentSetResponse(frag.address(), sip20().get(), 200);
    EXPECT_EQ(describe(frag.get()), "SIP/2.0 200 [OK]" + rest);
    quillMessageFragmentSetNeitherRequestNorResponse(frag.address());
    EXPECT_EQ(describe(frag.get()), "-" + rest);
    quillMessageFragmentSetRequestCstr(frag.address(), sip20().get(), "A", -1, "b:c", -1);
    EXPECT_EQ(describe(frag.get()), "A b:c SIP/2.0" + rest);
}

TEST(QuillMessageFragment, MembersCanBeSetToThemselves) {
    auto frag = request();
    auto version = own(quillMessageFragmentVersion(frag.get()));
    coString *method = own(quillMessageFragmentRequestMethod(frag.get())).get(); // held by the fragment alone
    coString *iri = own(quillMessageFragmentRequestIri(frag.get())).get();
    quillMessageFragmentSetRequest(frag.address(), version.get(), method, iri);
    quillMessageFragmentSetRequestMethod(frag.address(), method);
    quillMessageFragmentSetRequestIri(frag.address(), iri);
    EXPECT_EQ(describe(frag.get()), "INVITE sip:a@b SIP/2.0");
}

} // namespace
