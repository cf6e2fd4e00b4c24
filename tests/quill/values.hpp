// What the tests of structured values share: decoding and encoding in one word, and what holds for every member.
#pragma once

#include "objects.hpp"

#include <functional>
#include <initializer_list>
#include <memory>
#include <quill/quill.h>
#include <type_traits>
#include <vector>

namespace test {

// The functions of a type that tests call by the type.
template <class T> struct ValueFunctions;

#define TEST_VALUE_FUNCTIONS(Type, Name)                                                                               \
    template <> struct ValueFunctions<struct quill##Type> {                                                            \
        using Value = struct quill##Type;                                                                              \
        static constexpr char name[] = #Type;                                                                          \
        static constexpr char unit[] = "source/quill/quill_" Name;                                                     \
        static constexpr auto tryDecode = quill___##Type##TryDecode;                                                   \
        static constexpr auto encode = quill___##Type##Encode;                                                         \
        static constexpr auto compare = quill##Type##Compare;                                                          \
        static constexpr auto compareFunc = quill___##Type##CompareFunc;                                               \
        static constexpr auto toStringFunc = quill___##Type##ToStringFunc;                                             \
    }

TEST_VALUE_FUNCTIONS(AcceptEncoding, "accept_encoding");
TEST_VALUE_FUNCTIONS(AlertInfo, "alert_info");
TEST_VALUE_FUNCTIONS(CallInfo, "call_info");
TEST_VALUE_FUNCTIONS(Contact, "contact");
TEST_VALUE_FUNCTIONS(Diversion, "diversion");
TEST_VALUE_FUNCTIONS(ErrorInfo, "error_info");
TEST_VALUE_FUNCTIONS(HistoryInfo, "history_info");
TEST_VALUE_FUNCTIONS(IdentityValue, "identity_value");
TEST_VALUE_FUNCTIONS(Reason, "reason");
TEST_VALUE_FUNCTIONS(Route, "route");
TEST_VALUE_FUNCTIONS(UuiValue, "uui_value");
TEST_VALUE_FUNCTIONS(Via, "via");
TEST_VALUE_FUNCTIONS(WarningValue, "warning_value");

#undef TEST_VALUE_FUNCTIONS

// The code points stand in memory of just their size, so that a sanitizer sees who reads beyond them.
template <class T> co::Ref<T> decode(std::u32string_view chars) {
    std::unique_ptr<coChar[]> const exact(new coChar[chars.size()]);
    std::copy(chars.begin(), chars.end(), exact.get());
    return own(ValueFunctions<T>::tryDecode(exact.get(), static_cast<int64_t>(chars.size())));
}

template <class T> co::Ref<T> decode(std::string_view utf8) { return decode<T>(wide(utf8)); }

// The wire text of a value, "(null)" for null.
template <class T> std::string text(T const *value) {
    return value ? taken(ValueFunctions<T>::encode(value)) : "(null)";
}
template <class T> std::string text(co::Ref<T> const &value) { return text(value.get()); }

inline co::Ref<quillGenericParams> params(std::string_view utf8) {
    std::u32string const chars = wide(utf8);
    return own(quill___GenericParamsTryDecode(chars.data(), static_cast<int64_t>(chars.size())));
}

// The wire text of a value's generic parameters.
inline std::string text(quillGenericParams *owned) {
    co::Ref<quillGenericParams> const params(owned);
    return taken(quillGenericParamsToString(params.get()));
}

struct Coded {
    std::string_view text;
    std::string_view expected; // what is written of it again
    std::string_view why;
};

template <class T> void expectCoded(std::initializer_list<Coded> rows) {
    for (Coded const &row : rows) EXPECT_EQ(text(decode<T>(row.text)), row.expected) << row.text << ": " << row.why;
}

struct Refused {
    std::string_view text;
    std::string_view why;
};

template <class T> void expectRefused(std::initializer_list<Refused> rows) {
    for (Refused const &row : rows) EXPECT_EQ(text(decode<T>(row.text)), "(null)") << row.text << ": " << row.why;
}

template <class T> struct Change {
    std::string_view why;
    std::function<void(T **)> change;
    std::string_view expected; // the text of the changed value
};

