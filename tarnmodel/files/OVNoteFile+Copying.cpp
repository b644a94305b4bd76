#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/model/RecordCopying.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

namespace tarn {

void OVNoteFile::updateUniqueIdentifier()
{
    setUniqueIdentifier(newUUIDString());
}

/// Bytes that are not here are not missed.
void OVNoteFile::takeCopyOfFile(const OVNoteFile& source)
{
    const auto file = source.fileURL();
    NSError error;
    if (file && source.downloadedValue() && !copyFileToLocalFolder(*file, &error))
        logMessage("Error while duplicating an attachment\n" + error.localizedDescription());
}

OVNoteFile* OVNoteFile::duplicate() const
{
    NSManagedObjectContext& context = managedObjectContext();
    auto& copy = static_cast<OVNoteFile&>(context.insertObject(entity()));
    OVEncryptionCoreManager::performInManagedObjectContext(context, [&] {
        copyAttributes(*this, copy);
        copy.updateUniqueIdentifier();
        copy.setPassword(password());
        copy.takeCopyOfFile(*this);
        copy.setUploadedValue(false);
    });
    return &copy;
}

} // namespace tarn
