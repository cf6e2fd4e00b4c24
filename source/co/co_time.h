/// @file
/// Times: a date of the proleptic Gregorian calendar and a time of day, in UTC.
///
/// Setters don't look at what they are given; coTimeValid tells whether the fields together are a date and time: years
/// 1 to 9999, seconds 0 to 60. Setters are copy on write.
#ifndef CO_CO_TIME_H
#define CO_CO_TIME_H

#include <co/co_types.h>

CO_EXTERN_C_BEGIN

/// @name Object family
/// @{
CO_API struct coSort const *coTimeSort(void);
CO_API void coTimeRetain(struct coTime *obj);
CO_API void coTimeRelease(struct coTime *obj);
CO_API struct coObj *coTimeObj(struct coTime const *obj);
CO_API struct coTime *coTimeFrom(struct coObj const *obj);
/// As RFC 3339 writes it: `2026-11-20T12:00:00Z`.
CO_API struct coString *coTimeToString(struct coTime const *obj);
/// Chronological.
CO_API int coTimeCompare(struct coTime const *objA, struct coTime const *objB);
CO_API bool coTimeEquals(struct coTime const *objA, struct coTime const *objB);
/// @}

/// 1970-01-01 00:00:00.
CO_API struct coTime *coTimeCreate(void);
CO_API struct coTime *coTimeNow(void);
CO_API bool coTimeValid(struct coTime const *time);

CO_API int64_t coTimeYear(struct coTime const *time);
/// 1 to 12 when valid.
CO_API int64_t coTimeMonth(struct coTime const *time);
/// 1 to 31 when valid.
CO_API int64_t coTimeDay(struct coTime const *time);
CO_API int64_t coTimeHour(struct coTime const *time);
CO_API int64_t coTimeMinute(struct coTime const *time);
CO_API int64_t coTimeSecond(struct coTime const *time);
/// 0 for Monday to 6 for Sunday, from year, month and day; -1 when they are no date.
CO_API int64_t coTimeWeekday(struct coTime const *time);

CO_API void coTimeSetYear(struct coTime **time, int64_t year);
CO_API void coTimeSetMonth(struct coTime **time, int64_t month);
CO_API void coTimeSetDay(struct coTime **time, int64_t day);
CO_API void coTimeSetHour(struct coTime **time, int64_t hour);
CO_API void coTimeSetMinute(struct coTime **time, int64_t minute);
CO_API void coTimeSetSecond(struct coTime **time, int64_t second);

CO_EXTERN_C_END

#endif
