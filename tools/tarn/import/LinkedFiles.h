#pragma once

#include "tools/tarn/import/MarkdownFiles.h"

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// What a destination of a Markdown link means to an import.
struct LinkedFile {
    enum class Kind {
        NoPath,       ///< a URL, an anchor, nothing
        Found,        ///< a file below the imported folder
        ImportedNote, ///< a file that becomes a note itself, be its ending left out or its folder named
        Missing,      ///< nothing is there, or no file
        Outside,      ///< it lies, or leads by symbolic links, elsewhere
    };
    Kind kind = Kind::NoPath;
    std::filesystem::path path;   ///< of a file that was found, as the link names it
    std::filesystem::path target; ///< the same without symbolic links
    std::string anchor;           ///< of a note: what stands behind "#"
};

/// Finds the files that links of imported texts name.
///
///     LinkedFiles files(imported);
///     const LinkedFile file = files.fileForLink("img/a%20b.png", note, root);
class LinkedFiles {
public:
    /// `notes`: the files that become notes.
    explicit LinkedFiles(std::span<const MarkdownFile> notes);

    /// What `destination` means in the text of `note`, which was found below `root`. Percent-encoded or not, composed
    /// or not, with "?" or "#" behind it or not; one that begins with "/" begins at `root`.
    LinkedFile fileForLink(
        std::string_view destination, const std::filesystem::path& note, const std::filesystem::path& root);

private:
    LinkedFile fileAtPath(const std::filesystem::path& path, const std::filesystem::path& root) const;
    std::optional<LinkedFile> noteNear(const std::filesystem::path& place, const std::filesystem::path& root);
    std::vector<std::filesystem::path> pagesOf(const std::filesystem::path& folder);
    std::optional<std::filesystem::path> existing(
        const std::filesystem::path& folder, const std::filesystem::path& relative);
    const std::filesystem::path& canonicalRoot(const std::filesystem::path& root);

    using NamesOfFolder = std::map<std::string, std::string, std::less<>>; ///< by their composed form
    const NamesOfFolder& namesIn(const std::filesystem::path& folder);

    std::set<std::filesystem::path> notes_; ///< without symbolic links
    std::map<std::filesystem::path, std::filesystem::path> roots_;
    std::map<std::filesystem::path, NamesOfFolder> names_;
};

} // namespace tarn
