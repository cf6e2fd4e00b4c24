// Parameters that a type lifts into members of its own.
//
// A type that has such parameters lists them, in the order in which they are tried on decoding and written on encoding:
//
//     constexpr std::tuple lifted{
//         quill::TextParam{U"cause", quill___SkipDigits, &quillReason::cause},
//         quill::CodedParam{U"text", quill___SkipQuotedString, decodeText, encodeText, &quillReason::text},
//     };
//
// Names match without regard to letter case, as beginnings; what does not go on as a row says is tried with the next
// one and becomes a generic parameter in the end. On encoding a lifted parameter wins over a generic one of its name.
// A row is anything with these members:
//
//     co::Chars name;                                     in lower case
//     int64_t take(T *value, co::Chars text) const;       how many code points it took; 0 and no change for none
//     bool isSet(T const &value) const;
//     void encode(coString **text, T const &value) const; with its semicolon
#pragma once

#include <co/co_format.hpp>
#include <co/co_member.hpp>
#include <quill/quill_generic_params.hpp>
#include <quill/quill_internal.h>
#include <quill/quill_scalar.hpp>
#include <quill/quill_skip.h>
#include <tuple>

namespace quill {

inline int64_t measure(Scanner scan, co::Chars text) { return scan(text.data(), co::length(text)); }
inline co::Chars from(co::Chars text, int64_t at) { return text.substr(static_cast<size_t>(at)); }
inline co::Chars upTo(co::Chars text, int64_t count) { return text.substr(0, static_cast<size_t>(count)); }

// A text read piece by piece. Where a scanner finds nothing the whole has failed, and nothing more is taken.
struct Reader {
    co::Chars rest;
    bool failed = false;

