// How each typed header is taken apart.
#ifndef QUILL_INSPECT_PARTS_HPP
#define QUILL_INSPECT_PARTS_HPP

#include "typed.hpp"
#include <span>
#include <string_view>

namespace inspect {

/// How the parts of one typed header are read; the type as the registry calls it: "CallId".
struct Reader {
    std::string_view type;
    Value (*read)(coObj const *object);
};

/// One for each typed header.
std::span<Reader const> readers();

/// What a decoded header of this kind says.
Value valueOf(quillTypedHeader const *kind, coObj const *object);

} // namespace inspect

#endif
