// Members of objects. Contract: co_member.hpp.

#define CO_UNIT "source/co/co_member"

#include <bit>
#include <co/co_member.hpp>
#include <co/co_simd.hpp>
#include <cstring>
#include <functional>

namespace co {

void *makeZeroed(coSort const *sort, int64_t lineLength) {
    void *mem = allocateObject(sort->size + lineLength * static_cast<int64_t>(sizeof(coChar)), sort);
    simd::clearWords(static_cast<char *>(mem) + sizeof(coObj), (static_cast<size_t>(sort->size) - sizeof(coObj)) / 8);
    return mem;
}

// Where the lowest of the references stands; each slot has a type of its own, so they are moved as bytes.
static void *placeOfLowest(void *obj, uint64_t references) {
    return static_cast<char *>(obj) + sizeof(void *) * static_cast<size_t>(std::countr_zero(references));
}
static uint64_t withoutLowest(uint64_t references) { return references & (references - 1); }

void *copyObject(coObj const *source, uint64_t references) {
    int64_t const size = sizeOf(source);
    auto *obj = static_cast<coObj *>(allocateObject(size, source->itsSort));
    std::memcpy(static_cast<void *>(obj + 1), source + 1, static_cast<size_t>(size) - sizeof(coObj));
    for (; references; references = withoutLowest(references)) {
        coObj *member;
        std::memcpy(&member, placeOfLowest(obj, references), sizeof member);
        if (member) retain(member);
    }
    return obj;
}

void freeReferences(coObj *obj, uint64_t references) {
    coObj *const none = released<coObj>();
    for (; references; references = withoutLowest(references)) {
        coObj *member;
        std::memcpy(&member, placeOfLowest(obj, references), sizeof member);
        std::memcpy(placeOfLowest(obj, references), &none, sizeof none);
        if (member) release(member);
    }
}

void keepText(WithLine const *obj, coChar const *line, TextSlot *slot, Chars text) {
    std::less_equal<> const before; // also of places in different blocks
    bool const isPiece =
        before(line, text.data()) && before(text.data(), line + obj->lineLength) && obj->lineLength <= longestLine;
    if (isPiece)
        slot->setPiece(text);
    else
        slot->adopt(makeString(text));
}

} // namespace co
