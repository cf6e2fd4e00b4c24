/// @file
/// Stores: trees of named values, each a string or a nested store, in which objects are kept. Setters are copy on write.
#ifndef CO_CO_STORE_H
#define CO_CO_STORE_H

#include <co/co_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
CO_API struct coSort const *coStoreSort(void);
CO_API void coStoreRetain(struct coStore *obj);
CO_API void coStoreRelease(struct coStore *obj);
CO_API struct coObj *coStoreObj(struct coStore const *obj);
CO_API struct coStore *coStoreFrom(struct coObj const *obj);
CO_API struct coString *coStoreToString(struct coStore const *obj);
CO_API int coStoreCompare(struct coStore const *objA, struct coStore const *objB);
CO_API bool coStoreEquals(struct coStore const *objA, struct coStore const *objB);
/// @}

CO_API struct coStore *coStoreCreate(void);
CO_API int64_t coStoreLength(struct coStore const *store);
/// The string under a key, retained; null when there is none or a store stands there.
CO_API struct coString *coStoreValue(struct coStore const *store, struct coString const *key);
/// The string at a position, in the order of insertion, retained; null when a store stands there.
CO_API struct coString *coStoreValueAt(struct coStore const *store, int64_t index);
/// The nested store under a key, retained; null when there is none or a string stands there.
CO_API struct coStore *coStoreStore(struct coStore const *store, struct coString const *key);

CO_API void coStoreSetValue(struct coStore **store, struct coString *key, struct coString *value);
/// Under the key that the format makes of the arguments after @p value. `%.*A` with the highest index of a sequence and
/// an index makes keys that sort in the order of the sequence.
CO_API void coStoreSetValueFormatCstr(struct coStore **store, char const *format, int64_t length,
                                      struct coString *value, ...);
CO_API void coStoreSetStore(struct coStore **store, struct coString *key, struct coStore *sub);

CO_EXTERN_C_END

#endif
