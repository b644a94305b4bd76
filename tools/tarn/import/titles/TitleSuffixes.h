#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tarn {

/// For each of the paths the shortest end of it that no other one has, folded, without the ending of the file; all of
/// it where another one is the same but for case or ending.
std::vector<std::string> suffixesTellingApart(const std::vector<std::filesystem::path>& paths);

} // namespace tarn
