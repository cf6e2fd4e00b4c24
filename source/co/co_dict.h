/// @file
/// Dictionaries: maps from string keys to objects, in the order in which the keys came.
///
/// Setting a key that is there keeps its place; deleting a key keeps the others' order. A look-up takes expected
/// constant time whatever the keys are: their hashes depend on a number that each process draws at random. Setters are
/// copy on write.
#ifndef CO_CO_DICT_H
#define CO_CO_DICT_H

#include <co/co_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
CO_API struct coSort const *coDictSort(void);
CO_API void coDictRetain(struct coDict *obj);
CO_API void coDictRelease(struct coDict *obj);
CO_API struct coObj *coDictObj(struct coDict const *obj);
CO_API struct coDict *coDictFrom(struct coObj const *obj);
/// Keys and values in braces: `{a: 1, b: 2}`.
CO_API struct coString *coDictToString(struct coDict const *obj);
/// Without regard to the order of insertion: the sorted keys first, as a sequence, then the values in that order.
CO_API int coDictCompare(struct coDict const *objA, struct coDict const *objB);
CO_API bool coDictEquals(struct coDict const *objA, struct coDict const *objB);
/// @}

CO_API struct coDict *coDictCreate(void);
CO_API int64_t coDictLength(struct coDict const *dict);
/// The key and the value at a position, retained.
CO_API struct coString *coDictKeyAt(struct coDict const *dict, int64_t index);
CO_API struct coObj *coDictValueAt(struct coDict const *dict, int64_t index);
CO_API struct coVector *coDictKeysVector(struct coDict const *dict);
CO_API struct coVector *coDictValuesVector(struct coDict const *dict);

/// The value of a key, retained; null when there is none.
CO_API struct coObj *coDictStringKey(struct coDict const *dict, struct coString const *key);
CO_API bool coDictHasStringKey(struct coDict const *dict, struct coString const *key);
CO_API void coDictSetStringKey(struct coDict **dict, struct coString *key, struct coObj *value);
/// A key that is not there is no fault.
CO_API void coDictDelStringKey(struct coDict **dict, struct coString const *key);
CO_API void coDictClear(struct coDict **dict);

CO_EXTERN_C_END

#endif
