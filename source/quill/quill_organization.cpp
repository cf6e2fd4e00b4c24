// What the Organization header field holds (RFC 3261, 20.25). Contract: quill_organization.h.

#define CO_UNIT "source/quill/quill_organization"

#include <quill/quill_organization.h>
#include <quill/quill_text_trim.hpp>

bool quillOrganizationOk(struct coString const *organization) {
    CO_ASSERT_GIVEN(organization);
    return quill::isTextUtf8(quill___SkipOrganization, organization->view());
}

struct coString *quillOrganizationNormalize(struct coString const *organization) {
    CO_ASSERT_GIVEN(organization);
    struct coString *normal = quill::trimmed(organization);
    CO_ASSERT_SAYING("organization invalid", normal, "quillOrganizationOk( organization )");
    return normal;
}
