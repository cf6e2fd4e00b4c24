// The nil session identifier. Which texts are identifiers: quill_token_values_test.cpp.
#include <quill/quill_internal.h>
#include <quill/quill_sess_uuid.h>
#include <support/text.hpp>

using test::str;

static std::string const zeros(32, '0');

class SessUuid : public testing::Test {
protected:
    static void SetUpTestSuite() { quill___SessUuidStartup(); }
    static void TearDownTestSuite() { quill___SessUuidShutdown(); }
};

TEST_F(SessUuid, NilIsAllZeros) {
    co::Ref<coString> const nil(qiullSessUuidNil());
    EXPECT_EQ(test::utf8(nil.get()), zeros);
    EXPECT_TRUE(quillSessUuidOk(nil.get()));
    EXPECT_TRUE(quillSessUuidIsNil(nil.get()));
}

TEST_F(SessUuid, NilIsOneSharedString) {
    EXPECT_EQ(test::count(quill___SessUuidNil), 1);
    co::Ref<coString> const nil(qiullSessUuidNil());
    co::Ref<coString> const again(qiullSessUuidNil());
    EXPECT_EQ(nil.get(), quill___SessUuidNil);
    EXPECT_EQ(again.get(), quill___SessUuidNil);
    EXPECT_EQ(test::count(quill___SessUuidNil), 3);
}

TEST_F(SessUuid, OnlyAllZerosAreNil) {
    EXPECT_TRUE(quillSessUuidIsNil(str(zeros)));
    std::string const others[] = {"",
                                  "0",
                                  zeros.substr(1),
                                  zeros + "0",
                                  zeros.substr(1) + "1",
                                  "1" + zeros.substr(1),
                                  zeros.substr(1) + "o",
                                  zeros.substr(1) + "O",
                                  std::string(32, 'z'),
                                  "00000000-0000-0000-0000-000000000000",
                                  std::string(32, '\0')};
    for (auto const &text : others) EXPECT_FALSE(quillSessUuidIsNil(str(text))) << text;
}

TEST_F(SessUuid, MustBeGiven) { EXPECT_ABORT(quillSessUuidIsNil(nullptr), "source/quill/quill_sess_uuid", "uuid"); }

TEST_F(SessUuid, NilIsThereFromStartUpToShutDown) {
    co::Ref<coString> const kept(qiullSessUuidNil());
    quill___SessUuidShutdown();
    EXPECT_EQ(reinterpret_cast<uintptr_t>(quill___SessUuidNil), UINTPTR_MAX);
    EXPECT_EQ(test::count(kept.get()), 1) << "the library's own reference is given up";
    EXPECT_EQ(test::utf8(kept.get()), zeros);

    quill___SessUuidStartup();
    EXPECT_EQ(test::utf8(quill___SessUuidNil), zeros);
    EXPECT_NE(quill___SessUuidNil, kept.get());
    EXPECT_TRUE(quillSessUuidIsNil(kept.get()));
}

TEST_F(SessUuid, ShutDownMarksTheSlotWithoutAString) {
    coString *const nil = std::exchange(quill___SessUuidNil, nullptr);
    EXPECT_EQ(qiullSessUuidNil(), nullptr);
    quill___SessUuidShutdown();
    EXPECT_EQ(reinterpret_cast<uintptr_t>(quill___SessUuidNil), UINTPTR_MAX);
    quill___SessUuidNil = nil;
}
