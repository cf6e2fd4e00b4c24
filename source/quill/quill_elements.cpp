// The elements of a list header. Contract: quill_elements.hpp.

#include <algorithm>
#include <quill/quill_elements.hpp>

namespace quill {

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
    adoptFirst(nullptr);
    return &strings;
}

void Elements::clear() { coVectorClear(writable()); }

void Elements::append(co::Chars text, bool standsInRoom) {
    if (strings || pieceCount == mostPieces || !standsInRoom)
        co::appendTaken(writable(), co::header(co::makeString(text)));
    else
        pieces[pieceCount++] = {static_cast<uint32_t>(text.data() - base()), static_cast<uint32_t>(text.size())};
}

int Elements::compare(Elements const &other) const {
    int64_t const common = std::min(count(), other.count());
    for (int64_t i = 0; i < common; i++)
        if (int const order = view(i).compare(other.view(i))) return order < 0 ? -1 : 1;
    return (count() > other.count()) - (count() < other.count());
}

} // namespace quill
