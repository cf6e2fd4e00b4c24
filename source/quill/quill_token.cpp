// Tokens (RFC 3261, 25.1), the most common of values. Contract: quill_token.h.

#define CO_UNIT "source/quill/quill_token"

#include <quill/quill_scalar.hpp>
#include <quill/quill_token.h>

QUILL_DEFINE_TEXT_VALUE(Token, token, quill___SkipToken)
QUILL_DEFINE_LOWER_NORMALIZE(Token, token)
