// libFuzzer's entry: build with the preset `fuzz`, run `fuzz_typed_headers tests/fuzz/corpus samples`.

#include <co/co_object.h>
#include <fuzz/typed_header_check.hpp>
#include <quill/quill_module.h>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(uint8_t const *bytes, size_t length);

int LLVMFuzzerInitialize(int *, char ***) {
    coModuleLoad(quillModule());
    return 0;
}

int LLVMFuzzerTestOneInput(uint8_t const *bytes, size_t length) {
    fuzz::checkTypedHeaders(bytes, length);
    return 0;
}
