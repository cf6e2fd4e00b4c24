// Raw headers as the units that keep them see them.
#pragma once

#include <co/co_member.hpp>
#include <co/co_vector.hpp>
#include <quill/quill_internal.h>

struct quillMessageHeader : coObj {
    static constexpr auto &sort = quill___sort_QUILL_MESSAGE_HEADER;

    co::Slot<coString> name;  // never null, in its normal form
    co::Slot<coVector> lines; // never null, of strings

    static constexpr auto members() { return std::tuple(&quillMessageHeader::name, &quillMessageHeader::lines); }
    static constexpr auto comparison() { return members(); }
};

namespace quill {

// A header without lines; the name is in its normal form already.
struct quillMessageHeader *makeMessageHeader(coString *normalName);

// The normal form of a name in UTF-8, as of the string of it, which is not made where the name is a token.
coString *normalizeHeaderName(char const *name, int64_t length);

} // namespace quill
