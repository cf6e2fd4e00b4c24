// Buffers. Contract: co_buffer.h.

#define CO_UNIT "source/co/co_buffer"

#include <algorithm>
#include <co/co_assert.hpp>
#include <co/co_buffer.hpp>
#include <co/co_family.hpp>
#include <co/co_memory.h>
#include <co/co_string.hpp>
#include <cstring>
#include <utility>

static uint8_t *inlineBytes(coBuffer const *buffer) {
    return reinterpret_cast<uint8_t *>(const_cast<coBuffer *>(buffer) + 1);
}

static void freeBytes(coBuffer *buffer) {
    if (buffer->lender)
        co::release(std::exchange(buffer->lender, nullptr));
    else if (buffer->bytes != inlineBytes(buffer))
        coMemFree(buffer->bytes);
}

static void freeBuffer(coObj *obj) {
    auto *buffer = static_cast<coBuffer *>(obj);
    freeBytes(buffer);
    buffer->bytes = co::released<uint8_t>();
}

static int64_t sizeFor(int64_t capacity) { return static_cast<int64_t>(sizeof(coBuffer)) + capacity; }

// A buffer that outgrew its memory has forgotten how much that was.
static int64_t sizeOfBuffer(coObj const *obj) {
    auto const *buffer = static_cast<coBuffer const *>(obj);
    return buffer->bytes == inlineBytes(buffer) ? sizeFor(buffer->capacity) : 0;
}

static int compareBuffers(coObj const *objA, coObj const *objB) {
    // Characters of a string_view compare as unsigned bytes.
    int const order = static_cast<coBuffer const *>(objA)->view().compare(static_cast<coBuffer const *>(objB)->view());
    return (order > 0) - (order < 0);
}

static coString *stringOfBuffer(coObj const *obj) {
    auto const *buffer = static_cast<coBuffer const *>(obj);
    coString *text = co::makeString(2 * buffer->length);
    coChar *digit = text->chars();
    for (int64_t i = 0; i < buffer->length; i++) {
        uint8_t const byte = buffer->begin()[i];
        *digit++ = U"0123456789abcdef"[byte >> 4];
        *digit++ = U"0123456789abcdef"[byte & 0xF];
    }
    text->length = digit - text->chars();
    return text;
}

constinit coSort const co___sort_CO_BUFFER{&co___sort_CO_SORT, &co___module,   "CO_BUFFER", freeBuffer,
                                           compareBuffers,     stringOfBuffer, 0,           sizeOfBuffer};

CO_DEFINE_FAMILY(coBuffer, co___sort_CO_BUFFER)

static void copyBytes(uint8_t *to, uint8_t const *from, int64_t count) {
    if (count > 0) std::memcpy(to, from, static_cast<size_t>(count));
}

coBuffer *co::makeBuffer(int64_t capacity) {
    auto *buffer = static_cast<coBuffer *>(allocateObject(sizeFor(capacity), &co___sort_CO_BUFFER));
    buffer->bytes = inlineBytes(buffer);
    buffer->head = 0;
    buffer->length = 0;
    buffer->capacity = capacity;
    buffer->lender = nullptr;
    return buffer;
}

static coBuffer *bufferOf(uint8_t const *bytes, int64_t count, int64_t capacity) {
    coBuffer *buffer = co::makeBuffer(capacity);
    copyBytes(buffer->bytes, bytes, count);
    buffer->length = count;
    return buffer;
}

// Whether so much of a buffer is rather borrowed than copied: it is long, and most of what then lives on.
static bool isBorrowed(coBuffer const *buffer, int64_t count) {
    return count >= co::longBuffer && count >= buffer->heldSize() / 2;
}

static coBuffer *borrow(coBuffer const *from, int64_t offset, int64_t count) {
    coBuffer *buffer = co::makeBuffer(0);
    buffer->lender = co::retained(from->lender ? from->lender : from);
    buffer->bytes = from->bytes;
    buffer->head = from->head + offset;
    buffer->length = count;
    return buffer;
}

// A buffer that needs no bytes any more has none of a lender.
static void giveBack(coBuffer *buffer) {
    if (!buffer->lender) return;
    freeBytes(buffer);
    buffer->bytes = inlineBytes(buffer);
}

// Reading.

