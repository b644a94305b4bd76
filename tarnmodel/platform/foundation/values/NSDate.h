#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// An absolute point in time, in whole microseconds since 1970-01-01T00:00:00Z.
///
/// "NSDate+Chrono.h" converts it to and from std::chrono and reckons with durations; who only keeps or compares dates
/// does not pay for that header.
class NSDate {
public:
    constexpr NSDate() = default;
    /// The moment so many microseconds after the beginning of 1970.
    explicit constexpr NSDate(std::int64_t microsecondsSince1970) noexcept : microseconds_(microsecondsSince1970) { }
    /// Negative before 1970.
    constexpr std::int64_t microsecondsSince1970() const noexcept { return microseconds_; }

    /// The ends of what can be counted: about 292,000 years before and after 1970.
    static constexpr NSDate min() noexcept { return NSDate(INT64_MIN); }
    static constexpr NSDate max() noexcept { return NSDate(INT64_MAX); }

    friend constexpr auto operator<=>(NSDate, NSDate) = default;

private:
    std::int64_t microseconds_ = 0;
};

/// The current time, by the clock of `Environment`; tests set it.
NSDate now();

/// Microseconds since 2001-01-01T00:00:00Z, the reference date of predicates.
std::int64_t microsecondsSinceReferenceDate(NSDate date) noexcept;
NSDate dateWithMicrosecondsSinceReferenceDate(std::int64_t microseconds) noexcept;

/// Microseconds since 1970-01-01T00:00:00Z, the form in which the store keeps dates.
constexpr std::int64_t microsecondsSince1970(NSDate date) noexcept
{
    return date.microsecondsSince1970();
}
constexpr NSDate dateWithMicrosecondsSince1970(std::int64_t microseconds) noexcept
{
    return NSDate(microseconds);
}

/// "2020-01-31T10:15:00Z", in UTC; with six digits of a second where the date has a fraction.
std::string iso8601String(NSDate date);
/// Reads `YYYY-MM-DD`, optionally followed by `T` or a blank and `hh:mm[:ss[.fraction]]` and a zone (`Z`, `+hh:mm`,
/// `+hhmm`); without a zone the time is UTC. None when the text is anything else or names no real day.
std::optional<NSDate> dateFromISO8601String(std::string_view text);

} // namespace tarn
