#include "tarnmodel/files/FileJournal.h"
#include "tarnmodel/files/StrayFiles.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/system/Log.h"

#include <algorithm>
#include <map>
#include <set>
#include <system_error>
#include <vector>

namespace tarn {

namespace {

namespace fs = std::filesystem;

using LinesOfFolder = std::vector<const FileJournal::Line*>;

/// Whether these are the bytes that the record was saved with.
bool isAsSaved(const OVNoteFile& record, const fs::path& file)
{
    const auto attributes = NSFileManager::attributesOfItemAtURL(file);
    return attributes && attributes->size == record.storedFileSize()
        && attributes->modificationDate == record.modificationDate();
}

/// Of the bytes that replaced each other the saved ones stay. Where none are what the record says, nothing is lost.
void settleReplacedFiles(const OVNoteFile& record, const fs::path& place, const std::vector<fs::path>& asides)
{
    const std::vector<fs::path> items = itemsInFolder(place);
    std::vector<fs::path> candidates = items;
    candidates.insert(candidates.end(), asides.begin(), asides.end());
    const auto saved = std::ranges::find_if(candidates, [&](const fs::path& item) { return isAsSaved(record, item); });
    if (saved != candidates.end()) {
        for (const fs::path& item : items)
            if (item != *saved)
                NSFileManager::removeItemAtURL(item);
        NSFileManager::moveItemAtURL(*saved, place / saved->filename());
        return;
    }
    for (const fs::path& aside : asides)
        if (!items.empty() || !NSFileManager::moveItemAtURL(aside, place / aside.filename()))
            moveToStrayFiles(aside, record.uniqueIdentifier().value_or(""));
}

/// Of the files that took each other's place the one stays that the record names. Where that is not there, what was
/// made for records that never were saved goes, unless nothing else is left.
void settleExchangedFiles(const OVNoteFile& record, const fs::path& place, const LinesOfFolder& lines)
{
    std::set<fs::path> made;
    std::set<fs::path> exchanged;
    for (const FileJournal::Line* line : lines) {
        if (line->exchangedFor.empty())
            continue;
        made.insert(place / line->exchangedFor);
        exchanged.insert(place / line->exchangedFor);
        if (!line->filename.empty())
            exchanged.insert(place / line->filename);
    }
    if (exchanged.empty())
        return;
    const auto stored = record.primitiveFileURL();
    const bool isThere = stored && NSFileManager::fileExistsAtURL(*stored);
    const bool isFormerLeft
        = std::ranges::any_of(itemsInFolder(place), [&](const fs::path& item) { return !made.contains(item); });
    if (!isThere && !isFormerLeft)
        return;
    for (const fs::path& item : isThere ? exchanged : made)
        if (item != stored)
            NSFileManager::removeItemAtURL(item);
}

void removeUnfinishedItems(const fs::path& folder)
{
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end; entry.increment(failure))
        if (isUnfinishedItem(entry->path()))
            NSFileManager::removeItemAtURL(entry->path());
}

void settleFolder(const RecordFolder& folder, const OVNoteFile* record, const LinesOfFolder& lines)
{
    const fs::path place = folder.url();
    if (!record) {
        // One that was there before may be of a record that an older copy of the store has not got yet.
        if (std::ranges::any_of(lines, [](const FileJournal::Line* line) { return line->isNew; }))
            NSFileManager::removeItemAtURL(place);
        else if (NSFileManager::fileExistsAtURL(place))
            moveToStrayFiles(place, folder.identifier);
        return;
    }
    std::vector<fs::path> replaced;
    for (const FileJournal::Line* line : lines) {
        if (line->aside.empty() || !NSFileManager::fileExistsAtURL(line->aside))
            continue;
        if (!line->filename.empty())
            replaced.push_back(line->aside);
        else if (!NSFileManager::fileExistsAtURL(place))
            NSFileManager::moveItemAtURL(line->aside, place);
    }
    settleExchangedFiles(*record, place, lines);
    removeUnfinishedItems(place);
    const auto stored = record->primitiveFileURL();
    if (record->encryptedValue() && stored && NSFileManager::fileExistsAtURL(*stored)) {
        // Its name says that it is the saved one; what it replaced may be what it protects.
        for (const fs::path& aside : replaced)
            NSFileManager::removeItemAtURL(aside);
        return;
    }
    if (!replaced.empty())
        settleReplacedFiles(*record, place, replaced);
    if (!record->encryptedValue())
        giveFileItsName(folder, record->storedFilename().value_or(""));
}

std::vector<std::string> identifiersOf(const std::vector<FileJournal::Line>& lines)
{
    std::vector<std::string> identifiers;
    for (const FileJournal::Line& line : lines)
        identifiers.push_back(line.folder.identifier);
    return identifiers;
}

} // namespace

void OVNoteFile::recoverFilesInManagedObjectContext(NSManagedObjectContext& context)
{
    const NSPersistentStore* const store = context.persistentStoreCoordinator().persistentStore();
    if (!store)
        return;
    for (FileJournal::Abandoned& journal : FileJournal::abandonedForStore(store->identifier())) {
        RecordsOfFolders records;
        if (!fetchRecordsOfFolders(identifiersOf(journal.lines), context, records))
            return;
        std::map<RecordFolder, LinesOfFolder> folders;
        for (const FileJournal::Line& line : journal.lines)
            folders[line.folder].push_back(&line);
        for (const auto& [folder, lines] : folders) {
            const auto record = records.find(folder);
            settleFolder(folder, record == records.end() ? nullptr : record->second, lines);
        }
        logMessage("Files of " + std::to_string(folders.size())
            + " attachments were brought in step with their records: a program had ended before it saved");
        journal.folder.remove();
    }
}

} // namespace tarn
