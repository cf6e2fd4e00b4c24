#include <algorithm>
#include <co/co_dict.hpp>
#include <co/co_hash.hpp>
#include <co/co_vector.hpp>
#include <random>
#include <support/growth.hpp>
#include <support/text.hpp>

using test::count;
using test::str;
using test::taken;
using test::utf8;

namespace {

constexpr char const *unit = "source/co/co_dict";

using Pairs = std::vector<std::pair<std::string, std::string>>;

void set(coDict **dict, std::string const &key, std::string const &value) {
    coDictSetStringKey(dict, str(key), coStringObj(str(value)));
}

co::Ref<coDict> make(Pairs const &pairs) {
    co::Ref<coDict> dict(coDictCreate());
    for (auto const &[key, value] : pairs) set(dict.address(), key, value);
    return dict;
}

std::string textOf(coDict const *dict) { return taken(coDictToString(dict)); }

std::string valueOf(coDict const *dict, std::string const &key) {
    return taken(coStringFrom(coDictStringKey(dict, str(key))));
}

TEST(Dict, KeepsTheOrderOfItsKeys) {
    co::Ref<coDict> dict = make({{"c", "1"}, {"a", "2"}, {"b", "3"}});
    EXPECT_EQ(textOf(dict.get()), "{c: 1, a: 2, b: 3}");
    set(dict.address(), "a", "4");
    EXPECT_EQ(textOf(dict.get()), "{c: 1, a: 4, b: 3}");
    coDictDelStringKey(dict.address(), str("c"));
    EXPECT_EQ(textOf(dict.get()), "{a: 4, b: 3}");
    set(dict.address(), "c", "5");
    EXPECT_EQ(textOf(dict.get()), "{a: 4, b: 3, c: 5}");
}

TEST(Dict, KeepsTheFirstStringOfAKey) {
    co::Ref<coDict> dict(coDictCreate());
    test::Str const first = str("a");
    test::Str const second = str("a");
    coDictSetStringKey(dict.address(), first, coStringObj(str("1")));
    coDictSetStringKey(dict.address(), second, coStringObj(str("2")));
    EXPECT_EQ(co::Ref(coDictKeyAt(dict.get(), 0)).get(), first.get());
    EXPECT_EQ(count(second.get()), 1);
    EXPECT_EQ(textOf(dict.get()), "{a: 2}");
}

TEST(Dict, FindsWhatItHas) {
    co::Ref<coDict> const dict = make({{"a", "1"}, {"", "2"}, {"é", "3"}});
    EXPECT_EQ(coDictLength(dict.get()), 3);
    EXPECT_EQ(valueOf(dict.get(), "a"), "1");
    EXPECT_EQ(valueOf(dict.get(), ""), "2");
    EXPECT_EQ(valueOf(dict.get(), "é"), "3");
    EXPECT_TRUE(coDictHasStringKey(dict.get(), str("")));
    for (char const *absent : {"b", "A", "aa", "e"}) {
        EXPECT_FALSE(coDictHasStringKey(dict.get(), str(absent)));
        EXPECT_EQ(coDictStringKey(dict.get(), str(absent)), nullptr);
    }
    EXPECT_EQ(taken(coDictKeyAt(dict.get(), 2)), "é");
    EXPECT_EQ(taken(coStringFrom(coDictValueAt(dict.get(), 2))), "3");
    EXPECT_EQ(taken(coVectorToString(co::Ref(coDictKeysVector(dict.get())).get())), "[a, , é]");
    EXPECT_EQ(taken(coVectorToString(co::Ref(coDictValuesVector(dict.get())).get())), "[1, 2, 3]");
}

TEST(Dict, IsEmptyAtFirstAndAfterClear) {
    co::Ref<coDict> dict(coDictCreate());
    for (int round = 0; round < 2; round++) {
        EXPECT_EQ(coDictLength(dict.get()), 0);
        EXPECT_FALSE(coDictHasStringKey(dict.get(), str("a")));
        EXPECT_EQ(textOf(dict.get()), "{}");
        EXPECT_EQ(taken(coVectorToString(co::Ref(coDictKeysVector(dict.get())).get())), "[]");
        set(dict.address(), "a", "1");
        coDictClear(dict.address());
        coDictClear(dict.address());
    }
}

TEST(Dict, DeletingWhatIsNotThereIsNoFault) {
    co::Ref<coDict> dict(coDictCreate());
    coDictDelStringKey(dict.address(), str("a"));
    set(dict.address(), "b", "1");
    coDictDelStringKey(dict.address(), str("a"));
    EXPECT_EQ(textOf(dict.get()), "{b: 1}");
}

TEST(Dict, RetainsAndGivesUp) {
    for (int others : {0, 20}) {
        test::Str const key = str("key");
        test::Str const value = str("value");
        co::Ref<coDict> dict(coDictCreate());
        for (int i = 0; i < others; i++) set(dict.address(), std::to_string(i), "x");
        coDictSetStringKey(dict.address(), key, coStringObj(value));
        EXPECT_EQ(count(key.get()), 2);
        EXPECT_EQ(count(value.get()), 2);
        coDictSetStringKey(dict.address(), str("key"), coStringObj(value)); // keeps its key
        EXPECT_EQ(count(key.get()), 2);
        EXPECT_EQ(count(value.get()), 2);

        co::Ref<coDict> copy(co::retained(dict.get()));
        set(copy.address(), "more", "x"); // shares keys and values
        EXPECT_EQ(count(key.get()), 3);
        EXPECT_EQ(count(value.get()), 3);
        coDictDelStringKey(copy.address(), key);
        EXPECT_EQ(count(key.get()), 2);
        EXPECT_EQ(count(value.get()), 2);
        coDictClear(dict.address());
        EXPECT_EQ(count(key.get()), 1);
        EXPECT_EQ(count(value.get()), 1);
    }
}

TEST(Dict, DeletesByItsOwnKey) {
    co::Ref<coDict> dict = make({{"a", "1"}, {"b", "2"}});
    co::DictEntry entry;
    ASSERT_TRUE(co::DictWalk(dict.get()).next(&entry));
    coDictDelStringKey(dict.address(), entry.key); // borrowed: freed by the deletion
    EXPECT_EQ(textOf(dict.get()), "{b: 2}");
}

TEST(Dict, ComparesKeysFirstThenValues) {
    struct {
        Pairs a, b;
        int expected;
        char const *why;
    } const rows[] = {
        {{}, {}, 0, "both empty"},
        {{}, {{"a", "1"}}, -1, "empty comes first"},
        {{{"a", "1"}, {"b", "2"}}, {{"b", "2"}, {"a", "1"}}, 0, "the order of insertion does not count"},
        {{{"a", "9"}}, {{"b", "1"}}, -1, "keys before values"},
        {{{"a", "9"}, {"b", "9"}}, {{"c", "1"}}, -1, "the keys' sequence, not their number"},
        {{{"a", "1"}}, {{"b", "1"}, {"a", "1"}}, -1, "a beginning comes first"},
        {{{"a", "2"}, {"b", "1"}}, {{"a", "1"}, {"b", "2"}}, 1, "the smallest key's value decides"},
        {{{"b", "1"}, {"a", "2"}}, {{"b", "2"}, {"a", "1"}}, 1, "also when it comes last"},
        {{{"b", "1"}, {"a", "2"}}, {{"a", "1"}, {"b", "2"}}, 1, "also in different orders"},
        {{{"c", "1"}, {"b", "1"}, {"d", "1"}}, {{"c", "2"}, {"b", "0"}, {"d", "2"}}, 1, "the smallest of three"},
        {{{"b", "1"}, {"a", "2"}}, {{"b", "2"}, {"c", "1"}}, -1, "keys, although a value differed before"},
    };
    for (auto const &row : rows) {
        SCOPED_TRACE(row.why);
        EXPECT_EQ(coDictCompare(make(row.a).get(), make(row.b).get()), row.expected);
        EXPECT_EQ(coDictCompare(make(row.b).get(), make(row.a).get()), -row.expected);
        EXPECT_EQ(coDictEquals(make(row.a).get(), make(row.b).get()), row.expected == 0);
    }
}

TEST(Dict, ComparesLikeSortedPairs) {
    std::mt19937 random(1);
    for (int round = 0; round < 5000; round++) {
        Pairs pairs[2];
        for (Pairs &these : pairs)
            for (char const *key : {"a", "b", "c", "d"})
                if (random() % 3) these.push_back({key, std::to_string(random() % 2)});
        auto keysThenValues = [](Pairs const &these) {
            std::pair<std::vector<std::string>, std::vector<std::string>> result;
            for (auto const &[key, value] : these) result.first.push_back(key), result.second.push_back(value);
            return result;
        };
        auto const a = keysThenValues(pairs[0]);
        auto const b = keysThenValues(pairs[1]);
        for (Pairs &these : pairs) std::shuffle(these.begin(), these.end(), random);
        ASSERT_EQ(coDictCompare(make(pairs[0]).get(), make(pairs[1]).get()), a < b   ? -1
                                                                             : b < a ? 1
                                                                                     : 0)
            << textOf(make(pairs[0]).get()) << textOf(make(pairs[1]).get());
    }
}

void expectSame(coDict const *dict, Pairs const &model, std::mt19937 &random) {
    ASSERT_EQ(coDictLength(dict), static_cast<int64_t>(model.size()));
    co::DictWalk walk(dict);
    co::DictEntry entry;
    for (auto const &[key, value] : model) {
        ASSERT_TRUE(walk.next(&entry));
        ASSERT_EQ(utf8(entry.key), key);
        ASSERT_EQ(utf8(coStringFrom(entry.value)), value);
        ASSERT_EQ(co::find(dict, entry.key->view()), entry.value);
    }
    ASSERT_FALSE(walk.next(&entry));
    for (int i = 0; i < 20 && !model.empty(); i++) {
        size_t const at = random() % model.size();
        ASSERT_EQ(taken(coDictKeyAt(dict, static_cast<int64_t>(at))), model[at].first);
        ASSERT_EQ(taken(coStringFrom(coDictValueAt(dict, static_cast<int64_t>(at)))), model[at].second);
    }
}

// Random operations beside a vector of pairs, in times of growth and of decline.
TEST(Dict, BehavesLikeItsModel) {
    std::mt19937 random(1);
    for (unsigned const range : {4u, 8u, 9u, 12u, 16u, 40u, 200u, 1000u}) {
        co::Ref<coDict> dict(coDictCreate());
        Pairs model;
        for (int step = 0; step < 6000; step++) {
            std::string const key = "k" + std::to_string(random() % range);
            auto const there = std::find_if(model.begin(), model.end(), [&](auto &pair) { return pair.first == key; });
            co::Ref<coDict> const held(random() % 200 ? nullptr : co::retained(dict.get()));
            Pairs const heldModel = held ? model : Pairs();
            bool const growing = step / 1500 % 2 == 0;
            if (random() % 10 < (growing ? 7 : 3)) {
                std::string const value = std::to_string(step);
                set(dict.address(), key, value);
                if (there == model.end())
                    model.push_back({key, value});
                else
                    there->second = value;
            } else {
                coDictDelStringKey(dict.address(), str(key));
                if (there != model.end()) model.erase(there);
            }
            ASSERT_EQ(coDictHasStringKey(dict.get(), str(key)),
                      std::any_of(model.begin(), model.end(), [&](auto &pair) { return pair.first == key; }));
            if (step % 23 == 0 || held) expectSame(dict.get(), model, random);
            if (held) expectSame(held.get(), heldModel, random);
            if (testing::Test::HasFatalFailure()) return;
        }
    }
}

TEST(Dict, FindsEveryPositionWhateverIsDeleted) {
    constexpr int64_t size = 1000;
    for (int64_t step : {2, 3, 7, 16, 17, 500}) {
        co::Ref<coDict> dict(coDictCreate());
        std::vector<std::string> model;
        for (int64_t i = 0; i < size; i++) set(dict.address(), std::to_string(i), "");
        for (int64_t i = 0; i < size; i++) {
            if (i % step == 1)
                coDictDelStringKey(dict.address(), str(std::to_string(i)));
            else
                model.push_back(std::to_string(i));
        }
        for (size_t i = 0; i < model.size(); i++)
            ASSERT_EQ(taken(coDictKeyAt(dict.get(), static_cast<int64_t>(i))), model[i]) << step;
    }
}

// Costs. The keys are made beforehand.

std::vector<co::Ref<coString>> makeKeys(int64_t size) {
    std::vector<co::Ref<coString>> keys;
    for (int64_t i = 0; i < size; i++) keys.emplace_back(coFormatEncodeInt(i, 10, 0, 0));
    return keys;
}

class DictCost : public testing::Test {
public:
    static constexpr int64_t small = 5000;
    std::vector<co::Ref<coString>> keys = makeKeys(8 * small);

