#include <co/co_vector.hpp>
#include <random>
#include <support/growth.hpp>
#include <support/text.hpp>

using test::count;
using test::str;
using test::taken;

namespace {

constexpr char const *unit = "source/co/co_vector";

std::string textOf(coVector const *vector) { return taken(coVectorToString(vector)); }

TEST(Vector, IsEmptyAtFirst) {
    co::Ref<coVector> const vector(coVectorCreate());
    EXPECT_EQ(coVectorLength(vector.get()), 0);
    EXPECT_EQ(textOf(vector.get()), "[]");
    EXPECT_TRUE(coVectorContainsOnly(vector.get(), coStringSort()));
}

TEST(Vector, RetainsItsElementsAndGivesThemUp) {
    test::Str const element = str("a");
    co::Ref<coVector> vector(coVectorCreate());
    coVectorAppendString(vector.address(), element);
    coVectorAppend(vector.address(), coStringObj(element));
    EXPECT_EQ(count(element.get()), 3);
    coObj *at = coVectorObjAt(vector.get(), 1);
    EXPECT_EQ(at, coStringObj(element));
    EXPECT_EQ(count(element.get()), 4);
    coObjRelease(at);
    coVectorDelAt(vector.address(), 0);
    EXPECT_EQ(count(element.get()), 2);
    coVectorSetStringAt(vector.address(), 0, str("b"));
    EXPECT_EQ(count(element.get()), 1);
    coVectorPrependString(vector.address(), element);
    vector.reset(nullptr);
    EXPECT_EQ(count(element.get()), 1);
}

TEST(Vector, SetsAnElementToItself) {
    co::Ref<coVector> vector(coVectorCreate());
    coVectorAppendString(vector.address(), str("a"));
    coVectorSetStringAt(vector.address(), 0, co::stringAt(vector.get(), 0));
    EXPECT_EQ(textOf(vector.get()), "[a]");
    EXPECT_EQ(count(co::stringAt(vector.get(), 0)), 1);
}

TEST(Vector, ContainsOnly) {
    co::Ref<coVector> vector(coVectorCreate());
    coVectorAppendString(vector.address(), str("a"));
    EXPECT_TRUE(coVectorContainsOnly(vector.get(), coStringSort()));
    EXPECT_FALSE(coVectorContainsOnly(vector.get(), coVectorSort()));
    coVectorAppend(vector.address(), coVectorObj(co::Ref(coVectorCreate()).get()));
    EXPECT_FALSE(coVectorContainsOnly(vector.get(), coStringSort()));
    EXPECT_EQ(textOf(vector.get()), "[a, []]");
}

TEST(Vector, ComparesElementByElement) {
    auto make = [](std::vector<char const *> const &texts) {
        coVector *vector = coVectorCreate();
        for (char const *text : texts) coVectorAppendString(&vector, str(text));
        return co::Ref(vector);
    };
    struct {
        std::vector<char const *> a, b;
        int expected;
    } const rows[] = {{{}, {}, 0},
                      {{}, {"a"}, -1},
                      {{"a"}, {"a", "b"}, -1},
                      {{"a", "c"}, {"a", "b", "d"}, 1},
                      {{"b"}, {"a", "z"}, 1}};
    for (auto const &row : rows) {
        EXPECT_EQ(coVectorCompare(make(row.a).get(), make(row.b).get()), row.expected);
        EXPECT_EQ(coVectorCompare(make(row.b).get(), make(row.a).get()), -row.expected);
    }
}

// Random operations beside a vector of the standard library.
TEST(Vector, BehavesLikeItsModel) {
    std::mt19937 random(1);
    for (int round = 0; round < 200; round++) {
        co::Ref<coVector> vector(coVectorCreate());
        std::vector<std::string> model;
        for (int step = 0; step < 200; step++) {
            std::string const text = std::to_string(step);
            auto const at = random() % (model.size() + 1);
            auto const index = static_cast<int64_t>(at);
            auto const there = model.begin() + index;
            co::Ref<coVector> held(random() % 8 ? nullptr : co::retained(vector.get()));
            std::string const heldText = held ? textOf(held.get()) : "";
            switch (random() % 10) {
            case 0:
            case 1:
            case 2:
                coVectorAppendString(vector.address(), str(text)), model.push_back(text);
                break;
            case 3:
                coVectorPrependString(vector.address(), str(text)), model.insert(model.begin(), text);
                break;
            case 4:
            case 5:
                coVectorInsertString(vector.address(), index, str(text)), model.insert(there, text);
                break;
            case 6:
                if (at < model.size()) coVectorSetStringAt(vector.address(), index, str(text)), model[at] = text;
                break;
            case 7:
                if (at < model.size()) coVectorDelAt(vector.address(), index), model.erase(there);
                break;
            case 8:
                if (random() % 4 == 0) coVectorDelLeading(vector.address(), index), model.erase(model.begin(), there);
                break;
            default:
                if (random() % 20 == 0) coVectorClear(vector.address()), model.clear();
            }
            ASSERT_EQ(coVectorLength(vector.get()), static_cast<int64_t>(model.size()));
            for (size_t i = 0; i < model.size(); i++)
                ASSERT_EQ(test::utf8(co::stringAt(vector.get(), static_cast<int64_t>(i))), model[i]);
            ASSERT_EQ(held ? textOf(held.get()) : "", heldText);
        }
    }
}

TEST(Vector, EndsAreCheapToChange) {
    test::Str const element = str("a");
    EXPECT_LT(test::growth(20000,
                           [&](int64_t size) {
                               co::Ref<coVector> queue(coVectorCreate());
                               for (int64_t i = 0; i < size; i++) coVectorPrependString(queue.address(), element);
                               for (int64_t i = 0; i < size; i++) {
                                   coVectorAppendString(queue.address(), element);
                                   coVectorDelLeading(queue.address(), 1);
                               }
                               for (int64_t i = 0; i < size; i++) coVectorDelAt(queue.address(), 0);
                           }),
              test::linear);
    EXPECT_LT(test::growth(20000,
                           [&](int64_t size) {
                               co::Ref<coVector> both(coVectorCreate());
                               for (int64_t i = 0; i < size; i++) {
                                   coVectorPrependString(both.address(), element);
                                   coVectorAppendString(both.address(), element);
                               }
                           }),
              test::linear)
        << "in turns";
}

TEST(Vector, TheEmptyOneIsSharedAndStaysEmpty) {
    co::Ref<coVector> vector(&co::emptyVector);
    coVectorAppendString(vector.address(), str("a"));
    EXPECT_EQ(textOf(vector.get()), "[a]");
    EXPECT_EQ(coVectorLength(&co::emptyVector), 0);
    co::Ref<coVector> cleared(&co::emptyVector);
    coVectorClear(cleared.address());
    coVectorDelLeading(cleared.address(), 0);
    coVectorPrependString(cleared.address(), str("b"));
    EXPECT_EQ(textOf(cleared.get()), "[b]");
    EXPECT_EQ(textOf(&co::emptyVector), "[]");
    EXPECT_EQ(coVectorCompare(&co::emptyVector, co::Ref<coVector>(coVectorCreate()).get()), 0);
}

TEST(Vector, BrokenPreconditionsAbort) {
    co::Ref<coVector> vector(coVectorCreate());
    coVectorAppendString(vector.address(), str("a"));
    coVector *v = vector.get();
    coVector *none = nullptr;
    coString *const text = co::stringAt(v, 0);
    char const *const index = "index >= 0 && index < coVectorLength( vector )";
    EXPECT_ABORT(coVectorLength(nullptr), unit, "vector");
    EXPECT_ABORT(coVectorObjAt(nullptr, 0), unit, "vector");
    EXPECT_ABORT(coVectorObjAt(v, 1), unit, index);
    EXPECT_ABORT(coVectorObjAt(v, -1), unit, index);
    EXPECT_ABORT(coVectorContainsOnly(nullptr, coStringSort()), unit, "vector");
    EXPECT_ABORT(coVectorContainsOnly(v, nullptr), unit, "sort");
    EXPECT_ABORT(coVectorAppend(nullptr, coStringObj(text)), unit, "vector");
    EXPECT_ABORT(coVectorAppend(&none, coStringObj(text)), unit, "*vector");
    EXPECT_ABORT(coVectorAppend(&v, nullptr), unit, "obj");
    EXPECT_ABORT(coVectorAppendString(&none, text), unit, "*vector");
    EXPECT_ABORT(coVectorAppendString(&v, nullptr), unit, "string");
    EXPECT_ABORT(coVectorPrependString(nullptr, text), unit, "vector");
    EXPECT_ABORT(coVectorPrependString(&v, nullptr), unit, "string");
    EXPECT_ABORT(coVectorInsertString(&v, 2, text), unit, "index >= 0 && index <= coVectorLength( *vector )");
    EXPECT_ABORT(coVectorInsertString(&v, -1, text), unit, "index >= 0 && index <= coVectorLength( *vector )");
    EXPECT_ABORT(coVectorSetStringAt(&v, 1, text), unit, index);
    EXPECT_ABORT(coVectorSetStringAt(&v, 0, nullptr), unit, "string");
    EXPECT_ABORT(coVectorDelAt(&v, 1), unit, index);
    EXPECT_ABORT(coVectorDelAt(&none, 0), unit, "*vector");
    EXPECT_ABORT(coVectorDelLeading(&v, 2), unit, "count >= 0 && count <= coVectorLength( *vector )");
    EXPECT_ABORT(coVectorDelLeading(&v, -1), unit, "count >= 0 && count <= coVectorLength( *vector )");
    EXPECT_ABORT(coVectorClear(nullptr), unit, "vector");
    EXPECT_ABORT(coVectorClear(&none), unit, "*vector");
}

} // namespace
