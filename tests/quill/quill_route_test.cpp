#include "values.hpp"

using namespace test;

namespace {

using Route = struct quillRoute;

TEST(QuillRoute, CreatesWithoutParameters) {
    auto const route = own(quillRouteCreate(str("sip:h")));
    EXPECT_EQ(taken(quillRouteIri(route.get())), "sip:h");
    EXPECT_FALSE(quillRouteHasDisplayName(route.get()));
    EXPECT_EQ(quillRouteDisplayName(route.get()), nullptr);
    EXPECT_EQ(text(quillRouteGenericParams(route.get())), "");
    EXPECT_EQ(text(route), "<sip:h>");
}

TEST(QuillRoute, DecodesAndEncodes) {
    expectCoded<Route>({
        {"<sip:h;lr>", "<sip:h;lr>", "a parameter of the URI"},
        {"<sip:h>;lr", "<sip:h>;lr", "a parameter of the value"},
        {"sip:h;lr", "<sip:h>;lr", "a bare address has no parameters of its own"},
        {"\"A B\" <sip:h>;X=Y", "\"A B\" <sip:h>;x=Y", ""},
        {"A  B <sip:h>", "\"A B\" <sip:h>", "one space between tokens"},
        {"A<sip:h>", "\"A\" <sip:h>", ""},
        {"\"\"<sip:h>", "\"\" <sip:h>", "an empty display name is one"},
        {"\"\\\"\\\\\" <sip:h>", "\"\\\"\\\\\" <sip:h>", "escapes"},
        {"\"\u00E9\U0001F600\" <sip:h>", "\"\u00E9\U0001F600\" <sip:h>", "UTF-8"},
        {" \t\"A\" \t<sip:h> \t; a = b", "\"A\" <sip:h>;a=b", "blanks"},
        {"  <sip:h>  ", "<sip:h>", "blanks around the brackets"},
        {"<sip:a,b@h;x?y=z>", "<sip:a,b@h;x?y=z>", "characters that end a bare address"},
        {"<sip:a@[2001:db8::1]:5060>", "<sip:a@[2001:db8::1]:5060>", "IPv6"},
        {"<tel:+1-2>", "<tel:+1-2>", "another scheme"},
        {"<SIP:%c3%a9@h>", "<SIP:%C3%A9@h>", "an escaped character that an IRI may hold"},
        {"<sip:%41%00%20@h>", "<sip:%41%00%20@h>", "escapes of ASCII stay"},
        {"<sip:\u00E9@h>", "<sip:%C3%A9@h>", "not escaped"},
        {"<sip:h>;a;A=\"1\";b=[::1]", "<sip:h>;a=\"1\";b=[::1]", "the last one counts"},
    });
    EXPECT_EQ(taken(quillRouteIri(decode<Route>("<sip:%c3%a9@h>").get())), "sip:\u00E9@h");
}

TEST(QuillRoute, Refuses) {
    expectRefused<Route>({
        {"", "nothing"},
        {"<>", "no URI"},
        {"<sip:>", "nothing but a scheme"},
        {"<sip:h", "no bracket at the end"},
        {"sip:h>", "no bracket at the beginning"},
        {"< sip:h>", "a blank within the brackets"},
        {"<sip:h >", "a blank within the brackets"},
        {"<sip:%4>", "no escape"},
        {"<h>", "no scheme"},
        {"h", "no scheme"},
        {"A sip:h", "a display name without brackets"},
        {"\"A <sip:h>", "an open quote"},
        {"\"A\" B <sip:h>", "two display names"},
        {"\u00E9 <sip:h>", "not ASCII, without quotes"},
        {"<sip:h>;", "a semicolon at the end"},
        {"<sip:h>lr", "no semicolon"},
        {"<sip:h>;=", "no name"},
        {"<sip:h>;a=;b", "no value"},
        {"<sip:h>,<sip:g>", "two of them"},
        {"sip:h,sip:g", "two of them"},
        {"sip:h ", "a blank behind"},
        {"<sip:h>;a ", "a blank behind"},
        {"<<sip:h>>", "two brackets"},
    });
}

TEST(QuillRoute, ChangesInPlaceOrOnACopy) {
    std::vector<Change<Route>> const changes{
        {"IRI", [](Route **route) { quillRouteSetIri(route, str("tel:\u00E9")); }, "\"A\" <tel:%C3%A9>;a"},
        {"display name", [](Route **route) { quillRouteSetDisplayName(route, str("a\tb  c\"")); },
         "\"a\\\tb \\ c\\\"\" <sip:h>;a"},
        {"no display name", quillRouteDelDisplayName, "<sip:h>;a"},
        {"parameters", [](Route **route) { quillRouteSetGenericParams(route, params(";b=1").get()); },
         "\"A\" <sip:h>;b=1"},
    };
    expectChanges("\"A\"<sip:h>;a", changes);
    expectChanges<Route>("<sip:h>", {{"no display name", quillRouteDelDisplayName, "<sip:h>"}});
}

TEST(QuillRoute, Compares) {
    expectAscending<Route>({"\"Z\" <sip:a>;z", "<sip:b>;z", "\"\" <sip:b>;z", "\"A\" <sip:b>", "\"A\" <sip:b>;a",
                            "\"A\" <sip:b>;a=1", "\"A\" <sip:b>;a=2", "\"B\" <sip:b>", "<sip:c>"});
    EXPECT_TRUE(areEqual<Route>("A <sip:b>;x=Y;z", "\"A\"<sip:b> ; Z;X=y"));
    EXPECT_FALSE(areEqual<Route>("<sip:b>", "<sip:B>")) << "IRIs are texts";
}

TEST(QuillRoute, Asserts) {
    constexpr auto &unit = ValueFunctions<Route>::unit;
    auto const route = decode<Route>("<sip:h>");
    Preconditions<Route> const preconditions{"route"};
    preconditions.ofSort(route.get());
    preconditions.ofAll(quillRouteIri, quillRouteDisplayName, quillRouteHasDisplayName, quillRouteDelDisplayName,
                        quillRouteGenericParams);
    Str const iri = str("sip:g"), empty = str(""), blank = str("a b"), lineEnd = str("\n");
    preconditions.ofSetter(quillRouteSetIri, iri, route.get(), {empty, blank}, "quillIriOk( iri )");
    preconditions.ofSetter(quillRouteSetDisplayName, blank, route.get(), {lineEnd},
                           "quillDisplayNameOk( displayName )");
    preconditions.ofSetter(quillRouteSetGenericParams, params("").get(), route.get(), {nullptr}, "genericParams");
    EXPECT_ABORT(quillRouteCreate(blank), unit, "quillIriOk( iri )");
}

} // namespace
