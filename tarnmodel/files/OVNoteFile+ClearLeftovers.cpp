#include "tarnmodel/files/FileJournal.h"
#include "tarnmodel/files/RecordFolder.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStore.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/system/Log.h"

#include <algorithm>
#include <set>
#include <string>
#include <system_error>
#include <vector>

namespace tarn {

namespace {

namespace fs = std::filesystem;

/// What lies in the folder of a record beside its file, unfinished items included.
std::vector<fs::path> leftoversOf(const OVNoteFile& record)
{
    const auto stored = record.primitiveFileURL();
    std::vector<fs::path> leftovers;
    std::error_code failure;
    for (fs::directory_iterator entry(RecordFolder::ofRecord(record).url(), failure), end; !failure && entry != end;
         entry.increment(failure))
        if (entry->path() != stored)
            leftovers.push_back(entry->path());
    return leftovers;
}

/// The folders in which something is under way, or was when a process died.
std::set<RecordFolder> foldersInJournals(std::string_view storeUUID)
{
    std::set<RecordFolder> folders;
    for (const FileJournal::Sighting& journal : FileJournal::journalsInSight(storeUUID))
        if (journal.isHeld || journal.isOfStore)
            for (const FileJournal::Line& line : journal.lines)
                folders.insert(line.folder);
    return folders;
}

/// Reads anew what the record stores first: who exchanged its file since may have saved.
std::size_t removeLeftoversOf(OVNoteFile& record, std::vector<fs::path> leftovers)
{
    if (!record.hasChanges())
        record.managedObjectContext().refreshObject(record, false);
    const auto stored = record.primitiveFileURL();
    if (record.isDeleted() || !record.encryptedValue() || !stored)
        return 0;
    if (!NSFileManager::fileExistsAtURL(*stored)) {
        logMessage("Beside a protected attachment whose file is missing lies another one, which stays: "
            + RecordFolder::ofRecord(record).url().string());
        return 0;
    }
    return static_cast<std::size_t>(std::ranges::count_if(
        leftovers, [&](const fs::path& item) { return item != *stored && NSFileManager::removeItemAtURL(item); }));
}

} // namespace

std::size_t OVNoteFile::removeClearLeftoversInManagedObjectContext(NSManagedObjectContext& context)
{
    const NSPersistentStore* const store = context.persistentStoreCoordinator().persistentStore();
    if (!store)
        return 0;
    struct Find {
        OVNoteFile* record;
        std::vector<fs::path> leftovers;
    };
    std::vector<Find> finds;
    for (OVNoteFile* record : filesWithPasswordInManagedObjectContext(context))
        if (auto leftovers = leftoversOf(*record); !leftovers.empty())
            finds.push_back({record, std::move(leftovers)});
    if (finds.empty())
        return 0;
    // A process notes what it is about to do before it does it: what was seen above is in a journal, or was finished.
    const std::set<RecordFolder> underWay = foldersInJournals(store->identifier());
    std::size_t removed = 0;
    for (Find& find : finds)
        if (!underWay.contains(RecordFolder::ofRecord(*find.record)))
            removed += removeLeftoversOf(*find.record, std::move(find.leftovers));
    if (removed > 0)
        logMessage(std::to_string(removed) + " files beside those of protected attachments were removed");
    return removed;
}

} // namespace tarn
