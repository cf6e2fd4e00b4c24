// The Date header.

#include "single_headers.hpp"

#include <array>
#include <chrono>
#include <quill/quill_header_date.h>

using namespace test;

namespace {

constexpr std::array<char const *, 7> weekdays = {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};
constexpr std::array<char const *, 12> months = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                 "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

std::string lineOf(size_t weekday, int day, size_t month, int year, std::string const &time = "00:00:00") {
    char text[40];
    std::snprintf(text, sizeof text, "%s, %02d %s %04d ", weekdays[weekday], day, months[month - 1], year);
    return text + time + " GMT";
}

co::Ref<coTime> timeOf(int64_t year, int64_t month, int64_t day, int64_t hour, int64_t minute, int64_t second) {
    auto time = own(coTimeCreate());
    coTimeSetYear(time.address(), year);
    coTimeSetMonth(time.address(), month);
    coTimeSetDay(time.address(), day);
    coTimeSetHour(time.address(), hour);
    coTimeSetMinute(time.address(), minute);
    coTimeSetSecond(time.address(), second);
    return time;
}

TEST(QuillHeaderDate, IsReadStepByStep) {
    expectReadings("Date", {
                               {"Mon, 01 Jan 2024 00:00:00 GMT", "Time=2024-01-01T00:00:00Z", nullptr, ""},
                               {"Sat, 13 Nov 2010 23:29:00 GMT", "Time=2010-11-13T23:29:00Z", nullptr, ""},
                               {"Thu, 29 Feb 2024 23:59:59 GMT", "Time=2024-02-29T23:59:59Z", nullptr, "a leap day"},
                               {"Sat, 31 Dec 2016 23:59:60 GMT", "Time=2016-12-31T23:59:60Z", nullptr, "a leap second"},
                               {"Sat, 31 Dec 2016 23:59:61 GMT", nullptr, nullptr, "two of them are no time"},
                               {"Sat, 31 Dec 2016 23:59:62 GMT", nullptr, nullptr, "three are no text"},
                               {"Tue, 01 Jan 2024 00:00:00 GMT", nullptr, nullptr, "it was a Monday"},
                               {"mon, 01 Jan 2024 00:00:00 GMT", nullptr, nullptr, "letter case of the weekday"},
                               {"Monday, 01 Jan 2024 00:00:00 GMT", nullptr, nullptr, "a whole weekday"},
                               {"01 Jan 2024 00:00:00 GMT", nullptr, nullptr, "no weekday"},
                               {" Mon, 01 Jan 2024 00:00:00 GMT", nullptr, nullptr, "a blank before"},
                               {"Mon,01 Jan 2024 00:00:00 GMT", nullptr, nullptr, "no blank behind the comma"},
                               {"Mon,  01 Jan 2024 00:00:00 GMT", nullptr, nullptr, "two blanks"},
                               {"Mon,\t01 Jan 2024 00:00:00 GMT", nullptr, nullptr, "a tab"},
                               {"Mon 01 Jan 2024 00:00:00 GMT", nullptr, nullptr, "no comma"},
                               {"Mon, 1 Jan 2024 00:00:00 GMT", nullptr, nullptr, "a day of one digit"},
                               {"Mon, 001 Jan 2024 00:00:00 GMT", nullptr, nullptr, "of three"},
                               {"Mon, 00 Jan 2024 00:00:00 GMT", nullptr, nullptr, "day 0"},
                               {"Thu, 32 Jan 2024 00:00:00 GMT", nullptr, nullptr, "day 32"},
                               {"Mon, -1 Jan 2024 00:00:00 GMT", nullptr, nullptr, "a sign"},
                               {"Mon, 0a Jan 2024 00:00:00 GMT", nullptr, nullptr, "no digit"},
                               {"Mon, ٠١ Jan 2024 00:00:00 GMT", nullptr, nullptr, "digits of another script"},
                               {"Mon, 01  Jan 2024 00:00:00 GMT", nullptr, nullptr, "two blanks"},
                               {"Mon, 01Jan 2024 00:00:00 GMT", nullptr, nullptr, "no blank"},
                               {"Mon, 01 jan 2024 00:00:00 GMT", nullptr, nullptr, "letter case of the month"},
                               {"Mon, 01 January 2024 00:00:00 GMT", nullptr, nullptr, "a whole month"},
                               {"Mon, 01 01 2024 00:00:00 GMT", nullptr, nullptr, "a month in digits"},
                               {"Mon, 01 Jan 24 00:00:00 GMT", nullptr, nullptr, "a year of two digits"},
                               {"Mon, 01 Jan 02024 00:00:00 GMT", nullptr, nullptr, "of five"},
                               {"Mon, 01 Jan 2024  00:00:00 GMT", nullptr, nullptr, "two blanks"},
                               {"Mon, 01 Jan 2024 24:00:00 GMT", nullptr, nullptr, "hour 24"},
                               {"Mon, 01 Jan 2024 00:60:00 GMT", nullptr, nullptr, "minute 60"},
                               {"Mon, 01 Jan 2024 0:00:00 GMT", nullptr, nullptr, "an hour of one digit"},
                               {"Mon, 01 Jan 2024 00:0:00 GMT", nullptr, nullptr, "a minute of one"},
                               {"Mon, 01 Jan 2024 00:00:0 GMT", nullptr, nullptr, "a second of one"},
                               {"Mon, 01 Jan 2024 00:00 GMT", nullptr, nullptr, "no second"},
                               {"Mon, 01 Jan 2024 00.00.00 GMT", nullptr, nullptr, "dots"},
                               {"Mon, 01 Jan 2024 00:00:00 UTC", nullptr, nullptr, "another zone"},
                               {"Mon, 01 Jan 2024 00:00:00 gmt", nullptr, nullptr, "letter case of the zone"},
                               {"Mon, 01 Jan 2024 00:00:00 +0000", nullptr, nullptr, "an offset"},
                               {"Mon, 01 Jan 2024 00:00:00GMT", nullptr, nullptr, "no blank"},
                               {"Mon, 01 Jan 2024 00:00:00", nullptr, nullptr, "no zone"},
                               {"Mon, 01 Jan 2024 00:00:00 GMT ", nullptr, nullptr, "a blank behind"},
                               {"Mon, 01 Jan 2024 00:00:00 GMT;x", nullptr, nullptr, "no parameters"},
                               {"Monday, 01-Jan-24 00:00:00 GMT", nullptr, nullptr, "RFC 850"},
                               {"Mon Jan  1 00:00:00 2024", nullptr, nullptr, "asctime"},
                               {"2024-01-01T00:00:00Z", nullptr, nullptr, "RFC 3339"},
                               {"", nullptr, nullptr, "nothing"},
                           });
}

TEST(QuillHeaderDate, KnowsTheCalendar) {
    for (int year : {0, 1, 4, 100, 400, 1582, 1900, 1970, 2000, 2023, 2024, 9999}) {
        for (size_t month = 1; month <= 12; month++) {
            for (int day = 0; day <= 32; day++) {
                auto const date = std::chrono::year(year) / static_cast<int>(month) / day;
                bool const isDate = year >= 1 && date.ok();
                for (size_t weekday = 0; weekday < 7; weekday++) {
                    if (!isDate && weekday != static_cast<size_t>(day) % 7) continue; // one is enough
                    std::string const line = lineOf(weekday, day, month, year);
                    auto const hdr = singleHeader("Date").decode(line);
                    bool const named =
                        isDate && std::chrono::weekday(std::chrono::sys_days(date)).iso_encoding() == weekday + 1;
                    ASSERT_EQ(static_cast<bool>(hdr), named) << line;
                    if (hdr) {
                        ASSERT_EQ(singleHeader("Date").encoded(hdr.get()), line);
                    }
                }
            }
        }
    }
}

TEST(QuillHeaderDate, ReadsNoWeekdayForNoDate) {
    for (size_t weekday = 0; weekday < 7; weekday++) {
        EXPECT_FALSE(singleHeader("Date").decode(lineOf(weekday, 29, 2, 2023)));
        EXPECT_FALSE(singleHeader("Date").decode(lineOf(weekday, 29, 2, 1900)));
        EXPECT_FALSE(singleHeader("Date").decode(lineOf(weekday, 31, 4, 2024)));
        EXPECT_FALSE(singleHeader("Date").decode(lineOf(weekday, 1, 1, 0)));
    }
    EXPECT_TRUE(singleHeader("Date").decode(lineOf(1, 29, 2, 2000)));
    EXPECT_TRUE(singleHeader("Date").decode(lineOf(0, 1, 1, 1)));
    EXPECT_TRUE(singleHeader("Date").decode(lineOf(4, 31, 12, 9999)));
}

TEST(QuillHeaderDate, ReadsEveryTimeOfDay) {
    for (int hour = 0; hour <= 24; hour++) {
        for (int minute : {0, 7, 59, 60}) {
            for (int second : {0, 9, 59, 60, 61, 62, 99}) {
                char time[16];
                std::snprintf(time, sizeof time, "%02d:%02d:%02d", hour, minute, second);
                std::string const line = lineOf(0, 1, 1, 2024, time);
                bool const isTime = hour <= 23 && minute <= 59 && second <= 60;
                EXPECT_EQ(static_cast<bool>(singleHeader("Date").decode(line)), isTime) << line;
            }
        }
    }
}

TEST(QuillHeaderDate, IsWrittenAsItIsKept) {
    struct {
        co::Ref<coTime> time;
        char const *line;
    } const rows[] = {
        {timeOf(2024, 1, 1, 0, 0, 0), "Mon, 01 Jan 2024 00:00:00 GMT"},
        {timeOf(33, 4, 3, 7, 8, 9), "Sun, 03 Apr 0033 07:08:09 GMT"},
        {timeOf(2024, 1, 1, 24, 60, 61), "Mon, 01 Jan 2024 24:60:61 GMT"}, // no time, but of a date
    };
    for (auto const &row : rows)
        EXPECT_EQ(taken(quillHeaderDateToString(own(quillHeaderDateCreate(row.time.get())).get())), row.line);

    for (auto const &time : {timeOf(2023, 2, 29, 0, 0, 0), timeOf(2024, 13, 1, 0, 0, 0), timeOf(0, 1, 1, 0, 0, 0)}) {
        auto const hdr = own(quillHeaderDateCreate(time.get()));
        EXPECT_ABORT(quillHeaderDateEncode(hdr.get()), "source/quill/quill_header_date", "weekday >= 0");
    }
}

TEST(QuillHeaderDate, KeepsATimeThatNobodyElseChanges) {
    auto time = timeOf(2024, 1, 1, 0, 0, 0);
    auto hdr = own(quillHeaderDateCreate(time.get()));
    EXPECT_EQ(own(quillHeaderDateTime(hdr.get())).get(), time.get()) << "shared";
    coTimeSetHour(time.address(), 5);
    EXPECT_EQ(taken(quillHeaderDateToString(hdr.get())), "Mon, 01 Jan 2024 00:00:00 GMT");
    quillHeaderDateSetTime(hdr.address(), time.get());
    EXPECT_EQ(taken(quillHeaderDateToString(hdr.get())), "Mon, 01 Jan 2024 05:00:00 GMT");
    EXPECT_ABORT(quillHeaderDateCreate(nullptr), "source/quill/quill_header_date", "tm");
}

TEST(QuillHeaderDate, IsMadeOfThePresent) {
    auto const before = own(coTimeNow());
    auto const hdr = own(quillHeaderDateCreateFromCurrentTime());
    auto const after = own(coTimeNow());
    auto const time = own(quillHeaderDateTime(hdr.get()));
    EXPECT_LE(coTimeCompare(before.get(), time.get()), 0);
    EXPECT_LE(coTimeCompare(time.get(), after.get()), 0);
    auto const raw = own(quillHeaderDateEncode(hdr.get()));
    EXPECT_TRUE(quillHeaderDateEquals(own(quillHeaderDateTryDecode(raw.get())).get(), hdr.get()));
}

} // namespace
