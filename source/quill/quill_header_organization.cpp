// The Organization header field. Grammar and contract: quill_header_organization.h.

#define CO_UNIT "source/quill/quill_header_organization"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_organization.h>
#include <quill/quill_organization.h>

QUILL_DEFINE_NORMAL_TEXT_HEADER(Organization, ORGANIZATION, Organization, organization)
