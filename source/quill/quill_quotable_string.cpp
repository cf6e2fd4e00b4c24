// Texts that can stand in quotes. Grammar and contract: quill_quotable_string.h.

#define CO_UNIT "source/quill/quill_quotable_string"

#include <algorithm>
#include <quill/quill_quotable_string.h>
#include <quill/quill_scalar.hpp>

static bool isLineEnd(coChar ch) { return ch == U'\r' || ch == U'\n'; }

bool quillQuotableStringOk(struct coString const *quotableString) {
    CO_ASSERT_GIVEN(quotableString);
    co::Chars const text = quotableString->view();
    return std::none_of(text.begin(), text.end(), isLineEnd);
}

// qdtext but for blanks = %x21 / %x23-5B / %x5D-7E / UTF8-NONASCII
static bool isPrintableQdtext(coChar ch) { return ch > U' ' && ch != U'"' && ch != U'\\' && ch != 0x7F; }

// In a run of SP every second one is escaped, so that nobody on the way folds them into one.
struct coString *quill___QuotableStringEncode(struct coString const *quotableString) {
    CO_ASSERT_GIVEN(quotableString);
    struct coString *quoted = co::makeString(2 * quotableString->length + 2);
    coChar *out = quoted->chars();
    bool isAfterBlank = false;
    *out++ = U'"';
    for (coChar const ch : quotableString->view()) {
        CO_ASSERT(!isLineEnd(ch), "backing[i] != CO_CHAR_CARRIAGE_RETURN && backing[i] != CO_CHAR_LINE_FEED");
        bool const isPlainBlank = ch == U' ' && !isAfterBlank;
        if (!isPlainBlank && !isPrintableQdtext(ch)) *out++ = U'\\';
        *out++ = ch;
        isAfterBlank = isPlainBlank;
    }
    *out++ = U'"';
    quoted->length = out - quoted->chars();
    return quoted;
}

// The whole text, from SWS to the closing quote.
struct coString *quill___QuotableStringTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    int64_t const open = quill___SkipSws(chs, length);
    int64_t const close = length - 1;
    if (open >= close || chs[open] != U'"' || chs[close] != U'"') return nullptr;

    co::Ref<coString> text(co::makeString(close - open - 1));
    coChar *out = text->chars();
    for (int64_t i = open + 1; i < close; i++) {
        if (chs[i] == U'"') return nullptr;
        if (chs[i] == U'\\' && ++i == close) return nullptr; // the last quote is escaped
        if (isLineEnd(chs[i])) return nullptr;
        *out++ = chs[i];
    }
    text->length = out - text->chars();
    return text.take();
}
