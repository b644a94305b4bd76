#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace tarn {

/// A number of to-dos as the record of a note holds it; one that does not fit is the highest that does.
inline std::int16_t storedToDoCount(std::size_t count) noexcept
{
    constexpr std::size_t highest = std::numeric_limits<std::int16_t>::max();
    return static_cast<std::int16_t>(std::min(count, highest));
}

} // namespace tarn
