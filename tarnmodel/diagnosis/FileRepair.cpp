#include "tarnmodel/diagnosis/FileRepairInternal.h"

#include "tarnmodel/diagnosis/RecordFileInternal.h"
#include "tarnmodel/diagnosis/RecordReadingInternal.h"
#include "tarnmodel/files/RecordFolder.h"
#include "tarnmodel/files/StrayFiles.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/coredata/NSPersistentStore.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"

#include <set>
#include <string>

namespace tarn {

namespace {

namespace fs = std::filesystem;
using Kind = StoreFinding::Kind;

bool mendRecord(OVNoteFile& record, Kind kind)
{
    // Others may have mended it, or damaged it in another way, meanwhile.
    if (RecordFile::ofRecord(record).whatIsAmiss(record) != kind)
        return false;
    if (kind == Kind::MisnamedFile)
        return giveFileItsName(RecordFolder::ofRecord(record), record.storedFilename().value_or(""));
    if (kind == Kind::MissingFile)
        record.setDownloadedValue(false);
    else
        record.updateAttachmentAndMarkForUpload();
    return true;
}

/// The names of those folders, among the ones to be moved, that have a record after all.
std::set<std::string> identifiersOfRecords(std::span<const FileToMend> files, NSManagedObjectContext& context)
{
    std::vector<std::string> asked;
    for (const FileToMend& file : files)
        if (file.kind == Kind::FolderWithoutRecord)
            asked.push_back(file.item.filename().string());
    RecordsOfFolders records;
    if (!asked.empty() && !fetchRecordsOfFolders(asked, context, records))
        throw DiagnosisFailure{};
    std::set<std::string> identifiers;
    for (const auto& [folder, record] : records)
        identifiers.insert(folder.identifier);
    return identifiers;
}

} // namespace

std::size_t mendFiles(std::span<const FileToMend> files, NSManagedObjectContext& context)
{
    const FilesUnderWay underWay(context.persistentStoreCoordinator().persistentStore()->identifier());
    const std::set<std::string> known = identifiersOfRecords(files, context);
    std::size_t mended = 0;
    for (const FileToMend& file : files) {
        if (underWay.contains(file.item) || underWay.contains(file.item.parent_path()))
            continue;
        if (file.kind == Kind::ClearFile)
            continue; // removed by the sweep of all of them
        if (file.objectID) {
            DiagnosisFailure failure;
            auto* record = static_cast<OVNoteFile*>(context.existingObjectWithID(*file.objectID, &failure.error));
            if (!record && failure.error != NSError())
                throw failure;
            mended += record && mendRecord(*record, file.kind) ? 1 : 0;
        } else if (file.kind == Kind::UnfinishedFile) {
            mended += NSFileManager::removeItemAtURL(file.item) ? 1 : 0;
        } else if (const std::string name = file.item.filename().string(); !known.contains(name)) {
            mended += moveToStrayFiles(file.item, name) ? 1 : 0;
        }
    }
    return mended;
}

} // namespace tarn
