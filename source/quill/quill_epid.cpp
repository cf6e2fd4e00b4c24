// Endpoint identifiers, a parameter of From and To: at most 16 characters. Contract: quill_epid.h.

#define CO_UNIT "source/quill/quill_epid"

#include <quill/quill_epid.h>
#include <quill/quill_scalar.hpp>

QUILL_DEFINE_TEXT_VALUE(Epid, epid, quill___SkipEpid)
