// Instance identifiers of a user agent (RFC 5626, 4.1), in their angle brackets. Contract: quill_sip_instance.h.

#define CO_UNIT "source/quill/quill_sip_instance"

#include <quill/quill_scalar.hpp>
#include <quill/quill_sip_instance.h>

QUILL_DEFINE_TEXT_VALUE(SipInstance, sipInstance, quill___SkipSipInstance)
