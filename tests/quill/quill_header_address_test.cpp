// Headers that hold one address: From, P-Called-Party-Id, Refer-To, Referred-By, Remote-Party-Id, Reply-To, To.

#include "single_headers.hpp"

#include <quill/quill_header_from.h>
#include <quill/quill_header_p_called_party_id.h>
#include <quill/quill_header_refer_to.h>
#include <quill/quill_header_referred_by.h>
#include <quill/quill_header_remote_party_id.h>
#include <quill/quill_header_reply_to.h>
#include <quill/quill_header_to.h>

using namespace test;

namespace {

TEST(QuillHeaderAddress, Addresses) {
    for (char const *type : {"From", "PCalledPartyId", "ReferTo", "ReferredBy", "RemotePartyId", "ReplyTo", "To"})
        expectReadings(
            type,
            {
                {"<sip:a@b>", "Iri=sip:a@b", nullptr, "in brackets"},
                {"sip:a@b", "Iri=sip:a@b", "<sip:a@b>", "bare"},
                {"Bob <sip:a@b>", "Iri=sip:a@b DisplayName=Bob", "\"Bob\" <sip:a@b>", "a token for a name"},
                {"Bob  Lee<sip:a@b>", "Iri=sip:a@b DisplayName=Bob Lee", "\"Bob Lee\" <sip:a@b>", "tokens for a name"},
                {"\"Bob\"<sip:a@b>", "Iri=sip:a@b DisplayName=Bob", "\"Bob\" <sip:a@b>", "a quoted name"},
                {"\"B, \\\"x\\\"\" <sip:a@b>", "Iri=sip:a@b DisplayName=B, \"x\"", nullptr, "what must be escaped"},
                {"\"\" <sip:a@b>", "Iri=sip:a@b DisplayName=", nullptr, "an empty name is a name"},
                {" <sip:a@b> ", "Iri=sip:a@b", "<sip:a@b>", "blanks belong to the brackets"},
                {"sip:a@b;x=1", "Iri=sip:a@b GenericParams=;x=1", "<sip:a@b>;x=1",
                 "the field's parameter, not the URI's"},
                {"<sip:a@b;x=1>", "Iri=sip:a@b;x=1", nullptr, "the URI's"},
                {"<sip:a@b;x=1>;y=2", "Iri=sip:a@b;x=1 GenericParams=;y=2", nullptr, "both"},
                {"<sip:a@b> ; X = Y ; z", "Iri=sip:a@b GenericParams=;x=Y;z", "<sip:a@b>;x=Y;z", "blanks"},
                {"<sip:a@b>;x=1;X=2", "Iri=sip:a@b GenericParams=;x=2", "<sip:a@b>;x=2", "the last of a name"},
                {"<sip:a@b>;x=\"1;2\"", "Iri=sip:a@b GenericParams=;x=\"1;2\"", nullptr, "a quoted value"},
                {"<sip:a@b>;x=[::1]", "Iri=sip:a@b GenericParams=;x=[::1]", nullptr, "a host"},
                {"<sip:a@b?x=y>", "Iri=sip:a@b?x=y", nullptr, "headers in the URI"},
                {"<sip:%C3%A9@b>", "Iri=sip:é@b", nullptr, "escaped on the wire, an IRI inside"},
                {"<sip:a%40b@c>", "Iri=sip:a%40b@c", nullptr, "escapes of US-ASCII stay"},
                {"<tel:+49-30>", "Iri=tel:+49-30", nullptr, "any scheme"},
                {"<sip:a,b@c>", "Iri=sip:a,b@c", nullptr, "a comma"},
                {"<sip:a@[2001:db8::1]:5060>", "Iri=sip:a@[2001:db8::1]:5060", nullptr, "an IPv6 reference"},
                {"", nullptr, nullptr, "nothing"},
                {"<>", nullptr, nullptr, "no URI"},
                {"<sip:>", nullptr, nullptr, "nothing behind the scheme"},
                {"a@b", nullptr, nullptr, "no scheme"},
                {"*", nullptr, nullptr, "a star"},
                {"Bob", nullptr, nullptr, "a name alone"},
                {"Bob sip:a@b", nullptr, nullptr, "a name without brackets"},
                {"\"Bob <sip:a@b>", nullptr, nullptr, "an open quote"},
                {"<sip:a@b", nullptr, nullptr, "an open bracket"},
                {"Bob, <sip:a@b>", nullptr, nullptr, "a comma in the name"},
                {"<sip:a@b>, <sip:c@d>", nullptr, nullptr, "two addresses"},
                {"sip:a@b, sip:c@d", nullptr, nullptr, "two bare ones"},
                {"<sip:a@b>x", nullptr, nullptr, "something behind it"},
                {"<sip:a@b>;", nullptr, nullptr, "nothing behind the semicolon"},
                {"<sip:a@b>;;x", nullptr, nullptr, "nothing between two"},
                {"<sip:a@b>;x=", nullptr, nullptr, "no value"},
                {"<sip:%FF@b>;x", "Iri=sip:%FF@b GenericParams=;x", nullptr, "an escape that is no UTF-8 stays"},
            });
}

TEST(QuillHeaderAddress, TagsAndEpids) {
    for (char const *type : {"From", "To"})
        expectReadings(
            type,
            {
                {"<sip:a@b>;tag=x", "Iri=sip:a@b Tag=x", nullptr, "a tag"},
                {"sip:a@b;tag=x", "Iri=sip:a@b Tag=x", "<sip:a@b>;tag=x", "behind a bare address"},
                {"<sip:a@b>;TAG=X", "Iri=sip:a@b Tag=X", "<sip:a@b>;tag=X", "any letter case"},
                {"<sip:a@b>;tag = x", "Iri=sip:a@b Tag=x", "<sip:a@b>;tag=x", "blanks"},
                {"<sip:a@b>;tag=x;tag=y", "Iri=sip:a@b Tag=y", "<sip:a@b>;tag=y", "the last"},
                {"<sip:a@b>;tag", "Iri=sip:a@b GenericParams=;tag", nullptr, "no value: generic"},
                {"<sip:a@b>;tag=\"x\"", "Iri=sip:a@b GenericParams=;tag=\"x\"", nullptr, "no token: generic"},
                {"<sip:a@b>;tags=x", "Iri=sip:a@b GenericParams=;tags=x", nullptr, "another name"},
                {"<sip:a@b>;tag=", nullptr, nullptr, "nothing"},
                {"<sip:a@b>;tag=x y", nullptr, nullptr, "more than a token"},
                {"<sip:a@b>;tag=x@y", nullptr, nullptr, "no semicolon behind the token"},
                {"<sip:a@b>;epid=1234567890123456", "Iri=sip:a@b Epid=1234567890123456", nullptr, "16 characters"},
                {"<sip:a@b>;epid=12345678901234567", nullptr, nullptr, "no semicolon behind the 16th"},
                {"<sip:a@b>;epid=e;x;tag=t", "Iri=sip:a@b Tag=t Epid=e GenericParams=;x", "<sip:a@b>;tag=t;epid=e;x",
                 "written in their own order"},
                {"<sip:a@b;tag=u>;tag=t", "Iri=sip:a@b;tag=u Tag=t", nullptr, "the URI's is another one"},
            });
    for (char const *type : {"PCalledPartyId", "ReferTo", "ReferredBy", "RemotePartyId", "ReplyTo"})
        expectReadings(type,
                       {{"<sip:a@b>;tag=t", "Iri=sip:a@b GenericParams=;tag=t", nullptr, "a parameter like others"}});
}

TEST(QuillHeaderAddress, ContentIdentifiers) {
    expectReadings(
        "ReferredBy",
        {
            {"<sip:a@b>;cid=\"c@d.e\"", "Iri=sip:a@b Cid=c@d.e", nullptr, ""},
            {"sip:a@b;CID = \"c@d\"", "Iri=sip:a@b Cid=c@d", "<sip:a@b>;cid=\"c@d\"", "letter case and blanks"},
            {"<sip:a@b>;x;cid=\"c@d\"", "Iri=sip:a@b Cid=c@d GenericParams=;x", "<sip:a@b>;cid=\"c@d\";x",
             "written first"},
            {"<sip:a@b>;cid=\"c\"", "Iri=sip:a@b GenericParams=;cid=\"c\"", nullptr, "no identifier: generic"},
            {"<sip:a@b>;cid=\" c@d\"", "Iri=sip:a@b GenericParams=;cid=\" c@d\"", nullptr, "a blank before: generic"},
            {"<sip:a@b>;cid=\"c@d \"", "Iri=sip:a@b GenericParams=;cid=\"c@d \"", nullptr, "a blank behind: generic"},
            {"<sip:a@b>;cid=\"\"", "Iri=sip:a@b GenericParams=;cid=\"\"", nullptr, "empty: generic"},
            {"<sip:a@b>;cid=c", "Iri=sip:a@b GenericParams=;cid=c", nullptr, "no quotes: generic"},
            {"<sip:a@b>;cid", "Iri=sip:a@b GenericParams=;cid", nullptr, "no value: generic"},
            {"<sip:a@b>;cid=c@d", nullptr, nullptr, "no quotes, and more than a token"},
            {"<sip:a@b>;cid=\"c@d", nullptr, nullptr, "an open quote"},
            {"<sip:a@b>;cid=\"c@d\"e", nullptr, nullptr, "something behind it"},
        });
}

TEST(QuillHeaderAddress, OneEndOfADialogFromTheOther) {
    auto const from = singleHeader("From").decode("\"Bob\" <sip:a@b>;tag=t;epid=e;x=1");
    auto const to = own(quillHeaderToCreateFromHeaderFrom(quillHeaderFromFrom(from.get())));
    EXPECT_EQ(taken(quillHeaderToToString(to.get())), "\"Bob\" <sip:a@b>;tag=t;epid=e;x=1");
    auto back = own(quillHeaderFromCreateFromHeaderTo(to.get()));
    EXPECT_TRUE(quillHeaderFromEquals(back.get(), quillHeaderFromFrom(from.get())));

    quillHeaderFromDelTag(back.address());
    EXPECT_TRUE(quillHeaderToHasTag(to.get())) << "a change of one leaves the other as it is";
    auto params = own(quillHeaderFromGenericParams(back.get()));
    EXPECT_EQ(params.get(), own(quillHeaderToGenericParams(to.get())).get()) << "the parts are shared";
    quillGenericParamsDelParamCstr(params.address(), "x", -1);
    EXPECT_EQ(taken(quillHeaderFromToString(back.get())), "\"Bob\" <sip:a@b>;epid=e;x=1");

    auto const plain = own(quillHeaderToCreate(str("sip:c@d")));
    auto const plainFrom = own(quillHeaderFromCreateFromHeaderTo(plain.get()));
    EXPECT_EQ(singleHeader("From").describe(quillHeaderFromObj(plainFrom.get())), "Iri=sip:c@d");

    EXPECT_ABORT(quillHeaderFromCreateFromHeaderTo(nullptr), "source/quill/quill_header_from", "hdrTo");
    EXPECT_ABORT(quillHeaderToCreateFromHeaderFrom(nullptr), "source/quill/quill_header_to", "hdrFrom");
}

TEST(QuillHeaderAddress, AreCreatedOfAnIri) {
    auto const hdr = own(quillHeaderReferToCreate(str("sip:é@b")));
    EXPECT_FALSE(quillHeaderReferToHasDisplayName(hdr.get()));
    EXPECT_EQ(quillGenericParamsLength(own(quillHeaderReferToGenericParams(hdr.get())).get()), 0);
    EXPECT_EQ(taken(quillHeaderReferToToString(hdr.get())), "<sip:%C3%A9@b>");

    std::string const unit = "source/quill/quill_header_";
    EXPECT_ABORT(quillHeaderFromCreate(str("a")), unit + "from", "quillIriOk( iri )");
    EXPECT_ABORT(quillHeaderToCreate(str("a")), unit + "to", "quillIriOk( iri )");
    EXPECT_ABORT(quillHeaderPCalledPartyIdCreate(str("")), unit + "p_called_party_id", "quillIriOk( iri )");
    EXPECT_ABORT(quillHeaderReferToCreate(str("")), unit + "refer_to", "quillIriOk( iri )");
    EXPECT_ABORT(quillHeaderReferredByCreate(str("")), unit + "referred_by", "quillIriOk( iri )");
    EXPECT_ABORT(quillHeaderRemotePartyIdCreate(str("")), unit + "remote_party_id", "quillIriOk( iri )");
    EXPECT_ABORT(quillHeaderReplyToCreate(str("")), unit + "reply_to", "quillIriOk( iri )");
}

} // namespace
