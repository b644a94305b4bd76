#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <vector>

namespace tarn {

/// The bytes of a text, as they are.
inline std::span<const std::byte> bytesOfText(std::string_view text) noexcept
{
    return std::as_bytes(std::span(text));
}

/// The bytes of a number, lowest first: how every format of this room counts.
template <typename Number> std::array<std::byte, sizeof(Number)> littleEndian(Number number) noexcept
{
    std::array<std::byte, sizeof(Number)> bytes;
    for (std::size_t index = 0; index < bytes.size(); ++index)
        bytes[index] = static_cast<std::byte>(static_cast<std::uint64_t>(number) >> (8 * index));
    return bytes;
}

/// The number that stands at the beginning of these bytes, which are enough.
template <typename Number> Number numberFromLittleEndian(std::span<const std::byte> bytes) noexcept
{
    std::uint64_t number = 0;
    for (std::size_t index = 0; index < sizeof(Number); ++index)
        number |= static_cast<std::uint64_t>(bytes[index]) << (8 * index);
    return static_cast<Number>(number);
}

inline void append(std::vector<std::byte>& bytes, std::span<const std::byte> more)
{
    bytes.insert(bytes.end(), more.begin(), more.end());
}

/// Bytes of several places behind each other.
inline std::vector<std::byte> joined(std::initializer_list<std::span<const std::byte>> parts)
{
    std::vector<std::byte> bytes;
    for (const std::span<const std::byte> part : parts)
        append(bytes, part);
    return bytes;
}

/// The first bytes of these, of a length that is known while compiling.
template <std::size_t Length> std::array<std::byte, Length> arrayOf(std::span<const std::byte> bytes) noexcept
{
    std::array<std::byte, Length> array;
    std::memcpy(array.data(), bytes.data(), Length);
    return array;
}

} // namespace tarn
