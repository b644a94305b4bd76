#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/model/RecordCopying.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

namespace tarn {

void OVNoteFile::updateUniqueIdentifier()
{
    setUniqueIdentifier(newUUIDString());
}

OVNoteFile* OVNoteFile::duplicate() const
{
    NSManagedObjectContext& context = managedObjectContext();
    auto& copy = static_cast<OVNoteFile&>(context.insertObject(entity()));
    OVEncryptionCoreManager::performInManagedObjectContext(context, [&] {
        copyAttributes(*this, copy);
        copy.updateUniqueIdentifier();
        copy.setPassword(password());
        copy.setUploadedValue(false);
    });
    return &copy;
}

} // namespace tarn
