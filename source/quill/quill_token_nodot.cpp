// Tokens without a dot (RFC 6665, 8.4). Contract: quill_token_nodot.h.

#define CO_UNIT "source/quill/quill_token_nodot"

#include <quill/quill_scalar.hpp>
#include <quill/quill_token_nodot.h>

QUILL_DEFINE_TEXT_VALUE(TokenNodot, tokenNodot, quill___SkipTokenNodot)
QUILL_DEFINE_LOWER_NORMALIZE(TokenNodot, tokenNodot)
