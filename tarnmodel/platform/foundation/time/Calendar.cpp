#include "tarnmodel/platform/foundation/time/Calendar.h"

#include "tarnmodel/platform/foundation/text/LocaleInternal.h"
#include "tarnmodel/platform/foundation/time/CalendarInternal.h"

#include <cmath>
#include <memory>
#include <new>

namespace tarn {

double icuDate(WallTime wall) noexcept
{
    return static_cast<double>(wall.time_since_epoch().count()) / 1'000;
}

WallTime wallTimeWithICUDate(double milliseconds) noexcept
{
    return WallTime(std::chrono::microseconds(std::llround(milliseconds * 1'000)));
}

namespace {

/// A copy of one that is kept: making one from nothing takes ICU ten times as long.
std::unique_ptr<icu::GregorianCalendar> calendarOfTheWall()
{
    static const icu::GregorianCalendar prototype = [] {
        UErrorCode status = U_ZERO_ERROR;
        icu::GregorianCalendar made(*icu::TimeZone::getGMT(), rootLocale(), status);
        if (status == U_MEMORY_ALLOCATION_ERROR)
            throw std::bad_alloc();
        return made;
    }();
    return std::make_unique<icu::GregorianCalendar>(prototype);
}

} // namespace

/// The calendar counts the time of the wall as UTC; where that is in time, the system says.
struct Calendar::State {
    std::unique_ptr<icu::GregorianCalendar> calendar = calendarOfTheWall();

    WallTime wallTime(const CalendarFields& fields) const
    {
        UErrorCode status = U_ZERO_ERROR;
        calendar->clear();
        calendar->set(UCAL_EXTENDED_YEAR, fields.year);
        calendar->set(UCAL_MONTH, fields.month - 1);
        calendar->set(UCAL_DATE, fields.day);
        calendar->set(UCAL_HOUR_OF_DAY, fields.hour);
        calendar->set(UCAL_MINUTE, fields.minute);
        calendar->set(UCAL_SECOND, fields.second);
        return wallTimeWithICUDate(calendar->getTime(status));
    }
};

Calendar::Calendar() : state_(std::make_unique<State>()) { }

Calendar::~Calendar() = default;
Calendar::Calendar(Calendar&&) noexcept = default;
Calendar& Calendar::operator=(Calendar&&) noexcept = default;

CalendarDay Calendar::dayOfDate(NSDate date) const
{
    const CalendarFields fields = fieldsOfDate(date);
    return {fields.year, fields.month, fields.day};
}

CalendarFields Calendar::fieldsOfDate(NSDate date) const
{
    UErrorCode status = U_ZERO_ERROR;
    icu::GregorianCalendar& calendar = *state_->calendar;
    calendar.setTime(icuDate(wallTimeOfDate(date)), status);
    const auto field = [&](UCalendarDateFields name) { return calendar.get(name, status); };
    return {.year = field(UCAL_EXTENDED_YEAR),
        .month = field(UCAL_MONTH) + 1,
        .day = field(UCAL_DATE),
        .hour = field(UCAL_HOUR_OF_DAY),
        .minute = field(UCAL_MINUTE),
        .second = field(UCAL_SECOND)};
}

NSDate Calendar::dateWithFields(const CalendarFields& fields) const
{
    return dateOfWallTime(state_->wallTime(fields));
}

NSDate Calendar::beginOfDay(const CalendarDay& day) const
{
    return beginOfWallDay(state_->wallTime({.year = day.year, .month = day.month, .day = day.day}));
}

bool Calendar::isRealDay(const CalendarDay& day)
{
    if (day.year < 1 || day.year > 9999 || day.month < 1 || day.month > 12 || day.day < 1 || day.day > 31)
        return false;
    if (day.day <= 28 && day.year != 1582)
        return true;
    UErrorCode status = U_ZERO_ERROR;
    const auto kept = calendarOfTheWall();
    icu::GregorianCalendar& calendar = *kept;
    calendar.clear();
    calendar.set(day.year, day.month - 1, day.day);
    return calendar.get(UCAL_MONTH, status) == day.month - 1 && calendar.get(UCAL_DATE, status) == day.day;
}

} // namespace tarn
