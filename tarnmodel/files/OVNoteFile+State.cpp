#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/files/UnsavedFileChanges.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

namespace tarn {

void OVNoteFile::setUnused()
{
    if (isUnused())
        return;
    setUnusedValue(true);
    setUnusedDate(now());
}

void OVNoteFile::setInUse()
{
    if (!isUnused())
        return;
    setUnusedValue(false);
    setUnusedDate(now());
}

void OVNoteFile::markForUpload()
{
    setUploadedValue(false);
    setUploadedDate(now());
}

void OVNoteFile::updateAttachmentAndMarkForUpload()
{
    deleteFileThumbnails();
    updateFileMetadata();
    markForUpload();
}

bool OVNoteFile::updateAttachmentWithFileWrapper(const NSFileWrapper& fileWrapper, NSError* error)
{
    OVEncryptionCoreManagerProtocol* const manager = requireOpen();
    const auto file = primitiveFileURL();
    if (!file || !uniqueIdentifier()) {
        assignError(error, NSError("Tarn Model", 1, "An attachment without a name or an identifier has no file"));
        return false;
    }
    if (manager) {
        if (!manager->setContents(fileWrapper, *this, error))
            return false;
        updateAttachmentAndMarkForUpload();
        return true;
    }
    if (!UnsavedFileChanges::ofRecord(*this).replaceFile(
            RecordFolder::ofRecord(*this), file->filename().string(), fileWrapper, error))
        return false;
    updateAttachmentAndMarkForUpload();
    return true;
}

void OVNoteFile::permanentlyDelete()
{
    managedObjectContext().deleteObject(*this);
}

void OVNoteFile::prepareForDeletion()
{
    if (MainQueue::main().isCurrent()) {
        const auto picture = dynamic_cast<OVNoteImage*>(this) && !encryptedValue() ? primitiveFileURL() : std::nullopt;
        // Looking through all thumbnails for each of many pictures would take long: it is done once, after the save.
        if (picture)
            UnsavedFileChanges::ofRecord(*this).deleteThumbnailsOnceSaved(*picture);
        deleteFileLocalFolder();
    }
    _OVNoteFile::prepareForDeletion();
}

} // namespace tarn
