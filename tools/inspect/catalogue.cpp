#include "catalogue.hpp"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <quill/quill_typed_header.h>

namespace inspect {
namespace {

/// Calls @p use with each typed header.
template <class Use> void eachKind(Use use) {
    for (int64_t i = 0; i < quillTypedHeadersLength(); i++) use(quillTypedHeaderAt(i));
}

std::string shapeName(quillTypedHeader const *kind) {
    switch (kind->shape) {
    case QUILL_TYPED_HEADER_LIST:
        return "list";
    case QUILL_TYPED_HEADER_SET:
        return "set";
    case QUILL_TYPED_HEADER_VALUE:
        return "value";
    default:
        return "shape " + std::to_string(kind->shape);
    }
}

void appendPadded(std::string &text, std::string const &word, size_t width) {
    text += word;
    text.append(width - std::min(width, word.size()) + 2, ' ');
}

} // namespace

std::string catalogueText() {
    size_t names = 0, shapes = 0;
    eachKind([&](quillTypedHeader const *kind) {
        names = std::max(names, std::string_view(kind->name).size());
        shapes = std::max(shapes, shapeName(kind).size());
    });
    std::string text;
    eachKind([&](quillTypedHeader const *kind) {
        appendPadded(text, kind->name, names);
        appendPadded(text, shapeName(kind), shapes);
        text += kind->definition;
        text += '\n';
    });
    return text;
}

std::string catalogueJson() {
    std::string text;
    eachKind([&](quillTypedHeader const *kind) {
        nlohmann::ordered_json const json = {
            {"name", kind->name}, {"shape", shapeName(kind)}, {"definition", kind->definition}};
        text += json.dump() + '\n';
    });
    return text;
}

} // namespace inspect
