// Checks the files of directories once, without a fuzzer, and each of them cut short and damaged in fixed ways.

#include <co/co_object.h>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <fuzz/message_check.hpp>
#include <fuzz/typed_header_check.hpp>
#include <iterator>
#include <quill/quill_module.h>
#include <string>

static void check(std::string const &bytes) {
    auto const *data = reinterpret_cast<uint8_t const *>(bytes.data());
    fuzz::checkMessage(data, bytes.size());
    fuzz::checkTypedHeaders(data, bytes.size());
}

static void checkVariants(std::string const &bytes) {
    check(bytes);
    for (size_t at = 0; at < bytes.size(); at += 1 + bytes.size() / 200) {
        check(bytes.substr(0, at));
        check(bytes.substr(at));
        for (char damage : {'\0', '\r', '\n', ' ', ':', '%', '\xFF'}) {
            std::string damaged = bytes;
            damaged[at] = damage;
            check(damaged);
        }
    }
}

int main(int argc, char **argv) {
    coModuleLoad(quillModule());
    int files = 0;
    for (int i = 1; i < argc; i++)
        for (auto const &entry : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream file(entry.path(), std::ios::binary);
            std::string const bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
            checkVariants(bytes);
            files++;
        }
    coModuleUnload(quillModule());
    std::printf("%d files\n", files);
    return files > 0 ? 0 : 1;
}
