// Lists that read their first element at once, and keep the others as pieces of the line, against a plain reading of the
// same text: by the scanners, element by element.

#include "headers.hpp"

#include <co/co_string.hpp>
#include <optional>
#include <quill/quill_contact.h>
#include <quill/quill_header_contact.h>
#include <quill/quill_header_route.h>
#include <quill/quill_header_via.h>
#include <quill/quill_route.h>
#include <quill/quill_skip.h>
#include <quill/quill_via.h>
#include <random>

using namespace test;

namespace {

using Texts = std::vector<std::string>;
using RawHeader = struct quillMessageHeader; // a function has that name, too

struct ReadList {
    std::string field;
    int64_t (*skip)(coChar const *, int64_t);
    coObj *(*decodeValue)(coChar const *, int64_t);
    coObj *(*decode)(RawHeader const *);
    int64_t (*length)(coObj const *);
    coObj *(*valueAt)(coObj const *, int64_t);
    RawHeader *(*encode)(coObj const *);
    void (*deleteAt)(coObj **, int64_t);
    coObj *(*createFrom)(coObj const *);
    Texts begins, parts; // what texts are put together from
};

#define READ_LIST(Type, Element, ...)                                                                                  \
    ReadList {                                                                                                         \
#Type, quill___Skip##Element,                                                                                  \
            [](coChar const *chs, int64_t length) { return generic(quill___##Element##TryDecode(chs, length)); },      \
            [](RawHeader const *raw) { return generic(quillHeader##Type##TryDecode(raw)); },                  \
            [](coObj const *hdr) {                                                                                     \
                return quillHeader##Type##Element##sLength(as<struct quillHeader##Type>(hdr));                         \
            },                                                                                                         \
            [](coObj const *hdr, int64_t i) {                                                                          \
                return generic(quillHeader##Type##TryDecode##Element##At(as<struct quillHeader##Type>(hdr), i));       \
            },                                                                                                         \
            [](coObj const *hdr) { return quillHeader##Type##Encode(as<struct quillHeader##Type>(hdr)); },             \
            [](coObj **hdr, int64_t i) {                                                                               \
                change<struct quillHeader##Type>(                                                                      \
                    hdr, [&](auto **typed) { quillHeader##Type##Del##Element##At(typed, i); });                        \
            },                                                                                                         \
            [](coObj const *hdr) {                                                                                     \
                return generic(quillHeader##Type##CreateFrom(as<struct quillHeader##Type>(hdr)));                      \
            },                                                                                                         \
            __VA_ARGS__       \
    }

Texts const params{";tag=a", ";x",         ";x=\"a,b\"", ";x=\"a\\\"b\"", "; q = 0.5", ";q=0.5555", ";expires=60",
                   ";e=1.2", ";expires=x", ";",          ";x=[::1]",      ";X=Y",      ";=",        " "};

std::vector<ReadList> readLists() {
    Texts const addresses{"<sip:a@b>",
                          "\"A\" <sip:a,b@c>",
                          "A B <sip:a@b>",
                          "\"a\\\"b\" <sip:a%C3%BC@b>",
                          "sip:a@b",
                          "sip:a,b@c",
                          " <sip:a@b> ",
                          "A <a>",
                          "<sip:a@b",
                          "\"A\"<sips:a@b>",
                          "*",
                          "* <sip:a@b>",
                          "<sip:a%41@b>",
                          "tel:+1",
                          "<http://[::1]/?>",
                          "\"\" <sip:a@b>",
                          "<sip:@b;lr;x>",
                          "A\t\tB <sip:a@b>"};
    return {
        READ_LIST(Via, Via,
                  {"SIP/2.0/UDP h.example.org", "SIP / 2.0 / TCP\th:5060", "sip/2.0/udp h", "SIP/2.0/UDP [::1]:5",
                   "SIP/2.0/UDP xn--mnchen-3ya.de", "SIP/2.0/UDP xn--zz", "SIP/2.0/UDP 1.2.3.4 : 5", "SIP/2.0/UDP a-.b",
                   "SIP/2.0/UDP a..b", "SIP/2.0/ UDP h", "SIP/2.0/UDP", "SIP/2.0/UDP a%41-b",
                   "SIP/2.0/UDP h:", "X/1/Y h.", "SIP/2.0/UDP a--b"},
                  {";branch=z9", ";rport", ";rportx=1", ";rport=5", ";ttl=5", ";ttl=256", ";received=1.2.3.4",
                   ";received=::1", ";received=10.0.0.256", ";maddr=a", ";maddr=a_b", ";x=\"a,b\"", ";", " ; x = y ",
                   ";B=c"}),
        READ_LIST(Contact, Contact, addresses, params),
        READ_LIST(Route, Route, addresses, params),
    };
}

// What the scanners make of lines; nothing where one of them finds anything else.
std::optional<Texts> elementsOf(ReadList const &list, Texts const &lines) {
    Texts elements;
    for (std::string const &line : lines) {
        Str const text = str(line);
        for (co::Chars rest = text.get()->view(); !rest.empty();) {
            bool const isStar = list.field == "Contact" && quill___SkipStar(rest.data(), co::length(rest)) > 0;
            int64_t const count = isStar ? 0 : list.skip(rest.data(), co::length(rest));
            if (count == 0) return std::nullopt;
            elements.push_back(
                utf8(co::Ref<coString>(co::makeString(rest.substr(0, static_cast<size_t>(count)))).get()));
            rest.remove_prefix(static_cast<size_t>(count));
            if (rest.empty()) break;
            int64_t const comma = quill___SkipComma(rest.data(), co::length(rest));
            rest.remove_prefix(static_cast<size_t>(comma));
            if (comma == 0 || rest.empty()) return std::nullopt;
        }
    }
    return elements;
}

co::Ref<RawHeader> rawHeader(std::string const &field, Texts const &lines) {
    co::Ref<RawHeader> raw(quillMessageHeaderCreateCstr(field.c_str(), -1));
    for (std::string const &line : lines) quillMessageHeaderAppendLineCstr(raw.address(), line.c_str(), -1);
    return raw;
}

Texts linesOf(RawHeader const *raw) {
    Texts lines;
    for (int64_t i = 0; i < quillMessageHeaderLinesLength(raw); i++)
        lines.push_back(taken(quillMessageHeaderLineAt(raw, i)));
    return lines;
}

// What a decoded header says of one element, against that element alone.
void expectValue(ReadList const &list, coObj const *hdr, int64_t index, std::string const &text) {
    Str const chars = str(text);
    co::Ref<coObj> const alone(list.decodeValue(coStringBacking(chars), coStringLength(chars)));
    for (int times = 0; times < 2; times++) {
        co::Ref<coObj> const value(list.valueAt(hdr, index));
        ASSERT_EQ(static_cast<bool>(value), static_cast<bool>(alone)) << text;
        if (!value) return;
        EXPECT_EQ(coObjCompare(value.get(), alone.get()), 0) << text;
        EXPECT_EQ(taken(coObjToString(value.get())), taken(coObjToString(alone.get()))) << text;
        EXPECT_EQ(count(value.get()), 1);
    }
}

class QuillReadList : public testing::TestWithParam<ReadList> {
protected:
    ReadList const &list = GetParam();
    std::mt19937 random{1};

    std::string const &any(Texts const &texts) { return texts[random() % texts.size()]; }
    std::string anyElement() {
        std::string text = any(list.begins);
        while (random() % 3) text += any(list.parts);
        return text;
    }
    Texts anyLines() {
        Texts lines(1 + random() % 3 / 2 * (random() % 10));
        for (std::string &line : lines) {
            line = anyElement();
            while (random() % 4 == 0) line += (random() % 2 ? "," : " , ") + anyElement();
        }
        return lines;
    }
};

void PrintTo(ReadList const &list, std::ostream *out) { *out << list.field; }

INSTANTIATE_TEST_SUITE_P(Fields, QuillReadList, testing::ValuesIn(readLists()),
                         [](auto const &one) { return one.param.field; });

TEST_P(QuillReadList, ReadsWhatTheScannersRead) {
    int decoded = 0;
    for (int i = 0; i < 20000; i++) {
        Texts const lines = anyLines();
        SCOPED_TRACE(testing::PrintToString(lines));
        bool const isStar = list.field == "Contact" && lines.size() == 1 && lines[0][0] == '*' &&
                            lines[0].find_first_not_of(' ', 1) == std::string::npos;
        auto const elements = elementsOf(list, lines);
        auto const raw = rawHeader(list.field, lines);
        co::Ref<coObj> const hdr(list.decode(raw.get()));
        ASSERT_EQ(static_cast<bool>(hdr), elements || isStar);
        if (!hdr || isStar) continue;
        decoded++;
        ASSERT_EQ(list.length(hdr.get()), static_cast<int64_t>(elements->size()));
        for (size_t k = 0; k < elements->size(); k++)
            expectValue(list, hdr.get(), static_cast<int64_t>(k), (*elements)[k]);
        EXPECT_EQ(linesOf(co::Ref<RawHeader>(list.encode(hdr.get())).get()), *elements);
        if (HasFailure()) return;
    }
    EXPECT_GT(decoded, 2000);
}

// The value of the first element belongs to the list that read it: a copy reads its own, whichever of them lives longer.
TEST_P(QuillReadList, CopiesReadTheFirstElementAnew) {
    int copied = 0;
    for (std::string const &element : list.begins) {
        for (Texts const &lines : {Texts{element}, Texts{element + ";x=y", element}}) {
            SCOPED_TRACE(testing::PrintToString(lines));
            auto const elements = elementsOf(list, lines);
            co::Ref<coObj> hdr(list.decode(rawHeader(list.field, lines).get()));
            if (!hdr || !elements) continue;
            copied++;
            co::Ref<coObj> const copy(list.createFrom(hdr.get()));
            { co::Ref<coObj> const other(list.createFrom(copy.get())); }
            EXPECT_EQ(coObjCompare(copy.get(), hdr.get()), 0);
            expectValue(list, copy.get(), 0, (*elements)[0]);
            expectValue(list, hdr.get(), 0, (*elements)[0]);
            hdr.reset(nullptr);
            expectValue(list, copy.get(), 0, (*elements)[0]);
        }
    }
    EXPECT_GT(copied, 8);
}

// Elements that were read are pieces of their lines, the first few of them kept apart from the others; those of a changed
// list are strings. The same is read of all, and of copies that outlive them.
TEST_P(QuillReadList, HoldsFewAndManyElements) {
    std::string const element = list.begins[0] + ";x=y";
    for (size_t n : std::initializer_list<size_t>{1, 7, 8, 9, 20, 39, 40, 41, 71, 72, 73, 200}) {
        for (bool oneLine : {true, false}) {
            std::string joined = element;
            for (size_t i = 1; i < n; i++) joined += ", " + element;
            Texts const lines = oneLine ? Texts{joined} : Texts(n, element);
            co::Ref<coObj> hdr(list.decode(rawHeader(list.field, lines).get()));
            ASSERT_TRUE(hdr);
            co::Ref<coObj> copy(co::retained(hdr.get()));
            list.deleteAt(copy.address(), 0);
            EXPECT_EQ(list.length(hdr.get()), static_cast<int64_t>(n));
            EXPECT_EQ(list.length(copy.get()), static_cast<int64_t>(n) - 1);
            EXPECT_GT(coObjCompare(hdr.get(), copy.get()), 0) << "the shorter of two that begin alike comes first";
            EXPECT_EQ(linesOf(co::Ref<RawHeader>(list.encode(hdr.get())).get()), Texts(n, element));
            expectValue(list, hdr.get(), 0, element);
            expectValue(list, hdr.get(), static_cast<int64_t>(n) - 1, element);
            hdr.reset(nullptr);
            EXPECT_EQ(linesOf(co::Ref<RawHeader>(list.encode(copy.get())).get()), Texts(n - 1, element));
            EXPECT_ABORT(list.valueAt(copy.get(), static_cast<int64_t>(n) - 1), "source/co/co_vector",
                         "index >= 0 && index < coVectorLength( vector )");
        }
    }
}

// A raw header that a list wrote has its lines without a vector of them, and keeps the list. It is what one of strings is.
TEST_P(QuillReadList, WritesRawHeadersLikeThoseOfStrings) {
    std::string const element = list.begins[0] + ";x=\"\xC3\xBC\"";
    for (size_t const n : {1U, 3U, 50U}) {
        Texts const lines(n, element);
        auto const strings = rawHeader(list.field, lines);
        co::Ref<coObj> hdr(list.decode(strings.get()));
        ASSERT_TRUE(hdr);
        co::Ref<RawHeader> written(list.encode(hdr.get()));
        list.deleteAt(hdr.address(), 0);
        hdr.reset(list.decode(written.get()));
        EXPECT_EQ(list.length(hdr.get()), static_cast<int64_t>(n)) << "the change is the list's own";

        EXPECT_EQ(quillMessageHeaderLinesLength(written.get()), static_cast<int64_t>(n));
        EXPECT_EQ(utf8(own(quillMessageHeaderLastLine(written.get())).get()), element);
        EXPECT_ABORT(quillMessageHeaderLineAt(written.get(), static_cast<int64_t>(n)), "source/co/co_vector",
                     "index >= 0 && index < coVectorLength( vector )");
        EXPECT_ABORT(quillMessageHeaderLineAt(written.get(), -1), "source/co/co_vector",
                     "index >= 0 && index < coVectorLength( vector )");
        EXPECT_TRUE(quillMessageHeaderEquals(written.get(), strings.get()));
        EXPECT_TRUE(quillMessageHeaderEquals(own(quillMessageHeaderCreateFrom(written.get())).get(), strings.get()));
        EXPECT_TRUE(coStoreEquals(own(quillMessageHeaderStore(written.get())).get(),
                                  own(quillMessageHeaderStore(strings.get())).get()));

        co::Ref<RawHeader> longer(co::retained(written.get()));
        quillMessageHeaderAppendLineCstr(longer.address(), "a", -1);
        EXPECT_EQ(quillMessageHeaderLinesLength(longer.get()), static_cast<int64_t>(n) + 1);
        EXPECT_EQ(linesOf(written.get()), lines) << "it is copied on write";
        EXPECT_LT(quillMessageHeaderCompare(written.get(), longer.get()), 0);
        EXPECT_GT(quillMessageHeaderCompare(longer.get(), written.get()), 0);
        co::Ref<RawHeader> other(co::retained(written.get()));
        quillMessageHeaderSetLineAtCstr(other.address(), 0, " ", -1);
        EXPECT_GT(quillMessageHeaderCompare(written.get(), other.get()), 0);
        EXPECT_LT(quillMessageHeaderCompare(other.get(), written.get()), 0);
        quillMessageHeaderDelLineAt(longer.address(), static_cast<int64_t>(n));
        EXPECT_TRUE(quillMessageHeaderEquals(written.get(), longer.get()));
    }
}

TEST(QuillReadListVia, CopiesKeepWhatTheyShare) {
    Texts lines;
    for (int i = 0; i < 100; i++) lines.push_back("SIP/2.0/UDP h" + std::to_string(i));
    auto hdr = own(quillHeaderViaTryDecode(rawHeader("Via", lines).get()));
    auto const copy = own(quillHeaderViaCreateFrom(hdr.get()));
    EXPECT_EQ(coObjCompare(generic(hdr.get()), generic(copy.get())), 0);
    hdr.reset(nullptr);
    EXPECT_EQ(linesOf(own(quillHeaderViaEncode(copy.get())).get()), lines);
}

// A value of the list is the caller's own: what changes in it, flags without copy on write included, the list doesn't see.
TEST(QuillReadListContact, GivesValuesOfTheCallersOwn) {
    auto const raw = rawHeader("Contact", {"<sip:a@b>"});
    auto const hdr = own(quillHeaderContactTryDecode(raw.get()));
    auto contact = own(quillHeaderContactTryDecodeContactAt(hdr.get(), 0));
    quillContactSetSipSrc(contact.address(), true);
    EXPECT_FALSE(quillContactSipSrc(own(quillHeaderContactTryDecodeContactAt(hdr.get(), 0)).get()));
}

} // namespace
