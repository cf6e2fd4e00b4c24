/// @file
/// Signed 64-bit integers.
#ifndef CO_CO_INT_H
#define CO_CO_INT_H

#include <co/co_types.h>

CO_EXTERN_C_BEGIN

CO_API int64_t coIntMax(int64_t a, int64_t b);
CO_API int64_t coIntMin(int64_t a, int64_t b);

CO_EXTERN_C_END

#endif
