#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tarn {

/// A path that could not be looked at.
struct PathFailure {
    std::filesystem::path path;
    std::string error;
};

/// What an import finds below the paths that it is given.
struct MarkdownFiles {
    std::vector<std::filesystem::path> files; ///< in the order of the paths, each folder's in the order of names
    std::size_t skipped = 0;                  ///< files that were named twice or are hidden
    std::vector<PathFailure> failures;
};

/// Files as they are given, and below folders every `.md`, `.markdown` and `.txt` (in any case). Names are ordered by
/// their bytes. Hidden files and folders (".name") are passed over; so is a folder or file that was already seen, by
/// whatever path or symbolic link it is reached.
MarkdownFiles markdownFilesAtPaths(const std::vector<std::string>& paths);

} // namespace tarn
