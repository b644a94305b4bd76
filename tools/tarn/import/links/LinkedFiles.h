#pragma once

#include "tools/tarn/import/reading/MarkdownFiles.h"

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
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
///     LinkedFiles files(isNote);
///     const LinkedFile file = files.fileForLink("img/a%20b.png", note);
class LinkedFiles {
public:
    /// Whether the file of this path, which has no symbolic links, becomes a note.
    using NotePredicate = std::function<bool(const std::string& path)>;
    explicit LinkedFiles(NotePredicate isNote) : isNote_(std::move(isNote)) { }

    /// What `destination` means in the text of `note`. Percent-encoded or not, composed
    /// or not, with "?" or "#" behind it or not; one that begins with "/" begins at its root.
    LinkedFile fileForLink(std::string_view destination, const MarkdownFile& note);

private:
    LinkedFile fileAtPath(const std::filesystem::path& path, const std::filesystem::path& root) const;
    std::optional<LinkedFile> noteNear(const std::filesystem::path& place, const std::filesystem::path& root);
    std::vector<std::filesystem::path> pagesOf(const std::filesystem::path& folder);
    std::optional<std::filesystem::path> existing(
        const std::filesystem::path& folder, const std::filesystem::path& relative);

    using NamesOfFolder = std::map<std::string, std::string, std::less<>>; ///< by their composed form
    const NamesOfFolder& namesIn(const std::filesystem::path& folder);

    NotePredicate isNote_;
    std::map<std::filesystem::path, NamesOfFolder> names_;
};

} // namespace tarn
