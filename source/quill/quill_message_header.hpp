// Raw headers as the units that keep them see them.
#pragma once

#include <co/co_member.hpp>
#include <co/co_vector.hpp>
#include <quill/quill_elements.hpp>
#include <quill/quill_field_name.hpp>
#include <quill/quill_internal.h>

namespace quill {

// The lines of a raw header: strings in a vector, or the elements of a typed list that wrote it and has them as pieces of
// what it read. The list is kept, so that nothing changes it, and no string is made of a line that nobody asks for.
class HeaderLines {
public:
    static constexpr size_t references = 2;

    int64_t length() const { return strings ? strings->length : elements->count(); }
    // The text of a line, and a string of it, owned by the caller. There must be such a line.
    co::Chars view(int64_t index) const {
        return strings ? co::stringAt(strings, index)->view() : elements->view(index);
    }
    coString *string(int64_t index) const;
    // All of them, owned by the caller.
    coVector *vector() const { return strings ? co::retained(strings) : elements->vector(); }

    void set(coVector *lines);
    void set(coObj *elementsOwner, Elements const *pieces);
    coVector **writable(); // strings from then on
    int compare(HeaderLines const &other) const;

private:
    // These two come first: they are the references.
    coVector *strings; // null while the lines are elements
    coObj *owner;      // of the elements
    Elements const *elements;
};

} // namespace quill

struct quillMessageHeader : coObj {
    static constexpr auto &sort = quill___sort_QUILL_MESSAGE_HEADER;

    co::Slot<coString> name; // never null, in its normal form
    quill::HeaderLines lines;

    static constexpr auto members() { return std::tuple(&quillMessageHeader::name, &quillMessageHeader::lines); }
    static constexpr auto comparison() { return members(); }
};

namespace quill {

// A header without lines; the name is in its normal form already.
struct quillMessageHeader *makeMessageHeader(coString *normalName);

// A name that a header is looked up by. A text that is none aborts, as quillMessageHeaderNameNormalize does.
class HeaderName {
public:
    explicit HeaderName(coString const *name);
    HeaderName(char const *name, int64_t length);

    operator FieldName() const { return field; }

private:
    FieldName field;
    co::Ref<coString> normal; // of one that was given as a string
};

} // namespace quill
