// Values read off the beginning of a text, which then goes on behind them; null where no value begins it.
#pragma once

#include <co/co_string.hpp>
#include <quill/quill_types.h>

namespace quill {

struct quillContact *readContact(co::Chars *text);
struct quillRoute *readRoute(co::Chars *text); // as a list has it: in brackets
struct quillVia *readVia(co::Chars *text);

} // namespace quill
