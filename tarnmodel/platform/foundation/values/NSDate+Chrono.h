#pragma once

#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <chrono>

namespace tarn {

/// The same point in time as std::chrono counts it.
using SystemTime = std::chrono::sys_time<std::chrono::microseconds>;

constexpr SystemTime systemTimeOfDate(NSDate date) noexcept
{
    return SystemTime(std::chrono::microseconds(date.microsecondsSince1970()));
}
constexpr NSDate dateWithSystemTime(SystemTime time) noexcept
{
    return NSDate(time.time_since_epoch().count());
}

// As in std::chrono, a sum that leaves the range of 64 bits is the caller's mistake.
constexpr NSDate operator+(NSDate date, std::chrono::microseconds distance) noexcept
{
    return dateWithSystemTime(systemTimeOfDate(date) + distance);
}
constexpr NSDate operator-(NSDate date, std::chrono::microseconds distance) noexcept
{
    return dateWithSystemTime(systemTimeOfDate(date) - distance);
}
constexpr std::chrono::microseconds operator-(NSDate left, NSDate right) noexcept
{
    return systemTimeOfDate(left) - systemTimeOfDate(right);
}
constexpr NSDate& operator+=(NSDate& date, std::chrono::microseconds distance) noexcept
{
    return date = date + distance;
}

} // namespace tarn
