/// @file
/// What every header of the library stands on: linkage, code points and the names of the base types.
#ifndef CO_CO_TYPES_H
#define CO_CO_TYPES_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>
#ifndef __cplusplus
#include <uchar.h>
#endif

#if defined(__GNUC__)
#define CO_API __attribute__((visibility("default")))
#else
#define CO_API
#endif

#ifdef __cplusplus
#define CO_NORETURN [[noreturn]]
#define CO_EXTERN_C_BEGIN extern "C" {
#define CO_EXTERN_C_END }
#else
#define CO_NORETURN _Noreturn
#define CO_EXTERN_C_BEGIN
#define CO_EXTERN_C_END
#endif

/// A Unicode code point. `U"…"` literals are texts of them.
typedef char32_t coChar;

struct coObj;
struct coSort;
struct coModule;
struct coModuleRecord;
struct coString;
struct coVector;
struct coDict;
struct coStore;
struct coBuffer;
struct coTime;

#endif
