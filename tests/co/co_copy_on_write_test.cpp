// Every operation that changes an object: what another holder sees does not change, and an object that nobody else
// holds is changed in place.

#include <co/co_buffer.hpp>
#include <functional>
#include <support/text.hpp>

using test::buffer;
using test::count;
using test::str;
using test::taken;

namespace {

template <class T> struct Change {
    char const *name;
    std::function<void(T **)> make;
    bool grows = false; // a string that has no room left is replaced even when nobody else holds it
};

template <class T> std::string textOf(T const *obj) { return taken(coObjToString(co::header(obj))); }

template <class T> void expectCopyOnWrite(std::function<T *()> const &create, std::vector<Change<T>> const &changes) {
    for (Change<T> const &change : changes) {
        SCOPED_TRACE(change.name);
        co::Ref<T> const witness(create());
        std::string const before = textOf(witness.get());

        co::Ref<T> alone(create());
        T *const same = alone.get();
        change.make(alone.address());
        EXPECT_TRUE(change.grows || alone.get() == same);
        EXPECT_EQ(count(alone.get()), 1);
        EXPECT_NE(textOf(alone.get()), before);

        co::Ref<T> const other(create());
        co::Ref<T> mine(co::retained(other.get()));
        change.make(mine.address());
        EXPECT_NE(mine.get(), other.get());
        EXPECT_EQ(count(mine.get()), 1);
        EXPECT_EQ(count(other.get()), 1);
        EXPECT_EQ(textOf(other.get()), before);
        EXPECT_EQ(textOf(mine.get()), textOf(alone.get()));
    }
}

TEST(CopyOnWrite, String) {
    bool const grows = true;
    expectCopyOnWrite<coString>(
        [] { return coStringCreateFromCstr("Text", -1); },
        {
            {"append", [](coString **s) { coStringAppend(s, str("x")); }, grows},
            {"append to itself", [](coString **s) { coStringAppend(s, *s); }, grows},
            {"append char", [](coString **s) { coStringAppendChar(s, U'x'); }, grows},
            {"append chars", [](coString **s) { coStringAppendChars(s, U"xy", 2); }, grows},
            {"append cstr", [](coString **s) { coStringAppendCstr(s, "xy", -1); }, grows},
            {"append format", [](coString **s) { coStringAppendFormatCstr(s, "%i", -1, int64_t{7}); }, grows},
            {"append delimited", [](coString **s) { coStringDelimitedAppendCharDelimiter(s, str("x"), U','); }, grows},
            {"set char", [](coString **s) { coStringSetCharAt(s, 3, U'x'); }},
            {"to lower", [](coString **s) { coStringToLower(s); }},
            {"to upper", [](coString **s) { coStringToUpper(s); }},
        });
}

TEST(CopyOnWrite, StringWithRoomStaysWhereItIs) {
    co::Ref<coString> string(coStringCreate());
    int moves = 0;
    for (int i = 0; i < 100000; i++) {
        coString *const before = string.get();
        coStringAppendChar(string.address(), U'a');
        moves += string.get() != before;
    }
    EXPECT_LT(moves, 40);
}

TEST(CopyOnWrite, StringThatStaysTheSameIsNotCopied) {
    co::Ref<coString> mine(coStringCreateFromCstr("lower", -1));
    co::Ref<coString> const other(co::retained(mine.get()));
    coStringToLower(mine.address());
    EXPECT_EQ(mine.get(), other.get());
}

coVector *letters() {
    coVector *vector = coVectorCreate();
    for (char const *letter : {"a", "b", "c"}) coVectorAppendString(&vector, str(letter));
    return vector;
}

TEST(CopyOnWrite, Vector) {
    expectCopyOnWrite<coVector>(letters, {
                                             {"append", [](coVector **v) { coVectorAppend(v, coStringObj(str("x"))); }},
                                             {"append string", [](coVector **v) { coVectorAppendString(v, str("x")); }},
                                             {"prepend", [](coVector **v) { coVectorPrependString(v, str("x")); }},
                                             {"insert", [](coVector **v) { coVectorInsertString(v, 1, str("x")); }},
                                             {"set", [](coVector **v) { coVectorSetStringAt(v, 1, str("x")); }},
                                             {"delete", [](coVector **v) { coVectorDelAt(v, 1); }},
                                             {"delete leading", [](coVector **v) { coVectorDelLeading(v, 2); }},
                                             {"clear", [](coVector **v) { coVectorClear(v); }},
                                         });
}

TEST(CopyOnWrite, Dict) {
    auto create = [](int64_t entries) {
        return [entries] {
            coDict *dict = coDictCreate();
            for (int64_t i = 0; i < entries; i++) {
                co::Ref<coString> const key(coFormatEncodeInt(i, 10, 0, 0));
                coDictSetStringKey(&dict, key.get(), coStringObj(str("v")));
            }
            return dict;
        };
    };
    for (int64_t entries : {1, 3, 8, 9, 100})
        expectCopyOnWrite<coDict>(
            create(entries),
            {
                {"add", [](coDict **d) { coDictSetStringKey(d, str("x"), coStringObj(str("1"))); }},
                {"replace", [](coDict **d) { coDictSetStringKey(d, str("0"), coStringObj(str("1"))); }},
                {"delete", [](coDict **d) { coDictDelStringKey(d, str("0")); }},
                {"clear", [](coDict **d) { coDictClear(d); }},
            });
}

TEST(CopyOnWrite, Store) {
    auto create = [] {
        coStore *store = coStoreCreate();
        coStoreSetValue(&store, str("a"), str("1"));
        return store;
    };
    expectCopyOnWrite<coStore>(
        create, {
                    {"set value", [](coStore **s) { coStoreSetValue(s, str("a"), str("2")); }},
                    {"set value by format",
                     [](coStore **s) { coStoreSetValueFormatCstr(s, "%.*A", -1, str("2"), int64_t{10}, int64_t{3}); }},
                    {"set store", [](coStore **s) { coStoreSetStore(s, str("sub"), co::Ref(coStoreCreate()).get()); }},
                });
}

TEST(CopyOnWrite, Buffer) {
    expectCopyOnWrite<coBuffer>(
        [] { return buffer("bytes").take(); },
        {
            {"append", [](coBuffer **b) { coBufferAppend(b, buffer("xyz").get()); }},
            {"append to itself", [](coBuffer **b) { coBufferAppend(b, *b); }},
            {"append byte", [](coBuffer **b) { coBufferAppendByte(b, 0xFF); }},
            {"append bytes", [](coBuffer **b) { coBufferAppendBytes(b, coBufferBacking(*b), 2); }},
            {"append inner", [](coBuffer **b) { coBufferAppendInner(b, buffer("xyz").get(), 1, 1); }},
            {"append leading", [](coBuffer **b) { coBufferAppendLeading(b, buffer("xyz").get(), 2); }},
            {"append trailing", [](coBuffer **b) { coBufferAppendTrailing(b, buffer("xyz").get(), 2); }},
            {"append outer", [](coBuffer **b) { coBufferAppendOuter(b, *b, 1, 2); }},
            {"delete leading", [](coBuffer **b) { coBufferDelLeading(b, 2); }},
            {"delete outer", [](coBuffer **b) { coBufferDelOuter(b, 1, 3); }},
        });
}

TEST(CopyOnWrite, Time) {
    expectCopyOnWrite<coTime>(coTimeCreate, {
                                                {"year", [](coTime **t) { coTimeSetYear(t, 2001); }},
                                                {"month", [](coTime **t) { coTimeSetMonth(t, 2); }},
                                                {"day", [](coTime **t) { coTimeSetDay(t, 2); }},
                                                {"hour", [](coTime **t) { coTimeSetHour(t, 2); }},
                                                {"minute", [](coTime **t) { coTimeSetMinute(t, 2); }},
                                                {"second", [](coTime **t) { coTimeSetSecond(t, 2); }},
                                            });
}

// A container that is put into itself keeps what it was before.

TEST(CopyOnWrite, VectorInItself) {
    co::Ref<coVector> vector(letters());
    coVectorAppend(vector.address(), coVectorObj(vector.get()));
    EXPECT_EQ(textOf(vector.get()), "[a, b, c, [a, b, c]]");
}

TEST(CopyOnWrite, DictInItself) {
    co::Ref<coDict> dict(coDictCreate());
    coDictSetStringKey(dict.address(), str("a"), coStringObj(str("1")));
    coDictSetStringKey(dict.address(), str("me"), coDictObj(dict.get()));
    coDictSetStringKey(dict.address(), str("me"), coDictObj(dict.get()));
    EXPECT_EQ(textOf(dict.get()), "{a: 1, me: {a: 1, me: {a: 1}}}");
}

TEST(CopyOnWrite, StoreInItself) {
    co::Ref<coStore> store(coStoreCreate());
    coStoreSetValue(store.address(), str("a"), str("1"));
    coStoreSetStore(store.address(), str("me"), store.get());
    EXPECT_EQ(textOf(store.get()), "{a: 1, me: {a: 1}}");
}

} // namespace
