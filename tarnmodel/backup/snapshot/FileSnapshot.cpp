#include "tarnmodel/backup/snapshot/FileSnapshot.h"

#include "tarnmodel/backup/BackupFailureInternal.h"
#include "tarnmodel/files/FileJournal.h"
#include "tarnmodel/files/FileNames.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/files/RecordFolder.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"

#include <system_error>

#include <unistd.h>

namespace tarn {

namespace {

namespace fs = std::filesystem;

void makeFolder(const fs::path& folder)
{
    std::error_code failure;
    fs::create_directories(folder, failure);
    if (!failure)
        return;
    errno = failure.value();
    failWithSystem(folder, "made");
}

void linkOrCopyFile(const fs::path& source, const fs::path& destination)
{
    if (::link(source.c_str(), destination.c_str()) == 0 || errno == ENOENT)
        return;
    NSError error;
    if (!NSFileManager::copyItemAtURL(source, destination, &error) && NSFileManager::fileExistsAtURL(source))
        throw BackupFailure(error);
}

} // namespace

void linkOrCopyItem(const fs::path& source, const fs::path& destination)
{
    std::error_code failure;
    const fs::file_status status = fs::symlink_status(source, failure);
    if (fs::is_regular_file(status))
        return linkOrCopyFile(source, destination);
    if (!fs::is_directory(status))
        return;
    makeFolder(destination);
    for (fs::directory_iterator entry(source, failure), end; !failure && entry != end; entry.increment(failure))
        linkOrCopyItem(entry->path(), destination / entry->path().filename());
}

FileSnapshot::FileSnapshot(const fs::path& folder, std::string_view storeUUID) : folder_(folder)
{
    const fs::path root = OVLocalFileManager::applicationPersistentDataURL();
    for (const std::string& area : RecordFolder::areas())
        takeFolder(root / area, folder_ / area);
    takeAsides(storeUUID);
}

void FileSnapshot::takeFolder(const fs::path& source, const fs::path& destination)
{
    makeFolder(destination);
    std::error_code failure;
    for (fs::directory_iterator entry(source, failure), end; !failure && entry != end; entry.increment(failure))
        if (!isUnfinishedItem(entry->path()))
            linkOrCopyItem(entry->path(), destination / entry->path().filename());
}

/// What a program has moved aside and not saved yet is what the store still says.
void FileSnapshot::takeAsides(std::string_view storeUUID)
{
    std::error_code failure;
    for (const FileJournal::Sighting& journal : FileJournal::journalsInSight(storeUUID))
        for (const FileJournal::Line& line : journal.lines) {
            if (!journal.isOfStore || line.aside.empty() || !fs::exists(line.aside, failure))
                continue;
            const fs::path place = placeOf(line.folder.area, line.folder.identifier);
            const fs::path item = line.filename.empty() ? place : place / fileNameWithinFolder(line.filename);
            fs::remove_all(item, failure);
            makeFolder(item.parent_path());
            linkOrCopyItem(line.aside, item);
        }
}

fs::path FileSnapshot::placeOf(std::string_view area, std::string_view identifier) const
{
    return folder_ / area / fileNameWithinFolder(identifier);
}

std::optional<fs::path> FileSnapshot::itemOfRecord(
    std::string_view area, std::string_view identifier, std::string_view filename) const
{
    const fs::path place = placeOf(area, identifier);
    fs::path named = place / fileNameWithinFolder(filename);
    if (!filename.empty() && NSFileManager::fileExistsAtURL(named))
        return named;
    const auto items = itemsInFolder(place);
    return items.size() == 1 ? std::optional(items.front()) : std::nullopt;
}

} // namespace tarn
