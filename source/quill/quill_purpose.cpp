// The purpose parameter of Call-Info (RFC 3261, 20.9). Contract: quill_purpose.h.

#define CO_UNIT "source/quill/quill_purpose"

#include <quill/quill_purpose.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(Purpose, purpose, quill___SkipPurpose)

// The condition's text names another value: callers may know it by now.
struct coString *quillPurposeNormalize(struct coString const *purpose) {
    CO_ASSERT(quillPurposeOk(purpose), "quillPurposeOk( optionTag )");
    return quill::mapEach<co::asciiLower>(purpose);
}
