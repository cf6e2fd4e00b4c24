#include "typed.hpp"

#include "parts.hpp"
#include "text.hpp"

namespace inspect {
namespace {

Object decode(quillTypedHeader const *kind, RawHeader const *header) { return Object(kind->tryDecode(header)); }

/// The lines, counted from 1, that do not decode when each stands alone.
std::vector<int64_t> linesThatFail(quillTypedHeader const *kind, RawHeader const *header) {
    String const name(quillMessageHeaderName(header));
    std::vector<int64_t> failing;
    int64_t number = 0;
    eachLine(header, [&](coString *line) {
        number++;
        RawHeader *alone = quillMessageHeaderCreate(name.get());
        quillMessageHeaderAppendLine(&alone, line);
        Header const owner(alone);
        if (!decode(kind, alone)) failing.push_back(number);
    });
    return failing;
}

/// "2, 5".
std::string listed(std::vector<int64_t> const &numbers) {
    std::string text;
    for (int64_t const number : numbers) text += (text.empty() ? "" : ", ") + std::to_string(number);
    return text;
}

/// Why a header does not decode, as far as it can be told.
std::string problemOf(quillTypedHeader const *kind, RawHeader const *header) {
    String const normalName(quillMessageHeaderName(header));
    std::string const name = utf8(normalName.get());
    int64_t const lines = quillMessageHeaderLinesLength(header);
    if (lines == 0) return "has no lines";
    if (lines == 1) return "does not parse as " + name;
    if (kind->shape == QUILL_TYPED_HEADER_VALUE) return "the last line does not parse as " + name;
    std::vector<int64_t> const failing = linesThatFail(kind, header);
    if (failing.empty()) return "does not parse as a whole, though each line does";
    if (failing.size() == 1) return "line " + listed(failing) + " does not parse as " + name;
    return "lines " + listed(failing) + " do not parse as " + name;
}

} // namespace

Typed readTyped(RawHeader const *header) {
    String const name(quillMessageHeaderName(header));
    Typed typed;
    typed.kind = quillTypedHeaderOf(name.get());
    if (!typed.kind) return typed;
    if (Object const object = decode(typed.kind, header))
        typed.value = valueOf(typed.kind, object.get());
    else
        typed.problem = problemOf(typed.kind, header);
    return typed;
}

} // namespace inspect
