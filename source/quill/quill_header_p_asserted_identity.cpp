// The P-Asserted-Identity header field. Grammar and contract: quill_header_p_asserted_identity.h.

#define CO_UNIT "source/quill/quill_header_p_asserted_identity"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_p_asserted_identity.h>

QUILL_DEFINE_VALUE_LIST_HEADER(PAssertedIdentity, P_ASSERTED_IDENTITY, IdentityValue, identityValue,
                               quill___SkipIdentityValue)
