// The P-Preferred-Identity header field. Grammar and contract: quill_header_p_preferred_identity.h.

#define CO_UNIT "source/quill/quill_header_p_preferred_identity"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_p_preferred_identity.h>

QUILL_DEFINE_VALUE_LIST_HEADER(PPreferredIdentity, P_PREFERRED_IDENTITY, IdentityValue, identityValue,
                               quill___SkipIdentityValue)