    co::Ref<coDict> filled(int64_t size) const {
        co::Ref<coDict> dict(coDictCreate());
        for (int64_t i = 0; i < size; i++) coDictSetStringKey(dict.address(), key(i), coStringObj(key(0)));
        return dict;
    }
    coString *key(int64_t i) const { return keys[static_cast<size_t>(i)].get(); }
};

TEST_F(DictCost, DeletionsAreLinearInAnyOrder) {
    EXPECT_LT(test::growth(small,
                           [&](int64_t size) {
                               co::Ref<coDict> dict = filled(size);
                               for (int64_t i = 0; i < size; i++) coDictDelStringKey(dict.address(), key(i));
                           }),
              test::linear);
    EXPECT_LT(test::growth(small,
                           [&](int64_t size) {
                               co::Ref<coDict> dict = filled(size);
                               for (int64_t i = size; i-- > 0;) coDictDelStringKey(dict.address(), key(i));
                           }),
              test::linear);
}

TEST_F(DictCost, OneKeySetAndDeletedAgainAndAgainIsLinear) {
    EXPECT_LT(test::growth(small,
                           [&](int64_t size) {
                               co::Ref<coDict> dict = filled(size);
                               for (int64_t i = 0; i < size; i++) {
                                   coDictDelStringKey(dict.address(), key(7));
                                   coDictSetStringKey(dict.address(), key(7), coStringObj(key(0)));
                               }
                           }),
              test::linear);
}

TEST_F(DictCost, PositionsStayCheapBetweenDeletions) {
    EXPECT_LT(test::growth(small,
                           [&](int64_t size) {
                               co::Ref<coDict> dict = filled(size);
                               for (int64_t i = 0; i < size; i++) {
                                   coObjRelease(coDictValueAt(dict.get(), coDictLength(dict.get()) - 1));
                                   coObjRelease(coDictValueAt(dict.get(), coDictLength(dict.get()) / 2));
                                   coDictDelStringKey(dict.address(), key(i));
                               }
                           }),
              test::linear);
}

TEST_F(DictCost, DeletingWhileWalkingAnewFromTheFrontIsLinear) {
    EXPECT_LT(test::growth(small,
                           [&](int64_t size) {
                               co::Ref<coDict> dict = filled(size);
                               while (coDictLength(dict.get()) > 0) {
                                   co::Ref<coString> const first(coDictKeyAt(dict.get(), 0));
                                   coDictDelStringKey(dict.address(), first.get());
                               }
                           }),
              test::linear);
}

TEST_F(DictCost, WalksCostWhatIsLeft) {
    EXPECT_LT(test::growth(small,
                           [&](int64_t size) {
                               co::Ref<coDict> dict = filled(size);
                               for (int64_t i = 1; i < size; i++) coDictDelStringKey(dict.address(), key(i - 1));
                               for (int64_t i = 0; i < size; i++) {
                                   co::DictEntry entry;
                                   co::DictWalk walk(dict.get());
                                   while (walk.next(&entry)) EXPECT_EQ(entry.key, key(size - 1));
                               }
                           }),
              test::linear);
}

// Keys that share a slot of the table, for who knows the key of the hash.
std::vector<co::Ref<coString>> makeCollidingKeys(co::HashKey known, size_t count) {
    std::vector<co::Ref<coString>> keys;
    for (int64_t i = 0; keys.size() < count; i++) {
        co::Ref<coString> key(coFormatEncodeInt(i, 10, 0, 0));
        if (co::sipHash(known, key->view()) % 2048 == 0) keys.push_back(std::move(key));
    }
    return keys;
}

double secondsToFill(std::vector<co::Ref<coString>> const &keys) {
    return test::seconds([&] {
        co::Ref<coDict> dict(coDictCreate());
        for (auto const &key : keys) coDictSetStringKey(dict.address(), key.get(), coStringObj(key.get()));
    });
}

// A sender knows the hash, but not the key that the process has drawn. With the key it could make a dictionary slow.
TEST(Dict, KeysThatCollideUnderAnotherHashKeyCostNoMore) {
    constexpr size_t count = 1000;
    double const usual = secondsToFill(makeKeys(count));
    EXPECT_LT(secondsToFill(makeCollidingKeys({0, 0}, count)), usual * 3);
    EXPECT_GT(secondsToFill(makeCollidingKeys(co::processHashKey(), count)), usual * 3) << "what is prevented";
}

TEST(Dict, BrokenPreconditionsAbort) {
    co::Ref<coDict> dict = make({{"a", "1"}});
    coDict *d = dict.get();
    coDict *none = nullptr;
    test::Str const key = str("k");
    coObj *const value = coStringObj(key);
    char const *const index = "index >= 0 && index < coDictLength( dict )";
    EXPECT_ABORT(coDictLength(nullptr), unit, "dict");
    EXPECT_ABORT(coDictKeyAt(nullptr, 0), unit, "dict");
    EXPECT_ABORT(coDictKeyAt(d, 1), unit, index);
    EXPECT_ABORT(coDictKeyAt(d, -1), unit, index);
    EXPECT_ABORT(coDictValueAt(nullptr, 0), unit, "dict");
    EXPECT_ABORT(coDictValueAt(d, 1), unit, index);
    EXPECT_ABORT(coDictKeysVector(nullptr), unit, "dict");
    EXPECT_ABORT(coDictValuesVector(nullptr), unit, "dict");
    EXPECT_ABORT(coDictStringKey(nullptr, key), unit, "dict");
    EXPECT_ABORT(coDictStringKey(d, nullptr), unit, "key");
    EXPECT_ABORT(coDictHasStringKey(nullptr, key), unit, "dict");
    EXPECT_ABORT(coDictHasStringKey(d, nullptr), unit, "key");
    EXPECT_ABORT(coDictSetStringKey(nullptr, key, value), unit, "dict");
    EXPECT_ABORT(coDictSetStringKey(&none, key, value), unit, "*dict");
    EXPECT_ABORT(coDictSetStringKey(&d, nullptr, value), unit, "key");
    EXPECT_ABORT(coDictSetStringKey(&d, key, nullptr), unit, "value");
    EXPECT_ABORT(coDictDelStringKey(nullptr, key), unit, "dict");
    EXPECT_ABORT(coDictDelStringKey(&none, key), unit, "*dict");
    EXPECT_ABORT(coDictDelStringKey(&d, nullptr), unit, "key");
    EXPECT_ABORT(coDictClear(nullptr), unit, "dict");
    EXPECT_ABORT(coDictClear(&none), unit, "*dict");
}

} // namespace
