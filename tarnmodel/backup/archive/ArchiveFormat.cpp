#include "tarnmodel/backup/archive/ArchiveFormat.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace tarn {

namespace {

constexpr std::array<unsigned char, 16> kBeginning{
    0x5A, 0x2A, 0x4D, 0x18, 80, 0, 0, 0, 'T', 'A', 'R', 'N', 'B', 'K', 'P', '1'};
constexpr std::size_t kManifestSize = kBeginning.size();
constexpr std::size_t kManifestHash = kManifestSize + 8;
constexpr std::size_t kArchiveHash = kManifestHash + 32;
static_assert(kArchiveHash + 32 == ArchiveEnd::length);

} // namespace

std::array<std::byte, ArchiveEnd::length> ArchiveEnd::bytes() const
{
    std::array<std::byte, length> bytes{};
    std::memcpy(bytes.data(), kBeginning.data(), kBeginning.size());
    for (std::size_t index = 0; index < 8; ++index)
        bytes[kManifestSize + index] = static_cast<std::byte>(manifestSize >> (8 * index));
    std::memcpy(bytes.data() + kManifestHash, manifestHash.data(), manifestHash.size());
    std::memcpy(bytes.data() + kArchiveHash, archiveHash.data(), archiveHash.size());
    return bytes;
}

std::optional<ArchiveEnd> ArchiveEnd::fromBytes(std::span<const std::byte, length> bytes)
{
    if (std::memcmp(bytes.data(), kBeginning.data(), kBeginning.size()) != 0)
        return std::nullopt;
    ArchiveEnd end;
    for (std::size_t index = 0; index < 8; ++index)
        end.manifestSize |= std::to_integer<std::uint64_t>(bytes[kManifestSize + index]) << (8 * index);
    std::memcpy(end.manifestHash.data(), bytes.data() + kManifestHash, end.manifestHash.size());
    std::memcpy(end.archiveHash.data(), bytes.data() + kArchiveHash, end.archiveHash.size());
    return end;
}

} // namespace tarn
