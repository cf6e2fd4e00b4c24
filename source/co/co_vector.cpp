// Vectors. Contract: co_vector.h.

#define CO_UNIT "source/co/co_vector"

#include <algorithm>
#include <co/co_assert.hpp>
#include <co/co_family.hpp>
#include <co/co_string.hpp>
#include <co/co_vector.hpp>
#include <cstring>

static int64_t sizeOfItems(int64_t capacity) { return capacity * static_cast<int64_t>(sizeof(coObj *)); }

static void freeItems(coVector *vector) {
    if (vector->items != vector->few) co::freeBlock(vector->items, sizeOfItems(vector->capacity));
}

static void freeVector(coObj *obj) {
    auto *vector = static_cast<coVector *>(obj);
    for (int64_t i = 0; i < vector->length; i++) co::release(vector->at(i));
    freeItems(vector);
    vector->items = co::released<coObj *>();
}

static int compareVectors(coObj const *objA, coObj const *objB) {
    auto const *a = static_cast<coVector const *>(objA);
    auto const *b = static_cast<coVector const *>(objB);
    for (int64_t i = 0; i < a->length && i < b->length; i++)
        if (int order = co::compare(a->at(i), b->at(i))) return order;
    return (a->length > b->length) - (a->length < b->length);
}

static coString *stringOfVector(coObj const *obj) {
    auto const *vector = static_cast<coVector const *>(obj);
    coString *text = coStringCreate();
    co::append(&text, U"[");
    for (int64_t i = 0; i < vector->length; i++) {
        if (i > 0) co::append(&text, U", ");
        co::Ref<coString> const element(coObjToString(vector->at(i)));
        co::append(&text, element->view());
    }
    co::append(&text, U"]");
    return text;
}

constinit coSort const co___sort_CO_VECTOR{&co___sort_CO_SORT, &co___module,   "CO_VECTOR",     freeVector,
                                           compareVectors,     stringOfVector, sizeof(coVector)};

CO_DEFINE_FAMILY(coVector, co___sort_CO_VECTOR)

constinit coVector co::emptyVector{{&co___sort_CO_VECTOR, immortal}, nullptr, 0, 0, 0, {}};

static coVector *makeVector(int64_t capacity) {
    auto *vector = static_cast<coVector *>(co::allocateObject(sizeof(coVector), &co___sort_CO_VECTOR));
    bool const isFew = capacity <= coVector::fewItems;
    vector->items = isFew ? vector->few : static_cast<coObj **>(co::allocateBlock(sizeOfItems(capacity)));
    vector->head = 0;
    vector->length = 0;
    vector->capacity = isFew ? coVector::fewItems : capacity;
    return vector;
}

struct coVector *coVectorCreate(void) {
    return makeVector(0);
}

int64_t coVectorLength(struct coVector const *vector) {
    CO_ASSERT_GIVEN(vector);
    return vector->length;
}

static void assertIndex(coVector const *vector, int64_t index) {
    CO_ASSERT(index >= 0 && index < vector->length, "index >= 0 && index < coVectorLength( vector )");
}

struct coObj *coVectorObjAt(struct coVector const *vector, int64_t index) {
    CO_ASSERT_GIVEN(vector);
    assertIndex(vector, index);
    return co::retained(vector->at(index));
}

bool coVectorContainsOnly(struct coVector const *vector, struct coSort const *sort) {
    CO_ASSERT_GIVEN(vector);
    CO_ASSERT_GIVEN(sort);
    for (int64_t i = 0; i < vector->length; i++)
        if (vector->at(i)->itsSort != sort) return false;
    return true;
}

// Copy on write: a private vector that shares the elements, with room for some more.
static coVector *writable(coVector **vector) {
    coVector *old = *vector;
    if (co::isUnique(old)) return old;
    coVector *copy = makeVector(old->length);
    for (int64_t i = 0; i < old->length; i++) copy->items[i] = co::retained(old->at(i));
    copy->length = old->length;
    *vector = copy;
    co::release(old);
    return copy;
}

