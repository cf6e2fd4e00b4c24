// The Route header field. Grammar and contract: quill_header_route.h.

#define CO_UNIT "source/quill/quill_header_route"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_route.h>
#include <quill/quill_readers.hpp>
#include <quill/quill_route.h>

QUILL_DEFINE_READ_VALUE_LIST_HEADER(Route, ROUTE, Route, route, quill___SkipRoute, quill::routeKind)
