#include "tarnmodel/diagnosis/FileExaminationInternal.h"

#include "tarnmodel/diagnosis/ClearTextInternal.h"
#include "tarnmodel/diagnosis/RecordFileInternal.h"
#include "tarnmodel/diagnosis/RecordReadingInternal.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/files/RecordFolder.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/coredata/NSPersistentStore.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"

#include <filesystem>
#include <set>
#include <string>
#include <system_error>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;
using Kind = StoreFinding::Kind;

/// How many records are held at a time.
constexpr std::size_t kRecordsAtATime = 500;

/// What lies in the folders of all kinds.
std::set<fs::path> foldersOnDisk()
{
    std::set<fs::path> folders;
    for (const std::string& area : RecordFolder::areas()) {
        std::error_code failure;
        const fs::path place = OVLocalFileManager::localFileManagerForPathComponent(area)->baseURL();
        for (fs::directory_iterator entry(place, failure), end; !failure && entry != end; entry.increment(failure))
            folders.insert(entry->path());
    }
    return folders;
}

/// One examination. Folders are listed before the journals are read, and those before the records: a folder without a
/// record is then one that no process was making.
class FileComparison {
public:
    explicit FileComparison(NSManagedObjectContext& context)
        : context_(context), storeUUID_(context.persistentStoreCoordinator().persistentStore()->identifier()),
          withoutRecord_(foldersOnDisk()), underWay_(storeUUID_)
    { }

    FileExamination run();

private:
    void examineRecords();
    void examineRecord(OVNoteFile& record);
    void examineFoldersWithoutRecord();
    StoreFinding& add(Kind kind, const fs::path& folder, fs::path item);

    NSManagedObjectContext& context_;
    std::string storeUUID_;
    std::set<fs::path> withoutRecord_;
    FilesUnderWay underWay_;
    std::vector<fs::path> folderOfFinding_;
    FileExamination examination_;
};

FileExamination FileComparison::run()
{
    examineRecords();
    examineFoldersWithoutRecord();
    // Others may have begun to change what was looked at.
    const FilesUnderWay begun(storeUUID_);
    FileExamination settled;
    for (std::size_t index = 0; index < folderOfFinding_.size(); ++index) {
        if (begun.contains(folderOfFinding_[index]))
            continue;
        settled.findings.push_back(std::move(examination_.findings[index]));
        settled.filesToMend.push_back(std::move(examination_.filesToMend[index]));
    }
    for (const fs::path& journal : begun.abandonedJournals()) {
        StoreFinding& finding = settled.findings.emplace_back();
        finding.kind = Kind::AbandonedFileChanges;
        finding.description = journal.string();
    }
    return settled;
}

StoreFinding& FileComparison::add(Kind kind, const fs::path& folder, fs::path item)
{
    folderOfFinding_.push_back(folder);
    StoreFinding& finding = examination_.findings.emplace_back();
    finding.kind = kind;
    finding.description = item.string();
    examination_.filesToMend.push_back({.kind = kind, .objectID = std::nullopt, .item = std::move(item)});
    return finding;
}

void FileComparison::examineRecords()
{
    NSFetchRequest request(OVNoteFile::entityInManagedObjectContext(context_));
    request.fetchLimit = kRecordsAtATime;
    bool isLast = false;
    while (!isLast) {
        const std::vector<OVNoteFile*> records = readRecords<OVNoteFile>(context_, request);
        for (OVNoteFile* record : records)
            examineRecord(*record);
        isLast = records.size() < kRecordsAtATime;
        request.fetchOffset += kRecordsAtATime;
        context_.reset();
    }
}

void FileComparison::examineRecord(OVNoteFile& record)
{
    const fs::path folder = RecordFolder::ofRecord(record).url();
    withoutRecord_.erase(folder);
    if (underWay_.contains(folder))
        return;
    const RecordFile file = RecordFile::ofRecord(record);
    for (const fs::path& unfinished : file.unfinished)
        add(Kind::UnfinishedFile, folder, unfinished);
    if (file.isClearBeside(record))
        add(Kind::ClearFile, folder, folder);
    const auto kind = file.whatIsAmiss(record);
    if (!kind)
        return;
    StoreFinding& finding = add(*kind, folder, file.place);
    finding.objectID = record.objectID();
    finding.uniqueIdentifier = record.uniqueIdentifier();
    finding.title = tellableNameOf(record);
    finding.description.clear();
    if (*kind == Kind::WrongFileSize) {
        finding.stored = Value(record.storedFileSize());
        finding.derived = Value(file.size);
    }
    examination_.filesToMend.back().objectID = record.objectID();
}

void FileComparison::examineFoldersWithoutRecord()
{
    for (const fs::path& folder : withoutRecord_) {
        const bool isUnfinished = isUnfinishedItem(folder);
        if (!underWay_.contains(folder))
            add(isUnfinished ? Kind::UnfinishedFile : Kind::FolderWithoutRecord, folder, folder);
    }
}

} // namespace

bool hasFilesOfApplication(const NSManagedObjectContext& context)
{
    const NSPersistentStore* const store = context.persistentStoreCoordinator().persistentStore();
    std::error_code failure;
    // Asking where the application's lies makes its folder: not for a store in memory.
    return store && fs::exists(store->file(), failure)
        && fs::equivalent(store->file(), OVLocalFileManager::databaseURL(), failure) && !failure;
}

bool hasThumbsOfApplication(const NSManagedObjectContext& context)
{
    const fs::path own = OVLocalFileManager::databaseURLInGroupFolder(OVLocalFileManager::defaultApplicationGroupURL());
    std::error_code failure;
    return hasFilesOfApplication(context)
        && fs::equivalent(context.persistentStoreCoordinator().persistentStore()->file(), own, failure) && !failure;
}

FileExamination examineFiles(NSManagedObjectContext& context)
{
    return FileComparison(context).run();
}

std::uintmax_t bytesOfAttachments()
{
    std::uintmax_t bytes = 0;
    for (const std::string& area : RecordFolder::areas()) {
        const fs::path place = OVLocalFileManager::localFileManagerForPathComponent(area)->baseURL();
        bytes += static_cast<std::uintmax_t>(sizeOfItem(place).value_or(0));
    }
    return bytes;
}

} // namespace tarn
