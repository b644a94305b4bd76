#pragma once

#include <filesystem>
#include <system_error>

namespace tarn {

/// Makes the folder and those above it, readable by their owner alone; folders that are there stay as they are. The
/// error of the first folder that could not be made, or that something else has its name; none when the folder is there
/// in the end.
std::error_code createPrivateFolder(const std::filesystem::path& folder);

} // namespace tarn
