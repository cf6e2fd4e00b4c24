#include <co/co.h>
#include <quill/quill_module.h>
#include <support/module.hpp>

namespace test {

void Module::SetUp() { coModuleLoad(quillModule()); }
void Module::TearDown() { coModuleUnload(quillModule()); }

static testing::Environment *const module = testing::AddGlobalTestEnvironment(new Module);

} // namespace test
