// Internationalised resource identifiers. Contract: quill_iri.h.

#define CO_UNIT "source/quill/quill_iri"

#include <co/co_assert.hpp>
#include <loc/loc_iri.h>
#include <quill/quill_iri.h>

bool quillIriOk(struct coString const *iri) {
    CO_ASSERT_GIVEN(iri);
    constexpr int64_t wholeIri = 0;
    return locGensValidatePart(wholeIri, iri);
}
