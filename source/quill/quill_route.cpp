// One value of a Route, Record-Route or Service-Route header field. Grammar and contract: quill_route.h.

#define CO_UNIT "source/quill/quill_route"

#include <quill/quill_display_name.h>
#include <quill/quill_family.hpp>
#include <quill/quill_iri.h>
#include <quill/quill_name_addr.hpp>
#include <quill/quill_readers.hpp>
#include <quill/quill_route.h>

struct quillRoute : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_ROUTE;

    co::TextSlot iri; // never null
    co::TextSlot displayName;
    quill::ParamsSlot genericParams;

    static constexpr auto members() {
        return std::tuple(&quillRoute::iri, &quillRoute::displayName, &quillRoute::genericParams);
    }
    static constexpr auto comparison() { return members(); }
};

QUILL_DEFINE_VALUE(Route, ROUTE, route)
CO_DEFINE_STRING_MEMBER(quillRoute, route, Iri, iri, quillIriOk, iri, co::asGiven)
CO_DEFINE_OPTIONAL_STRING_MEMBER(quillRoute, route, DisplayName, displayName, quillDisplayNameOk, displayName,
                                 co::asGiven)
CO_DEFINE_OBJECT_MEMBER(quillRoute, route, GenericParams, genericParams, quillGenericParams, genericParams)

struct quillRoute *quillRouteCreate(struct coString *iri) {
    CO_ASSERT_OK(quillIriOk, iri);
    return quill::makeAddress<quillRoute>(iri);
}

static constexpr std::tuple<> lifted;

struct coString *quill___RouteEncode(struct quillRoute const *route) {
    CO_ASSERT_GIVEN(route);
    return quill::encodeAddress(*route, lifted);
}

static bool readInBrackets(quillRoute *route, co::Chars *line) {
    return quill::readAddress(route, line, quill::Bare::refused, lifted);
}
static bool readRoute(quillRoute *route, co::Chars *line) {
    return quill::readAddress(route, line, quill::Bare::allowed, lifted);
}

constinit quill::ValueKind const quill::routeKind = valueKind<quillRoute, readInBrackets>();

struct quillRoute *quill___RouteTryDecode(coChar const *chs, int64_t length) {
    CO_ASSERT_TEXT(chs, length);
    return quill::tryReadWhole<quillRoute>(co::chars(chs, length), readRoute);
}
