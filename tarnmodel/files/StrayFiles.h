#pragma once

#include <filesystem>
#include <string_view>

namespace tarn {

/// Folder, beside those of the attachments, of what belongs to no record: kept for people to look at. Part of the
/// layout on disk.
inline constexpr std::string_view OVNoteStrayFileDirectoryName = "Lost and Found";

/// Moves a file or folder there, into a folder of its own whose name begins so. False when that fails, or when there is
/// nothing.
bool moveToStrayFiles(const std::filesystem::path& item, std::string_view identifier);

} // namespace tarn
