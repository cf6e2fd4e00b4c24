#include <ctime>
#include <support/text.hpp>

using test::taken;

namespace {

constexpr char const *unit = "source/co/co_time";

co::Ref<coTime> make(int64_t year, int64_t month, int64_t day, int64_t hour = 0, int64_t minute = 0,
                     int64_t second = 0) {
    co::Ref<coTime> time(coTimeCreate());
    coTimeSetYear(time.address(), year);
    coTimeSetMonth(time.address(), month);
    coTimeSetDay(time.address(), day);
    coTimeSetHour(time.address(), hour);
    coTimeSetMinute(time.address(), minute);
    coTimeSetSecond(time.address(), second);
    return time;
}

std::string textOf(coTime const *time) { return taken(coTimeToString(time)); }

TEST(Time, IsTheEpochAtFirst) {
    co::Ref<coTime> const time(coTimeCreate());
    EXPECT_EQ(textOf(time.get()), "1970-01-01T00:00:00Z");
    EXPECT_TRUE(coTimeValid(time.get()));
    EXPECT_EQ(coTimeWeekday(time.get()), 3);
}

TEST(Time, FieldsAreReadBackAsTheyWereSet) {
    co::Ref<coTime> const time = make(-5, 14, 99, -1, INT64_MAX, INT64_MIN);
    EXPECT_EQ(coTimeYear(time.get()), -5);
    EXPECT_EQ(coTimeMonth(time.get()), 14);
    EXPECT_EQ(coTimeDay(time.get()), 99);
    EXPECT_EQ(coTimeHour(time.get()), -1);
    EXPECT_EQ(coTimeMinute(time.get()), INT64_MAX);
    EXPECT_EQ(coTimeSecond(time.get()), INT64_MIN);
    EXPECT_FALSE(coTimeValid(time.get()));
}

TEST(Time, IsWrittenAsRfc3339Says) {
    EXPECT_EQ(textOf(make(2026, 11, 20, 9, 5, 7).get()), "2026-11-20T09:05:07Z");
    EXPECT_EQ(textOf(make(1, 2, 3, 4, 5, 60).get()), "0001-02-03T04:05:60Z");
}

TEST(Time, IsValidWithinItsRanges) {
    struct {
        int64_t year, month, day, hour, minute, second;
        bool valid;
        char const *why;
    } const rows[] = {
        {2026, 11, 20, 23, 59, 60, true, "a leap second"},
        {2026, 11, 20, 23, 59, 61, false, "two leap seconds"},
        {2026, 11, 20, 24, 0, 0, false, "hour 24"},
        {2026, 11, 20, 0, 60, 0, false, "minute 60"},
        {2026, 11, 20, -1, 0, 0, false, "hour -1"},
        {2026, 11, 20, 0, -1, 0, false, "minute -1"},
        {2026, 11, 20, 0, 0, -1, false, "second -1"},
        {0, 1, 1, 0, 0, 0, false, "year 0"},
        {-1, 1, 1, 0, 0, 0, false, "year -1"},
        {1, 1, 1, 0, 0, 0, true, "year 1"},
        {9999, 12, 31, 0, 0, 0, true, "year 9999"},
        {10000, 1, 1, 0, 0, 0, false, "year 10000"},
        {INT64_MAX, 1, 1, 0, 0, 0, false, "a very late year"},
        {2000, 2, 29, 0, 0, 0, true, "leap year by 400"},
        {1900, 2, 29, 0, 0, 0, false, "no leap year by 100"},
        {2024, 2, 29, 0, 0, 0, true, "leap year by 4"},
        {2023, 2, 29, 0, 0, 0, false, "no leap year"},
        {2023, 0, 1, 0, 0, 0, false, "month 0"},
        {2023, 13, 1, 0, 0, 0, false, "month 13"},
        {2023, INT64_MIN, 1, 0, 0, 0, false, "no month at all"},
        {2023, 4, 31, 0, 0, 0, false, "April has 30 days"},
        {2023, 1, 0, 0, 0, 0, false, "day 0"},
    };
    for (auto const &row : rows) {
        SCOPED_TRACE(row.why);
        EXPECT_EQ(coTimeValid(make(row.year, row.month, row.day, row.hour, row.minute, row.second).get()), row.valid);
    }
}

// Each day of the years 1 to 9999, and what would come after the last of a month, beside the C library's calendar.
TEST(Time, KnowsTheCalendar) {
    tm first{};
    first.tm_year = 1 - 1900;
    first.tm_mday = 1;
    co::Ref<coTime> time(coTimeCreate());
    tm day{};
    tm next{};
    time_t seconds = timegm(&first);
    gmtime_r(&seconds, &day);
    int64_t days = 0;
    for (; day.tm_year + 1900 < 10000; day = next, days++) {
        coTimeSetYear(time.address(), day.tm_year + 1900);
        coTimeSetMonth(time.address(), day.tm_mon + 1);
        coTimeSetDay(time.address(), day.tm_mday);
        ASSERT_TRUE(coTimeValid(time.get())) << textOf(time.get());
        ASSERT_EQ(coTimeWeekday(time.get()), (day.tm_wday + 6) % 7) << textOf(time.get());
        seconds += 86400;
        gmtime_r(&seconds, &next);
        if (next.tm_mday != 1) continue;
        for (int64_t beyond : {0, day.tm_mday + 1}) {
            coTimeSetDay(time.address(), beyond);
            ASSERT_FALSE(coTimeValid(time.get())) << textOf(time.get());
            ASSERT_EQ(coTimeWeekday(time.get()), -1) << textOf(time.get());
        }
    }
    EXPECT_EQ(days, 3652059);
}

TEST(Time, WeekdayDoesNotDependOnTheTimeOfDay) {
    EXPECT_EQ(coTimeWeekday(make(2026, 11, 20, 99, -1, 1000).get()), 4);
    EXPECT_EQ(coTimeWeekday(make(2026, 11, 31).get()), -1);
}

TEST(Time, ComparesChronologically) {
    co::Ref<coTime> const times[] = {make(1999, 12, 31, 23, 59, 59), make(2000, 1, 1, 0, 0, 0),
                                     make(2000, 1, 1, 0, 0, 1),      make(2000, 1, 1, 0, 1, 0),
                                     make(2000, 1, 1, 1, 0, 0),      make(2000, 1, 2, 0, 0, 0),
                                     make(2000, 2, 1, 0, 0, 0),      make(2001, 1, 1, 0, 0, 0)};
    for (size_t i = 0; i < std::size(times); i++)
        for (size_t k = 0; k < std::size(times); k++)
            EXPECT_EQ(coTimeCompare(times[i].get(), times[k].get()), (i > k) - (i < k));
}

std::string textOf(time_t seconds) {
    tm fields{};
    gmtime_r(&seconds, &fields);
    char text[64];
    strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &fields);
    return text;
}

