// What the Server header field holds (RFC 3261, 20.35). Contract: quill_server.h.

#define CO_UNIT "source/quill/quill_server"

#include <quill/quill_scalar.hpp>
#include <quill/quill_server.h>

QUILL_DEFINE_TEXT_VALUE(Server, server, quill___SkipServer)
