#pragma once

#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// A path that could not be looked at.
struct PathFailure {
    std::filesystem::path path;
    std::string error;
};

/// Why a path was passed over.
enum class SkipReason { Hidden, HiddenFolder, SeenBefore, Picture, InAssets };

struct SkippedPath {
    std::filesystem::path path;
    SkipReason reason;
};

/// The folder that was given, or of a file that was given its own: files in it may be attached to notes.
struct ImportRoot {
    std::filesystem::path path;   ///< as it was given
    std::filesystem::path target; ///< without symbolic links
};

/// A file that becomes a note. Of many thousands: paths are strings here, which take a fraction of the memory.
struct MarkdownFile {
    std::string path;
    std::shared_ptr<const ImportRoot> root;
};

/// What an import finds below the paths that it is given.
struct MarkdownFiles {
    std::vector<MarkdownFile> files;       ///< in the order of the paths, each folder's in the order of names
    std::vector<MarkdownFile> others;      ///< files of other kinds, which texts may link; none that is hidden
    std::set<std::filesystem::path> roots; ///< without symbolic links, also those in which nothing was found
    std::vector<SkippedPath> skipped;
    std::vector<PathFailure> failures;
};

/// Files as they are given, and below folders every `.md`, `.markdown` and `.txt` (in any case). Names are ordered by
/// their bytes. Hidden files and folders (".name") are passed over; so is a folder or file that was already seen, by
/// whatever path or symbolic link it is reached. Pictures count as passed over, files of other kinds do not; and
/// so do texts in a folder "X.assets" beside a text "X.md", which are attachments of that, and in the folders where an
/// export put attachments. Stops early when an `Interruption` is requested.
MarkdownFiles markdownFilesAtPaths(const std::vector<std::string>& paths);

/// The path without symbolic links; of what is not there an absolute one.
std::filesystem::path pathWithoutSymbolicLinks(const std::filesystem::path& path);

/// "hidden", "a picture" and so on.
std::string_view textOfReason(SkipReason reason) noexcept;

} // namespace tarn
