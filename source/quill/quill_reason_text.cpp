// Texts of Reason (RFC 3326, 2), unquoted. Contract: quill_reason_text.h.

#define CO_UNIT "source/quill/quill_reason_text"

#include <quill/quill_quotable_string.h>
#include <quill/quill_reason_text.h>
#include <quill/quill_scalar.hpp>

bool quillReasonTextOk(struct coString const *reasonText) {
    CO_ASSERT_GIVEN(reasonText);
    return quillQuotableStringOk(reasonText);
}
