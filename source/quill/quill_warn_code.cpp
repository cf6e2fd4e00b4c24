// Codes of warnings and their default texts. Contract: quill_warn_code.h.

#define CO_UNIT "source/quill/quill_warn_code"

#include <quill/quill_code_text.hpp>
#include <quill/quill_scalar.hpp>
#include <quill/quill_warn_code.h>

static constexpr quill::CodeText warnings[] = {
    {300, U"Incompatible network protocol"},   {301, U"Incompatible network address formats"},
    {302, U"Incompatible transport protocol"}, {303, U"Incompatible bandwidth units"},
    {304, U"Media type not available"},        {305, U"Incompatible media format"},
    {306, U"Attribute not understood"},        {307, U"Session description parameter not understood"},
    {330, U"Multicast not available"},         {331, U"Unicast not available"},
    {370, U"Insufficient bandwidth"},          {399, U"Miscellaneous warning"},
};
static_assert(quill::isOrdered(warnings));

QUILL_DEFINE_INTEGER_VALUE(WarnCode, warnCode, 0, 999)

struct coString *quillWarnCodeToString(int64_t warnCode) {
    CO_ASSERT_OK(quillWarnCodeOk, warnCode);
    struct coString *text = quill::textOfCode(warnings, warnCode);
    return text ? text : coStringCreateFromFormatCstr("Warning \"%03i\"", -1, warnCode);
}

// Without leading zeros, though what is read has three digits always.
struct coString *quill___WarnCodeEncode(int64_t warnCode) {
    CO_ASSERT_OK(quillWarnCodeOk, warnCode);
    return coFormatEncodeInt(warnCode, 10, 0, 0);
}

// Only for text that quill___SkipWarnCode has taken.
int64_t quill___WarnCodeDecode(coChar const *chs, int64_t length) {
    int64_t result = 0;
    int64_t charsRead = 0;
    CO_ASSERT(coFormatTryDecodeIntChars(chs, length, 10, &result, &charsRead) && charsRead == length,
              "coFormatTryDecodeIntChars( chs, length, 10, &result, &charsRead ) && charsRead == length");
    return result;
}
