// Texts of warnings (RFC 3261, 20.43), unquoted. Contract: quill_warn_text.h.

#define CO_UNIT "source/quill/quill_warn_text"

#include <quill/quill_quotable_string.h>
#include <quill/quill_scalar.hpp>
#include <quill/quill_warn_text.h>

bool quillWarnTextOk(struct coString const *warnText) {
    CO_ASSERT_GIVEN(warnText);
    return quillQuotableStringOk(warnText);
}
