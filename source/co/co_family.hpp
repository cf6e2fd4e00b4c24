// The families of functions that every type has, one macro line each. The macros only paste names and condition texts;
// the headers spell every prototype out, so that the two check each other. A commented specimen: docs/families.md.
#pragma once

#include <co/co_assert.hpp>
#include <co/co_member.hpp>
#include <co/co_string.hpp>

// Sort, Retain, Release, Obj, From, ToString, Compare, Equals of `struct T`, whose sort is the object `sort_`.
#define CO_DEFINE_FAMILY(T, sort_) CO_DEFINE_FAMILY_RELEASED(T, sort_, co::release)

// The same, with what gives a reference up.
#define CO_DEFINE_FAMILY_RELEASED(T, sort_, release)                                                                   \
    struct coSort const *T##Sort(void) {                                                                               \
        return &sort_;                                                                                                 \
    }                                                                                                                  \
    void T##Retain(struct T *obj) {                                                                                    \
        CO_ASSERT_SAYING("stdfunc retain", obj, "obj");                                                                \
        co::retain(obj);                                                                                               \
    }                                                                                                                  \
    void T##Release(struct T *obj) {                                                                                   \
        CO_ASSERT_SAYING("stdfunc release", obj, "obj");                                                               \
        release(obj);                                                                                                  \
    }                                                                                                                  \
    struct coObj *T##Obj(struct T const *obj) {                                                                        \
        return const_cast<struct T *>(obj);                                                                            \
    }                                                                                                                  \
    struct T *T##From(struct coObj const *obj) {                                                                       \
        CO_ASSERT_SAYING("stdfunc from", !obj || obj->itsSort == &sort_, "!obj || coObjSort(obj)==&" #sort_);          \
        return static_cast<struct T *>(const_cast<struct coObj *>(obj));                                               \
    }                                                                                                                  \
    struct coString *T##ToString(struct T const *obj) {                                                                \
        CO_ASSERT_SAYING("stdfunc tostring", obj, "obj");                                                              \
        return coObjToString(obj);                                                                                     \
    }                                                                                                                  \
    int T##Compare(struct T const *objA, struct T const *objB) {                                                       \
        CO_ASSERT_SAYING("stdfunc compare a", objA, "objA");                                                           \
        CO_ASSERT_SAYING("stdfunc compare b", objB, "objB");                                                           \
        return coObjCompare(objA, objB);                                                                               \
    }                                                                                                                  \
    bool T##Equals(struct T const *objA, struct T const *objB) { return coObjCompare(objA, objB) == 0; }

// Members of `struct T`. Every setter and deleter asserts the reference, then the value, and copies on write.
//
// T: quillAccept; self: accept, the name in condition texts; Name: MediaType; field: its member; ok: the validator;
// value: the parameter's name in condition texts; normalize: what is stored of it, co::asGiven where that is itself.

#define CO_DEFINE_STRING_MEMBER(T, self, Name, field, ok, value, normalize)                                            \
    struct coString *T##Name(struct T const *self) {                                                                   \
        CO_ASSERT_GIVEN(self);                                                                                         \
        return self->field.retained();                                                                                 \
    }                                                                                                                  \
    void T##Set##Name(struct T **self, struct coString *value) {                                                       \
        CO_ASSERT_REFERENCE(self);                                                                                     \
        CO_ASSERT_OK(ok, value);                                                                                       \
        co::writable(self)->field.adopt(normalize(value));                                                             \
    }

#define CO_DEFINE_OBJECT_MEMBER(T, self, Name, field, Target, value)                                                   \
    struct Target *T##Name(struct T const *self) {                                                                     \
        CO_ASSERT_GIVEN(self);                                                                                         \
        return self->field.retained();                                                                                 \
    }                                                                                                                  \
    void T##Set##Name(struct T **self, struct Target *value) {                                                         \
        CO_ASSERT_REFERENCE(self);                                                                                     \
        CO_ASSERT_GIVEN(value);                                                                                        \
        co::writable(self)->field.set(value);                                                                          \
    }

#define CO_DEFINE_INT_MEMBER(T, self, Name, field, ok, value)                                                          \
    int64_t T##Name(struct T const *self) {                                                                            \
        CO_ASSERT_GIVEN(self);                                                                                         \
        return self->field.get();                                                                                      \
    }                                                                                                                  \
    void T##Set##Name(struct T **self, int64_t value) {                                                                \
        CO_ASSERT_REFERENCE(self);                                                                                     \
        CO_ASSERT_OK(ok, value);                                                                                       \
        co::writable(self)->field.set(value);                                                                          \
    }

