// Generic parameters of values that were read: pieces of the line, of which a collection is made for whoever asks. They are
// what a collection holds that got the same parameters one by one.

#include "headers.hpp"

#include <quill/quill_generic_param.h>
#include <quill/quill_generic_params.h>
#include <quill/quill_header_from.h>
#include <quill/quill_header_to.h>
#include <random>

using namespace test;

namespace {

using Params = co::Ref<quillGenericParams>;

Params paramsOf(coObj const *from) { return own(quillHeaderFromGenericParams(as<quillHeaderFrom>(from))); }

co::Ref<coObj> decodeFrom(std::string const &params) { return decode(typed("From"), {"<sip:a@b>" + params}); }

std::string text(quillGenericParams const *params) { return taken(quillGenericParamsToString(params)); }

co::Ref<quillGenericParam> paramOf(std::string const &text) {
    std::u32string const chars = wide(text);
    return own(quill___GenericParamTryDecode(chars.data(), static_cast<int64_t>(chars.size())));
}

struct Line {
    std::string params;
    Params generic; // which of them are, set one by one
    std::string tag;
};

class ReadParams : public testing::Test {
protected:
    std::mt19937 random{1};

    std::string const &any(std::vector<std::string> const &texts) { return texts[random() % texts.size()]; }

    // The same names again and again, values of all kinds, and lifted parameters between them.
    Line anyLine() {
        static std::vector<std::string> const separators{";", ";", ";", " ; ", ";\t", " ;"};
        static std::vector<std::string> const names{"a", "b", "B", "lr", "x.y", "Tagged", "+sip.ice"};
        static std::vector<std::string> const values{
            "", "", "=1", "=A", " = z", "=\"q;,\"", "=\"\"", "=[2001:db8::1]", "=\"\\\\\"", "=" + std::string(60, 'v')};
        Line line{"", own(quillGenericParamsCreate()), "(absent)"};
        for (size_t left = random() % 3 * (random() % 9); left > 0; left--) {
            bool const isTag = random() % 8 == 0;
            std::string const param = isTag ? "tag=" + any(names) : any(names) + any(values);
            line.params += any(separators) + param;
            if (isTag)
                line.tag = param.substr(4);
            else
                quillGenericParamsSetParam(line.generic.address(), paramOf(param).get());
        }
        return line;
    }
};

TEST_F(ReadParams, AreThoseThatACollectionGetsOneByOne) {
    int without = 0;
    int many = 0;
    for (int i = 0; i < 20000; i++) {
        Line const line = anyLine();
        Line const other = anyLine();
        auto from = decodeFrom(line.params);
        auto const fromOther = decodeFrom(other.params);
        ASSERT_TRUE(from && fromOther) << line.params << "\n" << other.params;
        ASSERT_EQ(text(paramsOf(from.get()).get()), text(line.generic.get())) << line.params;
        int const order = quillGenericParamsCompare(line.generic.get(), other.generic.get());
        if (line.tag == other.tag) {
            ASSERT_EQ(coObjCompare(from.get(), fromOther.get()), order) << line.params;
        }
        auto const copy = own(quillHeaderFromCreateFrom(as<quillHeaderFrom>(from.get())));
        from.reset(nullptr);
        ASSERT_EQ(text(paramsOf(generic(copy.get())).get()), text(line.generic.get())) << "a copy has them";
        int64_t const count = quillGenericParamsLength(line.generic.get());
        without += count == 0;
        many += count > 4;
    }
    EXPECT_GT(without, 1000);
    EXPECT_GT(many, 1000);
}

TEST_F(ReadParams, AreReadAnewWhileTheyAreShort) {
    std::string const longest = ";" + std::string(255, 'x');
    auto const from = decodeFrom(";tag=1" + longest + ";tag=2");
    auto const first = paramsOf(from.get());
    EXPECT_EQ(count(first.get()), 1);
    EXPECT_NE(paramsOf(from.get()).get(), first.get());
    EXPECT_EQ(text(first.get()), longest);
    for (std::string const &longer : {longest + "x", longest + ";x", ";x" + longest.substr(1) + "=1"}) {
        auto const other = decodeFrom(longer);
        auto const kept = paramsOf(other.get());
        EXPECT_EQ(count(kept.get()), 2) << "what takes longer to read is kept";
        EXPECT_EQ(paramsOf(other.get()).get(), kept.get());
        EXPECT_EQ(text(kept.get()), longer);
    }
}

TEST_F(ReadParams, StandInTheWayOfNoOther) {
    for (std::string const params : {";", ";x;", ";x ", ";x,", ";x=", ";x=1 y", ";x;;y", ";=1", ";x=(", ";x;y=\"1"}) {
        EXPECT_FALSE(decodeFrom(params)) << params;
        EXPECT_FALSE(decodeFrom(";a;b=2" + params)) << params;
        EXPECT_FALSE(decodeFrom(";a=\"q\"" + params)) << params;
    }
}

TEST_F(ReadParams, AreReplacedAndTakenByOthers) {
    auto from = decodeFrom(";a=1;b");
    auto const before = own(co::retained(from.get()));
    auto params = paramsOf(from.get());
    quillGenericParamsSetParamValueCstr(params.address(), "A", -1, 0, "2", -1);
    auto *typedFrom = as<quillHeaderFrom>(from.take());
    quillHeaderFromSetGenericParams(&typedFrom, params.get());
    from.reset(generic(typedFrom));
    EXPECT_EQ(text(paramsOf(from.get()).get()), ";a=2;b");
    EXPECT_EQ(text(paramsOf(before.get()).get()), ";a=1;b") << "it is another holder's";
    EXPECT_EQ(encode(typed("From"), from.get()), Lines{"<sip:a@b>;a=2;b"});
    auto const to = own(quillHeaderToCreateFromHeaderFrom(as<quillHeaderFrom>(before.get())));
    EXPECT_EQ(taken(quillHeaderToToString(to.get())), "<sip:a@b>;a=1;b");
}

} // namespace
