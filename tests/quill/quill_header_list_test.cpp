// Typed headers that are lists, all in the same tests; then what is particular to one.

#include "headers.hpp"

#include <functional>
#include <support/growth.hpp>

using namespace test;

namespace {

struct List {
    std::string type;
    std::string valueUnit, valueText; // who refuses null for an element, and as what
    coObj *(*create)();
    void (*clear)(coObj **);
    int64_t (*length)(coObj const *);
    std::string (*at)(coObj const *, int64_t); // the element's text; "(null)" where it doesn't decode
    // An empty text stands for null.
    void (*setAt)(coObj **, int64_t, std::string const &);
    void (*delAt)(coObj **, int64_t);
    void (*prepend)(coObj **, std::string const &);
    void (*append)(coObj **, std::string const &);
    void (*insert)(coObj **, int64_t, std::string const &);
};

// How an element is made for a setter: a value from its text, and a string.
template <class T> co::Ref<T> valueOf(std::string const &text, T *(*tryDecode)(coChar const *, int64_t)) {
    if (text.empty()) return co::Ref<T>();
    Str const chars = str(text);
    return own(tryDecode(coStringBacking(chars), coStringLength(chars)));
}

co::Ref<coString> stringOf(std::string const &text) { return co::Ref<coString>(co::retained(str(text).get())); }

#define LIST_OPERATIONS(Type, Clear, Element, makeValue, elementAt)                                                    \
    [] { return generic(quillHeader##Type##Create()); },                                                               \
        [](coObj **hdr) { change<struct quillHeader##Type>(hdr, quillHeader##Type##Clear); },                          \
        [](coObj const *hdr) { return quillHeader##Type##Element##sLength(as<struct quillHeader##Type>(hdr)); },       \
        elementAt,                                                                                                     \
        [](coObj **hdr, int64_t index, std::string const &text) {                                                      \
            auto const value = makeValue;                                                                              \
            change<struct quillHeader##Type>(                                                                          \
                hdr, [&](auto **typed) { quillHeader##Type##Set##Element##At(typed, index, value.get()); });           \
        },                                                                                                             \
        [](coObj **hdr, int64_t index) {                                                                               \
            change<struct quillHeader##Type>(                                                                          \
                hdr, [&](auto **typed) { quillHeader##Type##Del##Element##At(typed, index); });                        \
        },                                                                                                             \
        [](coObj **hdr, std::string const &text) {                                                                     \
            auto const value = makeValue;                                                                              \
            change<struct quillHeader##Type>(                                                                          \
                hdr, [&](auto **typed) { quillHeader##Type##Prepend##Element(typed, value.get()); });                  \
        },                                                                                                             \
        [](coObj **hdr, std::string const &text) {                                                                     \
            auto const value = makeValue;                                                                              \
            change<struct quillHeader##Type>(                                                                          \
                hdr, [&](auto **typed) { quillHeader##Type##Append##Element(typed, value.get()); });                   \
        },                                                                                                             \
        [](coObj **hdr, int64_t index, std::string const &text) {                                                      \
            auto const value = makeValue;                                                                              \
            change<struct quillHeader##Type>(                                                                          \
                hdr, [&](auto **typed) { quillHeader##Type##Insert##Element(typed, index, value.get()); });            \
        }

#define VALUE_AT(Type, Element)                                                                                        \
    [](coObj const *hdr, int64_t index) {                                                                              \
        auto const value = own(quillHeader##Type##TryDecode##Element##At(as<struct quillHeader##Type>(hdr), index));   \
        return value ? taken(coObjToString(generic(value.get()))) : "(null)";                                          \
    }
#define VALUE_LIST(Type, Clear, Element, Value, name)                                                                  \
    {#Type, "source/quill/quill_" + snake(#Value), name,                                                               \
     LIST_OPERATIONS(Type, Clear, Element, valueOf(text, quill___##Value##TryDecode), (VALUE_AT(Type, Element)))},
#define SCALAR_AT(Type, Element)                                                                                       \
    [](coObj const *hdr, int64_t index) {                                                                              \
        return taken(quillHeader##Type##Element##At(as<struct quillHeader##Type>(hdr), index));                        \
    }
#define SCALAR_LIST(Type, Element, name)                                                                               \
    {#Type, "source/quill/quill_header_" + snake(#Type), "quill" #Element "Ok( " #name " )",                           \
     LIST_OPERATIONS(Type, Clear##Element##s, Element, stringOf(text), (SCALAR_AT(Type, Element)))},

std::vector<List> lists() { return {QUILL_VALUE_LISTS(VALUE_LIST) QUILL_SCALAR_LISTS(SCALAR_LIST)}; }

void PrintTo(List const &list, std::ostream *out) { *out << list.type; }

// Three elements of each, as their encoders write them.
std::vector<std::string> elementsOf(std::string const &type) {
    if (type == "Accept") return {"text/plain", "text/*;q=0.500", "*/*;x=\"a,b\""};
    if (type == "AcceptEncoding") return {"gzip", "*;q=0.500", "tar;x=y"};
    if (type == "UserToUser") return {"00ab;encoding=hex", "x;purpose=y", "z;a=\"b,c\""};
    if (type == "Reason") return {"SIP;cause=200;text=\"a, b\"", "Q.850;cause=16", "x;y=\"z,z\""};
    if (type == "Via")
        return {"SIP/2.0/UDP a;branch=z9hG4bKx", "SIP/2.0/TCP b:5060;rport", "SIP/2.0/TLS [2001:db8::1];x=\"a,b\""};
    if (type == "Warning") return {"399 a \"x, y\"", "301 b:5060 \"\"", "302 c \"\\\"z\\\"\""};
    if (type == "AcceptResourcePriority" || type == "ResourcePriority") return {"dsn.flash", "wps.3", "q735.0"};
    if (type == "ContentEncoding") return {"gzip", "tar", "x"};
    if (type == "PEarlyMedia") return {"sendrecv", "supported", "gated"};
    if (type == "HistoryInfo")
        return {"<sip:a@b>;index=1", "\"x, y\" <sip:c,d@e>;index=1.1", "<sip:f@g>;index=2;z=\"a,b\""};
    if (type == "PAssertedIdentity" || type == "PPreferredIdentity")
        return {"<sip:a@b>", "\"x, y\" <sip:c,d@e>", "<tel:+1>"};
    if (type == "AlertInfo" || type == "CallInfo" || type == "ErrorInfo")
        return {"<sip:a@b>", "<http://x,y>", "<sip:c@d>;z=\"a,b\""};
    return {"<sip:a@b>", "\"x, y\" <sip:c,d@e>", "<sip:f@g>;z=\"a,b\""}; // addresses with parameters
}

class QuillHeaderList : public testing::TestWithParam<List> {
protected:
    List const &list = GetParam();
    quillTypedHeader const *type = [&] {
        for (int64_t i = 0; i < quillTypedHeadersLength(); i++)
            if (quillTypedHeaderAt(i)->type == list.type) return quillTypedHeaderAt(i);
        std::abort();
    }();
    std::string const unit = "source/quill/quill_header_" + snake(list.type);
    std::vector<std::string> const elements = elementsOf(list.type);
    std::string const &a = elements[0], &b = elements[1], &c = elements[2];
    co::Ref<coObj> hdr = own(list.create());

    Lines texts(coObj const *of) const {
        Lines texts;
        for (int64_t i = 0; i < list.length(of); i++) texts.push_back(list.at(of, i));
        return texts;
    }
    Lines texts() const { return texts(hdr.get()); }
    void fill() {
        for (std::string const &text : {a, b}) list.append(hdr.address(), text);
    }
};

std::string nameOf(testing::TestParamInfo<List> const &info) { return info.param.type; }

INSTANTIATE_TEST_SUITE_P(All, QuillHeaderList, testing::ValuesIn(lists()), nameOf);

TEST_P(QuillHeaderList, StartsEmpty) {
    EXPECT_EQ(texts(), Lines{});
    EXPECT_EQ(encode(type, hdr.get()), Lines{});
    EXPECT_EQ(taken(coObjToString(hdr.get())), "");
    EXPECT_FALSE(decode(type, encode(type, hdr.get())));
}

TEST_P(QuillHeaderList, IsChanged) {
    coObj const *const same = hdr.get();
    list.append(hdr.address(), b);
    EXPECT_EQ(texts(), Lines{b});
    list.prepend(hdr.address(), a);
    EXPECT_EQ(texts(), (Lines{a, b}));
    list.insert(hdr.address(), 2, a);
    EXPECT_EQ(texts(), (Lines{a, b, a}));
    list.insert(hdr.address(), 1, c);
    EXPECT_EQ(texts(), (Lines{a, c, b, a}));
    list.insert(hdr.address(), 0, c);
    EXPECT_EQ(texts(), (Lines{c, a, c, b, a}));
    list.setAt(hdr.address(), 4, b);
    list.setAt(hdr.address(), 0, b);
    EXPECT_EQ(texts(), (Lines{b, a, c, b, b}));
    list.delAt(hdr.address(), 0);
    list.delAt(hdr.address(), 3);
    list.delAt(hdr.address(), 1);
    EXPECT_EQ(texts(), (Lines{a, b}));
    list.clear(hdr.address());
    EXPECT_EQ(texts(), Lines{});
    EXPECT_EQ(hdr.get(), same) << "nobody else held it";
}

TEST_P(QuillHeaderList, IsCopiedWhenSomebodyElseHoldsIt) {
    fill();
    std::function<void(coObj **)> const changes[] = {
        [&](coObj **header) { list.clear(header); },     [&](coObj **header) { list.setAt(header, 0, c); },
        [&](coObj **header) { list.delAt(header, 0); },  [&](coObj **header) { list.prepend(header, c); },
        [&](coObj **header) { list.append(header, c); }, [&](coObj **header) { list.insert(header, 1, c); },
    };
    Lines const results[] = {{}, {c, b}, {b}, {c, a, b}, {a, b, c}, {a, c, b}};
    for (size_t i = 0; i < std::size(changes); i++) {
        co::Ref<coObj> mine(co::retained(hdr.get()));
        changes[i](mine.address());
        EXPECT_NE(mine.get(), hdr.get());
        EXPECT_EQ(count(hdr.get()), 1);
        EXPECT_EQ(texts(), (Lines{a, b})) << i;
        EXPECT_EQ(texts(mine.get()), results[i]) << i;

        auto copy = own(type->createFrom(hdr.get())); // shares the elements
        coObj const *const before = copy.get();
        changes[i](copy.address());
        EXPECT_EQ(copy.get(), before);
        EXPECT_EQ(texts(), (Lines{a, b})) << i;
        EXPECT_EQ(texts(copy.get()), results[i]) << i;
    }
}

TEST_P(QuillHeaderList, IsWrittenAndReadBack) {
    bool const onOneLine = list.type == "ContentEncoding";
    list.append(hdr.address(), a);
    EXPECT_EQ(encode(type, hdr.get()), Lines{a});
    EXPECT_EQ(taken(coObjToString(hdr.get())), a);
    list.append(hdr.address(), b);
    EXPECT_EQ(encode(type, hdr.get()), onOneLine ? Lines{a + "," + b} : (Lines{a, b}));
    list.append(hdr.address(), c);
    auto const back = decode(type, encode(type, hdr.get()));
    ASSERT_TRUE(back);
    EXPECT_EQ(texts(back.get()), elements);
    EXPECT_EQ(coObjCompare(back.get(), hdr.get()), 0);
    // The raw header that was written does not change with the list.
    auto const raw = own(type->encode(hdr.get()));
    Lines const lines = linesOf(raw.get());
    list.clear(hdr.address());
    EXPECT_EQ(linesOf(raw.get()), lines);
}

TEST_P(QuillHeaderList, ReadsElementsBetweenCommas) {
    struct {
        Lines lines;
        Lines read;
        char const *why;
    } const rows[] = {
        {{a + ", " + b}, {a, b}, "two on a line"},
        {{a, b}, {a, b}, "a line each"},
        {{a + "," + b + " ,\t" + c}, {a, b, c}, "blanks around commas"},
        {{a + "," + b, c}, {a, b, c}, "both ways"},
        {{"", a, "", "", b, ""}, {a, b}, "empty lines"},
        {{""}, {}, "nothing but an empty line"},
        {{a, a}, {a, a}, "the same again"},
    };
    for (auto const &[lines, read, why] : rows) {
        auto const decoded = decode(type, lines);
        ASSERT_TRUE(decoded) << why;
        EXPECT_EQ(texts(decoded.get()), read) << why;
    }
    struct {
        Lines lines;
        char const *why;
    } const bad[] = {
        {{}, "no lines"},
        {{a + ",," + b}, "an empty element"},
        {{a + ", ," + b}, "a blank one"},
        {{a + ","}, "a comma at the end"},
        {{a + ", "}, "a comma and a blank at the end"},
        {{"," + a}, "a comma in front"},
        {{","}, "only a comma"},
        {{" "}, "only a blank"},
        {{a + " " + a}, "no comma"},
        {{a, a + ","}, "the second line"},
        {{a + std::string(1, '\0')}, "a null behind"},
    };
    for (auto const &[lines, why] : bad) {
        EXPECT_FALSE(decode(type, lines)) << why;
    }
}

TEST_P(QuillHeaderList, Orders) {
    auto const order = [&](Lines const &left, Lines const &right) {
        auto const leftHdr = decode(type, left);
        auto const rightHdr = decode(type, right);
        int const compared = coObjCompare(leftHdr.get(), rightHdr.get());
        EXPECT_EQ(coObjCompare(rightHdr.get(), leftHdr.get()), -compared);
        return compared;
    };
    EXPECT_EQ(order({a, b}, {a + "," + b}), 0);
    EXPECT_LT(order({a}, {a, b}), 0);
    EXPECT_EQ(order({a, b}, {b, a}) < 0, order({a}, {b}) < 0);
    EXPECT_NE(order({a}, {b}), 0);
    EXPECT_LT(order({""}, {a}), 0);
}

TEST_P(QuillHeaderList, Preconditions) {
    fill();
    coObj *none = nullptr;
    for (auto [reference, text] : {std::pair(static_cast<coObj **>(nullptr), "hdr"), std::pair(&none, "*hdr")}) {
        EXPECT_ABORT(list.clear(reference), unit, text);
        EXPECT_ABORT(list.setAt(reference, 0, a), unit, text);
        EXPECT_ABORT(list.delAt(reference, 0), unit, text);
        EXPECT_ABORT(list.prepend(reference, a), unit, text);
        EXPECT_ABORT(list.append(reference, a), unit, text);
        EXPECT_ABORT(list.insert(reference, 0, a), unit, text);
    }
    EXPECT_ABORT(list.length(nullptr), unit, "hdr");
    EXPECT_ABORT(list.at(nullptr, 0), unit, "hdr");
    for (int64_t index : {int64_t{-1}, int64_t{2}}) {
        EXPECT_ABORT(list.at(hdr.get(), index), "source/co/co_vector",
                     "index >= 0 && index < coVectorLength( vector )");
        EXPECT_DEATH(list.setAt(hdr.address(), index, a), "source/co/co_vector.*index >= 0 && index < ");
        EXPECT_DEATH(list.delAt(hdr.address(), index), "source/co/co_vector.*index >= 0 && index < ");
    }
    for (int64_t index : {int64_t{-1}, int64_t{3}})
        EXPECT_ABORT(list.insert(hdr.address(), index, a), "source/co/co_vector",
                     "index >= 0 && index <= coVectorLength( *vector )");
    // Null for a value, the empty text for a scalar.
    EXPECT_ABORT(list.setAt(hdr.address(), 0, ""), list.valueUnit, list.valueText);
    EXPECT_ABORT(list.prepend(hdr.address(), ""), list.valueUnit, list.valueText);
    EXPECT_ABORT(list.append(hdr.address(), ""), list.valueUnit, list.valueText);
    EXPECT_ABORT(list.insert(hdr.address(), 0, ""), list.valueUnit, list.valueText);
}

TEST_P(QuillHeaderList, CostIsLinear) {
    auto const joined = [&](int64_t n) {
        std::string line = a;
        for (int64_t i = 1; i < n; i++) line += "," + elements[static_cast<size_t>(i % 3)];
        return line;
    };
    EXPECT_LT(growth(500, [&](int64_t n) { EXPECT_TRUE(decode(type, {joined(n)})); }), linear) << "on one line";
    EXPECT_LT(growth(500, [&](int64_t n) { EXPECT_TRUE(decode(type, Lines(static_cast<size_t>(n), a))); }), linear)
        << "on lines";
    EXPECT_LT(growth(300, [&](int64_t n) { EXPECT_EQ(texts(decode(type, {joined(n)}).get()).size(), size_t(n)); }),
              linear)
        << "reading every element";
    EXPECT_LT(growth(500, [&](int64_t n) { EXPECT_FALSE(decode(type, {joined(n) + ",,"})); }), linear) << "broken";
}

// What is particular.

struct Commas {
    char const *field;
    char const *line;
    Lines elements; // empty where the line doesn't decode
};

TEST(QuillHeaderLists, CommasThatSeparateNothing) {
    Commas const rows[] = {
        {"Contact",
         R"("a, b" <sip:x,y@h>;p="c,d", sip:z@h,<sip:w@h>)",
         {R"("a, b" <sip:x,y@h>;p="c,d")", "sip:z@h", "<sip:w@h>"}},
        {"Contact", R"("\"," <sip:a@h>,sip:b@h)", {R"("\"," <sip:a@h>)", "sip:b@h"}},
        {"Contact", "sip:a@h,sip:b@h;q=1", {"sip:a@h", "sip:b@h;q=1"}},
        {"Contact", "<sip:a@[2001:db8::1]:5060;x=1,2>", {}},
        {"Route", R"(<sip:a,b@h;lr>;x=",",<sip:c@h>)", {R"(<sip:a,b@h;lr>;x=",")", "<sip:c@h>"}},
        {"Reason", R"(SIP;text="a,b,c",Q.850)", {R"(SIP;text="a,b,c")", "Q.850"}},
        {"Reason", R"(SIP;text="a\",b",Q.850)", {R"(SIP;text="a\",b")", "Q.850"}},
        {"Reason", R"(SIP;text="a,b)", {}},
        {"Warning", R"(399 a "x, 399 b",399 c "y")", {R"(399 a "x, 399 b")", R"(399 c "y")"}},
        {"Via", "SIP/2.0/UDP a;x=\",\",SIP/2.0/UDP b", {"SIP/2.0/UDP a;x=\",\"", "SIP/2.0/UDP b"}},
        {"Via", "SIP / 2.0 / UDP a ; rport , SIP/2.0/UDP b", {"SIP / 2.0 / UDP a ; rport", "SIP/2.0/UDP b"}},
        {"Accept", R"(text/plain;x="a,b",*/*)", {R"(text/plain;x="a,b")", "*/*"}},
        {"User-to-User", R"("a,b";encoding=hex,00)", {R"("a,b";encoding=hex)", "00"}},
        {"Alert-Info", "<http://h/a,b>,<http://h>", {"<http://h/a,b>", "<http://h>"}},
    };
    for (auto const &[field, line, elements] : rows) {
        auto const hdr = decode(typed(field), {line});
        EXPECT_EQ(hdr ? encode(typed(field), hdr.get()) : Lines{}, elements) << line;
    }
}

TEST(QuillHeaderLists, KeepTheTextOfElementsAsItStood) {
    char const *const text = "SIP / 2.0 / udp  A ;BRANCH = z9hG4bKx;Rport";
    auto const hdr = decode(typed("Via"), {text});
    ASSERT_TRUE(hdr);
    EXPECT_EQ(encode(typed("Via"), hdr.get()), Lines{text});
    auto const via = own(quillHeaderViaTryDecodeViaAt(as<quillHeaderVia>(hdr.get()), 0));
    ASSERT_TRUE(via);
    EXPECT_EQ(taken(quillViaBranch(via.get())), "z9hG4bKx");
    EXPECT_EQ(count(via.get()), 1) << "a new one each time";
}

TEST(QuillHeaderLists, AnElementMayHaveNoValue) {
    auto const history = decode(typed("History-Info"), {"<sip:a@b>;index=1,<sip:c@d>,<sip:e@f>;index=x"});
    ASSERT_TRUE(history);
    auto const *list = as<quillHeaderHistoryInfo>(history.get());
    ASSERT_EQ(quillHeaderHistoryInfoHistoryInfosLength(list), 3);
    EXPECT_TRUE(own(quillHeaderHistoryInfoTryDecodeHistoryInfoAt(list, 0)));
    EXPECT_FALSE(own(quillHeaderHistoryInfoTryDecodeHistoryInfoAt(list, 1))) << "no index";
    EXPECT_FALSE(own(quillHeaderHistoryInfoTryDecodeHistoryInfoAt(list, 2))) << "none that is valid";
}

TEST(QuillHeaderLists, ScalarsAreKeptAsGiven) {
    auto const media = decode(typed("P-Early-Media"), {"SendRecv, GATED"});
    EXPECT_EQ(encode(typed("P-Early-Media"), media.get()), (Lines{"SendRecv", "GATED"}));
    auto const priority = decode(typed("Resource-Priority"), {"DSN.Flash"});
    EXPECT_EQ(encode(typed("Resource-Priority"), priority.get()), Lines{"DSN.Flash"});
    auto hdr = own(quillHeaderPEarlyMediaCreate());
    Str const text = str("Gated");
    quillHeaderPEarlyMediaAppendEmParam(hdr.address(), text);
    auto const element = own(quillHeaderPEarlyMediaEmParamAt(hdr.get(), 0));
    EXPECT_EQ(element.get(), text.get()) << "the string itself";
}

// Content-Encoding

TEST(QuillHeaderContentEncoding, NormalizesWhatItReadsAndTakes) {
    auto hdr = own(quillHeaderContentEncodingCreate());
    quillHeaderContentEncodingAppendContentCoding(hdr.address(), str("GZip"));
    quillHeaderContentEncodingPrependContentCoding(hdr.address(), str("TAR"));
    quillHeaderContentEncodingInsertContentCoding(hdr.address(), 1, str("X"));
    EXPECT_EQ(taken(quillHeaderContentEncodingToString(hdr.get())), "tar,x,gzip");
    quillHeaderContentEncodingSetContentCodingAt(hdr.address(), 1, str("YY"));
    EXPECT_EQ(taken(quillHeaderContentEncodingToString(hdr.get())), "tar,yy,gzip");
    auto const read = decode(typed("e"), {"TAR,Yy", "gzip"});
    EXPECT_EQ(coObjCompare(read.get(), generic(hdr.get())), 0);
}

co::Ref<coVector> vectorOf(Lines const &texts) {
    auto vector = own(coVectorCreate());
    for (std::string const &text : texts) coVectorAppendString(vector.address(), str(text));
    return vector;
}

TEST(QuillHeaderContentEncoding, GoesThroughVectors) {
    auto hdr = own(quillHeaderContentEncodingCreate());
    quillHeaderContentEncodingSetContentCodingsVector(hdr.address(), vectorOf({"GZIP", "tar", "gzip"}).get());
    EXPECT_EQ(taken(quillHeaderContentEncodingToString(hdr.get())), "gzip,tar,gzip");
    auto const vector = own(quillHeaderContentEncodingContentCodingsVector(hdr.get()));
    EXPECT_TRUE(coVectorEquals(vector.get(), vectorOf({"gzip", "tar", "gzip"}).get()));

    auto const held = co::Ref<quillHeaderContentEncoding>(co::retained(hdr.get()));
    quillHeaderContentEncodingSetContentCodingsVector(hdr.address(), vector.get()); // its own elements
    EXPECT_NE(hdr.get(), held.get());
    EXPECT_TRUE(quillHeaderContentEncodingEquals(hdr.get(), held.get()));
    quillHeaderContentEncodingSetContentCodingsVector(hdr.address(), vectorOf({}).get());
    EXPECT_EQ(quillHeaderContentEncodingContentCodingsLength(hdr.get()), 0);
    EXPECT_EQ(quillHeaderContentEncodingContentCodingsLength(held.get()), 3);
    EXPECT_EQ(coVectorLength(vector.get()), 3);

    auto objects = own(coVectorCreate()); // any object that has the right text
    coVectorAppend(objects.address(), generic(decode(typed("Content-Encoding"), {"X-Y"}).get()));
    quillHeaderContentEncodingSetContentCodingsVector(hdr.address(), objects.get());
    EXPECT_EQ(taken(quillHeaderContentEncodingToString(hdr.get())), "x-y");

    char const *const unit = "source/quill/quill_header_content_encoding";
    EXPECT_ABORT(quillHeaderContentEncodingSetContentCodingsVector(hdr.address(), nullptr), unit, "vec");
    EXPECT_ABORT(quillHeaderContentEncodingSetContentCodingsVector(nullptr, vector.get()), unit, "hdr");
    EXPECT_ABORT(quillHeaderContentEncodingSetContentCodingsVector(hdr.address(), vectorOf({"a b"}).get()), unit,
                 "quillContentCodingOk( contentCoding )");
    EXPECT_ABORT(quillHeaderContentEncodingContentCodingsVector(nullptr), unit, "hdr");
}

// Contact

class QuillHeaderContact : public testing::Test {
protected:
    co::Ref<quillHeaderContact> hdr = own(quillHeaderContactCreate());
    co::Ref<quillContact> contact = own(quillContactCreate(str("sip:a@b")));
    std::string text() const { return lines(own(quillHeaderContactEncode(hdr.get())).get()); }
    bool isStar() const { return quillHeaderContactIsStarForm(hdr.get()); }
};

TEST_F(QuillHeaderContact, StarFormIsSetAndLeft) {
    EXPECT_FALSE(isStar());
    quillHeaderContactAppendContact(hdr.address(), contact.get());
    quillHeaderContactSetStarForm(hdr.address(), true);
    EXPECT_TRUE(isStar());
    EXPECT_EQ(quillHeaderContactContactsLength(hdr.get()), 0) << "the contacts are gone";
    EXPECT_EQ(text(), "[*]");
    EXPECT_EQ(taken(quillHeaderContactToString(hdr.get())), "*");

    quillHeaderContactSetStarForm(hdr.address(), false);
    EXPECT_FALSE(isStar());
    EXPECT_EQ(text(), "");
    quillHeaderContactAppendContact(hdr.address(), contact.get());
    quillHeaderContactSetStarForm(hdr.address(), false);
    EXPECT_EQ(quillHeaderContactContactsLength(hdr.get()), 0) << "this drops the contacts, too";
}

TEST_F(QuillHeaderContact, PuttingAContactInLeavesTheStarForm) {
    std::function<void()> const ways[] = {
        [&] { quillHeaderContactAppendContact(hdr.address(), contact.get()); },
        [&] { quillHeaderContactPrependContact(hdr.address(), contact.get()); },
        [&] { quillHeaderContactInsertContact(hdr.address(), 0, contact.get()); },
    };
    for (auto const &put : ways) {
        quillHeaderContactSetStarForm(hdr.address(), true);
        put();
        EXPECT_FALSE(isStar());
        EXPECT_EQ(text(), "[<sip:a@b>]");
    }
    quillHeaderContactSetContactAt(hdr.address(), 0, own(quillContactCreate(str("sip:c@d"))).get());
    EXPECT_EQ(text(), "[<sip:c@d>]");
    quillHeaderContactDelContactAt(hdr.address(), 0);
    EXPECT_FALSE(isStar()) << "no contacts are no star";
    quillHeaderContactSetStarForm(hdr.address(), true);
    quillHeaderContactClear(hdr.address());
    EXPECT_FALSE(isStar());
}

TEST_F(QuillHeaderContact, TheStarFormIsCopiedOnWrite) {
    quillHeaderContactAppendContact(hdr.address(), contact.get());
    auto const held = co::Ref<quillHeaderContact>(co::retained(hdr.get()));
    quillHeaderContactSetStarForm(hdr.address(), true);
    EXPECT_NE(hdr.get(), held.get());
    EXPECT_FALSE(quillHeaderContactIsStarForm(held.get()));
    EXPECT_EQ(quillHeaderContactContactsLength(held.get()), 1);

    auto const star = own(quillHeaderContactCreateFrom(hdr.get()));
    EXPECT_TRUE(quillHeaderContactIsStarForm(star.get()));
    EXPECT_TRUE(quillHeaderContactEquals(star.get(), hdr.get()));
    EXPECT_LT(quillHeaderContactCompare(held.get(), star.get()), 0) << "the flag decides before the contacts";
    auto const shared = co::Ref<quillHeaderContact>(co::retained(hdr.get()));
    quillHeaderContactAppendContact(hdr.address(), contact.get());
    EXPECT_TRUE(quillHeaderContactIsStarForm(shared.get()));
    EXPECT_FALSE(isStar());
}

TEST_F(QuillHeaderContact, ReadsTheStarForm) {
    struct {
        Lines lines;
        bool ok;
        char const *why;
    } const rows[] = {
        {{"*"}, true, "a star"},
        {{" * "}, true, "with blanks"},
        {{"*", ""}, true, "an empty line behind"},
        {{"", "*"}, true, "an empty line in front"},
        {{"*", "<sip:a@b>"}, false, "a contact behind"},
        {{"<sip:a@b>", "*"}, false, "a contact in front"},
        {{"*", "*"}, false, "two stars"},
        {{"*,*"}, false, "two stars on a line"},
        {{"*, <sip:a@b>"}, false, "a contact on the line"},
        {{"<sip:a@b>, *"}, false, "a star on the line"},
        {{"* <sip:a@b>"}, false, "a star as display name"},
        {{"<sip:c@d>, * <sip:a@b>"}, false, "the same in second place"},
        {{"*;q=1"}, false, "parameters"},
        {{"* x"}, false, "anything else"},
    };
    for (auto const &[lines, ok, why] : rows) {
        auto const read = decode(typed("m"), lines);
        EXPECT_EQ(bool(read), ok) << why;
        if (!read) continue;
        auto const *star = as<quillHeaderContact>(read.get());
        EXPECT_TRUE(quillHeaderContactIsStarForm(star)) << why;
        EXPECT_EQ(quillHeaderContactContactsLength(star), 0);
        EXPECT_EQ(encode(typed("m"), read.get()), Lines{"*"});
    }
    auto const contacts = decode(typed("m"), {"\"*\" <sip:a@b>"});
    ASSERT_TRUE(contacts) << "a quoted star is a name";
    EXPECT_FALSE(quillHeaderContactIsStarForm(as<quillHeaderContact>(contacts.get())));
}

TEST_F(QuillHeaderContact, StarFormPreconditions) {
    char const *const unit = "source/quill/quill_header_contact";
    quillHeaderContact *none = nullptr;
    EXPECT_ABORT(quillHeaderContactSetStarForm(nullptr, true), unit, "hdr");
    EXPECT_ABORT(quillHeaderContactSetStarForm(&none, true), unit, "*hdr");
    EXPECT_ABORT(quillHeaderContactIsStarForm(nullptr), unit, "hdr");
}

} // namespace
