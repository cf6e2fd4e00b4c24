// What a header says, once it is decoded: its parts by name, ready for any view.
#ifndef QUILL_INSPECT_TYPED_HPP
#define QUILL_INSPECT_TYPED_HPP

#include "objects.hpp"
#include <cstdint>
#include <optional>
#include <quill/quill_typed_header.h>
#include <string>
#include <variant>
#include <vector>

namespace inspect {

/// A quality value in thousandths.
struct Quality {
    int64_t thousandths;
};

struct Parameter {
    std::string name;
    int64_t type; // one of QUILL_GENERIC_PARAM_VALUE_TYPE_…, or -1 without a value
    std::string value;
    std::string wire; // as it is written into a message
};

/// What a part holds: a flag that is set, a number, a quality, a text, parameters.
using Content = std::variant<bool, int64_t, Quality, std::string, std::vector<Parameter>>;

/// The name is in snake_case: "display_name". An absent part is not there at all.
struct Part {
    char const *name;
    Content content;
};
using Parts = std::vector<Part>;

/// An element of a list: nothing when it does not decode, else a scalar or a value of several parts.
using Element = std::variant<std::monostate, std::string, Parts>;
using Elements = std::vector<Element>;
struct Tokens {
    std::vector<std::string> all;
};

/// By shape: one value of several parts, a list, a set.
using Value = std::variant<Parts, Elements, Tokens>;

struct Typed {
    quillTypedHeader const *kind = nullptr; // null: there is no typed header of this name
    std::optional<Value> value;             // nothing: the header does not decode as a whole
    std::string problem;                    // why not
};

Typed readTyped(RawHeader const *header);

} // namespace inspect

#endif
