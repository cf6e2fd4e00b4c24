// Generic parameters as the values that hold them see them.
#pragma once

#include <co/co_member.hpp>
#include <quill/quill_generic_params.h>

namespace quill {

// The generic parameters of a value: a collection, or a piece of the line that the value was read from, of which a
// collection is made for whoever asks. Without either there are no parameters.
class ParamsSlot {
public:
    static constexpr size_t references = 1;

    struct quillGenericParams *retained() const;
    void set(struct quillGenericParams *value) { adopt(co::retained(value)); }
    void adopt(struct quillGenericParams *value);

    // Takes one parameter at the start of the text, which goes on behind a separator; returns how many code points it is,
    // 0 where there is none. `line` is what the value was read from and keeps, empty where it keeps none.
    int64_t take(co::Chars line, co::Chars text, int64_t separator);

    int compare(ParamsSlot const &other) const;

private:
    bool takePlain(co::Chars line, co::Chars text, int64_t count);

    struct quillGenericParams *params; // null while they are a piece, or none
    co::Piece piece;                   // from this slot
};

// Appends the wire text of all parameters but those of some names, which are in lower case.
void appendGenericParams(coString **text, struct quillGenericParams const *params, co::Chars const *without = nullptr,
                         size_t count = 0);

} // namespace quill
