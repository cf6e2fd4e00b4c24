// The Accept-Encoding header field. Grammar and contract: quill_header_accept_encoding.h.

#define CO_UNIT "source/quill/quill_header_accept_encoding"

#include <quill/quill_header_accept_encoding.h>
#include <quill/quill_header_family.hpp>

QUILL_DEFINE_VALUE_LIST_HEADER(AcceptEncoding, ACCEPT_ENCODING, AcceptEncoding, acceptEncoding,
                               quill___SkipAcceptEncoding)
