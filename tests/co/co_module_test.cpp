#include <co/co_obj.hpp>
#include <support/text.hpp>

namespace {

std::string calls;

bool startUpper() { return calls += "+a", true; }
void stopUpper() { calls += "-a"; }
bool startLower() { return calls += "+b", true; }
void stopLower() { calls += "-b"; }
bool startNever() { return false; }

constinit coModule upper{&co___sort_CO_MODULE, nullptr, startUpper, stopUpper};
constinit coModule lower{&co___sort_CO_MODULE, nullptr, startLower, stopLower};
constinit coModule silent{&co___sort_CO_MODULE, nullptr, nullptr, nullptr};
constinit coModule broken{&co___sort_CO_MODULE, nullptr, startNever, nullptr};

TEST(Module, StartsAtTheFirstLoadAndStopsAtTheLastUnload) {
    calls.clear();
    coModuleLoad(&upper);
    EXPECT_EQ(calls, "+a");
    coModuleLoad(&upper);
    coModuleLoad(&upper);
    EXPECT_EQ(calls, "+a");
    coModuleUnload(&upper);
    coModuleUnload(&upper);
    EXPECT_EQ(calls, "+a");
    coModuleUnload(&upper);
    EXPECT_EQ(calls, "+a-a");
}

TEST(Module, CanBeStartedAgain) {
    calls.clear();
    for (int i = 0; i < 2; i++) coModuleLoad(&upper), coModuleUnload(&upper);
    EXPECT_EQ(calls, "+a-a+a-a");
}

TEST(Module, EachIsCountedOnItsOwn) {
    calls.clear();
    coModuleLoad(&lower);
    coModuleLoad(&upper);
    coModuleLoad(&lower);
    coModuleUnload(&lower);
    coModuleUnload(&upper);
    coModuleUnload(&lower);
    EXPECT_EQ(calls, "+b+a-a-b");
}

TEST(Module, NeedsNoFunctions) {
    coModuleLoad(&silent);
    EXPECT_EQ(silent.loads, 1);
    coModuleUnload(&silent);
    EXPECT_EQ(silent.loads, 0);
    coModuleLoad(&co___module);
    coModuleUnload(&co___module);
}

TEST(Module, BrokenPreconditionsAbort) {
    constexpr char const *unit = "source/co/co_object";
    EXPECT_ABORT(coModuleLoad(nullptr), unit, "module");
    EXPECT_ABORT(coModuleUnload(nullptr), unit, "module");
    EXPECT_ABORT(coModuleUnload(&silent), unit, "module->loads > 0");
    EXPECT_ABORT(coModuleLoad(&broken), unit, "module->startup()");
}

} // namespace
