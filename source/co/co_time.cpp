// Times. Contract: co_time.h.

#define CO_UNIT "source/co/co_time"

#include <co/co_assert.hpp>
#include <co/co_family.hpp>
#include <co/co_time.h>
#include <ctime>

extern "C" struct coSort const co___sort_CO_TIME;

struct coTime : coObj {
    co::Int year;
    co::Int month;
    co::Int day;
    co::Int hour;
    co::Int minute;
    co::Int second;

    static constexpr coSort const &sort = co___sort_CO_TIME;
    static constexpr auto members() {
        return std::tuple(&coTime::year, &coTime::month, &coTime::day, &coTime::hour, &coTime::minute, &coTime::second);
    }
    static constexpr auto comparison() { return members(); }
};

static int compareTimes(coObj const *objA, coObj const *objB) {
    return co::compareMembers(static_cast<coTime const *>(objA), static_cast<coTime const *>(objB));
}

static coString *stringOfTime(coObj const *obj) {
    auto const *time = static_cast<coTime const *>(obj);
    return coStringCreateFromFormatCstr("%04i-%02i-%02iT%02i:%02i:%02iZ", -1, time->year.get(), time->month.get(),
                                        time->day.get(), time->hour.get(), time->minute.get(), time->second.get());
}

constinit coSort const co___sort_CO_TIME{&co___sort_CO_SORT, &co___module, "CO_TIME",     co::freeMembers<coTime>,
                                         compareTimes,       stringOfTime, sizeof(coTime)};

CO_DEFINE_FAMILY(coTime, co___sort_CO_TIME)

// The calendar.

static bool isLeapYear(int64_t year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

static int64_t daysInMonth(int64_t year, int64_t month) {
    constexpr int64_t days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return days[month - 1] + (month == 2 && isLeapYear(year));
}

static bool isDate(coTime const *time) {
    int64_t const year = time->year.get();
    int64_t const month = time->month.get();
    int64_t const day = time->day.get();
    if (year < 1 || year > 9999 || month < 1 || month > 12) return false;
    return day >= 1 && day <= daysInMonth(year, month);
}

// The days from 0001-01-01, a Monday, to the first day of a year.
static int64_t daysBeforeYear(int64_t year) {
    int64_t const past = year - 1;
    return past * 365 + past / 4 - past / 100 + past / 400;
}

static int64_t daysBeforeMonth(int64_t year, int64_t month) {
    int64_t days = 0;
    for (int64_t m = 1; m < month; m++) days += daysInMonth(year, m);
    return days;
}

static void setDate(coTime *time, int64_t days) { // days since 0001-01-01
    int64_t year = days / 366 + 1;                // not yet past
    while (daysBeforeYear(year + 1) <= days) year++;
    int64_t const ofYear = days - daysBeforeYear(year);
    int64_t month = 1;
    while (month < 12 && daysBeforeMonth(year, month + 1) <= ofYear) month++;
    time->year.set(year);
    time->month.set(month);
    time->day.set(ofYear - daysBeforeMonth(year, month) + 1);
}

static coTime *makeTime(int64_t secondsSince1970) {
    constexpr int64_t secondsOfDay = 86400;
    int64_t const days = secondsSince1970 / secondsOfDay;
    int64_t const ofDay = secondsSince1970 % secondsOfDay;
    auto *time = co::make<coTime>();
    setDate(time, daysBeforeYear(1970) + days);
    time->hour.set(ofDay / 3600);
    time->minute.set(ofDay / 60 % 60);
    time->second.set(ofDay % 60);
    return time;
}

struct coTime *coTimeCreate(void) {
    return makeTime(0);
}

struct coTime *coTimeNow(void) {
    timespec now;
    CO_ASSERT(clock_gettime(CLOCK_REALTIME, &now) == 0, "clock_gettime( CLOCK_REALTIME, &now ) == 0");
    return makeTime(now.tv_sec < 0 ? 0 : now.tv_sec);
}

static bool within(int64_t value, int64_t low, int64_t high) { return value >= low && value <= high; }

bool coTimeValid(struct coTime const *time) {
    CO_ASSERT_GIVEN(time);
    return isDate(time) && within(time->hour.get(), 0, 23) && within(time->minute.get(), 0, 59) &&
           within(time->second.get(), 0, 60);
}

int64_t coTimeWeekday(struct coTime const *time) {
    CO_ASSERT_GIVEN(time);
    if (!isDate(time)) return -1;
    int64_t const year = time->year.get();
    return (daysBeforeYear(year) + daysBeforeMonth(year, time->month.get()) + time->day.get() - 1) % 7;
}

#define CO_DEFINE_TIME_FIELD(Field, field)                                                                             \
    int64_t coTime##Field(struct coTime const *time) {                                                                 \
        CO_ASSERT_GIVEN(time);                                                                                         \
        return time->field.get();                                                                                      \
    }                                                                                                                  \
    void coTimeSet##Field(struct coTime **time, int64_t field) {                                                       \
        CO_ASSERT_REFERENCE(time);                                                                                     \
        co::writable(time)->field.set(field);                                                                          \
    }

CO_DEFINE_TIME_FIELD(Year, year)
CO_DEFINE_TIME_FIELD(Month, month)
CO_DEFINE_TIME_FIELD(Day, day)
CO_DEFINE_TIME_FIELD(Hour, hour)
CO_DEFINE_TIME_FIELD(Minute, minute)
CO_DEFINE_TIME_FIELD(Second, second)
