#include "tarnmodel/platform/foundation/time/DateFormatter.h"

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/text/LocaleInternal.h"
#include "tarnmodel/platform/foundation/time/Calendar.h"
#include "tarnmodel/platform/foundation/time/CalendarInternal.h"
#include "tarnmodel/platform/foundation/time/DatePattern.h"

#include <unicode/smpdtfmt.h>

#include <mutex>
#include <tuple>
#include <utility>

namespace tarn {

namespace {

constexpr int kYearsBack = 80;

/// The calendar of a locale, of what the clock on the wall shows.
class LocaleCalendar {
public:
    explicit LocaleCalendar(const std::string& locale)
        : calendar_(icu::Calendar::createInstance(*icu::TimeZone::getGMT(), localeWithIdentifier(locale), status_))
    { }

    DateNumbers numbersOfDate(NSDate date)
    {
        calendar_->setTime(icuDate(wallTimeOfDate(date)), status_);
        return {.year = field(UCAL_YEAR), .month = field(UCAL_MONTH) + 1, .day = field(UCAL_DATE)};
    }
    /// None when there is no such day.
    std::optional<NSDate> dateWithNumbers(DateNumbers numbers)
    {
        if (numbers.shortYear)
            numbers.year = fullYear(numbers);
        calendar_->clear();
        calendar_->set(numbers.year, numbers.month - 1, numbers.day);
        const WallTime midnight = wallTimeWithICUDate(calendar_->getTime(status_));
        const bool isReal = U_SUCCESS(status_) && field(UCAL_YEAR) == numbers.year
            && field(UCAL_MONTH) == numbers.month - 1 && field(UCAL_DATE) == numbers.day;
        return isReal ? std::optional(beginOfWallDay(midnight)) : std::nullopt;
    }

private:
    int field(UCalendarDateFields name) { return calendar_->get(name, status_); }

    /// The year of two digits that lies in the hundred years that began 80 years ago.
    int fullYear(const DateNumbers& numbers)
    {
        const DateNumbers today = numbersOfDate(now());
        const int first = today.year - kYearsBack;
        const int year = first - first % 100 + numbers.year;
        const bool isBefore = std::tie(year, numbers.month, numbers.day) < std::tie(first, today.month, today.day);
        return isBefore ? year + 100 : year;
    }

    UErrorCode status_ = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> calendar_;
};

std::string shortPatternFromICU(const std::string& locale)
{
    const std::unique_ptr<icu::DateFormat> format(
        icu::DateFormat::createDateInstance(icu::DateFormat::kShort, localeWithIdentifier(locale)));
    icu::UnicodeString pattern;
    if (const auto* simple = dynamic_cast<const icu::SimpleDateFormat*>(format.get()))
        simple->toPattern(pattern);
    std::string text;
    pattern.toUTF8String(text);
    return text;
}

/// The last one is kept, since ICU takes a while.
std::string shortPatternOfLocale(const std::string& locale)
{
    static std::mutex mutex;
    static std::optional<std::string> keptLocale;
    static std::string keptPattern;
    const std::scoped_lock lock(mutex);
    if (keptLocale != locale) {
        keptPattern = shortPatternFromICU(locale);
        keptLocale = locale;
    }
    return keptPattern;
}

} // namespace

DateFormatter::DateFormatter(std::string pattern, std::optional<std::string> locale)
    : pattern_(std::move(pattern)), locale_(std::move(locale))
{ }

DateFormatter DateFormatter::withPattern(std::string_view pattern)
{
    return DateFormatter(std::string(pattern), std::nullopt);
}

DateFormatter DateFormatter::withShortStyle()
{
    std::string locale = Environment::current().localeIdentifier();
    std::string pattern = shortPatternOfLocale(locale);
    return DateFormatter(std::move(pattern), std::move(locale));
}

std::optional<NSDate> DateFormatter::dateFromString(std::string_view text) const
{
    const auto pattern = DatePattern::parse(pattern_);
    if (!pattern || text.empty())
        return std::nullopt;
    const auto numbers = pattern->read(text, locale_ ? DatePattern::Reading::Loose : DatePattern::Reading::ExactShape);
    if (!numbers)
        return std::nullopt;
    if (locale_)
        return LocaleCalendar(*locale_).dateWithNumbers(*numbers);
    const CalendarDay day{numbers->year, numbers->month, numbers->day};
    return Calendar::isRealDay(day) ? std::optional(Calendar().beginOfDay(day)) : std::nullopt;
}

std::string DateFormatter::stringFromDate(NSDate date) const
{
    const auto pattern = DatePattern::parse(pattern_);
    if (!pattern)
        return {};
    if (locale_)
        return pattern->write(LocaleCalendar(*locale_).numbersOfDate(date));
    const CalendarDay day = Calendar().dayOfDate(date);
    return pattern->write({.year = day.year, .month = day.month, .day = day.day});
}

} // namespace tarn
