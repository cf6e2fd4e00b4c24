// Members of objects. Contract: co_member.hpp.

#define CO_UNIT "source/co/co_member"

#include <co/co_member.hpp>
#include <co/co_simd.hpp>
#include <cstring>

namespace co {

void *makeZeroed(coSort const *sort, int64_t lineLength) {
    void *mem = allocateObject(sort->size + lineLength * static_cast<int64_t>(sizeof(coChar)), sort);
    simd::clearWords(static_cast<char *>(mem) + sizeof(coObj), (static_cast<size_t>(sort->size) - sizeof(coObj)) / 8);
    return mem;
}

void *copyBytes(coObj const *source) {
    int64_t const size = sizeOf(source);
    auto *obj = static_cast<coObj *>(allocateObject(size, source->itsSort));
    std::memcpy(static_cast<void *>(obj + 1), source + 1, static_cast<size_t>(size) - sizeof(coObj));
    return obj;
}

void freeMemory(coObj *obj, int64_t size) { freeBlock(obj, size); }

void retainMember(coObj const *member) { retain(member); }
void releaseMember(coObj *member) { release(member); }

} // namespace co
