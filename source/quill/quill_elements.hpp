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
    static constexpr size_t references = 3;

    bool arePieces() const { return pieceCount > 0; }
    int64_t count() const { return strings ? strings->length : pieceCount; }
    // The text of an element, and a string of it, owned by the caller. There must be such an element.
    co::Chars view(int64_t index) const;
    coString *string(int64_t index) const;
    // All of them, owned by the caller; a vector of a header's own is shared.
    coVector *vector() const;

    // What the first element was read as, a value; null where it has to be read.
    coObj *first() const { return firstValue; }
    void adoptFirst(coObj *value) {
        if (coObj *old = std::exchange(firstValue, value)) co::release(old);
    }
    // The same of an empty list, of which it then is the only element, a text that begins its line.
    void adoptOnly(coObj *value, int64_t length);

    // The vector, to be changed. The elements are strings from then on.
    coVector **writable();
    void clear();

    // Appends a text that was read: as a piece where it stands in the room behind the object, or as a string.
    void append(co::Chars text, bool standsInRoom);

    // Element by element; the shorter list of two that begin alike comes first.
    int compare(Elements const &other) const;

private:
    static constexpr int64_t fewPieces = 8;

    bool isPiece(int64_t index) const { return !strings && index >= 0 && index < pieceCount; }
    co::Chars piece(int64_t index) const;
    co::Piece *placeOfNext();

    // These three come first: they are the references.
    coVector *strings; // null while the elements are pieces
    coObj *firstValue;
    Pieces *more; // of many; those of a copy are the same
    int64_t pieceCount;
    co::Piece few[fewPieces]; // from the list's member; at no distance what begins the line of the first value
};

} // namespace quill