struct coBuffer *coBufferCreate(void) {
    return co::makeBuffer(0);
}

struct coBuffer *coBufferCreateFromBytesCopy(uint8_t const *bytes, int64_t count) {
    CO_ASSERT_TEXT(bytes, count);
    return bufferOf(bytes, count, count);
}

int64_t coBufferLength(struct coBuffer const *buffer) {
    CO_ASSERT_GIVEN(buffer);
    return buffer->length;
}

uint8_t const *coBufferBacking(struct coBuffer const *buffer) {
    CO_ASSERT_GIVEN(buffer);
    return buffer->begin();
}

// Whether the dropped room before the bytes may be taken back by moving them: each dropped byte pays for the move of
// one that is left.
static bool canMoveToFront(coBuffer const *buffer) { return buffer->head >= buffer->length; }

int64_t coBufferSpace(struct coBuffer const *buffer) {
    CO_ASSERT_GIVEN(buffer);
    if (!co::isUnique(buffer) || buffer->lender) return 0; // to be copied first
    return buffer->capacity - buffer->length - (canMoveToFront(buffer) ? 0 : buffer->head);
}

static void assertRange(coBuffer const *buffer, int64_t offset, int64_t count) {
    CO_ASSERT(offset >= 0 && offset <= buffer->length, "offset >= 0 && offset <= coBufferLength( buffer )");
    CO_ASSERT(count >= 0 && count <= buffer->length - offset,
              "count >= 0 && count <= coBufferLength( buffer ) - offset");
}

struct coBuffer *coBufferRead(struct coBuffer const *buffer, int64_t offset, int64_t count) {
    CO_ASSERT_GIVEN(buffer);
    assertRange(buffer, offset, count);
    return bufferOf(buffer->begin() + offset, count, count);
}

// Appending.

static void moveToFront(coBuffer *buffer) {
    copyBytes(buffer->bytes, buffer->begin(), buffer->length); // no overlap: there is as much room as there are bytes
    buffer->head = 0;
}

static void grow(coBuffer *buffer, int64_t capacity) {
    auto *bytes = static_cast<uint8_t *>(coMemAllocN(capacity, 1));
    copyBytes(bytes, buffer->begin(), buffer->length);
    freeBytes(buffer);
    buffer->bytes = bytes;
    buffer->head = 0;
    buffer->capacity = capacity;
}

// Room for as much again, so that an addition is amortised constant and a message that comes in pieces moves seldom; none to
// spare where nothing is added.
static int64_t capacityFor(int64_t length, int64_t more) {
    return more == 0 ? length : std::max(length + more, 2 * length + 32);
}

// Gives the buffer room that it does not have.
static void makeSpace(coBuffer **reference, int64_t more) {
    coBuffer *buffer = *reference;
    if (!co::isUnique(buffer)) {
        *reference = bufferOf(buffer->begin(), buffer->length, capacityFor(buffer->length, more));
        co::release(buffer);
    } else if (canMoveToFront(buffer) && buffer->capacity - buffer->length >= more) {
        moveToFront(buffer);
    } else {
        grow(buffer, capacityFor(buffer->length, more));
    }
}

uint8_t *co::appendSpace(coBuffer **buffer, int64_t more) {
    if (!(*buffer)->hasSpace(more)) makeSpace(buffer, more);
    return (*buffer)->end();
}

// The bytes may be some of the buffer's own: these are found again, by their offset, where the buffer has moved to.
void co::appendWithMoreSpace(coBuffer **buffer, std::string_view bytes) {
    auto const *source = reinterpret_cast<uint8_t const *>(bytes.data());
    auto const offset = reinterpret_cast<uintptr_t>(source) - reinterpret_cast<uintptr_t>((*buffer)->begin());
    auto const length = static_cast<uintptr_t>((*buffer)->length);
    bool const own = offset < length && bytes.size() <= length - offset; // not what a lender has behind them
    makeSpace(buffer, static_cast<int64_t>(bytes.size()));
    appendInPlace(*buffer, own ? (*buffer)->view().substr(offset, bytes.size()) : bytes);
}

