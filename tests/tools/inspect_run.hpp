// Runs the built quill-inspect as a user would and collects what it says.
#ifndef TEST_INSPECT_RUN_HPP
#define TEST_INSPECT_RUN_HPP

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace test {

struct Result {
    int status; // exit status; 128 and the signal's number when a signal ended it
    std::string out;
    std::string err;
};

using Words = std::vector<std::string>;

/// Where standard output goes.
enum class Sink { file, terminal, full, closedPipe };

/// Runs `quill-inspect <arguments>` in the samples' directory. @p environment is all that it has of one.
Result inspect(Words const &arguments, std::string_view input = {}, Sink sink = Sink::file,
               Words const &environment = {});

/// A directory that goes, with all that is in it, at the end of the test.
class Directory {
public:
    Directory();
    ~Directory();
    Directory(Directory const &) = delete;
    Directory &operator=(Directory const &) = delete;

    /// Writes a file into it and returns its path.
    std::string file(std::string const &name, std::string_view bytes) const;
    std::string path() const { return where.string(); }

private:
    std::filesystem::path where;
};

std::string contents(std::filesystem::path const &path);

/// The lines without their line feeds; each must have one.
Words lines(std::string const &text);

} // namespace test

#endif
