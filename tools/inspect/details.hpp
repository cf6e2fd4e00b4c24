// What stands below the lines of a header: its parts, or what does not parse.
#ifndef QUILL_INSPECT_DETAILS_HPP
#define QUILL_INSPECT_DETAILS_HPP

#include "page.hpp"
#include "typed.hpp"

namespace inspect {

/// Nothing for a header without a type.
std::vector<Detail> detailsOf(std::string const &headerName, Typed const &typed);

} // namespace inspect

#endif
