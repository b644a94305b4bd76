#include "tarnmodel/platform/foundation/values/NSDate+Chrono.h"

#include <fmt/format.h>

#include <limits>

namespace tarn {

namespace {

constexpr std::int64_t kMicrosecondsPerSecond = 1'000'000;
constexpr std::int64_t kSecondsPerDay = 86'400;
constexpr std::int64_t kReferenceDate = 978'307'200 * kMicrosecondsPerSecond;

struct CivilDay {
    std::int64_t year = 1970;
    unsigned month = 1;
    unsigned day = 1;
};

std::int64_t floorDivide(std::int64_t dividend, std::int64_t divisor) noexcept
{
    return dividend / divisor - (dividend % divisor < 0 ? 1 : 0);
}

/// The sum, or the end of the range that it would leave: the far ends of time are no reason for undefined behaviour.
std::int64_t sumWithinRange(std::int64_t left, std::int64_t right) noexcept
{
    std::int64_t sum = 0;
    if (!__builtin_add_overflow(left, right, &sum))
        return sum;
    return right < 0 ? std::numeric_limits<std::int64_t>::min() : std::numeric_limits<std::int64_t>::max();
}

/// The day of the Gregorian calendar; `std::chrono::year` ends at 32767, these dates do not.
/// Years are counted from March, so that the leap day is the last one.
CivilDay civilDay(std::int64_t daysSince1970) noexcept
{
    constexpr std::int64_t kDaysOf400Years = 146'097;
    const std::int64_t days = daysSince1970 + 719'468; // since 0000-03-01
    const std::int64_t era = floorDivide(days, kDaysOf400Years);
    const std::int64_t dayOfEra = days - era * kDaysOf400Years;
    const std::int64_t yearOfEra = (dayOfEra - dayOfEra / 1'460 + dayOfEra / 36'524 - dayOfEra / 146'096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t marchMonth = (5 * dayOfYear + 2) / 153;
    const auto day = static_cast<unsigned>(dayOfYear - (153 * marchMonth + 2) / 5 + 1);
    const auto month = static_cast<unsigned>(marchMonth < 10 ? marchMonth + 3 : marchMonth - 9);
    return {era * 400 + yearOfEra + (month <= 2 ? 1 : 0), month, day};
}

/// Reads a text from left to right; every piece is taken whole or not at all.
class Reader {
public:
    explicit Reader(std::string_view text) : text_(text) { }
    bool atEnd() const noexcept { return text_.empty(); }
    bool take(char character) noexcept
    {
        if (text_.empty() || text_.front() != character)
            return false;
        text_.remove_prefix(1);
        return true;
    }
    std::optional<int> takeDigits(std::size_t count) noexcept
    {
        if (text_.size() < count)
            return std::nullopt;
        int number = 0;
        for (const char character : text_.substr(0, count)) {
            if (character < '0' || character > '9')
                return std::nullopt;
            number = number * 10 + (character - '0');
        }
        text_.remove_prefix(count);
        return number;
    }
    /// At most `highest`.
    std::optional<int> takeTwoDigits(int highest) noexcept
    {
        const auto number = takeDigits(2);
        return number && *number <= highest ? number : std::nullopt;
    }
    /// Digits after a point as microseconds; what is finer is cut off.
    std::optional<std::int64_t> takeFraction() noexcept
    {
        std::int64_t microseconds = 0;
        std::int64_t unit = kMicrosecondsPerSecond;
        bool any = false;
        while (const auto digit = takeDigits(1)) {
            unit /= 10;
            microseconds += *digit * unit;
            any = true;
        }
        return any ? std::optional(microseconds) : std::nullopt;
    }

private:
    std::string_view text_;
};

std::optional<std::chrono::sys_days> takeDay(Reader& reader)
{
    const auto year = reader.takeDigits(4);
    if (!year || !reader.take('-'))
        return std::nullopt;
    const auto month = reader.takeDigits(2);
    if (!month || !reader.take('-'))
        return std::nullopt;
    const auto day = reader.takeDigits(2);
    if (!day)
        return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year(*year), std::chrono::month(static_cast<unsigned>(*month)),
        std::chrono::day(static_cast<unsigned>(*day))};
    return date.ok() ? std::optional(std::chrono::sys_days(date)) : std::nullopt;
}

std::optional<std::chrono::microseconds> takeTimeOfDay(Reader& reader)
{
    const auto hours = reader.takeTwoDigits(23);
    if (!hours || !reader.take(':'))
        return std::nullopt;
    const auto minutes = reader.takeTwoDigits(59);
    if (!minutes)
        return std::nullopt;
    std::chrono::microseconds time = std::chrono::hours(*hours) + std::chrono::minutes(*minutes);
    if (!reader.take(':'))
        return time;
    const auto seconds = reader.takeTwoDigits(59);
    if (!seconds)
        return std::nullopt;
    time += std::chrono::seconds(*seconds);
    if (!reader.take('.'))
        return time;
    const auto fraction = reader.takeFraction();
    if (!fraction)
        return std::nullopt;
    return time + std::chrono::microseconds(*fraction);
}

/// How far local time is ahead of UTC; nothing means UTC.
std::optional<std::chrono::minutes> takeZone(Reader& reader)
{
    if (reader.atEnd() || reader.take('Z'))
        return std::chrono::minutes(0);
    const bool ahead = reader.take('+');
    if (!ahead && !reader.take('-'))
        return std::nullopt;
    const auto hours = reader.takeTwoDigits(23);
    if (!hours)
        return std::nullopt;
    reader.take(':');
    const auto minutes = reader.takeTwoDigits(59);
    if (!minutes)
        return std::nullopt;
    const std::chrono::minutes offset = std::chrono::hours(*hours) + std::chrono::minutes(*minutes);
    return ahead ? offset : -offset;
}

} // namespace

std::int64_t microsecondsSinceReferenceDate(NSDate date) noexcept
{
    return sumWithinRange(date.microsecondsSince1970(), -kReferenceDate);
}

NSDate dateWithMicrosecondsSinceReferenceDate(std::int64_t microseconds) noexcept
{
    return NSDate(sumWithinRange(microseconds, kReferenceDate));
}

std::string iso8601String(NSDate date)
{
    const std::int64_t total = date.microsecondsSince1970();
    const std::int64_t seconds = floorDivide(total, kMicrosecondsPerSecond);
    const std::int64_t remainder = total % kMicrosecondsPerSecond;
    const std::int64_t fraction = remainder < 0 ? remainder + kMicrosecondsPerSecond : remainder;
    const std::int64_t days = floorDivide(seconds, kSecondsPerDay);
    const std::int64_t second = seconds - days * kSecondsPerDay;
    const CivilDay day = civilDay(days);

    std::string text = fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}", day.year, day.month, day.day, second / 3'600,
        second / 60 % 60, second % 60);
    if (fraction != 0)
        text += fmt::format(".{:06}", fraction);
    text += 'Z';
    return text;
}

std::optional<NSDate> dateFromISO8601String(std::string_view text)
{
    Reader reader(text);
    const auto day = takeDay(reader);
    if (!day)
        return std::nullopt;
    const NSDate date = dateWithSystemTime(*day);
    if (reader.atEnd())
        return date;
    if (!reader.take('T') && !reader.take(' '))
        return std::nullopt;
    const auto time = takeTimeOfDay(reader);
    if (!time)
        return std::nullopt;
    const auto zone = takeZone(reader);
    if (!zone || !reader.atEnd())
        return std::nullopt;
    return date + *time - *zone;
}

} // namespace tarn
