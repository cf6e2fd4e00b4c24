// Generic parameters as the values that hold them see them.
#pragma once

#include <co/co_string.hpp>
#include <quill/quill_generic_params.h>

namespace quill {

// The collection without parameters, borrowed: one for all values, which copy it when they get a parameter.
struct quillGenericParams *noGenericParams();

// Takes one generic parameter at the start of the text into the collection; returns how many code points it is, 0 where
// there is none.
int64_t takeGenericParam(struct quillGenericParams **params, co::Chars text);

// Appends the wire text of all parameters but those of some names, which are in lower case.
void appendGenericParams(coString **text, struct quillGenericParams const *params, co::Chars const *without = nullptr,
                         size_t count = 0);

} // namespace quill
