#include "tarnmodel/platform/cloudkit/ArchiveFormatInternal.h"

#include <array>

namespace tarn {
namespace {

constexpr std::array<std::uint32_t, 256> checksumTable()
{
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t index = 0; index < table.size(); ++index) {
        std::uint32_t value = index;
        for (int bit = 0; bit < 8; ++bit)
            value = (value >> 1) ^ (value & 1 ? 0xEDB88320U : 0U);
        table[index] = value;
    }
    return table;
}

} // namespace

std::uint32_t checksumOfArchive(std::span<const std::byte> bytes) noexcept
{
    static constexpr auto table = checksumTable();
    std::uint32_t checksum = ~std::uint32_t{0};
    for (const std::byte byte : bytes)
        checksum = (checksum >> 8) ^ table[(checksum ^ std::to_integer<std::uint32_t>(byte)) & 0xFFU];
    return ~checksum;
}

} // namespace tarn
