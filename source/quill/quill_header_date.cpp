// The Date header field. Grammar and contract: quill_header_date.h.

#define CO_UNIT "source/quill/quill_header_date"

#include <algorithm>
#include <co/co_time.h>
#include <quill/quill_header_date.h>
#include <quill/quill_header_family.hpp>

struct quillHeaderDate : coObj {
    static constexpr auto &sort = quill___sort_QUILL_HEADER_DATE;

    co::Slot<coTime> time; // never null

    static constexpr auto members() { return std::tuple(&quillHeaderDate::time); }
    static constexpr auto comparison() { return members(); }
};

QUILL_DEFINE_VALUE_HEADER(Date, DATE)
CO_DEFINE_OBJECT_MEMBER(quillHeaderDate, hdr, Time, time, coTime, time)

struct quillHeaderDate *quillHeaderDateCreate(struct coTime *tm) {
    CO_ASSERT_GIVEN(tm);
    auto *hdr = co::make<quillHeaderDate>();
    hdr->time.set(tm);
    return hdr;
}

struct quillHeaderDate *quillHeaderDateCreateFromCurrentTime(void) {
    co::Ref<coTime> const now(coTimeNow());
    return quillHeaderDateCreate(now.get());
}

static void appendDigits(coString **text, int64_t value, int64_t width) {
    co::appendInt(text, value, 10, width, true, co::Case::lower);
}

static void appendValue(coString **text, struct quillHeaderDate const *hdr) {
    constexpr co::Chars weekdays[] = {U"Mon", U"Tue", U"Wed", U"Thu", U"Fri", U"Sat", U"Sun"};
    constexpr co::Chars months[] = {U"Jan", U"Feb", U"Mar", U"Apr", U"May", U"Jun",
                                    U"Jul", U"Aug", U"Sep", U"Oct", U"Nov", U"Dec"};
    coTime const *time = hdr->time.get();
    int64_t const weekday = coTimeWeekday(time);
    CO_ASSERT(weekday >= 0, "weekday >= 0"); // what is no date has no name
    co::append(text, weekdays[weekday]);
    co::append(text, U", ");
    appendDigits(text, coTimeDay(time), 2);
    co::append(text, U" ");
    co::append(text, months[coTimeMonth(time) - 1]);
    co::append(text, U" ");
    appendDigits(text, coTimeYear(time), 4);
    co::append(text, U" ");
    appendDigits(text, coTimeHour(time), 2);
    co::append(text, U":");
    appendDigits(text, coTimeMinute(time), 2);
    co::append(text, U":");
    appendDigits(text, coTimeSecond(time), 2);
    co::append(text, U" GMT");
}

namespace {

// Reads the pieces of a line one after the other; what comes after a piece that is missing is not looked at.
class Pieces {
public:
    explicit Pieces(co::Chars line) : rest(line) {}

    bool areWhole() const { return good && rest.empty(); }

    void literal(co::Chars text) { take(rest.starts_with(text) ? co::length(text) : 0); }

    // A weekday's or a month's number.
    int64_t name(int64_t (*skip)(coChar const *, int64_t, int64_t *)) {
        int64_t index = -1;
        take(skip(rest.data(), co::length(rest), &index));
        return index;
    }

    int64_t number(int64_t width, int64_t least, int64_t most) {
        int64_t const digits = quill___SkipDigits(rest.data(), std::min(width, co::length(rest)));
        int64_t value = 0;
        for (coChar const ch : quill::upTo(rest, digits)) value = value * 10 + ch - U'0';
        take(digits == width && quill::isWithin(value, least, most) ? width : 0);
        return value;
    }

private:
    void take(int64_t count) {
        good = good && count > 0;
        if (good) rest = quill::from(rest, count);
    }

    co::Chars rest;
    bool good = true;
};

} // namespace

static struct quillHeaderDate *tryDecodeValue(co::Chars line) {
    Pieces pieces(line);
    co::Ref<coTime> time(coTimeCreate());
    int64_t const weekday = pieces.name(quill___SkipWkday);
    pieces.literal(U", ");
    coTimeSetDay(time.address(), pieces.number(2, 1, 31));
    pieces.literal(U" ");
    coTimeSetMonth(time.address(), pieces.name(quill___SkipMonth));
    pieces.literal(U" ");
    coTimeSetYear(time.address(), pieces.number(4, 0, 9999));
    pieces.literal(U" ");
    coTimeSetHour(time.address(), pieces.number(2, 0, 23));
    pieces.literal(U":");
    coTimeSetMinute(time.address(), pieces.number(2, 0, 59));
    pieces.literal(U":");
    coTimeSetSecond(time.address(), pieces.number(2, 0, 61)); // with leap seconds, which coTimeValid has its word on
    pieces.literal(U" GMT");
    bool const valid = pieces.areWhole() && coTimeValid(time.get()) && coTimeWeekday(time.get()) == weekday;
    return valid ? quillHeaderDateCreate(time.get()) : nullptr;
}
