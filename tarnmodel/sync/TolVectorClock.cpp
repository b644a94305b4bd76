#include "tarnmodel/sync/TolVectorClock.h"

#include <fmt/format.h>

#include <utility>

namespace tarn {

// The lock guards one object's counters; a copy or a moved clock begins with a lock of its own.
TolVectorClock::TolVectorClock(const TolVectorClock& other) : clockValues_(other.clockValues_) { }

TolVectorClock::TolVectorClock(TolVectorClock&& other) noexcept : clockValues_(std::move(other.clockValues_)) { }

TolVectorClock& TolVectorClock::operator=(const TolVectorClock& other)
{
    clockValues_ = other.clockValues_;
    return *this;
}

TolVectorClock& TolVectorClock::operator=(TolVectorClock&& other) noexcept
{
    clockValues_ = std::move(other.clockValues_);
    return *this;
}

std::optional<TolVectorClock> TolVectorClock::initWithData(const std::optional<NSData>& data)
{
    if (!data)
        return TolVectorClock();
    auto values = dictionaryFromBinaryPropertyList(data->span());
    if (!values)
        return std::nullopt;
    return TolVectorClock(std::move(*values));
}

NSData TolVectorClock::data() const
{
    return binaryPropertyListWithDictionary(clockValues_);
}

std::uint64_t TolVectorClock::clockValueForID(std::string_view identifier) const
{
    const auto entry = clockValues_.find(identifier);
    return entry == clockValues_.end() ? 0 : entry->second;
}

void TolVectorClock::updateClockValueForID(std::string_view identifier)
{
    const std::scoped_lock lock(updates_);
    ++clockValues_[std::string(identifier)];
}

void TolVectorClock::updateClockValueForID(std::string_view identifier, std::uint64_t value)
{
    const std::scoped_lock lock(updates_);
    clockValues_[std::string(identifier)] = value;
}

TolVectorClock TolVectorClock::mergeClock(const TolVectorClock& clock) const
{
    ClockValues merged = clockValues_;
    for (const auto& [identifier, value] : clock.clockValues_) {
        const auto [entry, isNew] = merged.try_emplace(identifier, value);
        if (!isNew && entry->second < value)
            entry->second = value;
    }
    return TolVectorClock(std::move(merged));
}

TolVectorClock::Comparison TolVectorClock::compare(const TolVectorClock& clock) const
{
    bool isAhead = false;
    bool isBehind = false;
    const auto mark = [&](std::uint64_t mine, std::uint64_t theirs) {
        // Conversion after the subtraction: counters more than 2^63 apart count as wrapped around.
        const auto difference = static_cast<std::int64_t>(mine - theirs);
        isAhead = isAhead || difference > 0;
        isBehind = isBehind || difference < 0;
    };
    for (const auto& [identifier, value] : clockValues_)
        mark(value, clock.clockValueForID(identifier));
    for (const auto& [identifier, value] : clock.clockValues_)
        mark(clockValueForID(identifier), value);

    if (isAhead && isBehind)
        return Concurrent;
    if (isBehind)
        return Precedes;
    return isAhead ? Follows : Equal;
}

std::vector<std::string> TolVectorClock::orderedIDs() const
{
    std::vector<std::string> identifiers;
    identifiers.reserve(clockValues_.size());
    for (const auto& [identifier, value] : clockValues_)
        identifiers.push_back(identifier);
    return identifiers;
}

std::string TolVectorClock::stringRepresentation() const
{
    std::string text = "(";
    std::string_view separator;
    for (const auto& [identifier, value] : clockValues_) {
        text += fmt::format("{}{}:{}", separator, identifier, value);
        separator = ", ";
    }
    return text + ')';
}

std::string TolVectorClock::description() const
{
    return fmt::format("<TolVectorClock: {}> {}", fmt::ptr(this), stringRepresentation());
}

} // namespace tarn
