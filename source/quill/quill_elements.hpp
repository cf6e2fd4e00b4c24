// The elements of a list header: texts.
//
// Those of a header that was read are pieces of the text behind it; a string is made of one when somebody asks for it.
// Those of a list that was changed are strings in a vector.
#pragma once

#include <co/co_member.hpp>
#include <co/co_vector.hpp>

namespace quill {

struct Pieces;

class Elements {
public:
    static constexpr size_t references = 2;

    bool arePieces() const { return pieceCount > 0; }
    int64_t count() const { return strings ? strings->length : pieceCount; }
    // The text of an element, and a string of it, owned by the caller. There must be such an element.
    co::Chars view(int64_t index) const;
    coString *string(int64_t index) const;
    // All of them, owned by the caller; a vector of a header's own is shared.
    coVector *vector() const;

    // The value that the first element was read as, which stands in the room behind the header; null where it has to be
    // read.
    coObj const *first() const { return firstDistance ? valueAt(firstDistance) : nullptr; }
    void setFirst(coObj const *value) { firstDistance = reinterpret_cast<char const *>(value) - place(); }
    void onCopied() { firstDistance = 0; } // a copy reads it anew
    void dropFirst();
    void onFreed() { dropFirst(); }

    // The vector, to be changed. The elements are strings from then on.
    coVector **writable();
    void clear();

    // Appends a text that stands in the room behind the header to a list of such.
    void appendPiece(co::Chars text) { *placeOfNext() = co::Piece::of(text, this); }

    // Element by element; the shorter list of two that begin alike comes first.
    int compare(Elements const &other) const;

private:
    static constexpr int64_t fewPieces = 8;

    char const *place() const { return reinterpret_cast<char const *>(this); }
    coObj const *valueAt(int64_t distance) const { return reinterpret_cast<coObj const *>(place() + distance); }
    bool isPiece(int64_t index) const { return !strings && index >= 0 && index < pieceCount; }
    co::Chars piece(int64_t index) const;
    co::Piece *placeOfNext();

    // These two come first: they are the references.
    coVector *strings; // null while the elements are pieces
    Pieces *more;      // of many; those of a copy are the same
    int64_t pieceCount;
    int64_t firstDistance;    // of the value, in bytes; 0 for none
    co::Piece few[fewPieces]; // from the list's member
};

} // namespace quill