    co::Chars take(Scanner scan) {
        int64_t const count = failed ? 0 : measure(scan, rest);
        failed = count == 0;
        co::Chars const taken = upTo(rest, count);
        rest = from(rest, count);
        return taken;
    }
};

inline int64_t takeName(co::Chars text, co::Chars name) {
    return quill___SkipCharsAsciiCaseFold(text.data(), co::length(text), name.data(), co::length(name));
}

// name EQUAL
inline int64_t takeNameEqual(co::Chars text, co::Chars name) {
    int64_t const at = takeName(text, name);
    int64_t const equal = at ? measure(quill___SkipEqual, from(text, at)) : 0;
    return equal ? at + equal : 0;
}

inline void appendParam(coString **text, co::Chars name) { co::append(text, {U";", name}); }

inline void appendParam(coString **text, co::Chars name, co::Chars value) {
    co::append(text, {U";", name, U"=", value});
}

inline void appendTakenParam(coString **text, co::Chars name, coString *value) {
    co::Ref<coString> const taken(value);
    appendParam(text, name, taken->view());
}

// name EQUAL value, the value kept as its text or in its normal form.
template <class T> struct TextParam {
    co::Chars name;
    Scanner scan;
    co::Slot<coString> T::*field;
    coString *(*normalize)(coString const *) = co::asGiven;

    int64_t take(T *value, co::Chars text) const {
        int64_t const at = takeNameEqual(text, name);
        int64_t const count = at ? measure(scan, from(text, at)) : 0;
        if (count == 0) return 0;
        co::Ref<coString> const found(co::makeString(upTo(from(text, at), count)));
        (value->*field).adopt(normalize(found.get()));
        return at + count;
    }
    bool isSet(T const &value) const { return static_cast<bool>(value.*field); }
    void encode(coString **text, T const &value) const { appendParam(text, name, (value.*field)->view()); }
};

// name EQUAL value, with a decoder and an encoder of the value's own: hosts, quoted strings.
template <class T> struct CodedParam {
    co::Chars name;
    Scanner scan;
    coString *(*tryDecode)(coChar const *, int64_t);
    coString *(*encodeValue)(coString *);
    co::Slot<coString> T::*field;

    int64_t take(T *value, co::Chars text) const {
        int64_t const at = takeNameEqual(text, name);
        int64_t const count = at ? measure(scan, from(text, at)) : 0;
        coString *decoded = count ? tryDecode(from(text, at).data(), count) : nullptr;
        if (!decoded) return 0;
        (value->*field).adopt(decoded);
        return at + count;
    }
    bool isSet(T const &value) const { return static_cast<bool>(value.*field); }
    void encode(coString **text, T const &value) const {
        appendTakenParam(text, name, encodeValue((value.*field).get()));
    }
};

// name EQUAL number; a number out of its range is no match.
template <class T> struct IntParam {
    co::Chars name;
    Scanner scan;
    int64_t (*tryDecode)(coChar const *, int64_t);
    coString *(*encodeValue)(int64_t);
    co::Int T::*field;

    int64_t take(T *value, co::Chars text) const {
        int64_t const at = takeNameEqual(text, name);
        int64_t const count = at ? measure(scan, from(text, at)) : 0;
        int64_t const number = count ? tryDecode(from(text, at).data(), count) : -1;
        if (number < 0) return 0;
        (value->*field).set(number);
        return at + count;
    }
    bool isSet(T const &value) const { return static_cast<bool>(value.*field); }
    void encode(coString **text, T const &value) const {
        appendTakenParam(text, name, encodeValue((value.*field).get()));
    }
};

// name EQUAL DQUOTE value DQUOTE, without blanks between the quotes; kept without them.
template <class T> struct EnclosedParam {
    co::Chars name;
    Scanner scan;
    co::Slot<coString> T::*field;

    int64_t take(T *value, co::Chars text) const {
        int64_t const at = takeNameEqual(text, name);
        if (at == 0 || !from(text, at).starts_with(U'"')) return 0;
        int64_t const count = measure(scan, from(text, at + 1));
        if (count == 0 || !from(text, at + 1 + count).starts_with(U'"')) return 0;
        (value->*field).adopt(co::makeString(upTo(from(text, at + 1), count)));
        return at + count + 2;
    }
    bool isSet(T const &value) const { return static_cast<bool>(value.*field); }
    void encode(coString **text, T const &value) const {
        co::append(text, {U";", name, U"=\"", (value.*field)->view(), U"\""});
    }
};

// The name alone. Where it must stand alone, a name with EQUAL behind it is no match.
enum class Behind { anything, noEqual };

template <class T> struct FlagParam {
    co::Chars name;
    Behind behind;
    co::Flag T::*field;

    int64_t take(T *value, co::Chars text) const {
        int64_t const count = takeName(text, name);
        if (count == 0) return 0;
        if (behind == Behind::noEqual && measure(quill___SkipEqual, from(text, count)) > 0) return 0;
        (value->*field).set(true);
        return count;
    }
    bool isSet(T const &value) const { return (value.*field).get(); }
    void encode(coString **text, T const &) const { appendParam(text, name); }
};

// Which type a row belongs to; clang 14 needs to be told for aggregates.
template <class T> TextParam(co::Chars, Scanner, co::Slot<coString> T::*) -> TextParam<T>;
template <class T>
TextParam(co::Chars, Scanner, co::Slot<coString> T::*, coString *(*)(coString const *)) -> TextParam<T>;
template <class T>
CodedParam(co::Chars, Scanner, coString *(*)(coChar const *, int64_t), coString *(*)(coString *),
           co::Slot<coString> T::*) -> CodedParam<T>;
template <class T>
IntParam(co::Chars, Scanner, int64_t (*)(coChar const *, int64_t), coString *(*)(int64_t), co::Int T::*) -> IntParam<T>;
template <class T> EnclosedParam(co::Chars, Scanner, co::Slot<coString> T::*) -> EnclosedParam<T>;
template <class T> FlagParam(co::Chars, Behind, co::Flag T::*) -> FlagParam<T>;

// *( SEMI parameter ) to the end of the text: the first row that matches takes a parameter, or else it is a generic one.
// False where there is neither.
template <class T, class... Rows> bool takeParams(T *value, co::Chars text, std::tuple<Rows...> const &lifted) {
    while (!text.empty()) {
        int64_t const semi = measure(quill___SkipSemi, text);
        if (semi == 0) return false;
        text = from(text, semi);
        int64_t count = 0;
        std::apply([&](auto const &...row) { static_cast<void>(((count = row.take(value, text)) || ...)); }, lifted);
        if (count == 0) count = takeGenericParam(value->genericParams.address(), text);
        if (count == 0) return false;
        text = from(text, count);
    }
    return true;
}

// The lifted parameters that are set, then the generic ones but for those of the same names.
template <class T, class... Rows>
void appendParams(coString **text, T const &value, std::tuple<Rows...> const &lifted) {
    co::Chars written[sizeof...(Rows) + 1];
    size_t count = 0;
    auto const append = [&](auto const &row) {
        if (!row.isSet(value)) return;
        row.encode(text, value);
        written[count++] = row.name;
    };
    std::apply([&](auto const &...row) { (append(row), ...); }, lifted);
    appendGenericParams(text, value.genericParams.get(), written, count);
}

} // namespace quill
