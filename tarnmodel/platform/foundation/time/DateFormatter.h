#pragma once

#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// Reads and writes days by a numeric pattern of the letters y, M and d, in the time zone of `Environment`.
///
/// Strict: the text must have the pattern's shape from its first character to its last and name a day that exists;
/// decimal digits of every script are taken. A day is its beginning. Any thread.
///
///     std::optional<NSDate> day = DateFormatter::withPattern("yyyy-MM-dd").dateFromString("2021-03-15");
class DateFormatter {
public:
    /// Gregorian; each letter stands for exactly one digit ("yyyy", "M/yyyy"), what is missing is 1.
    static DateFormatter withPattern(std::string_view pattern);
    /// The short style of the current locale, in the locale's calendar: days and months of one or two digits, years of
    /// four, or of two within 80 years back and 20 ahead; blanks and marks of direction may be left out. A locale whose
    /// short style is more than numbers reads nothing.
    static DateFormatter withShortStyle();

    /// The beginning of the day that the text names; none when it names none.
    std::optional<NSDate> dateFromString(std::string_view text) const;
    /// The day of that moment, by the pattern.
    std::string stringFromDate(NSDate date) const;
    /// In the letters of Unicode's date patterns.
    const std::string& pattern() const noexcept { return pattern_; }

private:
    explicit DateFormatter(std::string pattern, std::optional<std::string> locale);

    std::string pattern_;
    std::optional<std::string> locale_; ///< of the short style
};

} // namespace tarn
