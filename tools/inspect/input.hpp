// Reading input whole.
#ifndef QUILL_INSPECT_INPUT_HPP
#define QUILL_INSPECT_INPUT_HPP

#include "objects.hpp"
#include <string>

namespace inspect {

/// The bytes of a file, or of standard input when the name is "-". Throws std::system_error when it can't be read.
Buffer readInput(std::string const &file);

} // namespace inspect

#endif
