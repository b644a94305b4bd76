#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>

namespace tarn {

class NSError;

/// Takes the next bytes of an archive; false gives up.
using ArchiveSink = std::function<bool(std::span<const std::byte> bytes)>;
/// Gives the next bytes of an archive, valid until the next call; empty at its end, none gives up.
using ArchiveSource = std::function<std::optional<std::span<const std::byte>>()>;

/// How long the archive of a folder is; none and an error when the folder cannot be read.
std::optional<std::uint64_t> lengthOfFolderArchive(const std::filesystem::path& folder, NSError* error);
/// The folder with all that is in it as a pax archive: files, folders and links that do not lead out of it. False and
/// an error for anything else. What `sink` refuses is its own error.
bool writeFolderArchive(const std::filesystem::path& folder, const ArchiveSink& sink, NSError* error);
/// Makes the folder. No name and no link of the archive leads out of it; an archive that tries is refused. After a
/// failure a part of it may be there. What `source` refuses is its own error.
bool readFolderArchive(const ArchiveSource& source, const std::filesystem::path& folder, NSError* error);

} // namespace tarn
