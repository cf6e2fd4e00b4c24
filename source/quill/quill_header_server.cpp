// The Server header field. Grammar and contract: quill_header_server.h.

#define CO_UNIT "source/quill/quill_header_server"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_server.h>
#include <quill/quill_server.h>

QUILL_DEFINE_TEXT_HEADER(Server, SERVER, Server, server)
