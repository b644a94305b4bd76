#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>

namespace tarn {

/// A name that every file system in use takes, Windows' included: what is not legal there becomes "_", so does a point
/// at the beginning, which would hide the file. At most `longest` bytes, cut between characters so that the extension
/// stays. "Untitled" for nothing.
std::string portableFileName(std::string_view name, std::size_t longest);

/// The name of a note's file, without its ending: for a title, or for the name of the file that it was made of.
std::string portableNoteName(std::string_view title);

/// A folder of such names. What is called as the folders of attachments are gets "_" in front.
std::filesystem::path portableFolder(const std::filesystem::path& folder);

/// Gives out paths of files, each once: two are the same when they are so composed and without case.
class ExportNames {
public:
    /// Takes a path as it is. False when it is taken, and nothing is done.
    bool take(const std::filesystem::path& path);
    /// Takes a folder with those above it, which many may have. Spelled as it was for the first one.
    std::filesystem::path folder(const std::filesystem::path& wanted);
    /// Takes "name.md" in a folder, or where that is taken, or `isOthers` says so, "name 2.md" and so on.
    std::filesystem::path noteFile(const std::filesystem::path& folder, const std::string& name,
        const std::function<bool(const std::filesystem::path&)>& isOthers);

private:
    std::set<std::string> taken_;                    ///< by what is compared
    std::map<std::string, std::string> folders_;     ///< likewise; as they are spelled
    std::map<std::string, std::size_t> lastCounter_; ///< of the path without a counter, likewise
};

/// The ending of notes' files.
inline constexpr std::string_view kNoteEnding = ".md";

} // namespace tarn
