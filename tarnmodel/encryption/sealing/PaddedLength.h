#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>

namespace tarn {

/// What stands in a file of this room tells no more of its length than its order of size: short ones are 256 bytes
/// long, longer ones keep few of the highest bits, which costs 12 % at most.
constexpr std::uint64_t paddedLength(std::uint64_t length) noexcept
{
    constexpr std::uint64_t shortest = 256;
    const std::uint64_t least = std::max(length, shortest);
    const auto exponent = static_cast<unsigned>(std::bit_width(least)) - 1;
    const unsigned roundedBits = exponent - static_cast<unsigned>(std::bit_width(exponent));
    const std::uint64_t mask = (std::uint64_t{1} << roundedBits) - 1;
    return (least + mask) & ~mask;
}

} // namespace tarn
