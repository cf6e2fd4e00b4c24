// The Service-Route header field. Grammar and contract: quill_header_service_route.h.

#define CO_UNIT "source/quill/quill_header_service_route"

#include <quill/quill_header_family.hpp>
#include <quill/quill_header_service_route.h>

QUILL_DEFINE_VALUE_LIST_HEADER(ServiceRoute, SERVICE_ROUTE, Route, route, quill___SkipRoute)
