#include "tarnmodel/files/FileNames.h"
#include "tarnmodel/files/UnsavedFileChanges.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kErrorDomain = "Tarn Model";
constexpr long kMissingIdentifier = 1;

/// The stored name where it is another one than the source's.
std::string nameInFolder(const OVNoteFile& record, const fs::path& source)
{
    return fileNameWithinFolder(record.filename().value_or(source.filename().string()));
}

bool hasIdentifier(const OVNoteFile& record, std::string_view action, NSError* error)
{
    if (record.uniqueIdentifier())
        return true;
    assignError(error,
        NSError(kErrorDomain, kMissingIdentifier,
            "Missing uniqueIdentifier while trying to " + std::string(action) + " file"));
    return false;
}

} // namespace

std::optional<fs::path> OVNoteFile::copyFileToLocalFolder(const FileURL& url, NSError* error)
{
    if (!hasIdentifier(*this, "copy", error))
        return std::nullopt;
    const RecordFolder folder = RecordFolder::ofRecord(*this);
    const auto copy = [&](NSError* failure) {
        return localFileManager()->copyFileAtURL(url.path, folder.identifier, nameInFolder(*this, url.path), failure);
    };
    return UnsavedFileChanges::ofRecord(*this).addFile(folder, copy, error);
}

std::optional<fs::path> OVNoteFile::moveFileToLocalFolder(const FileURL& url, NSError* error)
{
    if (!hasIdentifier(*this, "move", error))
        return std::nullopt;
    const RecordFolder folder = RecordFolder::ofRecord(*this);
    const auto move = [&](NSError* failure) {
        return localFileManager()->moveFileAtURL(url.path, folder.identifier, nameInFolder(*this, url.path), failure);
    };
    return UnsavedFileChanges::ofRecord(*this).addFile(folder, move, error);
}

std::optional<fs::path> OVNoteFile::primitiveFileURL() const
{
    const auto name = storedFilename();
    if (!name)
        return std::nullopt;
    return localFileManager()->fileURLForUniqueID(uniqueIdentifier().value_or(""), *name);
}

std::shared_ptr<OVLocalFileManager> OVNoteFile::localFileManager() const
{
    return OVLocalFileManager::localFileManagerForPathComponent(localFolderName());
}

void OVNoteFile::deleteFileLocalFolder()
{
    if (!uniqueIdentifier())
        return;
    NSError error;
    if (!UnsavedFileChanges::ofRecord(*this).removeFolder(RecordFolder::ofRecord(*this), &error))
        logMessage("Error while changing files\n" + error.localizedDescription());
}

} // namespace tarn
