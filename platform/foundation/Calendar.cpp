#include "platform/foundation/Calendar.h"

#include "platform/foundation/CalendarInternal.h"
#include "platform/foundation/Environment.h"

#include <cmath>
#include <mutex>

namespace tarn {

std::unique_ptr<icu::TimeZone> timeZoneNamed(const std::string& identifier)
{
    return std::unique_ptr<icu::TimeZone>(icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(identifier)));
}

double icuDate(NSDate date) noexcept
{
    return static_cast<double>(microsecondsSince1970(date)) / 1'000;
}

NSDate dateWithICUDate(double milliseconds) noexcept
{
    return dateWithMicrosecondsSince1970(std::llround(milliseconds * 1'000));
}

namespace {

/// A calendar in the zone, a copy of one that is kept: making one from nothing takes ICU ten times as long.
std::unique_ptr<icu::GregorianCalendar> calendarInZone(const std::string& identifier)
{
    static std::mutex mutex;
    static std::string zoneOfPrototype;
    static std::unique_ptr<const icu::GregorianCalendar> prototype;
    const std::scoped_lock lock(mutex);
    if (!prototype || zoneOfPrototype != identifier) {
        UErrorCode status = U_ZERO_ERROR;
        prototype = std::make_unique<const icu::GregorianCalendar>(
            *timeZoneNamed(identifier), icu::Locale::getRoot(), status);
        zoneOfPrototype = identifier;
    }
    return std::make_unique<icu::GregorianCalendar>(*prototype);
}

} // namespace

struct Calendar::State {
    std::unique_ptr<icu::GregorianCalendar> calendar;
};

Calendar::Calendar() : state_(std::make_unique<State>())
{
    state_->calendar = calendarInZone(Environment::current().timeZoneIdentifier());
}

Calendar::~Calendar() = default;
Calendar::Calendar(Calendar&&) noexcept = default;
Calendar& Calendar::operator=(Calendar&&) noexcept = default;

CalendarDay Calendar::dayOfDate(NSDate date) const
{
    UErrorCode status = U_ZERO_ERROR;
    icu::GregorianCalendar& calendar = *state_->calendar;
    calendar.setTime(icuDate(date), status);
    return {calendar.get(UCAL_EXTENDED_YEAR, status), calendar.get(UCAL_MONTH, status) + 1,
        calendar.get(UCAL_DATE, status)};
}

NSDate Calendar::dateWithFields(const CalendarFields& fields) const
{
    UErrorCode status = U_ZERO_ERROR;
    icu::GregorianCalendar& calendar = *state_->calendar;
    calendar.clear();
    calendar.set(UCAL_EXTENDED_YEAR, fields.year);
    calendar.set(UCAL_MONTH, fields.month - 1);
    calendar.set(UCAL_DATE, fields.day);
    calendar.set(UCAL_HOUR_OF_DAY, fields.hour);
    calendar.set(UCAL_MINUTE, fields.minute);
    calendar.set(UCAL_SECOND, fields.second);
    return dateWithICUDate(calendar.getTime(status));
}

NSDate Calendar::beginOfDay(const CalendarDay& day) const
{
    return dateWithFields({.year = day.year, .month = day.month, .day = day.day});
}

bool Calendar::isRealDay(const CalendarDay& day)
{
    if (day.year < 1 || day.year > 9999 || day.month < 1 || day.month > 12 || day.day < 1 || day.day > 31)
        return false;
    if (day.day <= 28 && day.year != 1582)
        return true;
    UErrorCode status = U_ZERO_ERROR;
    icu::GregorianCalendar calendar(*icu::TimeZone::getGMT(), icu::Locale::getRoot(), status);
    calendar.clear();
    calendar.set(day.year, day.month - 1, day.day);
    return calendar.get(UCAL_MONTH, status) == day.month - 1 && calendar.get(UCAL_DATE, status) == day.day;
}

} // namespace tarn
