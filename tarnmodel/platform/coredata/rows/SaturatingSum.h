#pragma once

#include <cstddef>
#include <limits>

namespace tarn {

/// The sum, or the largest number where that is smaller: limits may be given as "as many as there are".
constexpr std::size_t saturatingSum(std::size_t left, std::size_t right) noexcept
{
    constexpr std::size_t kMost = std::numeric_limits<std::size_t>::max();
    return left > kMost - right ? kMost : left + right;
}

} // namespace tarn
