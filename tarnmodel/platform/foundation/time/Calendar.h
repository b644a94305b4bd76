#pragma once

#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <memory>

namespace tarn {

/// A day, month 1 to 12. Years before 1 are 0 and negative.
struct CalendarDay {
    int year = 1;
    int month = 1;
    int day = 1;
    friend auto operator<=>(const CalendarDay&, const CalendarDay&) = default;
};

/// Day and time of day as people write them; any field may lie outside of its range ("day 0" is the last one of the
/// month before).
struct CalendarFields {
    int year = 1;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

/// The Gregorian calendar (the Julian one before October 1582) in the local time of `Environment`.
///
/// Follows the system when that is set to another zone. A value; one thread at a time.
///
///     CalendarDay today = Calendar().dayOfDate(now());
class Calendar {
public:
    Calendar();
    ~Calendar();
    Calendar(Calendar&&) noexcept;
    Calendar& operator=(Calendar&&) noexcept;

    CalendarDay dayOfDate(NSDate date) const;
    /// Fractions of a second are left out.
    CalendarFields fieldsOfDate(NSDate date) const;
    /// The time that the fields name, all set at once: one after another would stumble over changes of the clock. A
    /// time that the clock skips gives one as much later; of one that it shows twice the later is taken.
    NSDate dateWithFields(const CalendarFields& fields) const;
    /// Midnight, the first time of a day that has none, the first midnight of a day that has two.
    NSDate beginOfDay(const CalendarDay& day) const;

    /// Whether the calendar has such a day, in years 1 to 9999.
    static bool isRealDay(const CalendarDay& day);

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace tarn
