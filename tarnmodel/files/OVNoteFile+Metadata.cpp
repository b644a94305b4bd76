#include "tarnmodel/files/FileNames.h"
#include "tarnmodel/files/UnsavedFileChanges.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/filetypes/UTType.h"
#include "tarnmodel/platform/foundation/text/Normalization.h"
#include "tarnmodel/platform/foundation/text/PercentEncoding.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <algorithm>
#include <filesystem>

namespace tarn {

namespace {

namespace fs = std::filesystem;

/// Neither escapes nor compositions change what is ASCII without "%".
bool isComparedAsItIs(std::string_view name)
{
    return std::ranges::none_of(
        name, [](char byte) { return byte == '%' || static_cast<unsigned char>(byte) >= 0x80; });
}

} // namespace

bool OVNoteFile::filenameIsEqualTo(std::string_view filename) const
{
    const auto name = this->filename();
    if (!name)
        return false;
    // A note with thousands of attachments asks this millions of times.
    if (isComparedAsItIs(*name) && isComparedAsItIs(filename))
        return *name == filename;
    const auto own = stringByRemovingPercentEncoding(*name);
    const auto other = stringByRemovingPercentEncoding(filename);
    return own && other && canonicallyComposed(*own) == canonicallyComposed(*other);
}

void OVNoteFile::renameWithFilename(std::string_view filename, NSError* error)
{
    requireOpen();
    if (encryptedValue()) {
        setFilename(fileNameWithinFolder(filename));
        updateNormalizedExtension();
        if (downloadedValue())
            markForUpload();
        return;
    }
    const auto formerName = this->filename();
    deleteFileThumbnails();
    const auto formerFile = fileURL();
    setFilename(fileNameWithinFolder(filename));
    updateNormalizedExtension();
    if (!downloadedValue())
        return;
    const auto file = fileURL();
    const bool isRenamed = formerFile && file
        && UnsavedFileChanges::ofRecord(*this).renameFile(
            RecordFolder::ofRecord(*this), formerFile->filename().string(), file->filename().string(), error);
    if (isRenamed) {
        markForUpload();
    } else if (formerFile) {
        // The record goes on saying what is on disk.
        setFilename(formerName);
        updateNormalizedExtension();
    }
}

void OVNoteFile::updateFileMetadata()
{
    if (hasEncryptionAndIsLocked())
        return;
    const auto file = encryptedValue() && !downloadedValue() ? std::nullopt : fileURL();
    if (encryptedValue() && !file)
        return;
    const auto size = file ? sizeOfItem(*file) : std::nullopt;
    // A decrypted copy is as old as the last time that somebody looked at it.
    const auto stored = primitiveFileURL();
    const auto attributes = stored ? NSFileManager::attributesOfItemAtURL(*stored) : std::nullopt;
    setFileSize(size.value_or(0));
    setModificationDate(attributes ? std::optional(attributes->modificationDate) : std::nullopt);
    setCreationDate(attributes ? attributes->creationDate : std::nullopt);
}

void OVNoteFile::updateNormalizedExtension()
{
    const std::string extension = fs::path(filename().value_or("")).extension().string();
    const auto type = extension.empty() ? std::nullopt : UTType::typeWithFilenameExtension(extension.substr(1));
    const std::string_view preferred = type ? type->preferredFilenameExtension() : std::string_view();
    setNormalizedFileExtension(preferred);
}

} // namespace tarn
