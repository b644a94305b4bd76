#include "tarnmodel/files/UnsavedFileChanges.h"

#include "tarnmodel/files/FileJournal.h"
#include "tarnmodel/files/thumbnails/OVThumbFileManager.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/foundation/filesystem/FileDescriptorInternal.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <ranges>
#include <system_error>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

void logUnlessDone(bool isDone, const NSError& error)
{
    if (!isDone)
        logMessage("Error while changing files\n" + error.localizedDescription());
}

/// The item, what is in it where it is a folder, and the folders that have to know of it.
void addWithFolders(const fs::path& item, const RecordFolder& folder, std::set<fs::path>& places)
{
    places.insert(item);
    std::error_code failure;
    if (fs::is_directory(item, failure))
        for (fs::recursive_directory_iterator entry(item, failure), end; !failure && entry != end;
             entry.increment(failure))
            if (!entry->is_symlink())
                places.insert(entry->path());
    // The record's folder, the kind's, that of all attachments and the one around it.
    fs::path around = folder.url();
    for (int level = 0; level < 4; ++level, around = around.parent_path())
        places.insert(around);
}

/// Size and date tell which bytes a record was saved with: two versions must not have both in common, as they may where
/// a clock is coarse.
void makeTellable(const fs::path& item, const fs::path& former)
{
    const auto now = NSFileManager::attributesOfItemAtURL(item);
    const auto before = NSFileManager::attributesOfItemAtURL(former);
    if (now && before && now->size == before->size && now->modificationDate == before->modificationDate)
        NSFileManager::setModificationDate(NSDate(now->modificationDate.microsecondsSince1970() + 1), item);
}

/// Whether the file that a record names is there, and is another one than this.
bool hasItsFile(const OVNoteFile& record, const fs::path& other)
{
    const auto stored = record.primitiveFileURL();
    return stored && *stored != other && NSFileManager::fileExistsAtURL(*stored);
}

} // namespace

// Whose --------------------------------------------------------------------------------------------------------------

UnsavedFileChanges::UnsavedFileChanges(std::string storeUUID) : storeUUID_(std::move(storeUUID)) { }
UnsavedFileChanges::~UnsavedFileChanges() = default;

UnsavedFileChanges& UnsavedFileChanges::ofRecord(const OVNoteFile& record)
{
    return ofContext(record.managedObjectContext(), record.identifyingObjectID().store().uuid());
}

UnsavedFileChanges& UnsavedFileChanges::ofContext(NSManagedObjectContext& context, const std::string& storeUUID)
{
    for (SaveParticipant* participant : context.saveParticipants())
        if (auto* own = dynamic_cast<UnsavedFileChanges*>(participant); own && own->storeUUID_ == storeUUID)
            return *own;
    std::unique_ptr<UnsavedFileChanges> added(new UnsavedFileChanges(storeUUID));
    UnsavedFileChanges& changes = *added;
    context.addSaveParticipant(std::move(added));
    return changes;
}

FileJournal* UnsavedFileChanges::journal(NSError* error)
{
    if (!journal_)
        journal_ = FileJournal::forStore(storeUUID_, error);
    return journal_.get();
}

// Changing -----------------------------------------------------------------------------------------------------------

void UnsavedFileChanges::add(Change change)
{
    if (change.kind != Kind::Removed)
        addWithFolders(change.place, change.folder, unsynchronized_);
    changes_.push_back(std::move(change));
}

std::optional<fs::path> UnsavedFileChanges::addFile(
    const RecordFolder& folder, const std::function<std::optional<fs::path>(NSError*)>& bring, NSError* error)
{
    FileJournal* const noted = journal(error);
    const fs::path place = folder.url();
    const bool isNew = !NSFileManager::fileExistsAtURL(place);
    if (!noted || !(isNew ? noted->noteNew(folder, error) : noted->note(folder, error)))
        return std::nullopt;
    auto file = bring(error);
    if (file)
        add({.kind = Kind::Added, .folder = folder, .place = isNew ? place : *file, .former = {}, .origin = {}});
    return file;
}

bool UnsavedFileChanges::renameFile(
    const RecordFolder& folder, std::string_view from, std::string_view to, NSError* error)
{
    const auto manager = OVLocalFileManager::localFileManagerForPathComponent(folder.area);
    const fs::path former = manager->fileURLForUniqueID(folder.identifier, from);
    const fs::path place = manager->fileURLForUniqueID(folder.identifier, to);
    if (former == place)
        return true;
    FileJournal* const noted = journal(error);
    if (!noted || !noted->note(folder, error) || !NSFileManager::moveItemAtURL(former, place, error))
        return false;
    add({.kind = Kind::Renamed, .folder = folder, .place = place, .former = former, .origin = {}});
    return true;
}

