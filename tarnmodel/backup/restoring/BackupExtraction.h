#pragma once

#include "tarnmodel/backup/archive/ArchiveContents.h"
#include "tarnmodel/backup/archive/StagedFile.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Lays the members of an archive down in a temporary folder, under names of its own: what a member is called says
/// whose it is, and never where it goes.
class BackupExtraction final : public ArchiveContents::Taker {
public:
    explicit BackupExtraction(std::filesystem::path folder) : folder_(std::move(folder)) { }

    /// The records of an entity; none when there are none.
    std::optional<std::filesystem::path> recordsOfEntity(const std::string& entityName) const;
    /// The file, or folder, of an attachment; none when it is not in the archive, or not whole.
    std::optional<std::filesystem::path> itemOfFile(std::string_view uniqueIdentifier) const;

    /// The host's files that are whole, by name.
    const std::map<std::string, std::filesystem::path>& companions() const noexcept { return companions_; }

    bool begin(const BackupManifest::Member& member) override;
    void take(std::span<const std::byte> bytes) override;
    void end(bool isWhole) override;

private:
    struct Item {
        std::string name; ///< in the archive
        std::filesystem::path place;
        bool isWhole = true;
    };

    std::optional<std::filesystem::path> placeOfMember(const std::string& name);
    std::optional<std::filesystem::path> placeInItem(const std::vector<std::string>& components);

    /// Which nothing has, nor had where it turned out to be damaged.
    std::filesystem::path nextPlace(std::string_view kind);

    std::filesystem::path folder_;
    std::size_t placeCount_ = 0;
    std::map<std::string, std::filesystem::path> records_; ///< by entity
    std::map<std::string, Item, std::less<>> items_;       ///< by the identifier of the attachment
    std::map<std::string, std::filesystem::path> companions_;
    std::optional<StagedWriter> writer_;
    std::string memberName_;
};

} // namespace tarn
