/// @file
/// Raw memory for temporary arrays.
#ifndef CO_CO_MEMORY_H
#define CO_CO_MEMORY_H

#include <co/co_types.h>

CO_EXTERN_C_BEGIN

/// Uninitialised memory for @p count elements of @p size bytes, never null; freed with coMemFree. Ends the process
/// when there is none.
CO_API void *coMemAllocN(int64_t count, int64_t size);
/// @p mem may be null.
CO_API void coMemFree(void *mem);

CO_EXTERN_C_END

#endif
