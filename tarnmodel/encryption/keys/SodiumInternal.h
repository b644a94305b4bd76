#pragma once

#include <sodium.h>

#include <cstddef>
#include <span>

namespace tarn {

/// Bytes as libsodium takes them.
template <std::size_t Length> const unsigned char* octets(std::span<const std::byte, Length> bytes) noexcept
{
    return reinterpret_cast<const unsigned char*>(bytes.data());
}
template <std::size_t Length> unsigned char* octets(std::span<std::byte, Length> bytes) noexcept
{
    return reinterpret_cast<unsigned char*>(bytes.data());
}

} // namespace tarn
