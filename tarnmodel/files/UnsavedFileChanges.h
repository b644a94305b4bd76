#pragma once

#include "tarnmodel/files/RecordFolder.h"
#include "tarnmodel/platform/coredata/SaveParticipant.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class FileJournal;
class NSFileWrapper;
class OVNoteFile;

/// What was done to files on disk for records of a context that are not saved yet: made durable before the records are
/// saved, finished once they are, undone when they are dropped.
///
/// What a record says and what lies on disk thereby agree for whoever looks: a deleted record's folder is gone at once,
/// moved aside, and comes back when the deletion is taken back. On the context's queue.
class UnsavedFileChanges final : public SaveParticipant {
public:
    /// The one of the record's context.
    static UnsavedFileChanges& ofRecord(const OVNoteFile& record);
    ~UnsavedFileChanges() override;

    /// Runs `bring`, which puts a file into the folder and answers where; none and an error when it fails.
    std::optional<std::filesystem::path> addFile(const RecordFolder& folder,
        const std::function<std::optional<std::filesystem::path>(NSError*)>& bring, NSError* error);
    /// Renames a file of the folder; fails when the new name is taken.
    bool renameFile(const RecordFolder& folder, std::string_view from, std::string_view to, NSError* error);
    /// Puts the content in the place of a file, which need not be there.
    bool replaceFile(
        const RecordFolder& folder, std::string_view filename, const NSFileWrapper& content, NSError* error);
    /// Writes a file.
    using Writer = std::function<bool(const std::filesystem::path& place, NSError* error)>;
    /// Puts the file that `write` makes beside a file of the folder, which goes once the records are saved, or at once
    /// where it was made since the last save; it need not be there. Fails when the new name is taken.
    bool exchangeFile(const RecordFolder& folder, std::string_view former, std::string_view name, const Writer& write,
        NSError* error);
    /// Moves the folder with all that is in it out of sight. True when there is none. False and an error when that
    /// cannot be: then it goes once the context is saved.
    bool removeFolder(const RecordFolder& folder, NSError* error);
    /// Undoes at once what was done in the folder of a record that is not to be, after all.
    void takeBack(const RecordFolder& folder);
    /// Deletes the thumbnails of a picture once its record's deletion is saved.
    void deleteThumbnailsOnceSaved(std::filesystem::path image);

    bool prepareForSave(NSError* error) override;
    void didSave(NSManagedObjectContext& context) override;
    void didSaveIntoParent(NSManagedObjectContext& parent) override;
    void didDropChanges() override;

private:
    enum class Kind : std::uint8_t { Added, Renamed, Replaced, Exchanged, Removed };
    struct Change {
        Kind kind = Kind::Added;
        RecordFolder folder;
        std::filesystem::path place;  ///< what was made, or what has got another name or gone
        std::filesystem::path former; ///< of a renamed file its name before; else where it lies, if it was there
        std::filesystem::path origin; ///< of an exchanged file where the former one belongs
        std::optional<NSFileAttributes> formerAttributes; ///< of an exchanged file what the former one was then
    };

    explicit UnsavedFileChanges(std::string storeUUID);
    static UnsavedFileChanges& ofContext(NSManagedObjectContext& context, const std::string& storeUUID);
    FileJournal* journal(NSError* error);
    void add(Change change);
    bool wasMadeHere(const std::filesystem::path& file, const RecordFolder& folder) const;
    bool clearNameOfFormer(const RecordFolder& folder, const std::filesystem::path& place, NSError* error);
    void undo(const Change& change);
    void finish(const Change& change, const RecordsOfFolders* living);
    void finishExchange(const Change& change, const OVNoteFile* record);
    void discard(const std::filesystem::path& item);
    void clear();

    std::string storeUUID_;
    std::shared_ptr<FileJournal> journal_; ///< null while nothing is unsaved
    std::vector<Change> changes_;
    std::set<std::filesystem::path> unsynchronized_; ///< what has yet to be made durable
    std::vector<std::filesystem::path> imagesWithoutRecord_;
};

} // namespace tarn
