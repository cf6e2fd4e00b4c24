// Reason phrases and their escapes. Grammar and contract: quill_reason_phrase.h.

#define CO_UNIT "source/quill/quill_reason_phrase"

#include <algorithm>
#include <quill/quill_char.h>
#include <quill/quill_reason_phrase.h>
#include <quill/quill_scalar.hpp>

bool quillReasonPhraseOk(struct coString const *reasonPhrase) {
    CO_ASSERT_GIVEN(reasonPhrase);
    return true;
}

static bool needsEscape(coChar ch) {
    return ch < 0x80 && !quill___CharIsReserved(ch) && !quill___CharIsUnreserved(ch) && !quill___CharIsLws(ch);
}

// escaped = "%" HEXDIG HEXDIG
struct coString *quill___ReasonPhraseEncode(struct coString const *reasonPhrase) {
    CO_ASSERT_GIVEN(reasonPhrase);
    co::Chars const text = reasonPhrase->view();
    auto const escapes = std::count_if(text.begin(), text.end(), needsEscape);
    if (escapes == 0) return co::retained(reasonPhrase);

    struct coString *encoded = co::makeString(co::length(text) + 2 * escapes);
    coChar *out = encoded->chars();
    for (coChar const ch : text) {
        if (needsEscape(ch)) {
            constexpr co::Chars hexdigs = U"0123456789ABCDEF";
            *out++ = U'%';
            *out++ = hexdigs[ch >> 4];
            *out++ = hexdigs[ch & 0xF];
        } else {
            *out++ = ch;
        }
    }
    encoded->length = encoded->capacity;
    return encoded;
}

// The character that an escape stands for, or -1 where none begins.
static int64_t escapedChar(co::Chars text) {
    int64_t high = 0;
    int64_t low = 0;
    bool const isEscape = text.size() > 2 && text[0] == U'%' && quill___CharIsHexdig(text[1], &high) &&
                          quill___CharIsHexdig(text[2], &low);
    return isEscape ? 16 * high + low : -1;
}

// Never fails: a `%` without two hexadecimal digits after it stands for itself.
struct coString *quill___ReasonPhraseDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    struct coString *decoded = co::makeString(length);
    coChar *out = decoded->chars();
    for (co::Chars rest = co::chars(chs, length); !rest.empty();) {
        int64_t const escaped = escapedChar(rest);
        *out++ = escaped < 0 ? rest.front() : static_cast<coChar>(escaped);
        rest.remove_prefix(escaped < 0 ? 1 : 3);
    }
    decoded->length = out - decoded->chars();
    return decoded;
}
