#pragma once

#include "platform/foundation/NSDate.h"

#include <unicode/gregocal.h>
#include <unicode/timezone.h>

#include <memory>
#include <string>

namespace tarn {

/// UTC for a name that nobody knows.
std::unique_ptr<icu::TimeZone> timeZoneNamed(const std::string& identifier);

/// Dates as ICU counts them: milliseconds since 1970.
double icuDate(NSDate date) noexcept;
NSDate dateWithICUDate(double milliseconds) noexcept;

} // namespace tarn
