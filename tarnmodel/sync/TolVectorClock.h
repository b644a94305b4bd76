#pragma once

#include "tarnmodel/platform/foundation/text/PropertyList.h"
#include "tarnmodel/platform/foundation/values/NSData.h"

#include <cstdint>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Counts, device by device, how many edits of a note each device has made.
///
/// A value: a copy is a clock of its own. The two `updateClockValueForID` may be called from several threads at once;
/// everything else wants no update under way.
///
///     TolVectorClock mine, theirs;
///     mine.updateClockValueForID("A");
///     bool conflict = mine.compare(theirs) == TolVectorClock::Concurrent;
class TolVectorClock {
public:
    /// Device identifier to counter; a device that is not in it counts as 0.
    using ClockValues = IntegerDictionary;

    /// What `compare` answers.
    enum Comparison : int {
        Precedes = -1, ///< every counter is lower or equal, at least one is lower
        Equal = 0,
        Follows = 1,    ///< every counter is higher or equal, at least one is higher
        Concurrent = 2, ///< some counter is higher and some is lower
    };

    /// No counters.
    TolVectorClock() = default;
    /// The same counters.
    TolVectorClock(const TolVectorClock& other);
    TolVectorClock(TolVectorClock&& other) noexcept;
    TolVectorClock& operator=(const TolVectorClock& other);
    TolVectorClock& operator=(TolVectorClock&& other) noexcept;
    ~TolVectorClock() = default;

    /// Reads what `data()` wrote; without data an empty clock. None when the bytes are not a flat binary property list
    /// of whole numbers (no bytes at all are not one either).
    static std::optional<TolVectorClock> initWithData(const std::optional<NSData>& data);

    /// The counters as a binary property list ("bplist00"), as notes store them. Equal clocks give equal bytes.
    NSData data() const;

    /// 0 for a device that has no counter.
    std::uint64_t clockValueForID(std::string_view identifier) const;
    /// Adds one to a device's counter; the first time it becomes 1.
    void updateClockValueForID(std::string_view identifier);
    /// Sets a device's counter.
    void updateClockValueForID(std::string_view identifier, std::uint64_t value);

    /// A new clock with the higher counter of both for every device.
    TolVectorClock mergeClock(const TolVectorClock& clock) const;
    /// How this clock stands to `clock`. Counters are compared by their difference as a signed 64-bit number.
    Comparison compare(const TolVectorClock& clock) const;

    /// Every device with a counter, in ascending order of bytes.
    std::vector<std::string> orderedIDs() const;
    /// "(A:3, B:1)" in the order of `orderedIDs`; "()" when empty.
    std::string stringRepresentation() const;
    /// "<TolVectorClock: 0x55d0c0ffee00> (A:3, B:1)".
    std::string description() const;

    /// All counters.
    const ClockValues& clockValues() const noexcept { return clockValues_; }
    void setClockValues(ClockValues clockValues) { clockValues_ = std::move(clockValues); }

private:
    explicit TolVectorClock(ClockValues clockValues) : clockValues_(std::move(clockValues)) { }

    ClockValues clockValues_;
    std::mutex updates_; ///< held by the two `updateClockValueForID`
};

} // namespace tarn
