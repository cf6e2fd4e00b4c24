#include "output.hpp"

#include "text.hpp"
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace inspect {
namespace {

[[noreturn]] void fail() { throw OutputError(errno, std::generic_category()); }

std::string_view environment(char const *name) {
    char const *value = std::getenv(name);
    return value ? value : "";
}

} // namespace

void writeOutput(std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) < bytes.size()) fail();
}

void flushOutput() {
    if (std::fflush(stdout) != 0) fail();
}

bool outputHasColor() {
    return isatty(STDOUT_FILENO) && environment("NO_COLOR").empty() && environment("TERM") != "dumb";
}

void complain(std::string_view text) {
    flushOutput();
    std::string const line = "quill-inspect: " + shown(text) + '\n';
    std::fwrite(line.data(), 1, line.size(), stderr); // there is no one left to tell of a failure here
}

} // namespace inspect
