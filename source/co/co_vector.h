/// @file
/// Vectors: sequences of object references, indexed from 0. Setters are copy on write.
#ifndef CO_CO_VECTOR_H
#define CO_CO_VECTOR_H

#include <co/co_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
CO_API struct coSort const *coVectorSort(void);
CO_API void coVectorRetain(struct coVector *obj);
CO_API void coVectorRelease(struct coVector *obj);
CO_API struct coObj *coVectorObj(struct coVector const *obj);
CO_API struct coVector *coVectorFrom(struct coObj const *obj);
/// The elements' texts in brackets, separated by a comma and a blank: `[a, b]`.
CO_API struct coString *coVectorToString(struct coVector const *obj);
/// Element by element; a beginning comes before the whole.
CO_API int coVectorCompare(struct coVector const *objA, struct coVector const *objB);
CO_API bool coVectorEquals(struct coVector const *objA, struct coVector const *objB);
/// @}

CO_API struct coVector *coVectorCreate(void);
CO_API int64_t coVectorLength(struct coVector const *vector);
/// Element @p index, retained.
CO_API struct coObj *coVectorObjAt(struct coVector const *vector, int64_t index);
/// Whether every element is of the sort; true of an empty vector.
CO_API bool coVectorContainsOnly(struct coVector const *vector, struct coSort const *sort);

CO_API void coVectorAppend(struct coVector **vector, struct coObj *obj);
CO_API void coVectorAppendString(struct coVector **vector, struct coString *string);
CO_API void coVectorPrependString(struct coVector **vector, struct coString *string);
/// Before element @p index; at the end when it is the length.
CO_API void coVectorInsertString(struct coVector **vector, int64_t index, struct coString *string);
CO_API void coVectorSetStringAt(struct coVector **vector, int64_t index, struct coString *string);
CO_API void coVectorDelAt(struct coVector **vector, int64_t index);
/// Removes the first @p count elements; there must be as many.
CO_API void coVectorDelLeading(struct coVector **vector, int64_t count);
CO_API void coVectorClear(struct coVector **vector);

CO_EXTERN_C_END

#endif
