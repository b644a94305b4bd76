#pragma once

#include <cstddef>
#include <cstdint>

namespace tarn {

/// How much of a backup is read before it is refused: an archive of a few bytes can stand for any number of them.
struct BackupLimits {
    std::size_t members = 1'000'000;                        ///< files in the archive
    std::uint64_t bytes = std::uint64_t(1) << 40;           ///< of all of them, decompressed
    std::uint64_t manifestBytes = std::uint64_t(256) << 20; ///< of the list of contents
    std::uint64_t recordBytes = std::uint64_t(1) << 30;     ///< of one record
    /// Decompressed bytes for each byte of the archive; counts where there are more than `ratioFreeBytes` of them.
    std::uint64_t ratio = 2'000;
    std::uint64_t ratioFreeBytes = std::uint64_t(8) << 30; ///< so many may come of an archive of any size
};

} // namespace tarn
