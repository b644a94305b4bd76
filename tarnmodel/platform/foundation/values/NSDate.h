#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// An absolute point in time, in whole microseconds since 1970-01-01T00:00:00Z.
using NSDate = std::chrono::sys_time<std::chrono::microseconds>;

/// The current time, by the clock of `Environment`; tests set it.
NSDate now();

/// Microseconds since 2001-01-01T00:00:00Z, the reference date of predicates.
std::int64_t microsecondsSinceReferenceDate(NSDate date) noexcept;
NSDate dateWithMicrosecondsSinceReferenceDate(std::int64_t microseconds) noexcept;

/// Microseconds since 1970-01-01T00:00:00Z, the form in which the store keeps dates.
inline std::int64_t microsecondsSince1970(NSDate date) noexcept
{
    return date.time_since_epoch().count();
}
inline NSDate dateWithMicrosecondsSince1970(std::int64_t microseconds) noexcept
{
    return NSDate(std::chrono::microseconds(microseconds));
}

/// "2020-01-31T10:15:00Z", in UTC; with six digits of a second where the date has a fraction.
std::string iso8601String(NSDate date);
/// Reads `YYYY-MM-DD`, optionally followed by `T` or a blank and `hh:mm[:ss[.fraction]]` and a zone (`Z`, `+hh:mm`,
/// `+hhmm`); without a zone the time is UTC. None when the text is anything else or names no real day.
std::optional<NSDate> dateFromISO8601String(std::string_view text);

} // namespace tarn
