// States of a subscription (RFC 6665, 8.4). Contract: quill_substate_value.h.

#define CO_UNIT "source/quill/quill_substate_value"

#include <quill/quill_scalar.hpp>
#include <quill/quill_substate_value.h>
#include <quill/quill_token.h>

QUILL_DEFINE_TEXT_VALUE(SubstateValue, substateValue, quill___SkipSubstateValue)

struct coString *quillSubstateValueNormalize(struct coString const *substateValue) {
    CO_ASSERT_GIVEN(substateValue);
    return quillTokenNormalize(substateValue);
}
