// Typed headers that are sets, all in the same tests.

#include "headers.hpp"

#include <functional>
#include <support/growth.hpp>

using namespace test;

namespace {

struct Set {
    std::string type;
    std::string ok; // the condition text of the validator
    coObj *(*create)();
    void (*clear)(coObj **);
    int64_t (*length)(coObj const *);
    std::string (*at)(coObj const *, int64_t);
    coVector *(*vector)(coObj const *);
    void (*setVector)(coObj **, coVector const *);
    bool (*has)(coObj const *, coString const *);
    void (*set)(coObj **, coString *);
    void (*del)(coObj **, coString const *);
    // The text forms; null where there are none.
    bool (*hasCstr)(coObj const *, char const *, int64_t);
    bool (*hasWcstr)(coObj const *, wchar_t const *, int64_t);
    void (*setCstr)(coObj **, char const *, int64_t);
    void (*setWcstr)(coObj **, wchar_t const *, int64_t);
    void (*delCstr)(coObj **, char const *, int64_t);
    void (*delWcstr)(coObj **, wchar_t const *, int64_t);
};

#define SET_OPERATIONS(Type, Token, name)                                                                              \
#Type, "quill" #Token "Ok( " #name " )", [] { return generic(quillHeader##Type##Create()); },                      \
        [](coObj **hdr) { change<struct quillHeader##Type>(hdr, quillHeader##Type##Clear##Token##s); },                \
        [](coObj const *hdr) { return quillHeader##Type##Token##sLength(as<struct quillHeader##Type>(hdr)); },         \
        [](coObj const *hdr, int64_t index) {                                                                          \
            return taken(quillHeader##Type##Token##At(as<struct quillHeader##Type>(hdr), index));                      \
        },                                                                                                             \
        [](coObj const *hdr) { return quillHeader##Type##Token##sVector(as<struct quillHeader##Type>(hdr)); },         \
        [](coObj **hdr, coVector const *vec) {                                                                         \
            change<struct quillHeader##Type>(                                                                          \
                hdr, [&](auto **typed) { quillHeader##Type##Set##Token##sVector(typed, vec); });                       \
        },                                                                                                             \
        [](coObj const *hdr, coString const *token) {                                                                  \
            return quillHeader##Type##Has##Token(as<struct quillHeader##Type>(hdr), token);                            \
        },                                                                                                             \
        [](coObj **hdr, coString *token) {                                                                             \
            change<struct quillHeader##Type>(hdr, [&](auto **typed) { quillHeader##Type##Set##Token(typed, token); }); \
        },                                                                                                             \
        [](coObj **hdr, coString const *token) {                                                                       \
            change<struct quillHeader##Type>(hdr, [&](auto **typed) { quillHeader##Type##Del##Token(typed, token); }); \
        }

#define HAS_FORM(Type, Token, Form, Char)                                                                              \
    [](coObj const *hdr, Char const *token, int64_t length) {                                                          \
        return quillHeader##Type##Has##Token##Form(as<struct quillHeader##Type>(hdr), token, length);                  \
    }
#define CHANGE_FORM(Type, Verb, Token, Form, Char)                                                                     \
    [](coObj **hdr, Char const *token, int64_t length) {                                                               \
        change<struct quillHeader##Type>(                                                                              \
            hdr, [&](auto **typed) { quillHeader##Type##Verb##Token##Form(typed, token, length); });                   \
    }

#define TEXT_SET(Type, Token, name)                                                                                    \
    {SET_OPERATIONS(Type, Token, name),                                                                                \
     HAS_FORM(Type, Token, Cstr, char),                                                                                \
     HAS_FORM(Type, Token, Wcstr, wchar_t),                                                                            \
     CHANGE_FORM(Type, Set, Token, Cstr, char),                                                                        \
     CHANGE_FORM(Type, Set, Token, Wcstr, wchar_t),                                                                    \
     CHANGE_FORM(Type, Del, Token, Cstr, char),                                                                        \
     CHANGE_FORM(Type, Del, Token, Wcstr, wchar_t)},
#define OTHER_SET(Type, Token, name)                                                                                   \
    {SET_OPERATIONS(Type, Token, name), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr},

std::vector<Set> sets() { return {QUILL_TEXT_SETS(TEXT_SET) QUILL_OTHER_SETS(OTHER_SET)}; }

std::vector<Set> textSets() { return {QUILL_TEXT_SETS(TEXT_SET)}; }

void PrintTo(Set const &set, std::ostream *out) { *out << set.type; }

co::Ref<coVector> vectorOf(Lines const &texts) {
    auto vector = own(coVectorCreate());
    for (std::string const &text : texts) coVectorAppendString(vector.address(), str(text));
    return vector;
}

class QuillHeaderSet : public testing::TestWithParam<Set> {
protected:
    Set const &set = GetParam();
    quillTypedHeader const *type = [&] {
        for (int64_t i = 0; i < quillTypedHeadersLength(); i++)
            if (quillTypedHeaderAt(i)->type == set.type) return quillTypedHeaderAt(i);
        std::abort();
    }();
    std::string const unit = "source/quill/quill_header_" + snake(set.type);
    bool const isFolded = set.type != "Allow" && set.type != "AllowEvents" && set.type != "InReplyTo";
    std::string const delimiter = set.type == "Privacy" ? ";" : ",";
    co::Ref<coObj> hdr = own(set.create());

    Lines tokens(coObj const *of) const {
        Lines tokens;
        for (int64_t i = 0; i < set.length(of); i++) tokens.push_back(set.at(of, i));
        return tokens;
    }
    Lines tokens() const { return tokens(hdr.get()); }
    bool has(std::string const &token) const { return set.has(hdr.get(), str(token)); }
    void put(std::string const &token) { set.set(hdr.address(), str(token)); }
    void remove(std::string const &token) { set.del(hdr.address(), str(token)); }
};

class QuillHeaderTextSet : public QuillHeaderSet {};

std::string nameOf(testing::TestParamInfo<Set> const &info) { return info.param.type; }

INSTANTIATE_TEST_SUITE_P(All, QuillHeaderSet, testing::ValuesIn(sets()), nameOf);
INSTANTIATE_TEST_SUITE_P(All, QuillHeaderTextSet, testing::ValuesIn(textSets()), nameOf);

TEST_P(QuillHeaderSet, StartsEmpty) {
    EXPECT_EQ(tokens(), Lines{});
    EXPECT_EQ(coVectorLength(own(set.vector(hdr.get())).get()), 0);
    EXPECT_FALSE(has("a"));
    EXPECT_EQ(encode(type, hdr.get()), Lines{});
    EXPECT_EQ(taken(coObjToString(hdr.get())), "");
    EXPECT_FALSE(decode(type, encode(type, hdr.get())));
}

TEST_P(QuillHeaderSet, KeepsEachTokenOnceInOrder) {
    coObj const *const same = hdr.get();
    for (char const *token : {"b", "a", "b", "c", "a"}) put(token);
    EXPECT_EQ(tokens(), (Lines{"b", "a", "c"}));
    EXPECT_TRUE(coVectorEquals(own(set.vector(hdr.get())).get(), vectorOf({"b", "a", "c"}).get()));
    EXPECT_TRUE(has("a"));
    EXPECT_FALSE(has("ab"));
    remove("a");
    EXPECT_FALSE(has("a"));
    remove("a");
    remove("x");
    EXPECT_EQ(tokens(), (Lines{"b", "c"}));
    put("a");
    EXPECT_EQ(tokens(), (Lines{"b", "c", "a"}));
    set.clear(hdr.address());
    EXPECT_EQ(tokens(), Lines{});
    EXPECT_EQ(hdr.get(), same) << "nobody else held it";
}

TEST_P(QuillHeaderSet, FoldsLetterCaseWhereItHasNoMeaning) {
    put("Ab");
    put("aB");
    EXPECT_EQ(tokens(), isFolded ? Lines{"ab"} : (Lines{"Ab", "aB"}));
    EXPECT_EQ(has("AB"), isFolded);
    EXPECT_TRUE(has("Ab"));
    remove("AB");
    EXPECT_EQ(tokens(), isFolded ? Lines{} : (Lines{"Ab", "aB"}));
    remove("aB");
    auto const read = decode(type, {"Ab" + delimiter + "aB", "ab"});
    ASSERT_TRUE(read);
    EXPECT_EQ(tokens(read.get()), isFolded ? Lines{"ab"} : (Lines{"Ab", "aB", "ab"}));
}

TEST_P(QuillHeaderSet, GoesThroughVectors) {
    put("x");
    set.setVector(hdr.address(), vectorOf({"c", "A", "c", "b"}).get());
    EXPECT_EQ(tokens(), (Lines{"c", isFolded ? "a" : "A", "b"}));
    auto const all = own(set.vector(hdr.get()));
    set.setVector(hdr.address(), all.get());
    EXPECT_EQ(tokens(), (Lines{"c", isFolded ? "a" : "A", "b"}));
    set.setVector(hdr.address(), vectorOf({}).get());
    EXPECT_EQ(tokens(), Lines{});
    EXPECT_EQ(coVectorLength(all.get()), 3);

    auto objects = own(coVectorCreate()); // any object that has the right text
    coVectorAppend(objects.address(), generic(decode(type, {"token"}).get()));
    set.setVector(hdr.address(), objects.get());
    EXPECT_EQ(tokens(), Lines{"token"});
}

TEST_P(QuillHeaderSet, IsCopiedWhenSomebodyElseHoldsIt) {
    put("a"), put("b");
    std::function<void(coObj **)> const changes[] = {
        [&](coObj **header) { set.clear(header); },
        [&](coObj **header) { set.set(header, str("c")); },
        [&](coObj **header) { set.del(header, str("a")); },
        [&](coObj **header) { set.setVector(header, vectorOf({"x"}).get()); },
    };
    Lines const results[] = {{}, {"a", "b", "c"}, {"b"}, {"x"}};
    for (size_t i = 0; i < std::size(changes); i++) {
        co::Ref<coObj> mine(co::retained(hdr.get()));
        changes[i](mine.address());
        EXPECT_NE(mine.get(), hdr.get());
        EXPECT_EQ(count(hdr.get()), 1);
        EXPECT_EQ(tokens(), (Lines{"a", "b"})) << i;
        EXPECT_EQ(tokens(mine.get()), results[i]) << i;

        auto copy = own(type->createFrom(hdr.get())); // shares the tokens
        coObj const *const before = copy.get();
        changes[i](copy.address());
        EXPECT_EQ(copy.get(), before);
        EXPECT_EQ(tokens(), (Lines{"a", "b"})) << i;
        EXPECT_EQ(tokens(copy.get()), results[i]) << i;
    }
    co::Ref<coObj> mine(co::retained(hdr.get()));
    set.del(mine.address(), str("absent"));
    EXPECT_NE(mine.get(), hdr.get()) << "also where nothing changes";
}

TEST_P(QuillHeaderSet, IsWrittenOnOneLine) {
    put("b");
    EXPECT_EQ(encode(type, hdr.get()), Lines{"b"});
    EXPECT_EQ(taken(coObjToString(hdr.get())), "b");
    put("a");
    EXPECT_EQ(encode(type, hdr.get()), Lines{"b" + delimiter + "a"});
    EXPECT_EQ(taken(coObjToString(hdr.get())), "b" + delimiter + "a");
    auto const back = decode(type, encode(type, hdr.get()));
    ASSERT_TRUE(back);
    EXPECT_EQ(coObjCompare(back.get(), hdr.get()), 0);
}

TEST_P(QuillHeaderSet, ReadsTokensBetweenDelimiters) {
    std::string const d = delimiter;
    std::string const other = d == "," ? ";" : ",";
    struct {
        Lines lines;
        Lines read;
        char const *why;
    } const rows[] = {
        {{"a" + d + " b"}, {"a", "b"}, "two on a line"},
        {{"a", "b"}, {"a", "b"}, "a line each"},
        {{"a \t" + d + "\t b" + d + "c"}, {"a", "b", "c"}, "blanks around delimiters"},
        {{"", "a", "", "b", ""}, {"a", "b"}, "empty lines"},
        {{""}, {}, "nothing but an empty line"},
        {{"a" + d + "a", "a"}, {"a"}, "the same again"},
    };
    for (auto const &[lines, read, why] : rows) {
        auto const decoded = decode(type, lines);
        ASSERT_TRUE(decoded) << why;
        EXPECT_EQ(tokens(decoded.get()), read) << why;
    }
    struct {
        Lines lines;
        char const *why;
    } const bad[] = {
        {{}, "no lines"},
        {{"a" + d + d + "b"}, "an empty token"},
        {{"a" + d}, "a delimiter at the end"},
        {{"a" + d + " "}, "a delimiter and a blank at the end"},
        {{d + "a"}, "a delimiter in front"},
        {{d}, "only a delimiter"},
        {{" "}, "only a blank"},
        {{"a b"}, "no delimiter"},
        {{"a" + other + "b"}, "another delimiter"},
        {{"a", "b" + d}, "the second line"},
        {{"a" + std::string(1, '\0')}, "a null behind"},
        {{"\xC3\xA9"}, "no token"},
    };
    for (auto const &[lines, why] : bad) EXPECT_FALSE(decode(type, lines)) << why;
}

TEST_P(QuillHeaderSet, ComparesTokensWhateverTheirOrder) {
    auto const left = decode(type, {"a" + delimiter + "b"});
    auto const right = decode(type, {"b", "a"});
    EXPECT_EQ(coObjCompare(left.get(), right.get()), 0);
    EXPECT_LT(coObjCompare(decode(type, {"a"}).get(), left.get()), 0);
    EXPECT_LT(coObjCompare(left.get(), decode(type, {"b"}).get()), 0);
}

TEST_P(QuillHeaderSet, Preconditions) {
    coObj *none = nullptr;
    auto const vector = vectorOf({"a"});
    for (auto [reference, text] : {std::pair(static_cast<coObj **>(nullptr), "hdr"), std::pair(&none, "*hdr")}) {
        EXPECT_ABORT(set.clear(reference), unit, text);
        EXPECT_ABORT(set.set(reference, str("a")), unit, text);
        EXPECT_ABORT(set.del(reference, str("a")), unit, text);
        EXPECT_ABORT(set.setVector(reference, vector.get()), unit, text);
    }
    EXPECT_ABORT(set.length(nullptr), unit, "hdr");
    EXPECT_ABORT(set.at(nullptr, 0), unit, "hdr");
    EXPECT_ABORT(set.vector(nullptr), unit, "hdr");
    EXPECT_ABORT(set.has(nullptr, str("a")), unit, "hdr");
    EXPECT_ABORT(set.setVector(hdr.address(), nullptr), unit, "vec");
    for (char const *bad : {"", "a b", ",", "\xC3\xA9"}) {
        EXPECT_ABORT(set.has(hdr.get(), str(bad)), unit, set.ok);
        EXPECT_ABORT(set.set(hdr.address(), str(bad)), unit, set.ok);
        EXPECT_ABORT(set.del(hdr.address(), str(bad)), unit, set.ok);
        EXPECT_ABORT(set.setVector(hdr.address(), vectorOf({"a", bad}).get()), unit, set.ok);
    }
    put("a");
    for (int64_t index : {int64_t{-1}, int64_t{1}})
        EXPECT_ABORT(set.at(hdr.get(), index), "source/co/co_dict", "index >= 0 && index < coDictLength( dict )");
}

TEST_P(QuillHeaderSet, CostIsLinear) {
    auto const distinct = [&](int64_t n) {
        std::string line = "t";
        for (int64_t i = 1; i < n; i++) line += delimiter + "t" + std::to_string(i);
        return line;
    };
    EXPECT_LT(growth(500, [&](int64_t n) { EXPECT_TRUE(decode(type, {distinct(n)})); }), linear) << "distinct";
    EXPECT_LT(growth(500, [&](int64_t n) { EXPECT_TRUE(decode(type, Lines(static_cast<size_t>(n), "t"))); }), linear)
        << "the same on lines";
    EXPECT_LT(growth(500, [&](int64_t n) { EXPECT_EQ(tokens(decode(type, {distinct(n)}).get()).size(), size_t(n)); }),
              linear)
        << "reading every token";
    EXPECT_LT(growth(500, [&](int64_t n) { encode(type, decode(type, {distinct(n)}).get()); }), linear) << "writing";
}

TEST_P(QuillHeaderTextSet, TakesOtherTexts) {
    set.setCstr(hdr.address(), "ab", -1);
    set.setCstr(hdr.address(), "cdef", 2);
    set.setWcstr(hdr.address(), L"ef", -1);
    set.setWcstr(hdr.address(), L"ghij", 2);
    EXPECT_EQ(tokens(), (Lines{"ab", "cd", "ef", "gh"}));
    EXPECT_TRUE(set.hasCstr(hdr.get(), "ab", -1));
    EXPECT_TRUE(set.hasCstr(hdr.get(), "abc", 2));
    EXPECT_FALSE(set.hasCstr(hdr.get(), "abc", -1));
    EXPECT_TRUE(set.hasWcstr(hdr.get(), L"gh", -1));
    EXPECT_TRUE(set.hasWcstr(hdr.get(), L"ghi", 2));
    EXPECT_FALSE(set.hasWcstr(hdr.get(), L"ghi", -1));
    EXPECT_EQ(set.hasCstr(hdr.get(), "AB", -1), isFolded);
    EXPECT_EQ(set.hasWcstr(hdr.get(), L"AB", -1), isFolded);
    set.delCstr(hdr.address(), "ab", -1);
    set.delCstr(hdr.address(), "cde", 2);
    set.delWcstr(hdr.address(), L"efx", 2);
    EXPECT_EQ(tokens(), Lines{"gh"});
    set.delWcstr(hdr.address(), L"gh", -1);
    EXPECT_EQ(tokens(), Lines{});

    EXPECT_ABORT(set.setCstr(hdr.address(), "a b", -1), unit, set.ok);
    EXPECT_ABORT(set.setWcstr(hdr.address(), L"", -1), unit, set.ok);
    EXPECT_ABORT(set.hasCstr(nullptr, "a", -1), unit, "hdr");
    EXPECT_ABORT(set.delWcstr(nullptr, L"a", -1), unit, "hdr");
}

} // namespace
