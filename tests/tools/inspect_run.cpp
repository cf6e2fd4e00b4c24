#include "inspect_run.hpp"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sstream>
#include <stdexcept>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace test {
namespace {

int checked(int result) {
    if (result < 0) throw std::system_error(errno, std::generic_category());
    return result;
}

/// The two sides of what becomes standard output: the tool's, and the one to read from when there is no file.
struct Channel {
    int tool = -1;
    int ours = -1;
};

Channel openTerminal() {
    Channel channel;
    channel.ours = checked(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC));
    checked(grantpt(channel.ours));
    checked(unlockpt(channel.ours));
    channel.tool = checked(open(ptsname(channel.ours), O_RDWR | O_NOCTTY | O_CLOEXEC));
    return channel;
}

Channel openSink(Sink sink, std::string const &file) {
    switch (sink) {
    case Sink::file:
        return {checked(open(file.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600)), -1};
    case Sink::terminal:
        return openTerminal();
    case Sink::full:
        return {checked(open("/dev/full", O_WRONLY | O_CLOEXEC)), -1};
    case Sink::closedPipe:
        break;
    }
    int ends[2];
    checked(pipe2(ends, O_CLOEXEC));
    close(ends[0]);
    return {ends[1], -1};
}

/// What a terminal shows, its line ends made LF again. A terminal whose other side is closed fails to read.
std::string readTerminal(int terminal) {
    std::string text;
    char piece[4096];
    for (ssize_t count; (count = read(terminal, piece, sizeof piece)) > 0;)
        text.append(piece, static_cast<size_t>(count));
    close(terminal);
    std::string clean;
    for (size_t i = 0; i < text.size(); i++)
        if (!(text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n')) clean += text[i];
    return clean;
}

std::vector<char *> pointers(Words &words) {
    std::vector<char *> list;
    for (std::string &word : words) list.push_back(word.data());
    list.push_back(nullptr);
    return list;
}

} // namespace

Result inspect(Words const &arguments, std::string_view input, Sink sink, Words const &environment) {
    Directory const directory;
    std::string const in = directory.file("in", input), out = directory.path() + "/out",
                      err = directory.path() + "/err";
    Channel const channel = openSink(sink, out);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, in.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, channel.tool, STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, err.c_str(), O_WRONLY | O_CREAT, 0600);
    posix_spawn_file_actions_addchdir_np(&actions, QUILL_SAMPLES);

    Words words = {QUILL_INSPECT};
    words.insert(words.end(), arguments.begin(), arguments.end());
    Words variables = environment;
    pid_t child = 0;
    int const failure =
        posix_spawn(&child, QUILL_INSPECT, &actions, nullptr, pointers(words).data(), pointers(variables).data());
    posix_spawn_file_actions_destroy(&actions);
    close(channel.tool);
    if (failure) throw std::system_error(failure, std::generic_category(), QUILL_INSPECT);

    std::string const shown = channel.ours >= 0 ? readTerminal(channel.ours) : "";
    int wait = 0;
    checked(waitpid(child, &wait, 0));
    int const status = WIFSIGNALED(wait) ? 128 + WTERMSIG(wait) : WEXITSTATUS(wait);
    return {status, sink == Sink::file ? contents(out) : shown, contents(err)};
}

Directory::Directory() {
    std::string name = (std::filesystem::temp_directory_path() / "quill-inspect-XXXXXX").string();
    if (!mkdtemp(name.data())) throw std::system_error(errno, std::generic_category(), name);
    where = name;
}

Directory::~Directory() {
    std::error_code ignored; // what is left over in the directory for temporary files harms no test
    std::filesystem::remove_all(where, ignored);
}

std::string Directory::file(std::string const &name, std::string_view bytes) const {
    std::filesystem::path const path = where / name;
    std::ofstream stream(path, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream) throw std::runtime_error("cannot write " + path.string());
    return path.string();
}

std::string contents(std::filesystem::path const &path) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream) throw std::runtime_error("cannot read " + path.string());
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

Words lines(std::string const &text) {
    Words list;
    for (size_t begin = 0; begin < text.size();) {
        size_t const end = text.find('\n', begin);
        EXPECT_NE(end, std::string::npos) << "the last line has no end: " << text.substr(begin);
        list.push_back(text.substr(begin, end - begin));
        begin = end == std::string::npos ? text.size() : end + 1;
    }
    return list;
}

} // namespace test
