// TEXT-UTF8-TRIM (RFC 3261, 25.1), as Organization and Subject hold it: text without blanks around it.
//
//     TEXT-UTF8-TRIM = 1*TEXT-UTF8char *(*LWS TEXT-UTF8char)
#pragma once

#include <co/co_string.hpp>
#include <quill/quill_char.h>
#include <quill/quill_scalar.hpp>

namespace quill {

constexpr bool isTextUtf8Char(coChar ch) { return ch > U' ' && ch != 0x7F; }

// Blanks, at most one text, blanks.
inline bool isTextUtf8(Scanner skip, co::Chars text) {
    int64_t const length = co::length(text);
    int64_t i = quill___SkipLws(text.data(), length);
    i += skip(text.data() + i, length - i);
    i += quill___SkipLws(text.data() + i, length - i);
    return i == length;
}

inline bool isTrimmed(co::Chars text) {
    coChar last = U' ';
    for (coChar const ch : text) {
        if (ch == U' ' ? last == U' ' : !isTextUtf8Char(ch)) return false;
        last = ch;
    }
    return last != U' ' || text.empty();
}

// The text with one SP for each run of blanks within it and none around it; null when it holds anything else than text
// and blanks.
inline coString *trimmed(coString const *value) {
    if (isTrimmed(value->view())) return co::retained(value);
    co::Ref<coString> result(co::makeString(value->length));
    coChar *const first = result->chars();
    coChar *out = first;
    bool blank = false;
    for (coChar const ch : value->view()) {
        if (quill___CharIsLws(ch)) {
            blank = out != first;
            continue;
        }
        if (!isTextUtf8Char(ch)) return nullptr;
        if (blank) *out++ = U' ';
        *out++ = ch;
        blank = false;
    }
    result->length = out - first;
    return result.take();
}

} // namespace quill
