#pragma once

#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarn {

/// A file of an export.
struct ExportedFile {
    std::filesystem::path path; ///< from the folder of the export
    std::uintmax_t size = 0;    ///< bytes
    std::string hash;           ///< of its bytes
    friend bool operator==(const ExportedFile&, const ExportedFile&) = default;
};

/// The folder that an export writes, for one process at a time.
///
/// Files are put together in a hidden folder and renamed, so that each is whole or not there. No symbolic link in the
/// folder is followed. All paths are from the folder; what fails raises `CommandFailure` unless it says otherwise.
class ExportFolder {
public:
    explicit ExportFolder(std::filesystem::path root) : root_(std::move(root)) { }
    ~ExportFolder();
    ExportFolder(const ExportFolder&) = delete;
    ExportFolder& operator=(const ExportFolder&) = delete;

    const std::filesystem::path& root() const noexcept { return root_; }
    /// Whether there is nothing in it, or it is not there.
    bool isEmpty() const;
    /// Whether it has a file of this name.
    bool hasFile(const std::filesystem::path& path) const;
    /// Makes the folder where it is not there, and takes it for this process. Raises when another one has it.
    void open();

    /// What lies at a path.
    struct Found {
        bool isThere = false;
        std::string hash{}; ///< "" of what is no file, cannot be read, or is reached by a symbolic link
        std::uintmax_t size = 0;
    };
    Found find(const std::filesystem::path& path) const;

    /// Called with the file that is about to get its name.
    using Announce = std::function<void(const ExportedFile&)>;
    /// Writes a file of these bytes. `replaces`: what is there goes; else a file that is there is an error. Why it
    /// could not be written; none when it was.
    std::optional<std::string> writeText(const std::filesystem::path& path, std::string_view bytes, NSDate date,
        bool replaces, const Announce& announce);
    /// The same of a copy of a file from elsewhere. `copied` becomes what was copied.
    std::optional<std::string> copyFile(const std::filesystem::path& source, const std::filesystem::path& path,
        bool replaces, const Announce& announce, ExportedFile& copied);
    /// Removes a file, and the folders around it that become empty. Why it could not; none when it was or is gone.
    std::optional<std::string> remove(const std::filesystem::path& path);
    /// Removes the folders around a path that are empty.
    void removeEmptyFolders(const std::filesystem::path& path);
    /// Returns when all that was written would survive a loss of power.
    void synchronize();

private:
    std::filesystem::path unfinished();
    std::optional<std::string> place(
        const std::filesystem::path& unfinished, const ExportedFile& file, bool replaces, const Announce& announce);
    std::optional<std::string> makeFolders(const std::filesystem::path& folder);
    bool isWithin(const std::filesystem::path& path) const;

    std::filesystem::path root_;
    int lock_ = -1;
    bool isStaging_ = false;
    std::set<std::filesystem::path> made_; ///< folders that are known to be there
    std::vector<std::filesystem::path> written_;
};

} // namespace tarn
