// Display names of addresses. Grammar and contract: quill_display_name.h.

#define CO_UNIT "source/quill/quill_display_name"

#include <quill/quill_display_name.h>
#include <quill/quill_quotable_string.h>
#include <quill/quill_scalar.hpp>

bool quillDisplayNameOk(struct coString const *displayName) {
    CO_ASSERT_GIVEN(displayName);
    return quillQuotableStringOk(displayName);
}

// In quotes also where tokens would do.
struct coString *quill___DisplayNameEncode(struct coString const *displayName) {
    CO_ASSERT_GIVEN(displayName);
    return quill___QuotableStringEncode(displayName);
}

// *(token LWS), the last LWS optional; one SP takes the place of each LWS between two tokens.
static coString *joinTokens(co::Chars text) {
    co::Ref<coString> joined(co::makeString(co::length(text)));
    for (co::Chars rest = text; !rest.empty();) {
        int64_t const token = quill___SkipToken(rest.data(), co::length(rest));
        if (token == 0) return nullptr;
        if (joined->length > 0) co::append(joined.address(), U" ");
        co::append(joined.address(), rest.substr(0, static_cast<size_t>(token)));
        rest.remove_prefix(static_cast<size_t>(token));
        rest.remove_prefix(static_cast<size_t>(quill___SkipLws(rest.data(), co::length(rest))));
    }
    return joined.take();
}

struct coString *quill___DisplayNameTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    struct coString *unquoted = quill___QuotableStringTryDecode(chs, length);
    return unquoted ? unquoted : joinTokens(co::chars(chs, length));
}