TEST(Time, NowLiesBetweenTwoReadingsOfTheClock) {
    std::string const before = textOf(time(nullptr) - 1); // the C library's clock may lag behind by a tick
    co::Ref<coTime> const now(coTimeNow());
    std::string const after = textOf(time(nullptr) + 1);
    EXPECT_TRUE(coTimeValid(now.get()));
    EXPECT_LE(before, textOf(now.get()));
    EXPECT_LE(textOf(now.get()), after);
}

TEST(Time, BrokenPreconditionsAbort) {
    coTime *none = nullptr;
    struct {
        int64_t (*get)(coTime const *);
        void (*set)(coTime **, int64_t);
    } const fields[] = {{coTimeYear, coTimeSetYear}, {coTimeMonth, coTimeSetMonth},   {coTimeDay, coTimeSetDay},
                        {coTimeHour, coTimeSetHour}, {coTimeMinute, coTimeSetMinute}, {coTimeSecond, coTimeSetSecond}};
    for (auto const &field : fields) {
        EXPECT_ABORT(field.get(nullptr), unit, "time");
        EXPECT_ABORT(field.set(nullptr, 1), unit, "time");
        EXPECT_ABORT(field.set(&none, 1), unit, "*time");
    }
    EXPECT_ABORT(coTimeValid(nullptr), unit, "time");
    EXPECT_ABORT(coTimeWeekday(nullptr), unit, "time");
}

} // namespace