[[gnu::noinline]] static void grow(coVector *vector, int64_t spare, int64_t head) {
    auto *items = static_cast<coObj **>(co::allocateBlock(sizeOfItems(vector->length + spare)));
    std::copy_n(vector->items + vector->head, vector->length, items + head);
    freeItems(vector);
    vector->items = items;
    vector->head = head;
    vector->capacity = vector->length + spare;
}

// The elements to another place of the same array.
static void moveTo(coVector *vector, int64_t head) {
    std::memmove(vector->items + head, vector->items + vector->head,
                 static_cast<size_t>(vector->length) * sizeof(coObj *));
    vector->head = head;
}

// Makes room for one more element at one end, so that an addition is amortised constant: where half as many elements as
// there are have room at the other end, that room is divided between both, or else the array is doubled.
static void reserve(coVector *vector, bool atFront) {
    if (atFront ? vector->head > 0 : vector->head + vector->length < vector->capacity) return;
    int64_t const spare = vector->capacity - vector->length;
    if (spare > 0 && spare >= vector->length / 2) return moveTo(vector, atFront ? (spare + 1) / 2 : spare / 2);
    int64_t const more = vector->length + coVector::fewItems;
    grow(vector, more, atFront ? more : 0);
}

static void insert(coVector **reference, int64_t index, coObj *taken) {
    coVector *vector = writable(reference);
    bool const atFront = index < vector->length - index;
    reserve(vector, atFront);
    coObj **first = vector->items + vector->head;
    if (atFront) {
        std::copy(first, first + index, first - 1);
        vector->head--;
    } else {
        std::copy_backward(first + index, first + vector->length, first + vector->length + 1);
    }
    vector->length++;
    vector->items[vector->head + index] = taken;
}

void co::appendTaken(coVector **vector, coObj *obj) { insert(vector, (*vector)->length, obj); }

void coVectorAppend(struct coVector **vector, struct coObj *obj) {
    CO_ASSERT_REFERENCE(vector);
    CO_ASSERT_GIVEN(obj);
    co::appendTaken(vector, co::retained(obj));
}

void coVectorAppendString(struct coVector **vector, struct coString *string) {
    CO_ASSERT_REFERENCE(vector);
    CO_ASSERT_GIVEN(string);
    co::appendTaken(vector, co::retained(string));
}

void coVectorPrependString(struct coVector **vector, struct coString *string) {
    coVectorInsertString(vector, 0, string);
}

void coVectorInsertString(struct coVector **vector, int64_t index, struct coString *string) {
    CO_ASSERT_REFERENCE(vector);
    CO_ASSERT_GIVEN(string);
    CO_ASSERT(index >= 0 && index <= (*vector)->length, "index >= 0 && index <= coVectorLength( *vector )");
    insert(vector, index, co::retained(string));
}

void coVectorSetStringAt(struct coVector **vector, int64_t index, struct coString *string) {
    CO_ASSERT_REFERENCE(vector);
    CO_ASSERT_GIVEN(string);
    assertIndex(*vector, index);
    coVector *own = writable(vector);
    co::release(std::exchange(own->items[own->head + index], co::retained(string)));
}

void coVectorDelAt(struct coVector **vector, int64_t index) {
    CO_ASSERT_REFERENCE(vector);
    assertIndex(*vector, index);
    coVector *own = writable(vector);
    coObj **first = own->items + own->head;
    coObj *removed = first[index];
    if (index < own->length - 1 - index) {
        std::copy_backward(first, first + index, first + index + 1);
        own->head++;
    } else {
        std::copy(first + index + 1, first + own->length, first + index);
    }
    own->length--;
    co::release(removed);
}

void coVectorDelLeading(struct coVector **vector, int64_t count) {
    CO_ASSERT_REFERENCE(vector);
    CO_ASSERT(count >= 0 && count <= (*vector)->length, "count >= 0 && count <= coVectorLength( *vector )");
    coVector *own = writable(vector);
    for (; count > 0; count--) {
        own->length--;
        co::release(own->items[own->head++]);
    }
    if (own->length == 0) own->head = 0;
}

void coVectorClear(struct coVector **vector) {
    CO_ASSERT_REFERENCE(vector);
    if (co::isUnique(*vector))
        coVectorDelLeading(vector, (*vector)->length);
    else
        co::release(std::exchange(*vector, makeVector(0)));
}
