// What every test needs: strings from literals and back, and the abort that a broken precondition ends in.
#pragma once

#include <co/co.h>
#include <co/co_obj.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace test {

// A string object from UTF-8, released with the temporary: `quillTokenOk(str("a"))`.
class Str {
public:
    explicit Str(std::string_view utf8);
    explicit Str(std::u32string_view chars);
    operator coString *() const { return string.get(); }
    coString *get() const { return string.get(); }

private:
    co::Ref<coString> string;
};

inline Str str(std::string_view utf8) { return Str(utf8); }
inline Str str(std::u32string_view chars) { return Str(chars); }

// The text of a borrowed string as UTF-8; "(null)" for null.
std::string utf8(coString const *borrowed);
// The same, and the reference is given up.
std::string taken(coString *owned);
// The same for a buffer's bytes.
std::string bytes(coBuffer const *borrowed);
std::string takenBytes(coBuffer *owned);
co::Ref<coBuffer> buffer(std::string_view bytes);

// UTF-8 to code points, by a decoder of the tests' own.
std::u32string wide(std::string_view utf8);

// The count of an object's references.
template <class T> int64_t count(T const *obj) { return co::header(obj)->count.load(); }

// What co___Abort writes.
testing::Matcher<std::string const &> abortText(std::string unit, std::string condition, std::string message = "");

} // namespace test

// The statement ends the process with this unit and condition, and this message where one is given:
//     EXPECT_ABORT(quillAcceptRetain(nullptr), "source/quill/quill_accept", "obj", "stdfunc retain");
#define EXPECT_ABORT(statement, ...) EXPECT_DEATH(statement, test::abortText(__VA_ARGS__))
