#pragma once

#include "tarnmodel/backup/BackupRestore.h"
#include "tarnmodel/backup/restoring/BackupRecords.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"

#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace tarn {

class BackupExtraction;
class OVNote;
class OVNoteFile;

/// The records of a backup on their way into a store, page by page; each page is saved whole. What fails throws a
/// `BackupFailure`.
class BackupMerge {
public:
    /// `isResumed`: an earlier restore was cut off here, so what looks finished may not be.
    BackupMerge(BackupRecords& records, const BackupExtraction& extraction, NSManagedObjectContext& context,
        bool isResumed, const std::function<void()>& madeSome, BackupRestoration& restoration);

    void run();
    /// Whether anything was written.
    bool hasWritten() const noexcept { return hasWritten_; }

private:
    /// What became of a note of the backup.
    enum class Fate : std::uint8_t {
        Inserted,
        Replaced,
        Same,     ///< the store has this state
        Newer,    ///< the store has a later one
        Conflict, ///< it became a conflicted copy
    };
    struct Note {
        Fate fate = Fate::Inserted;
        NSManagedObjectID record; ///< that holds the state of the backup, or a later one
        NSManagedObjectID target; ///< to which links to it lead
    };
    using Page = std::vector<BackupRecord>;
    using Existing = std::multimap<std::string, NSManagedObject*>;

    void save(const std::function<void()>& work);
    Existing existingRecords(std::string_view entityName, const Page& page);
    NSManagedObject* existingRecord(const Existing& existing, const BackupRecord& record);
    std::vector<NSManagedObject*> recordsWithoutIdentifier(const std::string& entityName);
    void meet(NSManagedObject& record);
    NSManagedObject& insertRecord(const BackupRecord& record);
    NSManagedObject* recordFor(const std::unordered_map<std::int64_t, NSManagedObjectID>& known, std::int64_t number);
    void remember(
        std::unordered_map<std::int64_t, NSManagedObjectID>& known, std::int64_t number, NSManagedObject& record);
    void tell(const BackupRecord& record, std::string_view reason);
    void takeNoteOfKeys(const BackupRecord& record, const NSManagedObject& password);
    bool isUnderLostKey(const BackupRecord& record) const;
    void tellWhereLocked(const BackupRecord& record);

    // BackupMerge.cpp
    void mergePasswords(const Page& page);
    void mergeTags(const Page& page);
    // BackupMerge+Notes.cpp
    void mergeNotes(const Page& page);
    void mergeNote(const BackupRecord& record, OVNote* existing);
    Fate fateOf(const BackupRecord& record, const OVNote& existing) const;
    OVNote* earlierCopy(const BackupRecord& record, const OVNote& existing) const;
    void keepAsCopy(const BackupRecord& record, OVNote& existing);
    void setRelationships(const BackupRecord& record, OVNote& note);
    // BackupMerge+Files.cpp
    void mergeFiles(const Page& page);
    void mergeFile(const BackupRecord& record, NSManagedObject* existing);
    void bringBytes(const BackupRecord& record, OVNoteFile& file);
    // BackupMerge+Links.cpp
    void mergeLinks(const Page& page);
    void mergeLink(const BackupRecord& record);
    void deriveNotes();
    void deriveNote(OVNote& note);

    BackupRecords& records_;
    const BackupExtraction& extraction_;
    NSManagedObjectContext& context_;
    bool isResumed_;
    bool wasEmpty_ = false;
    bool hasWritten_ = false;
    const std::function<void()>& madeSome_;
    BackupRestoration& restoration_;
    std::vector<std::function<void()>> afterSave_; ///< identifiers are permanent then
    /// Records that stand for one of the backup: where several have one identifier, each stands for another.
    std::unordered_set<NSManagedObjectID> met_;
    std::set<const NSManagedObject*> metOnPage_;
    std::unordered_map<std::int64_t, NSManagedObjectID> passwords_;
    std::set<std::string> lostKeys_; ///< that the backup's passwords have, and those of the store have not
    std::unordered_map<std::int64_t, NSManagedObjectID> tags_;
    std::unordered_map<std::int64_t, Note> notes_;
    std::vector<NSManagedObjectID> toDerive_;
};

/// Writes the attributes of a record of a backup, as they are stored, without side effects; but for these names.
void setStoredAttributes(
    const BackupRecord& from, NSManagedObject& record, std::span<const std::string_view> except = {});
/// Whether the record has just these attributes.
bool hasStoredAttributes(const NSManagedObject& record, const BackupRecord& of);

} // namespace tarn
