#include "input.hpp"

#include <cerrno>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace inspect {
namespace {

[[noreturn]] void fail() { throw std::system_error(errno, std::generic_category()); }

/// An open file; standard input stays open.
class Descriptor {
public:
    explicit Descriptor(std::string const &file)
        : fd(file == "-" ? STDIN_FILENO : open(file.c_str(), O_RDONLY | O_CLOEXEC)) {
        if (fd < 0) fail();
    }
    ~Descriptor() {
        if (fd != STDIN_FILENO) close(fd);
    }
    Descriptor(Descriptor const &) = delete;
    Descriptor &operator=(Descriptor const &) = delete;

    /// Reads up to @p capacity bytes; 0 at the end.
    size_t readSome(uint8_t *bytes, size_t capacity) const {
        for (;;) {
            ssize_t const count = read(fd, bytes, capacity);
            if (count >= 0) return static_cast<size_t>(count);
            if (errno != EINTR) fail();
        }
    }

private:
    int fd;
};

} // namespace

Buffer readInput(std::string const &file) {
    constexpr size_t pieceLength = size_t{64} * 1024;
    Descriptor const input(file);
    std::vector<uint8_t> bytes;
    for (;;) {
        size_t const length = bytes.size();
        bytes.resize(length + pieceLength);
        size_t const count = input.readSome(bytes.data() + length, pieceLength);
        bytes.resize(length + count);
        if (count == 0) break;
    }
    return Buffer(coBufferCreateFromBytesCopy(bytes.data(), static_cast<int64_t>(bytes.size())));
}

} // namespace inspect
