#include "values.hpp"

using namespace test;

namespace {

using Identity = struct quillIdentityValue;

TEST(QuillIdentityValue, CreatesWithoutDisplayName) {
    auto const identity = own(quillIdentityValueCreate(str("tel:1")));
    EXPECT_EQ(taken(quillIdentityValueIri(identity.get())), "tel:1");
    EXPECT_EQ(quillIdentityValueDisplayName(identity.get()), nullptr);
    EXPECT_FALSE(quillIdentityValueHasDisplayName(identity.get()));
    EXPECT_EQ(text(identity), "<tel:1>");
}

TEST(QuillIdentityValue, DecodesAndEncodes) {
    expectCoded<Identity>({
        {"\"Cullen Jennings\" <sip:fluffy@cisco.com>", "\"Cullen Jennings\" <sip:fluffy@cisco.com>", ""},
        {"tel:+14085264000", "<tel:+14085264000>", "a bare address"},
        {"<sip:h;a?b>", "<sip:h;a?b>", "parameters of the URI"},
        {"A B<sip:h>", "\"A B\" <sip:h>", "tokens"},
        {" <sip:h> ", "<sip:h>", "blanks around the brackets"},
        {"\"\u00E9\\\"\"<sip:%c3%a9>", "\"\u00E9\\\"\" <sip:%C3%A9>", "UTF-8 and escapes"},
    });
    auto const identity = decode<Identity>("A B <sip:%c3%a9>");
    EXPECT_EQ(taken(quillIdentityValueIri(identity.get())), "sip:\u00E9");
    EXPECT_EQ(taken(quillIdentityValueDisplayName(identity.get())), "A B");
    EXPECT_TRUE(quillIdentityValueHasDisplayName(identity.get()));
}

TEST(QuillIdentityValue, Refuses) {
    expectRefused<Identity>({
        {"", "nothing"},
        {"<>", "no URI"},
        {"sip:", "no URI"},
        {"<sip:h>;a", "a parameter"},
        {"sip:h;a", "a parameter"},
        {"<sip:h> a", "something behind"},
        {"sip:h ", "a blank behind"},
        {"A <sip:h", "an open bracket"},
        {"\"A <sip:h>", "an open quote"},
        {"A", "no URI"},
        {"<sip:h>,<sip:g>", "two of them"},
    });
}

TEST(QuillIdentityValue, ChangesInPlaceOrOnACopy) {
    std::vector<Change<Identity>> const changes{
        {"IRI", [](Identity **identity) { quillIdentityValueSetIri(identity, str("sip:g")); }, "\"A\" <sip:g>"},
        {"display name", [](Identity **identity) { quillIdentityValueSetDisplayName(identity, str("")); },
         "\"\" <sip:h>"},
        {"no display name", quillIdentityValueDelDisplayName, "<sip:h>"},
    };
    expectChanges("A<sip:h>", changes);
    expectChanges<Identity>("sip:h", {{"no display name", quillIdentityValueDelDisplayName, "<sip:h>"}});
}

TEST(QuillIdentityValue, Compares) {
    expectAscending<Identity>({"Z <sip:a>", "<sip:b>", "\"\" <sip:b>", "A <sip:b>", "B <sip:b>", "<sip:c>"});
    EXPECT_TRUE(areEqual<Identity>("sip:b", "<sip:b>"));
    EXPECT_TRUE(areEqual<Identity>("A <sip:b>", "\"\\A\"<sip:b>"));
}

TEST(QuillIdentityValue, Asserts) {
    constexpr auto &unit = ValueFunctions<Identity>::unit;
    auto const identity = decode<Identity>("sip:h");
    Preconditions<Identity> const preconditions{"identityValue"};
    preconditions.ofSort(identity.get());
    preconditions.ofAll(quillIdentityValueIri, quillIdentityValueDisplayName, quillIdentityValueHasDisplayName,
                        quillIdentityValueDelDisplayName);
    Str const iri = str("sip:g"), blank = str("a b"), lineEnd = str("\n");
    preconditions.ofSetter(quillIdentityValueSetIri, iri, identity.get(), {blank}, "quillIriOk( iri )");
    preconditions.ofSetter(quillIdentityValueSetDisplayName, blank, identity.get(), {lineEnd},
                           "quillDisplayNameOk( displayName )");
    EXPECT_ABORT(quillIdentityValueCreate(blank), unit, "quillIriOk( iri )");
}

} // namespace
