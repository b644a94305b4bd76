#include "tarnmodel/files/FileJournal.h"
#include "tarnmodel/files/StrayFiles.h"
#include "tarnmodel/files/UnsavedFileChanges.h"
#include "tarnmodel/files/thumbnails/OVThumbFileManager.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <algorithm>
#include <iterator>

namespace tarn {

namespace {

namespace fs = std::filesystem;

void logUnlessDone(bool isDone, const NSError& error)
{
    if (!isDone)
        logMessage("Error while changing files\n" + error.localizedDescription());
}

/// Whether the file that a record names is there, and is another one than this.
bool hasItsFile(const OVNoteFile& record, const fs::path& other)
{
    const auto stored = record.primitiveFileURL();
    return stored && *stored != other && NSFileManager::fileExistsAtURL(*stored);
}

bool isStill(const fs::path& file, const std::optional<NSFileAttributes>& former)
{
    const auto now = NSFileManager::attributesOfItemAtURL(file);
    return !now || (former && now->size == former->size && now->modificationDate == former->modificationDate);
}

/// Bytes that no record has any more, and that somebody put there.
void keepAside(const fs::path& item, const RecordFolder& folder)
{
    if (NSFileManager::fileExistsAtURL(item) && moveToStrayFiles(item, folder.identifier))
        logMessage("An attachment was protected while another writer gave it other bytes; these are kept in "
            + std::string(OVNoteStrayFileDirectoryName));
}

} // namespace

bool UnsavedFileChanges::prepareForSave(NSError* error)
{
    std::vector<fs::path> places;
    std::ranges::copy_if(
        unsynchronized_, std::back_inserter(places), NSFileManager::fileExistsAtURL); // others have gone again
    if (!places.empty() && !NSFileManager::synchronizeItemsAtURLs(places, error))
        return false;
    unsynchronized_.clear();
    return true;
}

void UnsavedFileChanges::didSave(NSManagedObjectContext& context)
{
    std::vector<std::string> identifiers;
    for (const Change& change : changes_)
        if (change.kind != Kind::Added)
            identifiers.push_back(change.folder.identifier);
    // A merge may have kept a record that was deleted here, or given it another name.
    RecordsOfFolders living;
    const bool isKnown = identifiers.empty() || fetchRecordsOfFolders(identifiers, context, living);
    for (const Change& change : changes_)
        finish(change, isKnown ? &living : nullptr);
    if (!imagesWithoutRecord_.empty())
        OVThumbFileManager::thumbFileManagerForPathComponent(OVNoteThumbFileDirectoryName)
            ->deleteAllThumbsForImageURLs(imagesWithoutRecord_);
    clear();
}

/// `living`: the records that are left; null when that could not be found out. Then nothing is removed that may be
/// wanted.
void UnsavedFileChanges::finish(const Change& change, const RecordsOfFolders* living)
{
    if (change.kind == Kind::Added)
        return;
    const auto record = living ? living->find(change.folder) : RecordsOfFolders::const_iterator();
    const bool isWanted = !living || record != living->end();
    NSError error;
    if (change.kind == Kind::Exchanged) {
        if (living)
            finishExchange(change, isWanted ? record->second : nullptr);
        return;
    }
    if (change.kind == Kind::Removed && isWanted && !NSFileManager::fileExistsAtURL(change.place))
        logUnlessDone(NSFileManager::moveItemAtURL(change.former, change.place, &error), error);
    else if (change.kind != Kind::Renamed && (change.former != change.place || !isWanted))
        logUnlessDone(NSFileManager::removeItemAtURL(change.former, &error), error);
    if (!living || !isWanted)
        return;
    if (!record->second->encryptedValue())
        giveFileItsName(change.folder, record->second->storedFilename().value_or(""));
    else if (hasItsFile(*record->second, change.place)) {
        // Others have protected it meanwhile, with the bytes from before.
        if (change.kind == Kind::Replaced)
            keepAside(change.place, change.folder);
        if (change.kind == Kind::Renamed)
            discard(change.place);
    }
}

/// A merge may have kept the former file, or one that others have put in its place.
void UnsavedFileChanges::finishExchange(const Change& change, const OVNoteFile* record)
{
    const auto stored = record ? record->primitiveFileURL() : std::nullopt;
    const bool isThere = stored && NSFileManager::fileExistsAtURL(*stored);
    NSError error;
    if (change.place != stored)
        discard(change.place);
    if (change.former != stored && (isThere || !record)) {
        // Other bytes that somebody else has put there meanwhile are not in the file that took its place.
        if (record && change.former == change.origin && !isStill(change.former, change.formerAttributes))
            keepAside(change.former, change.folder);
        discard(change.former);
    } else if (change.former != change.origin && NSFileManager::fileExistsAtURL(change.former)) {
        logUnlessDone(NSFileManager::moveItemAtURL(change.former, change.origin, &error), error);
    }
    if (record && !isThere && !record->encryptedValue())
        giveFileItsName(change.folder, record->storedFilename().value_or(""));
}

void UnsavedFileChanges::didSaveIntoParent(NSManagedObjectContext& parent)
{
    UnsavedFileChanges& target = ofContext(parent, storeUUID_);
    std::ranges::move(changes_, std::back_inserter(target.changes_));
    std::ranges::move(imagesWithoutRecord_, std::back_inserter(target.imagesWithoutRecord_));
    target.unsynchronized_.merge(unsynchronized_);
    if (!target.journal_)
        target.journal_ = journal_;
    clear();
}

void UnsavedFileChanges::didDropChanges()
{
    for (auto change = changes_.rbegin(); change != changes_.rend(); ++change)
        undo(*change);
    clear();
}

void UnsavedFileChanges::undo(const Change& change)
{
    NSError error;
    if (change.kind == Kind::Added || change.kind == Kind::Replaced || change.kind == Kind::Exchanged)
        discard(change.place);
    if (change.kind == Kind::Exchanged) {
        if (change.former != change.origin && NSFileManager::fileExistsAtURL(change.former))
            logUnlessDone(NSFileManager::moveItemAtURL(change.former, change.origin, &error), error);
        return;
    }
    if (change.kind != Kind::Added && change.former != change.place)
        logUnlessDone(NSFileManager::moveItemAtURL(change.kind == Kind::Renamed ? change.place : change.former,
                          change.kind == Kind::Renamed ? change.former : change.place, &error),
            error);
}

/// Out of sight in one step, whatever it holds; what cannot be removed then goes with the journal.
void UnsavedFileChanges::discard(const fs::path& item)
{
    if (!NSFileManager::fileExistsAtURL(item))
        return;
    NSError error;
    const fs::path discarded = journal_->unusedURL();
    if (NSFileManager::moveItemAtURL(item, discarded))
        NSFileManager::removeItemAtURL(discarded);
    else
        logUnlessDone(NSFileManager::removeItemAtURL(item, &error), error);
}

void UnsavedFileChanges::clear()
{
    changes_.clear();
    unsynchronized_.clear();
    imagesWithoutRecord_.clear();
    journal_.reset();
}

} // namespace tarn
