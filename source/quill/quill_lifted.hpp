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
#include <quill/quill_skip.hpp>
#include <tuple>

namespace quill {

inline int64_t measure(Scanner scan, co::Chars text) { return scan(text.data(), co::length(text)); }
inline co::Chars upTo(co::Chars text, int64_t count) { return text.substr(0, static_cast<size_t>(count)); }

// A text read piece by piece. Where a scanner finds nothing the whole has failed, and nothing more is taken.
struct Reader {
    co::Chars rest;
    bool failed = false;

    co::Chars take(Scanner scan) {
        return take([scan](co::Chars text) { return measure(scan, text); });
    }
    template <class Rule> co::Chars take(Rule rule) {
        int64_t const count = failed ? 0 : matched(rule(rest));
        failed = count == 0;
        co::Chars const taken = upTo(rest, count);
        rest = from(rest, count);
        return taken;
    }
};

inline int64_t takeName(co::Chars text, co::Chars name) { return matched(namePrefix(text, name)); }

// name EQUAL
inline int64_t takeNameEqual(co::Chars text, co::Chars name) {
    int64_t const at = takeName(text, name);
    int64_t const sign = at ? matched(rules::equal(from(text, at))) : 0;
    return sign ? at + sign : 0;
}

using Normalizer = coString *(*)(coString const *);

// Sets a text of a value that was read, in its normal form.
template <class T> void keep(T *value, co::TextSlot T::*field, co::Chars text, Normalizer normalize) {
    if (normalize == co::asGiven) return co::keep(value, field, text);
    co::Ref<coString> const found(co::makeString(text));
    (value->*field).adopt(normalize(found.get()));
}

// Reads a value that has nothing yet at the start of its own line, which then goes on behind it. False where it is none.
template <class T> using ValueReader = bool (*)(T *value, co::Chars *line);

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
    co::TextSlot T::*field;
    Normalizer normalize = co::asGiven;

    int64_t take(T *value, co::Chars text) const {
        int64_t const at = takeNameEqual(text, name);
        int64_t const count = at ? measure(scan, from(text, at)) : 0;
        if (count > 0) keep(value, field, upTo(from(text, at), count), normalize);
        return count > 0 ? at + count : 0;
    }
    bool isSet(T const &value) const { return static_cast<bool>(value.*field); }
    void encode(coString **text, T const &value) const { appendParam(text, name, (value.*field).view()); }
};

// name EQUAL value, with a decoder and an encoder of the value's own: hosts, quoted strings.
template <class T> struct CodedParam {
    co::Chars name;
    Scanner scan;
    coString *(*tryDecode)(coChar const *, int64_t);
    coString *(*encodeValue)(coString *);
    co::TextSlot T::*field;

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
        co::Ref<coString> const decoded((value.*field).retained());
        appendTakenParam(text, name, encodeValue(decoded.get()));
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
    co::TextSlot T::*field;

    int64_t take(T *value, co::Chars text) const {
        int64_t const at = takeNameEqual(text, name);
        if (at == 0 || !from(text, at).starts_with(U'"')) return 0;
        int64_t const count = measure(scan, from(text, at + 1));
        if (count == 0 || !from(text, at + 1 + count).starts_with(U'"')) return 0;
        co::keep(value, field, upTo(from(text, at + 1), count));
        return at + count + 2;
    }
    bool isSet(T const &value) const { return static_cast<bool>(value.*field); }
    void encode(coString **text, T const &value) const {
        co::append(text, {U";", name, U"=\"", (value.*field).view(), U"\""});
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
template <class T> TextParam(co::Chars, Scanner, co::TextSlot T::*) -> TextParam<T>;
template <class T> TextParam(co::Chars, Scanner, co::TextSlot T::*, Normalizer) -> TextParam<T>;
template <class T>
CodedParam(co::Chars, Scanner, coString *(*)(coChar const *, int64_t), coString *(*)(coString *), co::TextSlot T::*)
    -> CodedParam<T>;
template <class T>
IntParam(co::Chars, Scanner, int64_t (*)(coChar const *, int64_t), coString *(*)(int64_t), co::Int T::*) -> IntParam<T>;
template <class T> EnclosedParam(co::Chars, Scanner, co::TextSlot T::*) -> EnclosedParam<T>;
template <class T> FlagParam(co::Chars, Behind, co::Flag T::*) -> FlagParam<T>;

// The line that a value was read from and keeps; empty for one of a type that keeps none.
template <class T> co::Chars keptLine(T const *value) {
    if constexpr (std::is_base_of_v<co::WithLine, T>) return co::chars(co::lineOf(value), value->lineLength);
    return {};
}

// *( SEMI parameter ) at the start of the text: the first row that matches takes a parameter, or else it is a generic
// one. What is behind the last parameter.
template <class T, class... Rows> co::Chars readParams(T *value, co::Chars rest, std::tuple<Rows...> const &lifted) {
    while (!rest.empty()) {
        co::Chars text = rest;
        int64_t const separator = matched(rules::semi(text));
        if (separator == 0) break;
        text = from(text, separator);
        coChar const initial = text.empty() ? U'\0' : co::asciiLower(text[0]);
        int64_t count = 0;
        auto const isTaken = [&](auto const &row) { // mostly the first letter says that it is not
            return row.name[0] == initial && (count = row.take(value, text)) > 0;
        };
        std::apply([&](auto const &...row) { static_cast<void>((isTaken(row) || ...)); }, lifted);
        if (count == 0) count = value->genericParams.take(keptLine(value), rest, separator);
        if (count == 0) break;
        rest = from(text, count);
    }
    return rest;
}

// Whether the whole text is parameters.
template <class T, class... Rows> bool takeParams(T *value, co::Chars text, std::tuple<Rows...> const &lifted) {
    return readParams(value, text, lifted).empty();
}

// The value that a text is as a whole, or null.
template <class T> T *tryReadWhole(co::Chars text, std::type_identity_t<ValueReader<T>> read) {
    co::Ref<T> value(co::makeWithLine<T>(&text));
    return read(value.get(), &text) && text.empty() ? value.take() : nullptr;
}

// The same with a reader that makes the value; the text goes on behind it.
template <class T> T *tryReadWhole(co::Chars text, T *(*read)(co::Chars *)) {
    co::Ref<T> value(read(&text));
    return text.empty() ? value.take() : nullptr;
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
    appendGenericParams(text, co::Ref(value.genericParams.retained()).get(), written, count);
}

} // namespace quill
