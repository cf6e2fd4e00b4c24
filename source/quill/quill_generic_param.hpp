// One generic parameter as the collection of them sees it.
#pragma once

#include <co/co_member.hpp>
#include <quill/quill_generic_param.h>
#include <quill/quill_internal.h>

struct quillGenericParam : co::WithLine {
    static constexpr auto &sort = quill___sort_QUILL_GENERIC_PARAM;

    co::TextSlot name;  // never absent, lower case
    co::Int valueType;  // -1 exactly when there is no value
    co::TextSlot value; // as given

    static constexpr auto members() {
        return std::tuple(&quillGenericParam::name, &quillGenericParam::valueType, &quillGenericParam::value);
    }
};

namespace quill {

// A new parameter of a name and a value that are valid; a type of -1 for no value.
struct quillGenericParam *makeGenericParam(co::Chars name, int64_t valueType, co::Chars value);

// One parameter, read at the start of a text, which then goes on behind it; null where there is none.
struct quillGenericParam *readGenericParam(co::Chars *text);

// Appends the wire text of one parameter, with what is to stand before it.
void appendGenericParam(coString **text, co::Chars before, struct quillGenericParam const *param);

} // namespace quill
