#pragma once

#include "tarnmodel/files/RecordFolder.h"
#include "tarnmodel/platform/coredata/SaveParticipant.h"

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
    /// Moves the folder with all that is in it out of sight. True when there is none. False and an error when that
    /// cannot be: then it goes once the context is saved.
    bool removeFolder(const RecordFolder& folder, NSError* error);
    /// Deletes the thumbnails of a picture once its record's deletion is saved.
    void deleteThumbnailsOnceSaved(std::filesystem::path image);

    bool prepareForSave(NSError* error) override;
    void didSave(NSManagedObjectContext& context) override;
    void didSaveIntoParent(NSManagedObjectContext& parent) override;
    void didDropChanges() override;

private:
    enum class Kind : std::uint8_t { Added, Renamed, Replaced, Removed };
    struct Change {
        Kind kind = Kind::Added;
        RecordFolder folder;
        std::filesystem::path place;  ///< what was made, or what has got another name or gone
        std::filesystem::path former; ///< of a renamed file its name before; else where it was moved aside
    };

    explicit UnsavedFileChanges(std::string storeUUID);
    static UnsavedFileChanges& ofContext(NSManagedObjectContext& context, const std::string& storeUUID);
    FileJournal* journal(NSError* error);
    void add(Change change);
    void undo(const Change& change);
    static void finish(const Change& change, const RecordsOfFolders* living);
    void clear();

    std::string storeUUID_;
    std::shared_ptr<FileJournal> journal_; ///< null while nothing is unsaved
    std::vector<Change> changes_;
    std::set<std::filesystem::path> unsynchronized_; ///< what has yet to be made durable
    std::vector<std::filesystem::path> imagesWithoutRecord_;
};

} // namespace tarn
