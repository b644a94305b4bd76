#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tarn {

/// A text in a file of its own, alone in a folder below the one for temporary files that nobody else can look into.
/// Stays until it is removed.
class PrivateTextFile {
public:
    /// Whose text it is. That of a protected note lies in memory where the system has a folder for that, and goes with
    /// the session of its user at the latest.
    enum class Content { OfOpenNote, OfProtectedNote };

    /// Raises `CommandFailure` when it cannot be written.
    PrivateTextFile(std::string_view folderPrefix, std::string_view name, std::string_view text, Content content);

    const std::filesystem::path& path() const noexcept { return path_; }
    /// Whether every file of the folder is one with this text. False when that cannot be said.
    bool holdsNothingBut(std::string_view text) const;
    /// Removes the file, the folder, and whatever else was put into it.
    void remove() noexcept;

private:
    std::filesystem::path path_;
};

} // namespace tarn
