// The order in which the units start and stop, and what each leaves behind. This executable starts the module itself.

#include <fstream>
#include <quill/quill_internal.h>
#include <quill/quill_module.h>
#include <quill/quill_module.hpp>
#include <regex>
#include <set>
#include <support/text.hpp>
#include <vector>

using namespace test;

namespace {

// Written out once more, so that the order does not depend on the list that it is made from.
#define HEADERS_IN_ORDER(X)                                                                                            \
    X(AcceptEncoding)                                                                                                  \
    X(AcceptResourcePriority)                                                                                          \
    X(Accept)                                                                                                          \
    X(AlertInfo)                                                                                                       \
    X(AllowEvents)                                                                                                     \
    X(Allow)                                                                                                           \
    X(CallId)                                                                                                          \
    X(CallInfo)                                                                                                        \
    X(Contact)                                                                                                         \
    X(ContentDisposition)                                                                                              \
    X(ContentEncoding)                                                                                                 \
    X(Cseq)                                                                                                            \
    X(Date)                                                                                                            \
    X(Diversion)                                                                                                       \
    X(ErrorInfo)                                                                                                       \
    X(Event)                                                                                                           \
    X(Expires)                                                                                                         \
    X(From)                                                                                                            \
    X(HistoryInfo)                                                                                                     \
    X(InReplyTo)                                                                                                       \
    X(MaxForwards)                                                                                                     \
    X(MinExpires)                                                                                                      \
    X(MinSe)                                                                                                           \
    X(Organization)                                                                                                    \
    X(PAssertedIdentity)                                                                                               \
    X(PCalledPartyId)                                                                                                  \
    X(PEarlyMedia)                                                                                                     \
    X(PPreferredIdentity)                                                                                              \
    X(Priority)                                                                                                        \
    X(Privacy)                                                                                                         \
    X(ProxyRequire)                                                                                                    \
    X(Rack)                                                                                                            \
    X(Reason)                                                                                                          \
    X(RecordRoute)                                                                                                     \
    X(ReferTo)                                                                                                         \
    X(ReferredBy)                                                                                                      \
    X(RemotePartyId)                                                                                                   \
    X(Replaces)                                                                                                        \
    X(ReplyTo)                                                                                                         \
    X(Require)                                                                                                         \
    X(ResourcePriority)                                                                                                \
    X(RetryAfter)                                                                                                      \
    X(Route)                                                                                                           \
    X(Rseq)                                                                                                            \
    X(Server)                                                                                                          \
    X(ServiceRoute)                                                                                                    \
    X(SessionId)                                                                                                       \
    X(SessionExpires)                                                                                                  \
    X(Subject)                                                                                                         \
    X(SubscriptionState)                                                                                               \
    X(Supported)                                                                                                       \
    X(Timestamp)                                                                                                       \
    X(To)                                                                                                              \
    X(Unsupported)                                                                                                     \
    X(UserAgent)                                                                                                       \
    X(UserToUser)                                                                                                      \
    X(Via)                                                                                                             \
    X(Warning)

#define STARTUP(Type) quill___Header##Type##Startup,
quill::Step const startUps[] = {HEADERS_IN_ORDER(STARTUP) quill___MessageHeaderStartup,
                                quill___SessUuidStartup,
                                quill___UuiValueStartup,
                                quill___VersionStartup,
                                quill___ViaStartup,
                                quill___MessageFragmentStartup};

#define SHUTDOWN(Type) quill___Header##Type##Shutdown,
quill::Step const shutDowns[] = {
    quill___MessageFragmentShutdown, quill___SessUuidShutdown, quill___UuiValueShutdown,
    quill___VersionShutdown,         quill___ViaShutdown,      quill___MessageHeaderShutdown,
    HEADERS_IN_ORDER(SHUTDOWN)};

struct Static {
    std::string name;
    void *const *slot;
};

#define STATIC(name)                                                                                                   \
    Static { #name, reinterpret_cast < void *const *>(&name) }
#define NAME_STATIC(Type) STATIC(quill___Cos##Type),

// Every static object that units share.
std::vector<Static> statics() {
    return {HEADERS_IN_ORDER(NAME_STATIC) STATIC(quill___CosName),
            STATIC(quill___CosLines),
            STATIC(quill___CosAcceptContact),
            STATIC(quill___CosContentType),
            STATIC(quill___CosIdentity),
            STATIC(quill___CosIdentityInfo),
            STATIC(quill___CosRejectContact),
            STATIC(quill___CosRequestDisposition),
            STATIC(quill___CosContentLength),
            STATIC(quill___SessUuidNil),
            STATIC(quill___VersionSip20),
            STATIC(quill___UuiValueEncoding),
            STATIC(quill___UuiValuePurpose),
            STATIC(quill___UuiValueContent)};
}

bool isAllOnes(void const *pointer) { return reinterpret_cast<uintptr_t>(pointer) == ~uintptr_t{0}; }

TEST(QuillModuleOrder, UnitsStartAndStopInTheirOrders) {
    EXPECT_THAT(quill::startUps(), testing::ElementsAreArray(startUps));
    EXPECT_THAT(quill::shutDowns(), testing::ElementsAreArray(shutDowns));
    EXPECT_EQ(quill::startUps().size(), 64u);
    EXPECT_EQ(quill::shutDowns().size(), 64u);
}

TEST(QuillModuleOrder, KnowsEveryStaticThatIsDeclared) {
    std::ifstream file(QUILL_INTERNAL_H);
    std::string const text{std::istreambuf_iterator<char>(file), {}};
    std::regex const declaration("extern struct \\w+ \\*(\\w+);");
    std::set<std::string> declared;
    for (std::sregex_iterator each(text.begin(), text.end(), declaration), end; each != end; ++each)
        declared.insert((*each)[1]);
    std::set<std::string> known;
    for (Static const &each : statics()) known.insert(each.name);
    EXPECT_EQ(known, declared);
}

TEST(QuillModuleOrder, StaticsLiveBetweenStartAndStop) {
    for (int round = 0; round < 2; round++) {
        coModuleLoad(quillModule());
        for (auto const &[name, slot] : statics()) {
            EXPECT_NE(*slot, nullptr) << name;
            EXPECT_FALSE(isAllOnes(*slot)) << name;
        }
        coModuleUnload(quillModule());
        for (auto const &[name, slot] : statics()) EXPECT_TRUE(isAllOnes(*slot)) << name;
    }
}

TEST(QuillModuleOrder, EachHeaderStartsAndStopsByItself) {
    struct {
        char const *type;
        coString **name;
        void (*start)(), (*stop)();
    } const headers[] = {
#define HEADER(Type) {#Type, &quill___Cos##Type, quill___Header##Type##Startup, quill___Header##Type##Shutdown},
        HEADERS_IN_ORDER(HEADER)};
    for (auto const &[type, name, start, stop] : headers) {
        start();
        std::string letters = utf8(*name); // "User-to-User" of UserToUser
        for (size_t at; (at = letters.find('-')) != std::string::npos;) letters.erase(at, 1);
        EXPECT_STRCASEEQ(letters.c_str(), type);
        stop();
        EXPECT_TRUE(isAllOnes(*name)) << type;
        *name = nullptr;
        stop();
        EXPECT_TRUE(isAllOnes(*name)) << type << ", though there was none";
    }
}

} // namespace
