// The elements of a list header. Contract: quill_elements.hpp.

#include <algorithm>
#include <quill/quill_elements.hpp>
#include <quill/quill_family.hpp>

namespace quill {

// The pieces behind the first few. Nobody else has them while they grow.
struct Pieces : coObj {
    static coSort const sort;

    int64_t capacity;

    co::Piece *all() { return reinterpret_cast<co::Piece *>(this + 1); }
    static int64_t sizeFor(int64_t capacity) {
        return static_cast<int64_t>(sizeof(Pieces)) + capacity * static_cast<int64_t>(sizeof(co::Piece));
    }
};

static int64_t sizeOfPieces(coObj const *obj) { return Pieces::sizeFor(static_cast<Pieces const *>(obj)->capacity); }

constinit coSort const Pieces::sort{&co___sort_CO_SORT, &quill___module, "QUILL_PIECES", nullptr, nullptr, nullptr, 0,
                                    sizeOfPieces};

// With the pieces of an old one, which is given up; null for none.
static Pieces *makePieces(int64_t capacity, Pieces *old) {
    auto *pieces = static_cast<Pieces *>(co::allocateObject(Pieces::sizeFor(capacity), &Pieces::sort));
    pieces->capacity = capacity;
    if (!old) return pieces;
    std::copy(old->all(), old->all() + old->capacity, pieces->all());
    co::release(old);
    return pieces;
}

co::Chars Elements::piece(int64_t index) const {
    return (index < fewPieces ? few[index] : more->all()[index - fewPieces]).from(this);
}

void Elements::dropFirst() {
    if (coObj const *value = first()) value->itsSort->freeFunc(const_cast<coObj *>(value));
    firstDistance = 0;
}

co::Piece *Elements::placeOfNext() {
    int64_t const index = pieceCount++;
    if (index < fewPieces) return &few[index];
    int64_t const capacity = more ? more->capacity : 0;
    if (index - fewPieces == capacity) more = makePieces(capacity ? capacity * 2 : 4 * fewPieces, more);
    return &more->all()[index - fewPieces];
}

co::Chars Elements::view(int64_t index) const {
    if (isPiece(index)) return piece(index);
    co::Ref<coString> const kept(string(index));
    return kept->view(); // the vector keeps it, too
}

coString *Elements::string(int64_t index) const {
    if (isPiece(index)) return co::makeString(piece(index));
    co::Ref<coVector> const all(vector());
    return coStringFrom(coVectorObjAt(all.get(), index)); // aborts where there is none
}

coVector *Elements::vector() const {
    if (strings) return co::retained(strings);
    coVector *all = coVectorCreate();
    for (int64_t i = 0; i < pieceCount; i++) co::appendTaken(&all, co::header(co::makeString(piece(i))));
    return all;
}

coVector **Elements::writable() {
    if (!strings) strings = vector();
    pieceCount = 0;
    if (Pieces *old = std::exchange(more, nullptr)) co::release(old);
    dropFirst();
    return &strings;
}

void Elements::clear() { coVectorClear(writable()); }

int Elements::compare(Elements const &other) const {
    int64_t const common = std::min(count(), other.count());
    for (int64_t i = 0; i < common; i++)
        if (int const order = view(i).compare(other.view(i))) return order < 0 ? -1 : 1;
    return (count() > other.count()) - (count() < other.count());
}

} // namespace quill
