#pragma once

#include <filesystem>

namespace tarn {

/// Whether a name of something in a folder stays in that folder: relative, and without "..".
bool staysInFolder(const std::filesystem::path& name);
/// Whether a link of this name in a folder leads to something in that folder, as far as its text tells.
bool leadsNowhereElse(const std::filesystem::path& target, const std::filesystem::path& nameOfLink);

} // namespace tarn
