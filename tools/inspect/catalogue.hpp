// The typed headers there are.
#ifndef QUILL_INSPECT_CATALOGUE_HPP
#define QUILL_INSPECT_CATALOGUE_HPP

#include <string>

namespace inspect {

/// Name, shape and definition of each, one on a line.
std::string catalogueText();

/// The same, one JSON object on a line.
std::string catalogueJson();

} // namespace inspect

#endif
