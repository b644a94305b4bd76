#include "tarnmodel/files/UnsavedFileChanges.h"

#include "tarnmodel/files/FileJournal.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/foundation/filesystem/FileDescriptorInternal.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

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
        add({.kind = Kind::Added,
            .folder = folder,
            .place = isNew ? place : *file,
            .former = {},
            .origin = {},
            .formerAttributes = {}});
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
    add({.kind = Kind::Renamed,
        .folder = folder,
        .place = place,
        .former = former,
        .origin = {},
        .formerAttributes = {}});
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
    add({.kind = Kind::Replaced,
        .folder = folder,
        .place = place,
        .former = *aside,
        .origin = {},
        .formerAttributes = {}});
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
    // The name of one that was never saved is nobody's business: it may be what is to be protected.
    const bool wasMade = wasMadeHere(origin, folder);
    const bool isNameless = wasMade || !NSFileManager::fileExistsAtURL(origin);
    const std::string noName;
    if (!noted || !clearNameOfFormer(folder, place, error)
        || !noted->noteExchange(
            folder, isNameless ? noName : origin.filename().string(), place.filename().string(), error)
        || (isNew && !noted->noteNew(folder, error))
        || !manager->getOrCreateFolderForUniqueID(folder.identifier, error))
        return false;
    const auto formerAttributes = NSFileManager::attributesOfItemAtURL(origin);
    const fs::path unfinished = folder.url() / (std::string(NSFileManager::unfinishedPrefix) + newUUIDString());
    if (!write(unfinished, error) || !NSFileManager::moveItemAtURL(unfinished, place, error)) {
        NSFileManager::removeItemAtURL(isNew ? folder.url() : unfinished);
        return false;
    }
    if (wasMade)
        NSFileManager::removeItemAtURL(origin);
    if (isNew)
        add({.kind = Kind::Added,
            .folder = folder,
            .place = folder.url(),
            .former = {},
            .origin = {},
            .formerAttributes = {}});
    add({.kind = Kind::Exchanged,
        .folder = folder,
        .place = place,
        .former = origin,
        .origin = origin,
        .formerAttributes = formerAttributes});
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
    add({.kind = Kind::Removed,
        .folder = folder,
        .place = place,
        .former = isMoved ? *aside : place,
        .origin = {},
        .formerAttributes = {}});
    return isMoved;
}

void UnsavedFileChanges::takeBack(const RecordFolder& folder)
{
    for (auto change = changes_.rbegin(); change != changes_.rend(); ++change)
        if (change->folder == folder)
            undo(*change);
    std::erase_if(changes_, [&](const Change& change) { return change.folder == folder; });
}

void UnsavedFileChanges::deleteThumbnailsOnceSaved(fs::path image)
{
    imagesWithoutRecord_.push_back(std::move(image));
}

} // namespace tarn