// What an optional member has besides.
#define CO_DEFINE_HAS_DEL(T, self, Name, field)                                                                        \
    bool T##Has##Name(struct T const *self) {                                                                          \
        CO_ASSERT_GIVEN(self);                                                                                         \
        return static_cast<bool>(self->field);                                                                         \
    }                                                                                                                  \
    void T##Del##Name(struct T **self) {                                                                               \
        CO_ASSERT_REFERENCE(self);                                                                                     \
        co::writable(self)->field.clear();                                                                             \
    }

#define CO_DEFINE_OPTIONAL_STRING_MEMBER(T, self, Name, field, ok, value, normalize)                                   \
    CO_DEFINE_STRING_MEMBER(T, self, Name, field, ok, value, normalize)                                                \
    CO_DEFINE_HAS_DEL(T, self, Name, field)

#define CO_DEFINE_OPTIONAL_OBJECT_MEMBER(T, self, Name, field, Target, value)                                          \
    CO_DEFINE_OBJECT_MEMBER(T, self, Name, field, Target, value)                                                       \
    CO_DEFINE_HAS_DEL(T, self, Name, field)

#define CO_DEFINE_OPTIONAL_INT_MEMBER(T, self, Name, field, ok, value)                                                 \
    CO_DEFINE_INT_MEMBER(T, self, Name, field, ok, value)                                                              \
    CO_DEFINE_HAS_DEL(T, self, Name, field)

#define CO_DEFINE_FLAG_MEMBER(T, self, Name, field, value)                                                             \
    bool T##Name(struct T const *self) {                                                                               \
        CO_ASSERT_GIVEN(self);                                                                                         \
        return self->field.get();                                                                                      \
    }                                                                                                                  \
    void T##Set##Name(struct T **self, bool value) {                                                                   \
        CO_ASSERT_REFERENCE(self);                                                                                     \
        co::writable(self)->field.set(value);                                                                          \
    }

// `Fn(…, text)` once more with a UTF-8 text and once with a wide text, each with its length (-1: terminated).
// The number says how many arguments come before the text.
#define CO_DEFINE_TEXT_FORMS(Result, Fn, text)                                                                         \
    Result Fn##Cstr(char const *text, int64_t length) { return Fn(co::Text(text, length)); }                           \
    Result Fn##Wcstr(wchar_t const *text, int64_t length) { return Fn(co::Text(text, length)); }

#define CO_DEFINE_TEXT_FORMS_1(Result, Fn, T1, a1, text)                                                               \
    Result Fn##Cstr(T1 a1, char const *text, int64_t length) { return Fn(a1, co::Text(text, length)); }                \
    Result Fn##Wcstr(T1 a1, wchar_t const *text, int64_t length) { return Fn(a1, co::Text(text, length)); }

#define CO_DEFINE_TEXT_FORMS_2(Result, Fn, T1, a1, T2, a2, text)                                                       \
    Result Fn##Cstr(T1 a1, T2 a2, char const *text, int64_t length) { return Fn(a1, a2, co::Text(text, length)); }     \
    Result Fn##Wcstr(T1 a1, T2 a2, wchar_t const *text, int64_t length) { return Fn(a1, a2, co::Text(text, length)); }

#define CO_DEFINE_TEXT_FORMS_3(Result, Fn, T1, a1, T2, a2, T3, a3, text)                                               \
    Result Fn##Cstr(T1 a1, T2 a2, T3 a3, char const *text, int64_t length) {                                           \
        return Fn(a1, a2, a3, co::Text(text, length));                                                                 \
    }                                                                                                                  \
    Result Fn##Wcstr(T1 a1, T2 a2, T3 a3, wchar_t const *text, int64_t length) {                                       \
        return Fn(a1, a2, a3, co::Text(text, length));                                                                 \
    }

namespace co {

// A string made from a text argument, given up when the call is over.
class Text {
public:
    Text(char const *text, int64_t length) : string(coStringCreateFromCstr(text, length)) {}
    Text(wchar_t const *text, int64_t length) : string(coStringCreateFromWcstr(text, length)) {}
    operator coString *() const { return string.get(); }

private:
    Ref<coString> string;
};

} // namespace co