// A long part is borrowed where there is nothing to put it behind.
static void appendPart(coBuffer **buffer, coBuffer const *other, int64_t offset, int64_t count) {
    if (!isBorrowed(other, count) || (*buffer)->length > 0)
        return co::append(buffer,
                          {reinterpret_cast<char const *>(other->begin() + offset), static_cast<size_t>(count)});
    coBuffer *borrowed = borrow(other, offset, count);
    co::release(std::exchange(*buffer, borrowed));
}

void coBufferAppend(struct coBuffer **buffer, struct coBuffer const *other) {
    CO_ASSERT_REFERENCE(buffer);
    CO_ASSERT_GIVEN(other);
    appendPart(buffer, other, 0, other->length);
}

void coBufferAppendByte(struct coBuffer **buffer, uint8_t byte) {
    CO_ASSERT_REFERENCE(buffer);
    *co::appendSpace(buffer, 1) = byte;
    (*buffer)->length++;
}

void coBufferAppendBytes(struct coBuffer **buffer, uint8_t const *bytes, int64_t count) {
    CO_ASSERT_REFERENCE(buffer);
    CO_ASSERT_TEXT(bytes, count);
    co::append(buffer, {reinterpret_cast<char const *>(bytes), static_cast<size_t>(count)});
}

static void assertRangeOfOther(coBuffer const *other, int64_t offset, int64_t count) {
    CO_ASSERT_GIVEN(other);
    CO_ASSERT(offset >= 0 && offset <= other->length, "offset >= 0 && offset <= coBufferLength( other )");
    CO_ASSERT(count >= 0 && count <= other->length - offset, "count >= 0 && count <= coBufferLength( other ) - offset");
}

static void assertCountOfOther(coBuffer const *other, int64_t count) {
    CO_ASSERT_GIVEN(other);
    CO_ASSERT(count >= 0 && count <= other->length, "count >= 0 && count <= coBufferLength( other )");
}

void coBufferAppendInner(struct coBuffer **buffer, struct coBuffer const *other, int64_t offset, int64_t count) {
    CO_ASSERT_REFERENCE(buffer);
    assertRangeOfOther(other, offset, count);
    appendPart(buffer, other, offset, count);
}

void coBufferAppendLeading(struct coBuffer **buffer, struct coBuffer const *other, int64_t count) {
    CO_ASSERT_REFERENCE(buffer);
    assertCountOfOther(other, count);
    appendPart(buffer, other, 0, count);
}

void coBufferAppendTrailing(struct coBuffer **buffer, struct coBuffer const *other, int64_t count) {
    CO_ASSERT_REFERENCE(buffer);
    assertCountOfOther(other, count);
    appendPart(buffer, other, other->length - count, count);
}

void coBufferAppendOuter(struct coBuffer **buffer, struct coBuffer const *other, int64_t offset, int64_t count) {
    CO_ASSERT_REFERENCE(buffer);
    assertRangeOfOther(other, offset, count);
    bool const own = other == *buffer;
    int64_t const length = other->length;
    int64_t const rest = length - offset - count;
    uint8_t *room = co::appendSpace(buffer, offset + rest);
    uint8_t const *source = own ? (*buffer)->begin() : other->begin();
    copyBytes(room, source, offset);
    copyBytes(room + offset, source + length - rest, rest);
    (*buffer)->length += offset + rest;
}

// Dropping.

// A shared buffer is left to its other holders, and only what is kept is copied.
static void keep(coBuffer **reference, int64_t offset, int64_t count) {
    coBuffer *buffer = *reference;
    if (!co::isUnique(buffer)) {
        *reference = isBorrowed(buffer, count) ? borrow(buffer, offset, count)
                                               : bufferOf(buffer->begin() + offset, count, count);
        co::release(buffer);
        return;
    }
    if (count == 0) giveBack(buffer);
    buffer->head = count == 0 ? 0 : buffer->head + offset;
    buffer->length = count;
}

void coBufferDelLeading(struct coBuffer **buffer, int64_t count) {
    CO_ASSERT_REFERENCE(buffer);
    CO_ASSERT(count >= 0 && count <= (*buffer)->length, "count >= 0 && count <= coBufferLength( *buffer )");
    keep(buffer, count, (*buffer)->length - count);
}

void coBufferDelOuter(struct coBuffer **buffer, int64_t offset, int64_t count) {
    CO_ASSERT_REFERENCE(buffer);
    assertRange(*buffer, offset, count);
    keep(buffer, offset, count);
}
