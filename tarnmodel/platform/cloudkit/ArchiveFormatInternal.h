#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace tarn {

// What the two sides of a keyed archive agree on. Archives lie in stores: none of these may change.
inline constexpr std::string_view archiveMagic = "TarnKArc";
inline constexpr std::uint8_t archiveFormat = 1;
inline constexpr std::size_t archiveChecksumLength = 4;

enum class ArchivedKind : std::uint8_t { String = 1, Data = 2, Date = 3 };

/// CRC-32 as in zip and PNG: the polynomial 0xEDB88320, reflected.
std::uint32_t checksumOfArchive(std::span<const std::byte> bytes) noexcept;

} // namespace tarn
