// Starting and stopping the module. This executable starts it itself.

#include <cstring>
#include <quill/quill_field_name.hpp>
#include <quill/quill_internal.h>
#include <quill/quill_method.hpp>
#include <quill/quill_module.h>
#include <quill/quill_transport.hpp>
#include <quill/quill_version.h>
#include <support/text.hpp>

using namespace test;

namespace {

struct StaticString {
    coString **slot;
    char const *text;
};

StaticString const strings[] = {
    {&quill___CosName, "name"},
    {&quill___CosLines, "lines"},
    {&quill___CosAcceptContact, "Accept-Contact"},
    {&quill___CosContentType, "Content-Type"},
    {&quill___CosIdentity, "Identity"},
    {&quill___CosIdentityInfo, "Identity-Info"},
    {&quill___CosRejectContact, "Reject-Contact"},
    {&quill___CosRequestDisposition, "Request-Disposition"},
    {&quill___CosContentLength, "Content-Length"},
    {&quill___SessUuidNil, "00000000000000000000000000000000"},
};

// All that are registered (RFC 3261, 27.4).
char const *const methods[] = {"ACK",     "BYE",   "CANCEL",  "INFO",  "INVITE",   "MESSAGE",   "NOTIFY",
                               "OPTIONS", "PRACK", "PUBLISH", "REFER", "REGISTER", "SUBSCRIBE", "UPDATE"};

std::u32string_view const transports[] = {U"udp", U"tcp", U"tls", U"ws", U"wss", U"sctp"};

template <class T> bool isAllOnes(T const *pointer) { return reinterpret_cast<uintptr_t>(pointer) == ~uintptr_t{0}; }

void expectStarted() {
    for (auto [slot, text] : strings) EXPECT_EQ(utf8(*slot), text);
    co::Ref<quillVersion> const version(quillVersionCreateSip20());
    EXPECT_EQ(version.get(), quill___VersionSip20);
    EXPECT_EQ(taken(quillVersionToString(quill___VersionSip20)), "SIP/2.0");
    for (int i = 0; i < quill::knownFieldNameCount; i++) {
        std::string const name = utf8(quill::fieldNameAt(i));
        EXPECT_EQ(quill::knownFieldName(std::string_view(name)), i);
    }
    for (char const *method : methods) {
        EXPECT_EQ(utf8(quill::knownMethod(method)), method);
        EXPECT_TRUE(co::isImmortal(quill::knownMethod(method)));
    }
    for (char const *other : {"", "I", "invite", "INVITED", "INVIT", "BYE ", "X"})
        EXPECT_EQ(quill::knownMethod(other), nullptr) << other;
    for (std::u32string_view transport : transports) {
        EXPECT_EQ(quill::knownTransport(transport)->view(), transport);
        EXPECT_TRUE(co::isImmortal(quill::knownTransport(transport)));
    }
    EXPECT_EQ(quill::knownTransport(U"TcP"), quill::knownTransport(U"tcp"));
    for (std::u32string const other :
         {U"", U"u", U"ud", U"udp2", U"dtls", U"tls-sctp", U"\U00010075dp", U"\u00f5dp", U"udq", U"\U00000001udp"})
        EXPECT_EQ(quill::knownTransport(other), nullptr);
}

void expectStopped() {
    for (auto [slot, text] : strings) EXPECT_TRUE(isAllOnes(*slot)) << text;
    EXPECT_TRUE(isAllOnes(quill___VersionSip20));
    for (int i = 0; i < quill::knownFieldNameCount; i++) EXPECT_TRUE(isAllOnes(quill::fieldNameAt(i)));
    for (char const *method : methods) EXPECT_TRUE(isAllOnes(quill::knownMethod(method))) << method;
    for (std::u32string_view transport : transports) EXPECT_TRUE(isAllOnes(quill::knownTransport(transport)));
}

// Runs first: nothing has been started in this process.
TEST(QuillModule, BeforeTheFirstStartStaticsAreNull) {
    for (auto [slot, text] : strings) EXPECT_EQ(*slot, nullptr) << text;
    EXPECT_EQ(quillVersionCreateSip20(), nullptr);
    for (char const *method : methods) EXPECT_EQ(quill::knownMethod(method), nullptr);
    for (std::u32string_view transport : transports) EXPECT_EQ(quill::knownTransport(transport), nullptr);
}

TEST(QuillModule, StaticsLiveFromStartToStop) {
    for (int round = 0; round < 3; round++) {
        coModuleLoad(quillModule());
        expectStarted();
        coModuleUnload(quillModule());
        expectStopped();
    }
}

TEST(QuillModule, LoadsAreCounted) {
    coModuleLoad(quillModule());
    quillVersion const *version = quill___VersionSip20;
    coModuleLoad(quillModule());
    EXPECT_EQ(quill___VersionSip20, version) << "started once";
    coModuleUnload(quillModule());
    expectStarted();
    coModuleUnload(quillModule());
    expectStopped();
    EXPECT_ABORT(coModuleUnload(quillModule()), "source/co/co_object", "module->loads > 0");
}

TEST(QuillModule, StartAndStopFunctions) {
    EXPECT_TRUE(quill___ModuleStartup());
    expectStarted();
    quill___ModuleShutdown();
    expectStopped();
}

TEST(QuillModule, StoppingLeavesHeldStringsToTheirHolders) {
    coModuleLoad(quillModule());
    co::Ref<coString> const name(co::retained(quill___CosName));
    EXPECT_EQ(count(name.get()), 2);
    coModuleUnload(quillModule());
    EXPECT_EQ(count(name.get()), 1);
    EXPECT_EQ(utf8(name.get()), "name");
}

TEST(QuillModule, StoppingBearsStaticsThatAreNull) {
    quill___MessageHeaderStartup();
    coStringRelease(quill___CosLines);
    quill___CosLines = nullptr;
    quill___MessageHeaderShutdown();
    EXPECT_TRUE(isAllOnes(quill___CosLines));
    EXPECT_TRUE(isAllOnes(quill___CosName));

    quill___MessageFragmentStartup();
    coStringRelease(quill___CosContentLength);
    quill___CosContentLength = nullptr;
    quill___MessageFragmentShutdown();
    EXPECT_TRUE(isAllOnes(quill___CosContentLength));

    quill___VersionStartup();
    quillVersion *const sip20 = std::exchange(quill___VersionSip20, nullptr);
    quill___VersionShutdown();
    EXPECT_TRUE(isAllOnes(quill___VersionSip20));
    EXPECT_TRUE(co::isImmortal(sip20)); // as it is until shut-down makes it mortal
    co::header(sip20)->count = 1;
    quillVersionRelease(sip20);
}

TEST(QuillModule, IsAnObject) {
    EXPECT_EQ(quillModule(), &quill___module);
    EXPECT_EQ(coObjSort(&quill___module), &co___sort_CO_MODULE);
    EXPECT_EQ(quill___module.record, &quill___module_record);
    EXPECT_EQ(quill___module.startup, quill___ModuleStartup);
    EXPECT_EQ(quill___module.unused, nullptr);
    EXPECT_EQ(quill___module.shutdown, quill___ModuleShutdown);
    for (void const *slot : quill___module.reserved) EXPECT_EQ(slot, nullptr);
}

TEST(QuillModule, HasARecord) {
    constexpr size_t fields = 14;
    static_assert(sizeof(coModuleRecord) == fields * sizeof(int64_t));
    int64_t numbers[fields];
    char const *texts[fields];
    std::memcpy(numbers, &quill___module_record, sizeof numbers);
    std::memcpy(texts, &quill___module_record, sizeof texts);
    EXPECT_EQ(numbers[0], 2);
    EXPECT_STRNE(texts[1], "");
    EXPECT_STRNE(texts[2], "");
    for (size_t i : {3u, 4u, 5u}) EXPECT_TRUE(numbers[i] >= 0 && numbers[i] < 1000);
    EXPECT_THAT(texts[6], testing::MatchesRegex("UTC [0-9]{4}-[0-9]{2}-[0-9]{2} [0-9:]{8} \\([A-Z][a-z]{2}\\)"));
    EXPECT_STRNE(texts[7], "");
    EXPECT_STRNE(texts[8], "");
    EXPECT_STREQ(texts[9], "quill");
    EXPECT_STRNE(texts[10], "");
    EXPECT_STREQ(texts[11], "0.0");
    EXPECT_STREQ(texts[12], "nx loc co");
    EXPECT_STREQ(texts[13], "");
}

TEST(QuillModule, HasAVersionText) {
    std::string const text = quill___module_version_string;
    EXPECT_THAT(text, testing::EndsWith("quill 0.0"));
    std::string const product = std::string(quill___module_record.productName) + " " +
                                std::to_string(quill___module_record.releaseMajor) + "." +
                                std::to_string(quill___module_record.releaseMinor) + "." +
                                std::to_string(quill___module_record.releasePatch);
    EXPECT_THAT(text, testing::HasSubstr(product));
    EXPECT_EQ(text.find('\n'), std::string::npos);
}

} // namespace
