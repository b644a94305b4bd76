#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/platform/foundation/time/Calendar.h"
#include "tarnmodel/search/OVNoteSearchManager.h"

#include <array>
#include <span>

namespace tarn {

namespace {

constexpr std::size_t kShortestMonth = 5;
constexpr std::size_t kLengthOfYear = 4;
constexpr std::array<std::string_view, 7> kMonthPatterns{
    "MM/yyyy", "M/yyyy", "MM-yyyy", "M-yyyy", "yyyy-MM", "yyyy-M", "yyyyMM"};

using Bound = std::optional<NSDate>;

void write(Bound* result, NSDate date)
{
    if (result)
        *result = date;
}

/// From one day to a time that may be given by fields outside of their ranges.
void writeBounds(
    const Calendar& calendar, const CalendarDay& first, const CalendarFields& last, Bound* beginDate, Bound* endDate)
{
    write(beginDate, calendar.beginOfDay(first));
    write(endDate, calendar.dateWithFields(last));
}

} // namespace

void OVNoteSearchManager::endAndBeginOfDayDatesFromDate(NSDate date, Bound* beginDate, Bound* endDate)
{
    const Calendar calendar;
    const CalendarDay day = calendar.dayOfDate(date);
    writeBounds(calendar, day,
        {.year = day.year, .month = day.month, .day = day.day, .hour = 23, .minute = 59, .second = 59}, beginDate,
        endDate);
}

void OVNoteSearchManager::endAndBeginOfMonthDatesFromDate(NSDate date, Bound* beginDate, Bound* endDate)
{
    const Calendar calendar;
    const CalendarDay day = calendar.dayOfDate(date);
    // 24 hours on top of the last day: the end lies 59:59 into the next month; kept.
    writeBounds(calendar, {day.year, day.month, 1},
        {.year = day.year, .month = day.month + 1, .day = 0, .hour = 24, .minute = 59, .second = 59}, beginDate,
        endDate);
}

void OVNoteSearchManager::endAndBeginOfYearDatesFromDate(NSDate date, Bound* beginDate, Bound* endDate)
{
    const Calendar calendar;
    const CalendarDay day = calendar.dayOfDate(date);
    writeBounds(calendar, {day.year, 1, 1},
        {.year = day.year + 1, .month = 1, .day = 0, .hour = 24, .minute = 59, .second = 59}, beginDate, endDate);
}

void OVNoteSearchManager::endAndBeginPeriodDatesFromDateString(
    std::string_view string, Bound* beginDate, Bound* endDate)
{
    if (const auto day = ov_shortDateFromString(string))
        endAndBeginOfDayDatesFromDate(*day, beginDate, endDate);
    else if (const auto month = ov_yearMonthDateFromString(string))
        endAndBeginOfMonthDatesFromDate(*month, beginDate, endDate);
    else if (const auto year = ov_yearOnlyFromString(string))
        endAndBeginOfYearDatesFromDate(*year, beginDate, endDate);
}

std::optional<NSDate> OVNoteSearchManager::ov_shortDateFromString(std::string_view string)
{
    if (const auto date = DateFormatter::withShortStyle().dateFromString(string))
        return date;
    if (const auto date = ov_iso8601DateOnlyFormatter().dateFromString(string))
        return date;
    return ov_noSeparatorsDateFormatter().dateFromString(string);
}

std::optional<NSDate> OVNoteSearchManager::ov_yearMonthDateFromString(std::string_view string)
{
    if (utf16Length(string) < kShortestMonth)
        return std::nullopt;
    for (const std::string_view pattern : kMonthPatterns) {
        if (const auto date = DateFormatter::withPattern(pattern).dateFromString(string))
            return date;
    }
    return std::nullopt;
}

std::optional<NSDate> OVNoteSearchManager::ov_yearOnlyFromString(std::string_view string)
{
    if (utf16Length(string) != kLengthOfYear)
        return std::nullopt;
    return DateFormatter::withPattern("yyyy").dateFromString(string);
}

DateFormatter OVNoteSearchManager::ov_iso8601DateOnlyFormatter()
{
    return DateFormatter::withPattern("yyyy-MM-dd");
}

DateFormatter OVNoteSearchManager::ov_noSeparatorsDateFormatter()
{
    return DateFormatter::withPattern("yyyyMMdd");
}

} // namespace tarn
