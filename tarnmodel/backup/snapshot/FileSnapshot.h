#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// The files of all attachments as of one moment: each has a second name in a folder of its own, or is copied there
/// where it cannot have one. Nothing writes over the bytes of an attachment, so they stay what they were.
class FileSnapshot {
public:
    /// Of the attachments of this application, into a folder that is there. Throws a `BackupFailure`.
    FileSnapshot(const std::filesystem::path& folder, std::string_view storeUUID);

    /// Where the file (or folder) of an attachment lies in the snapshot; none when it has none. The one of that name
    /// where there are several.
    std::optional<std::filesystem::path> itemOfRecord(
        std::string_view area, std::string_view identifier, std::string_view filename) const;

private:
    void takeFolder(const std::filesystem::path& source, const std::filesystem::path& destination);
    void takeAsides(std::string_view storeUUID);
    std::filesystem::path placeOf(std::string_view area, std::string_view identifier) const;

    std::filesystem::path folder_;
};

/// Gives a file, or each file in a folder, a second name at a place that is free, or copies it. Links are left out.
/// What is gone by then is passed over. Throws a `BackupFailure`.
void linkOrCopyItem(const std::filesystem::path& source, const std::filesystem::path& destination);

} // namespace tarn
