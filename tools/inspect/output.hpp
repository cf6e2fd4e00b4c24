// Standard output, with no failure overlooked.
#ifndef QUILL_INSPECT_OUTPUT_HPP
#define QUILL_INSPECT_OUTPUT_HPP

#include <string_view>
#include <system_error>

namespace inspect {

/// What cannot be written: a closed pipe, a full disk.
struct OutputError : std::system_error {
    using std::system_error::system_error;
};

/// Writes to standard output. Both throw OutputError.
void writeOutput(std::string_view bytes);
void flushOutput();

/// Whether standard output is a terminal that should see colours: NO_COLOR (not empty) and TERM=dumb say no.
bool outputHasColor();

/// Writes "quill-inspect: …" as one line to standard error, after what stands on standard output so far.
void complain(std::string_view text);

} // namespace inspect

#endif
