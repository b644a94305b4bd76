#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace tarn {

/// Where a file or folder that is installed beside the library lies, "Model.momd" for example; none when it is nowhere.
///
/// Looked for in this order: the folder that the environment variable TARN_RESOURCES names; share/tarnmodel beside the
/// folder of the program, then beside that of the library; the source folder of this build; the folder that this build
/// installs into. Any thread.
std::optional<std::filesystem::path> resourceNamed(std::string_view name);
/// The first of these folders that has "Model.momd", else the first one that is there; none when none is. Any thread.
std::optional<std::filesystem::path> resourceFolder();

} // namespace tarn
