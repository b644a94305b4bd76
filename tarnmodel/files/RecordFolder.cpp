#include "tarnmodel/files/RecordFolder.h"

#include "tarnmodel/files/FileNames.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"

#include <algorithm>
#include <system_error>

namespace tarn {

namespace {

namespace fs = std::filesystem;

} // namespace

std::vector<std::string> RecordFolder::areas()
{
    const std::string attachments = std::string(OVNoteLocalFileDirectoryName) + "/";
    return {
        attachments + std::string(OVNoteImageDirectoryName), attachments + std::string(OVNoteGenericFileDirectoryName)};
}

RecordFolder RecordFolder::ofRecord(const OVNoteFile& record)
{
    return {record.localFolderName(), record.uniqueIdentifier().value_or("")};
}

fs::path RecordFolder::url() const
{
    return OVLocalFileManager::localFileManagerForPathComponent(area)->folderURLForUniqueID(identifier);
}

bool fetchRecordsOfFolders(
    const std::vector<std::string>& identifiers, NSManagedObjectContext& context, RecordsOfFolders& records)
{
    NSFetchRequest request(OVNoteFile::entityInManagedObjectContext(context));
    request.predicate = NSPredicate::predicateWithFormat(
        "uniqueIdentifier in %@", Value::Array(identifiers.begin(), identifiers.end()));
    const auto fetched = fetchRecords<OVNoteFile>(request, context);
    if (!fetched)
        return false;
    for (const OVNoteFile* record : *fetched)
        records.emplace(RecordFolder::ofRecord(*record), record);
    return true;
}

bool isUnfinishedItem(const fs::path& item)
{
    return item.filename().native().starts_with(NSFileManager::unfinishedPrefix);
}

std::vector<fs::path> itemsInFolder(const fs::path& folder)
{
    std::vector<fs::path> items;
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end; entry.increment(failure))
        if (!isUnfinishedItem(entry->path()))
            items.push_back(entry->path());
    std::ranges::sort(items);
    return items;
}

std::optional<std::int64_t> sizeOfItem(const fs::path& item)
{
    const auto attributes = NSFileManager::attributesOfItemAtURL(item);
    if (!attributes || !attributes->isFolder)
        return attributes ? std::optional(attributes->size) : std::nullopt;
    std::int64_t size = 0;
    std::error_code failure;
    for (fs::recursive_directory_iterator entry(item, failure), end; !failure && entry != end; entry.increment(failure))
        if (std::error_code ignored; entry->is_regular_file(ignored) && !entry->is_symlink(ignored))
            size += static_cast<std::int64_t>(entry->file_size(ignored));
    return size;
}

bool giveFileItsName(const RecordFolder& folder, std::string_view filename)
{
    if (filename.empty())
        return false;
    const fs::path wanted = folder.url() / fileNameWithinFolder(filename);
    const std::vector<fs::path> items = itemsInFolder(folder.url());
    return items.size() == 1 && items.front() != wanted && NSFileManager::moveItemAtURL(items.front(), wanted);
}

} // namespace tarn
