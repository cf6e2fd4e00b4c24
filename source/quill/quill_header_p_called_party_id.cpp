// The P-Called-Party-Id header field. Grammar and contract: quill_header_p_called_party_id.h.

#define CO_UNIT "source/quill/quill_header_p_called_party_id"

#include <quill/quill_address_header.hpp>
#include <quill/quill_header_p_called_party_id.h>

QUILL_DEFINE_ADDRESS_HEADER(PCalledPartyId, P_CALLED_PARTY_ID)