// In place where nobody else holds the object; else on a copy, and the other holder sees nothing of it.
template <class T> void expectChanges(std::string_view from, std::vector<Change<T>> const &rows) {
    std::string const unchanged = text(decode<T>(from));
    for (Change<T> const &row : rows) {
        SCOPED_TRACE(row.why);
        auto alone = decode<T>(from);
        T const *before = alone.get();
        row.change(alone.address());
        EXPECT_EQ(alone.get(), before);
        EXPECT_EQ(text(alone), row.expected);

        auto mine = decode<T>(from);
        co::Ref<T> const other(co::retained(mine.get()));
        row.change(mine.address());
        EXPECT_NE(mine.get(), other.get());
        EXPECT_EQ(count(mine.get()), 1);
        EXPECT_EQ(count(other.get()), 1);
        EXPECT_EQ(text(mine), row.expected);
        EXPECT_EQ(text(other), unchanged);
    }
}

inline int sign(int order) { return (order > 0) - (order < 0); }

// Each text is a value that comes before those of all later texts.
template <class T> void expectAscending(std::vector<std::string_view> const &texts) {
    for (size_t a = 0; a < texts.size(); a++) {
        auto const valueA = decode<T>(texts[a]);
        ASSERT_TRUE(valueA) << texts[a];
        for (size_t b = 0; b < texts.size(); b++) {
            auto const valueB = decode<T>(texts[b]);
            ASSERT_TRUE(valueB) << texts[b];
            int const order = ValueFunctions<T>::compare(valueA.get(), valueB.get());
            EXPECT_EQ(sign(order), (a > b) - (a < b)) << texts[a] << " and " << texts[b];
        }
    }
}

template <class T> bool areEqual(std::string_view textA, std::string_view textB) {
    return ValueFunctions<T>::compare(decode<T>(textA).get(), decode<T>(textB).get()) == 0;
}

// Broken preconditions: what each function of a type asserts of its object, named `self` in the condition texts.
template <class T> struct Preconditions {
    std::string self;

    template <class Result> void of(Result (*get)(T const *)) const { expectAbort(get, nullptr, self); }
    void of(void (*change)(T **)) const {
        T *null = nullptr;
        expectAbort(change, nullptr, self);
        expectAbort(change, &null, "*" + self);
    }
    template <class... Functions> void ofAll(Functions... functions) const { (of(functions), ...); }

    // A setter, by a good value and by those that its condition refuses.
    template <class Value>
    void ofSetter(void (*set)(T **, Value), std::type_identity_t<Value> good, T *object,
                  std::initializer_list<std::type_identity_t<Value>> refused, std::string const &condition) const {
        T *null = nullptr;
        EXPECT_ABORT(set(nullptr, good), ValueFunctions<T>::unit, self);
        EXPECT_ABORT(set(&null, good), ValueFunctions<T>::unit, "*" + self);
        for (Value const &bad : refused) EXPECT_ABORT(set(&object, bad), ValueFunctions<T>::unit, condition);
    }

    // What the functions of the sort and the codec assert.
    void ofSort(T *object) const {
        using Functions = ValueFunctions<T>;
        constexpr coChar ch = U'a';
        coObj const *obj = co::header(object);
        EXPECT_ABORT(Functions::compareFunc(nullptr, obj), Functions::unit, self + "A");
        EXPECT_ABORT(Functions::compareFunc(obj, nullptr), Functions::unit, self + "B");
        EXPECT_ABORT(Functions::toStringFunc(nullptr), Functions::unit, self);
        EXPECT_ABORT(Functions::encode(nullptr), Functions::unit, self);
        EXPECT_ABORT(Functions::tryDecode(&ch, -1), Functions::unit, "length >= 0");
        EXPECT_ABORT(Functions::tryDecode(nullptr, 1), Functions::unit, "chs || length == 0");
        EXPECT_EQ(Functions::tryDecode(nullptr, 0), nullptr);
        EXPECT_EQ(taken(Functions::toStringFunc(obj)), text(object));
    }

private:
    template <class Function, class Argument>
    void expectAbort(Function function, Argument argument, std::string const &condition) const {
        EXPECT_ABORT(function(argument), ValueFunctions<T>::unit, condition);
    }
};

} // namespace test
