// Values of Priority (RFC 3261, 20.26). Contract: quill_priority_value.h.

#define CO_UNIT "source/quill/quill_priority_value"

#include <quill/quill_priority_value.h>
#include <quill/quill_scalar.hpp>
#include <quill/quill_token.h>

QUILL_DEFINE_TEXT_VALUE(PriorityValue, priorityValue, quill___SkipPriorityValue)

struct coString *quillPriorityValueNormalize(struct coString const *priorityValue) {
    CO_ASSERT(quillPriorityValueOk(priorityValue), "quillPriorityValueOk( priority )");
    return quillTokenNormalize(priorityValue);
}
