#include "tarnmodel/diagnosis/StoreStatistics.h"

#include "tarnmodel/diagnosis/FileExaminationInternal.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/notes/NoteFilter.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStore.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"

#include <array>
#include <filesystem>
#include <system_error>

namespace tarn {

namespace {

struct NoteCount {
    std::size_t StoreStatistics::*count;
    NoteFilter filter;
};

constexpr std::array kNoteCounts{
    NoteCount{&StoreStatistics::notes, NoteFilter::All},
    NoteCount{&StoreStatistics::activeNotes, NoteFilter::Active},
    NoteCount{&StoreStatistics::archivedNotes, NoteFilter::Archived},
    NoteCount{&StoreStatistics::trashedNotes, NoteFilter::Trashed},
    NoteCount{&StoreStatistics::pinnedNotes, NoteFilter::Pinned},
    NoteCount{&StoreStatistics::readOnlyNotes, NoteFilter::ReadOnly},
    NoteCount{&StoreStatistics::encryptedNotes, NoteFilter::Encrypted},
    NoteCount{&StoreStatistics::conflictedNotes, NoteFilter::Conflicted},
    NoteCount{&StoreStatistics::untaggedNotes, NoteFilter::Untagged},
    NoteCount{&StoreStatistics::notesWithOpenToDos, NoteFilter::WithOpenToDos},
    NoteCount{&StoreStatistics::notesWithSourceCode, NoteFilter::WithSourceCode},
};

bool countRecords(NSManagedObjectContext& context, const NSFetchRequest& request, std::size_t& records, NSError* error)
{
    const std::optional<std::size_t> count = context.count(request, error);
    records = count.value_or(0);
    return count.has_value();
}

bool countNotes(NSManagedObjectContext& context, StoreStatistics& statistics, NSError* error)
{
    NSFetchRequest request(OVNote::entityInManagedObjectContext(context));
    for (const NoteCount& count : kNoteCounts) {
        request.predicate = predicateForNoteFilter(count.filter);
        if (!countRecords(context, request, statistics.*count.count, error))
            return false;
    }
    return true;
}

std::uintmax_t bytesOfStoreFile(const NSManagedObjectContext& context)
{
    const NSPersistentStore* store = context.persistentStoreCoordinator().persistentStore();
    std::error_code error;
    const std::uintmax_t bytes = store ? std::filesystem::file_size(store->file(), error) : 0;
    return error ? 0 : bytes;
}

} // namespace

std::optional<StoreStatistics> statisticsOfStore(NSManagedObjectContext& context, NSError* error)
{
    StoreStatistics statistics;
    const NSFetchRequest tags(OVNoteTag::entityInManagedObjectContext(context));
    const NSFetchRequest files(OVNoteFile::entityInManagedObjectContext(context));
    if (!countNotes(context, statistics, error) || !countRecords(context, tags, statistics.tags, error)
        || !countRecords(context, files, statistics.files, error))
        return std::nullopt;
    statistics.attachmentBytes = hasFilesOfApplication(context) ? bytesOfAttachments() : 0;
    statistics.fileBytes = bytesOfStoreFile(context);
    return statistics;
}

} // namespace tarn