bool UnsavedFileChanges::replaceFile(
    const RecordFolder& folder, std::string_view filename, const NSFileWrapper& content, NSError* error)
{
    const auto manager = OVLocalFileManager::localFileManagerForPathComponent(folder.area);
    const fs::path place = manager->fileURLForUniqueID(folder.identifier, filename);
    if (!NSFileManager::fileExistsAtURL(place)) {
        const auto write = [&](NSError* failure) -> std::optional<fs::path> {
            const bool isWritten = manager->getOrCreateFolderForUniqueID(folder.identifier, failure).has_value()
                && content.writeToURL(place, failure);
            return isWritten ? std::optional(place) : std::nullopt;
        };
        return addFile(folder, write, error).has_value();
    }
    FileJournal* const noted = journal(error);
    const fs::path written = noted ? noted->unusedURL() : fs::path();
    const auto aside = noted ? noted->noteAside(folder, place.filename().string(), error) : std::nullopt;
    if (!aside || !content.writeToURL(written, error))
        return false;
    makeTellable(written, place);
    if (!NSFileManager::replaceItemAtURL(place, written, *aside, error)) {
        NSFileManager::removeItemAtURL(written);
        return false;
    }
    add({.kind = Kind::Replaced, .folder = folder, .place = place, .former = *aside, .origin = {}});
    return true;
}

bool UnsavedFileChanges::exchangeFile(
    const RecordFolder& folder, std::string_view former, std::string_view name, const Writer& write, NSError* error)
{
    const auto manager = OVLocalFileManager::localFileManagerForPathComponent(folder.area);
    const fs::path origin = manager->fileURLForUniqueID(folder.identifier, former);
    const fs::path place = manager->fileURLForUniqueID(folder.identifier, name);
    const bool isNew = !NSFileManager::fileExistsAtURL(folder.url());
    FileJournal* const noted = journal(error);
    if (!noted || !clearNameOfFormer(folder, place, error)
        || !noted->noteExchange(folder, origin.filename().string(), place.filename().string(), error)
        || (isNew && !noted->noteNew(folder, error))
        || !manager->getOrCreateFolderForUniqueID(folder.identifier, error))
        return false;
    const fs::path unfinished = folder.url() / (std::string(NSFileManager::unfinishedPrefix) + newUUIDString());
    if (!write(unfinished, error) || !NSFileManager::moveItemAtURL(unfinished, place, error)) {
        NSFileManager::removeItemAtURL(isNew ? folder.url() : unfinished);
        return false;
    }
    // Nobody asks any more for one that was never saved; it may be what is to be protected.
    if (wasMadeHere(origin, folder))
        NSFileManager::removeItemAtURL(origin);
    if (isNew)
        add({.kind = Kind::Added, .folder = folder, .place = folder.url(), .former = {}, .origin = {}});
    add({.kind = Kind::Exchanged, .folder = folder, .place = place, .former = origin, .origin = origin});
    return true;
}

bool UnsavedFileChanges::wasMadeHere(const fs::path& file, const RecordFolder& folder) const
{
    return std::ranges::any_of(changes_, [&](const Change& change) {
        return (change.kind == Kind::Added && (change.place == file || change.place == folder.url()))
            || (change.kind == Kind::Exchanged && change.place == file);
    });
}

/// A file that waits to go when the records are saved gives its name to one that is to have it again.
bool UnsavedFileChanges::clearNameOfFormer(const RecordFolder& folder, const fs::path& place, NSError* error)
{
    if (!NSFileManager::fileExistsAtURL(place))
        return true;
    const auto waiting = std::ranges::find_if(
        changes_, [&](const Change& change) { return change.kind == Kind::Exchanged && change.former == place; });
    if (waiting == changes_.end())
        return failWithSystemError(error, EEXIST, place, "made");
    const auto aside = journal_->noteAside(folder, place.filename().string(), error);
    if (!aside || !NSFileManager::moveItemAtURL(place, *aside, error))
        return false;
    waiting->former = *aside;
    return true;
}

bool UnsavedFileChanges::removeFolder(const RecordFolder& folder, NSError* error)
{
    const fs::path place = folder.url();
    if (!NSFileManager::fileExistsAtURL(place))
        return true;
    FileJournal* const noted = journal(error);
    const auto aside = noted ? noted->noteAside(folder, "", error) : std::nullopt;
    const bool isMoved = aside && NSFileManager::moveItemAtURL(place, *aside, error);
    // On a full disk it stays where it is until the deletion is saved.
    add({.kind = Kind::Removed, .folder = folder, .place = place, .former = isMoved ? *aside : place, .origin = {}});
    return isMoved;
}

void UnsavedFileChanges::takeBack(const RecordFolder& folder)
{
    for (const Change& change : changes_ | std::views::reverse)
        if (change.folder == folder)
            undo(change);
    std::erase_if(changes_, [&](const Change& change) { return change.folder == folder; });
}

void UnsavedFileChanges::deleteThumbnailsOnceSaved(fs::path image)
{
    imagesWithoutRecord_.push_back(std::move(image));
}

// What becomes of the changes ----------------------------------------------------------------------------------------

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
    else if (change.kind == Kind::Renamed && hasItsFile(*record->second, change.place))
        discard(change.place); // others have protected it under a name of their own
}

/// A merge may have kept the former file, or one that others have put in its place.
void UnsavedFileChanges::finishExchange(const Change& change, const OVNoteFile* record)
{
    const auto stored = record ? record->primitiveFileURL() : std::nullopt;
    const bool isThere = stored && NSFileManager::fileExistsAtURL(*stored);
    NSError error;
    if (change.place != stored)
        discard(change.place);
    if (change.former != stored && (isThere || !record))
        discard(change.former);
    else if (change.former != change.origin && NSFileManager::fileExistsAtURL(change.former))
        logUnlessDone(NSFileManager::moveItemAtURL(change.former, change.origin, &error), error);
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
    for (const Change& change : changes_ | std::views::reverse)
        undo(change);
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
