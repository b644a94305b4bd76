#pragma once

#include "tarnmodel/backup/archive/BackupHash.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace tarn {

/// The end of an archive: a frame that decompressors skip, with the hash of all bytes before it.
///
/// 4 bytes 5A 2A 4D 18, 4 bytes length of the rest (80), 8 bytes "TARNBKP1", 8 bytes size of the manifest, 32 bytes its
/// BLAKE2b, 32 bytes BLAKE2b of the archive up to here. Numbers are little-endian. Part of the format.
struct ArchiveEnd {
    static constexpr std::size_t length = 88;

    std::uint64_t manifestSize = 0;
    BackupHash::Digest manifestHash{};
    BackupHash::Digest archiveHash{};

    std::array<std::byte, length> bytes() const;
    /// None for anything else.
    static std::optional<ArchiveEnd> fromBytes(std::span<const std::byte, length> bytes);
};

} // namespace tarn
