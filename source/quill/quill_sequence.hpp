// Numbers with white space between them, as CSeq and RAck begin with.
#pragma once

#include <quill/quill_lifted.hpp>

namespace quill {

// 1*DIGIT LWS at the start of the line, which then goes on behind them. The number, or -1 where there is none that its
// validator takes.
inline int64_t takeNumberAndLws(co::Chars *line, bool (*ok)(int64_t)) {
    int64_t number;
    int64_t const digits = takeDecimal(*line, ok, &number);
    int64_t const blanks = matched(rules::lws(from(*line, digits)));
    if (digits == 0 || blanks == 0) return -1;
    *line = from(*line, digits + blanks);
    return number;
}

} // namespace quill
